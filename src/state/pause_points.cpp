#include "state/pause_points.h"

PausePoints pause_points;

namespace {
constexpr Variable kPausePointRows[] = {
    {"tod_pause_done", &pause_points.tod_pause_done},
    {"tod_rate_done", &pause_points.tod_rate_done},
    {"dest_pause_done", &pause_points.dest_pause_done},
    {"dest_rate_done", &pause_points.dest_rate_done},
};
}  // namespace

const std::span<const Variable> kPausePointVariables = kPausePointRows;
