#pragma once

#include <span>

#include "state/variable.h"

constexpr int kTicksPerSecond = 18;

/// The shared time base. Stepped by RunUpdateCycle and MainUpdate; a tick is 1/18 s of unpaused time.
struct TimeBase {
    double tick18 = 0;            // the host's 18 Hz counter; stands still in pause
    double last_tick18 = 0;       // its value at the previous tick; a tick exists when the two differ
    double output_tick18 = 0;     // its value at the previous output step
    int tick_phase = 0;           // 0 to 17
    int tick2s_phase = 0;         // 0 to 35
    int tick3s_phase = 0;         // 1 to 54 once running
    int frame_phase = 0;          // 0 to 17, advances also in pause, from the eighth second on
    double flight_time_base = 0;  // s, absolute host time of the first pre-update; 0 = not yet known
    double fltsecs = 0;           // s of flight while fplog_mode is 3 to 10
    int wpt_log_ticks = 0;        // ticks, counted with LogWptTurnData
    int startup_msg_ticks = 0;    // ticks, stands at 2500
    int startup_sound_msg_ticks = 0;
    int last_seconds = -1;        // the seconds token at the previous tick; -1 = not yet read
    int capt_mcp_clock_mode = 0;  // elapsed-time clock: 0 blank, 1 running, 2 stopped
    int et_clock_running = 0;     // elapsed-time clock
    int et_seconds = 0;
    int et_minutes = 0;
};

extern TimeBase time_base;
extern const std::span<const Variable> kTimeBaseVariables;
