#pragma once

#include <span>

#include "state/variable.h"

/// Where the aircraft's model has the control surfaces, and how hot its brakes are. A surface that has failed
/// reads kFailedSurface.
constexpr double kFailedSurface = -999;
constexpr double kHotBrake = 5.0;

struct SurfaceState {
    double aileron_left = 0, aileron_right = 0;
    double flaperon_left = 0, flaperon_right = 0;
    double elevator_left = 0, elevator_right = 0;
    double spoiler_1 = 0, spoiler_2 = 0, spoiler_3 = 0, spoiler_4 = 0, spoiler_5 = 0, spoiler_6 = 0,
           spoiler_7 = 0, spoiler_8 = 0, spoiler_9 = 0, spoiler_10 = 0, spoiler_11 = 0, spoiler_12 = 0,
           spoiler_13 = 0, spoiler_14 = 0;  // at most 200
    double elev_trim_ind = 0;               // units of stabiliser trim
    double Brake_Temp1 = 0, Brake_Temp2 = 0, Brake_Temp3 = 0, Brake_Temp4 = 0, Brake_Temp5 = 0,
           Brake_Temp6 = 0, Brake_Temp7 = 0, Brake_Temp8 = 0;  // kHotBrake and above is hot
};

extern SurfaceState surfaces;
extern const std::span<const Variable> kSurfaceVariables;
