#include "state/fix_info.h"

FixInfoState fix_info;

namespace {
constexpr Variable kFixInfoRows[] = {
    {"FixPages", &fix_info.FixPages},
};
}  // namespace

const std::span<const Variable> kFixInfoVariables = kFixInfoRows;
