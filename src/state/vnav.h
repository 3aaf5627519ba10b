#pragma once

#include <span>

#include "state/variable.h"

/// The vertical path as guidance follows it. Feet, knots, nm.
struct VnavState {
    int vnav_engaged = 0;  // 1 while ap_vert_mode is 5 or 6
    int toc = 0, tod = 0;  // 1 once passed
    int init_tod = 0;
    double toc_lat = 0, toc_lon = 0;
    int toc_stpos = 0;
    double tod_lat = 0, tod_lon = 0;
    int tod_stpos = 0;
    double cross_at_elev = 0;  // altitude to be reached at the cross-at point
    double cross_at_lat = 0, cross_at_lon = 0;
    double cross_at_nm = 0;
    double dist_from_tod_to_bod = 0;
    double dist_from_bod = 0;
    int last_tod_pos = 0;      // the last leg that began a descent segment
    double last_tod_elev = 0;  // and its altitude
    int vnav_vert_dev = 0;     // ft above the path, -9000 to 9000
    double dist_past_tod = 0;  // route distance flown since the top of descent
    double desc_grad_alt = 0;  // altitude of the path where the aircraft is
    double vnav_ias = 0, vnav_mach = 0;
    int vnav_spd_mode = 1;     // 1 IAS, 2 Mach
    int vnav_spd_pending = 0;  // 1 = the target stands for this leg
    int vnav_lset_code = 0;    // the rule that set the target, a SpeedRule; 0 = none yet
    double level_off_dist =
        999;                 // to the next level or limit altitude at the present vertical speed; 999 = none
    double required_vs = 0;  // fpm that makes the cross-at point, downwards
    int clb_limit_active = 0;  // a climb limit has been the target
    int spd_limit_done = 0;    // descent limits taken up: 1 transition, 2 restriction, 3 both
    int leg_speed_taken = 0;   // leg whose speed constraint has been taken up
    int reset_mcp_told = 0;    // the crew has been told, until the MCP altitude is lowered
    int descent_cnt = 0;       // tops of descent passed
    double tod_from_dest = 0;  // from the destination to the planned top of descent
    int tod_shortcut = 0;      // a wide-turn sequencing in cruise asks for the shortcut of the TOD test
    double clb_next_restr_alt = 0, des_next_restr_alt = 0;
    int step_due = 0;                   // a step climb has come due
    double step_lat = 0, step_lon = 0;  // where the next one comes due; 0, 0 = nowhere
    double dist_to_step = 0;            // along the route
    double step_noted_alt = 0;          // cruise altitude at which it came due
    int step_climb_timer = 0;           // ticks since, to 300
    double drag_msg_changed_at = 0;     // s, host time at which "DRAG REQUIRED" last came or went
};

extern VnavState vnav;
extern const std::span<const Variable> kVnavVariables;
