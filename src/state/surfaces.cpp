#include "state/surfaces.h"

SurfaceState surfaces;

namespace {
constexpr Variable kSurfaceRows[] = {
    {"aileron_left", &surfaces.aileron_left},   {"aileron_right", &surfaces.aileron_right},
    {"flaperon_left", &surfaces.flaperon_left}, {"flaperon_right", &surfaces.flaperon_right},
    {"elevator_left", &surfaces.elevator_left}, {"elevator_right", &surfaces.elevator_right},
    {"spoiler_1", &surfaces.spoiler_1},         {"spoiler_2", &surfaces.spoiler_2},
    {"spoiler_3", &surfaces.spoiler_3},         {"spoiler_4", &surfaces.spoiler_4},
    {"spoiler_5", &surfaces.spoiler_5},         {"spoiler_6", &surfaces.spoiler_6},
    {"spoiler_7", &surfaces.spoiler_7},         {"spoiler_8", &surfaces.spoiler_8},
    {"spoiler_9", &surfaces.spoiler_9},         {"spoiler_10", &surfaces.spoiler_10},
    {"spoiler_11", &surfaces.spoiler_11},       {"spoiler_12", &surfaces.spoiler_12},
    {"spoiler_13", &surfaces.spoiler_13},       {"spoiler_14", &surfaces.spoiler_14},
    {"elev_trim_ind", &surfaces.elev_trim_ind}, {"Brake_Temp1", &surfaces.Brake_Temp1},
    {"Brake_Temp2", &surfaces.Brake_Temp2},     {"Brake_Temp3", &surfaces.Brake_Temp3},
    {"Brake_Temp4", &surfaces.Brake_Temp4},     {"Brake_Temp5", &surfaces.Brake_Temp5},
    {"Brake_Temp6", &surfaces.Brake_Temp6},     {"Brake_Temp7", &surfaces.Brake_Temp7},
    {"Brake_Temp8", &surfaces.Brake_Temp8},
};
}  // namespace

const std::span<const Variable> kSurfaceVariables = kSurfaceRows;
