#include "state/time_base.h"

TimeBase time_base;

namespace {
constexpr Variable kTimeBaseRows[] = {
    {"tick18", &time_base.tick18},
    {"last_tick18", &time_base.last_tick18},
    {"output_tick18", &time_base.output_tick18},
    {"tick_phase", &time_base.tick_phase},
    {"tick2s_phase", &time_base.tick2s_phase},
    {"tick3s_phase", &time_base.tick3s_phase},
    {"frame_phase", &time_base.frame_phase},
    {"flight_time_base", &time_base.flight_time_base},
    {"fltsecs", &time_base.fltsecs},
    {"wpt_log_ticks", &time_base.wpt_log_ticks},
    {"startup_msg_ticks", &time_base.startup_msg_ticks},
    {"startup_sound_msg_ticks", &time_base.startup_sound_msg_ticks},
    {"capt_mcp_clock_mode", &time_base.capt_mcp_clock_mode},
    {"et_clock_running", &time_base.et_clock_running},
    {"et_seconds", &time_base.et_seconds},
    {"et_minutes", &time_base.et_minutes},
    {"last_seconds", &time_base.last_seconds},
};
}  // namespace

const std::span<const Variable> kTimeBaseVariables = kTimeBaseRows;
