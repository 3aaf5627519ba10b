#include "state/irs.h"

IrsState irs;

namespace {
constexpr Variable kIrsRows[] = {
    {"irs_timer_l", &irs.irs_timer_l},
    {"irs_timer_r", &irs.irs_timer_r},
    {"irs_left", &irs.irs_left},
    {"irs_right", &irs.irs_right},
    // further names of the same flags
    {"irs_aligned_l", &irs.irs_left},
    {"irs_aligned_r", &irs.irs_right},
};
}  // namespace

const std::span<const Variable> kIrsVariables = kIrsRows;
