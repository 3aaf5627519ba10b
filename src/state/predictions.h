#pragma once

#include <span>

#include "state/growing_list.h"
#include "state/variable.h"

/// The way between two fixes as it has been measured; it holds until one of them is another.
struct MeasuredLeg {
    double from_lat = 0, from_lon = 0, to_lat = 0, to_lon = 0;
    double dist = 0;  // nm
};

/// What the active route, the speeds, the weight and the winds imply. Written by fmc/performance, and begun
/// anew with the route. Pounds, knots, nm.
struct PredictionState {
    double start_weight = 0;
    double clb_burn = 33000, crz_burn = 8500, des_burn = 3500;             // lb/h
    double default_climb_rate = 3300;                                      // fpm
    double clb_burn_per_nm = 0, crz_burn_per_nm = 0, des_burn_per_nm = 0;  // lb/nm
    double avg_burn = 0;                                                   // lb/h
    double avg_gs = 0;                                                     // over cruise and descent
    double clb_wind = 0, crz_wind = 0, des_wind = 0;  // along the track, tailwind positive
    double clb_tas = 0, crz_tas = 0, des_tas = 0;     // for planning
    double tod_rod = 0;                               // fpm, planned rate of descent
    double perf_factor = 0;
    double dist_to_toc = 0, dist_to_tod = 0, dist_to_dest = 0;
    double dest_brg = 0;                              // degrees magnetic
    double final_point_lat = 0, final_point_lon = 0;  // 5 nm before the destination runway
    int final_point_set = 0;
    GrowingList<MeasuredLeg> measured_legs;  // by the leg at the end
};

extern PredictionState predictions;
extern const std::span<const Variable> kPredictionVariables;
