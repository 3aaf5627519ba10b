#pragma once

#include <array>
#include <span>

#include "state/variable.h"

// Values of the modes, active and armed; 0 is none.
enum LateralMode {
    kLatAtt = 1,
    kLatHdgHold,
    kLatHdgSel,
    kLatTrkHold,
    kLatTrkSel,
    kLatLnav,
    kLatLoc,
    kLatRollout,
    kLatToGa,
    kLatFac,
};
enum VerticalMode {
    kVertAlt = 1,
    kVertVs,
    kVertFpa,
    kVertFlch,
    kVertVnavSpd,
    kVertVnavPth,
    kVertGs = 10,
    kVertFlare,
    kVertToGa,
    kVertGp,
};
enum ThrottleMode {
    kThrottleSpd = 2,
    kThrottleMach,
    kThrottleIdle,
    kThrottleThrRef,
    kThrottleHold = 8,
    kThrottleThr,
    kThrottleThrToo,
};

/// Copies of what AutoflightLogic reports, read each tick by the output step.
struct AutoflightState {
    int ap_master_l = 0, ap_master_r = 0;
    int ap_lat_mode = 0, ap_lat_mode_armed = 0;
    int ap_vert_mode = 0, ap_vert_mode_armed = 0;
    int at_mode = 0, at_mode_armed = 0;
    int at_armed_left = 0, at_armed_right = 0;
    int ap_envelope_prot = 0;
    double fd_roll_cmd = 0;     // degrees, the host's sign: left wing down positive
    double fd_pitch_cmd = 0;    // degrees, nose down positive
    int fd_pitch_bar_off = 0;   // the director has no pitch to command
    int fac_approach = 0;       // 1: the approach is flown along its final course, without a landing system
    double fac_lat_needle = 0;  // -127 to 127, the course on the right positive
    double gp_needle = 0;       // -127 to 127, the path below positive
    int ian_approach = 0;       // tz_fmc_ian_appr as it was read last
    int ap_master_disconnect = 0;
    int spd_intv_active = 0;  // 1 while the pilot holds the speed in VNAV
    int thrust_limit = 0;
    int ap_disc_warning = 0;  // "AUTOPILOT DISC" on EICAS
    int ap_disc_latch = 0;    // remembers a warning disconnect
    int ap_disc_lamp = 0;     // the warning lamp is lit for it
    // ticks left of the boxes on the FMA
    int ap_status_timer = 0, fma_roll_timer = 0, fma_pitch_timer = 0, fma_at_timer = 0;
    std::array<double, 18> spd_ring = {};  // airspeed_smooth by tick_phase
    double spd_mean = 0;                   // kt, see UpdateSpeedTrend
    double spd_lookahead = 0;              // kt
    double spd_trend = 0;                  // kt
};

extern AutoflightState autoflight;
extern const std::span<const Variable> kAutoflightVariables;

inline bool IsAutopilotEngaged() {
    return autoflight.ap_master_l != 0 || autoflight.ap_master_r != 0;
}
