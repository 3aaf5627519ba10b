#include "systems/surfaces.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>

#include "frame/named_variables.h"
#include "state/surfaces.h"

namespace {

constexpr double kMostSpoiler = 200;
constexpr double kNoLimit = std::numeric_limits<double>::infinity();

struct SurfaceValue {
    NamedVarRef variable;
    double SurfaceState::*value;
};
constexpr SurfaceValue kSurfaceValues[] = {
    {NamedVar("TZ_aileron_left"), &SurfaceState::aileron_left},
    {NamedVar("TZ_aileron_right"), &SurfaceState::aileron_right},
    {NamedVar("TZ_flaperon_left"), &SurfaceState::flaperon_left},
    {NamedVar("TZ_flaperon_right"), &SurfaceState::flaperon_right},
    {NamedVar("TZ_elevator_left"), &SurfaceState::elevator_left},
    {NamedVar("TZ_elevator_right"), &SurfaceState::elevator_right},
    {NamedVar("elev_trim_ind"), &SurfaceState::elev_trim_ind},
};
constexpr SurfaceValue kSpoilerValues[] = {
    {NamedVar("TZ_spoiler_1"), &SurfaceState::spoiler_1},
    {NamedVar("TZ_spoiler_2"), &SurfaceState::spoiler_2},
    {NamedVar("TZ_spoiler_3"), &SurfaceState::spoiler_3},
    {NamedVar("TZ_spoiler_4"), &SurfaceState::spoiler_4},
    {NamedVar("TZ_spoiler_5"), &SurfaceState::spoiler_5},
    {NamedVar("TZ_spoiler_6"), &SurfaceState::spoiler_6},
    {NamedVar("TZ_spoiler_7"), &SurfaceState::spoiler_7},
    {NamedVar("TZ_spoiler_8"), &SurfaceState::spoiler_8},
    {NamedVar("TZ_spoiler_9"), &SurfaceState::spoiler_9},
    {NamedVar("TZ_spoiler_10"), &SurfaceState::spoiler_10},
    {NamedVar("TZ_spoiler_11"), &SurfaceState::spoiler_11},
    {NamedVar("TZ_spoiler_12"), &SurfaceState::spoiler_12},
    {NamedVar("TZ_spoiler_13"), &SurfaceState::spoiler_13},
    {NamedVar("TZ_spoiler_14"), &SurfaceState::spoiler_14},
};
constexpr SurfaceValue kBrakeValues[] = {
    {NamedVar("TZ_Brake_Temp1"), &SurfaceState::Brake_Temp1},
    {NamedVar("TZ_Brake_Temp2"), &SurfaceState::Brake_Temp2},
    {NamedVar("TZ_Brake_Temp3"), &SurfaceState::Brake_Temp3},
    {NamedVar("TZ_Brake_Temp4"), &SurfaceState::Brake_Temp4},
    {NamedVar("TZ_Brake_Temp5"), &SurfaceState::Brake_Temp5},
    {NamedVar("TZ_Brake_Temp6"), &SurfaceState::Brake_Temp6},
    {NamedVar("TZ_Brake_Temp7"), &SurfaceState::Brake_Temp7},
    {NamedVar("TZ_Brake_Temp8"), &SurfaceState::Brake_Temp8},
};

void CopyValues(std::span<const SurfaceValue> rows, double most) {
    for (const SurfaceValue& row : rows) {
        double value = 0;
        if (ReadNamedVar(row.variable, value) && std::isfinite(value))
            surfaces.*row.value = std::min(value, most);
    }
}

}  // namespace

void ReadSurfaces() {
    CopyValues(kSurfaceValues, kNoLimit);
    CopyValues(kSpoilerValues, kMostSpoiler);
}

void ReadBrakeTemperatures() {
    CopyValues(kBrakeValues, kNoLimit);
}
