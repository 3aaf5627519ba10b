#pragma once

#include <array>
#include <span>

#include "state/variable.h"

/// What a pilot has chosen on a primary flight display.
struct PfdSide {
    int fpv_on = 0;    // flight path vector
    int mtrs_on = 0;   // metric altitudes
    int baro_hpa = 0;  // barometric setting in hPa, else inches
};

/// The settings of the flight instruments outside the navigation displays.
struct InstrumentState {
    std::array<PfdSide, 2> pfd;  // captain, first officer
    int minimums_baro = 0;       // 1 by the barometric altitude, 0 by the radio altitude
    int minimums_value = 200;    // ft
    int minimums_mode = 0;       // 0 shown, 1 alerting, 2 hidden
    int dh_set = 0;              // the host's decision height has read 200
    int hud_declutter = 0;       // no tapes and no compass rose
    double stby_brightness = 1;  // 0 to 1
    int stby_app_mode = 0;       // 0, or 2 = approach
    int stby_baro_in = 0;        // 1 inches of mercury, else hPa
    int altitude_alert = 0;      // the aircraft leaves, or nears, the selected altitude
    int gpws_warning = 0;        // 3 = "PULL UP"
    int ldg_alt_flag = 0;        // no landing altitude is known
    // What a primary flight display remembers from picture to picture. Stepped by display/pfd.
    double fd_pitch_smooth = 0;   // degrees, of the director's pitch command below the nose
    double baro_preset = 29.92;   // inHg, the last setting that wasn't standard
    int flap_detent = 0;          // the flap setting, 0 to 30
    int flap_bug_phase = 4;       // 4 climb: the speeds to come with flaps in, 6 approach: with flaps out
    int fmc_speed_active = 0;     // VNAV gives the speed, and not the pilot
    int vspeed_bugs_removed = 0;  // the V2 bug is gone for this flight
    int mach_box_timer = 0;       // ticks left of the box around a Mach number that has just appeared
    int fd_status_timer = 0;      // the same around "FLT DIR"
    int mach_shown = 0, fd_status_shown = 0;
    int minimums_above = 0;  // at the previous tick: higher than the minimums
    int pfd_on_ground = 0;   // at the previous tick
    // The box around the head-up display's radio altitude, in ticks.
    int ra_2500_timer = 0;         // after the sink through 2500 ft
    int minimums_cross_timer = 0;  // after the sink through the minimums: not yet
    int hud_above_2500 = 0;        // at the previous tick
    int hud_above_minimums = 0;
};

extern InstrumentState instruments;
extern const std::span<const Variable> kInstrumentVariables;
