#pragma once

#include <span>
#include <string>

#include "state/planned_speeds.h"
#include "state/variable.h"

/// Speeds, altitudes and weights that the crew or the cost index sets, and what predictions make of them.
/// Filled by the performance pages, ExecuteRoute and fmc/predictions. Pounds, feet, knots, nm.
struct PerfState {
    PlannedSpeeds speeds;        // in force
    int cost_index = -1;         // negative = none
    double cruise_alt = 0;       // ft, 0 = none
    double init_cruise_alt = 0;  // the altitude planned before the first step
    int fms_step_size = 0;       // ft; 0 entered step-to altitude, -1 ICAO, -2 RVSM
    double fms_step_to_alt = 0;
    double entered_step_to_alt = 0;
    double clb_spd_trans_alt = 10000, clb_spd_trans_spd = 250;
    double clb_restr_alt = 0, clb_restr_spd = 0;
    double des_spd_trans_alt = 10000, des_spd_trans_spd = 240;
    double des_restr_alt = 0, des_restr_spd = 0;
    double spd_limit = 0;     // kt, lower limit of the descent speed
    double ZfwEntry = 0;      // lb, zero-fuel weight entered by the crew, 0 = none
    double zfw = 0;           // lb, zero-fuel weight, 0 = not known
    double gross_weight = 0;  // lb
    double agent_fuel = 0;    // lb, added by the load agent
    double planned_fuel = 0;  // lb, that the route brought and that isn't in the tanks yet; 0 = none
    double resv_fuel = 0;     // lb
    double reserves = 0;      // lb
    double start_weight = 0;
    double clb_burn = 33000, crz_burn = 8500, des_burn = 3500;             // lb/h
    double default_climb_rate = 3300;                                      // fpm
    double clb_burn_per_nm = 0, crz_burn_per_nm = 0, des_burn_per_nm = 0;  // lb/nm
    double avg_burn = 0;                                                   // lb/h
    double avg_gs = 0;                                                     // kt, over cruise and descent
    double clb_wind = 0, crz_wind = 0, des_wind = 0;  // kt along the track, tailwind positive
    double clb_tas = 0, crz_tas = 0, des_tas = 0;     // kt, for planning
    double tod_rod = 0;                               // fpm, planned rate of descent
    double perf_factor = 0;
    double dist_to_toc = 0, dist_to_tod = 0, dist_to_dest = 0;  // nm
    double dest_brg = 0;                                        // degrees magnetic
    double final_point_lat = 0, final_point_lon = 0;            // 5 nm before the destination runway
    int final_point_set = 0;
    // takeoff and landing
    int v1 = 0, vr = 0, v2 = 0;                       // kt, 0 = none; as TAKEOFF REF shows them
    int V1Entered = 0, VREntered = 0, V2Entered = 0;  // kt, by the crew; 0 = computed
    double vref = 0;                                  // kt, the selected approach speed, 0 = none
    double Vref20 = 0, Vref25 = 0, Vref30 = 0;        // kt, by landing flaps; 0 = not yet computed
    double ApproachWeightEntry = 0;                   // lb, 0 = the present gross weight
    int to_flaps = 0, ldg_flaps = 0;
    std::string takeoff_flap_list = ",5,15,20,";  // settings that the variant has
    int fplog_mode = -1;                          // flight phase of the flight log
};

extern PerfState perf;
extern const std::span<const Variable> kPerfVariables;
