#pragma once

#include <array>
#include <span>
#include <string>

#include "state/variable.h"

/// Path and lateral guidance of the active leg. Degrees, nm. Filled by guidance/.
struct LnavState {
    double leg_len = 0;          // of ActiveLeg, from its from to its to
    double leg_crs = 0;          // degrees magnetic, 0.5 to below 360.5
    double wpt_brg = 0;          // degrees magnetic, 0.5 to below 360.5
    double wpt_dist = 0;         // to the TO fix; -1 asks to sequence now
    double wpt_chg_dist = 0;     // before the TO fix, where the next leg starts
    double passed_chg_dist = 0;  // the same of the fix passed last
    double turn_radius = 0;
    int turn_angle = 0;      // whole degrees
    double turn_code = 0;    // the angle; -1 farther than 15 nm; -2 on a fly-over fix
    double xtk = -99;        // nm, at most 125; -99 without a plan
    int xtk_side = 0;        // 1 left of the track, 2 right
    double xtk_shown = -99;  // taken once a second for the displays
    int xtk_side_shown = 0;
    // Degrees true, of the leg where the aircraft is. The course of a long leg turns with the meridians, so
    // headings and turns are measured against this one and not against leg_crs.
    double course_here = 0;
    // The leg that the values above belong to, and its ends; for another one they are taken anew.
    int located_leg = 0;
    std::array<double, 4> located = {};  // from_lat, from_lon, to_lat, to_lon
    int fix_near = 0;                    // 1 from the tick on which the TO fix comes within wpt_chg_dist
    int plan_finished = 0;               // the last fix is passed: no sequencing, and the heading stays
    int lnav_engaged = 0;                // 1 when ap_lat_mode or ap_lat_mode_armed is 6
    double fms_hdg = 0;                  // degrees magnetic, true on the true reference setting
    int true_reference = 0;              // 1 while the displays' heading reference is true north
    double sent_fms_hdg = -1;            // the one sent last to the host's heading bug
    double aim_lat = 0, aim_lon = 0;
    double lookahead = 0;
    int force_sequence = 0;  // one-tick request to sequence at once
    int holding = 0;
    int hold_point = 0;  // 0 before the entry; 1 to 4 the pattern point flown to
    int hold_prev_point = 0;
    int hold_exit = 0;     // 0 none, 3 leaving once executed, 4 the hold was removed while flown
    int hold_speed = 230;  // kt
    double hold_hdg = 0;
    int further_hold = 0;     // 2: the hold selection is for one more hold
    int hold_select_due = 0;  // side whose CDU is to go to LEGS in its hold selection view
    double last_fix_lat = 0, last_fix_lon = 0, last_fix_alt = 0;
    int lnav_init_mode = 0;  // 1 while a stored track is joined
    double lnav_init_lat = 0, lnav_init_lon = 0;
    double lnav_join_trk_lat = 0, lnav_join_trk_lon = 0;
    double lnav_join_trk = 0;
    int report_due = 0;        // a datalink position report armed for the passed ident is due
    std::string report_ident;  // the ident it is armed for, empty = none
    int turn_log_begun = 0;    // wptTurn.csv has its header line
};

extern LnavState lnav;
extern const std::span<const Variable> kLnavVariables;
