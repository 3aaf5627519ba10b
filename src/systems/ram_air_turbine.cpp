#include "systems/ram_air_turbine.h"

#include <algorithm>

#include "frame/controls.h"
#include "state/cockpit.h"
#include "state/hydraulics.h"
#include "state/power_words.h"
#include "state/sim.h"
#include "state/time_base.h"

namespace {

constexpr double kTurbineAfterSeconds = 120;
constexpr double kTurbineSpeed = 80;                           // kt
constexpr double kLowPressureSpeed = 60, kLowPressureN2 = 50;  // kt, percent
constexpr int kLowPressure = 4000;                             // psi

bool MayDeploy() {
    return sim.abs_time - time_base.flight_time_base > kTurbineAfterSeconds;
}

void Deploy() {
    if (cockpit.rat_unlocked == 0) SetControl(&cockpit.rat_unlocked, 1);
}

}  // namespace

void DeployTurbineForPower() {
    if (!MayDeploy()) return;
    // Once it feeds, the buses have power by it: so it is judged on the other sources.
    const int others = electrical.power_level - kTurbinePower * electrical.ram_air_turb;
    const bool needed = others < kAcBusPower && sim.on_ground == 0 && sim.ias_kt > kTurbineSpeed;
    electrical.ram_air_turb = needed ? 1 : 0;
    if (needed) Deploy();
}

void DeployTurbineForPressure() {
    const int best =
        std::max({hydraulics.tz_hyd_press_l, hydraulics.tz_hyd_press_c, hydraulics.tz_hyd_press_r});
    if (best < kLowPressure && sim.ias_kt > kLowPressureSpeed && sim.n2_l >= kLowPressureN2 &&
        sim.n2_r >= kLowPressureN2 && MayDeploy())
        Deploy();
}

bool DoesTurbineTurn() {
    return cockpit.rat_unlocked == 1 && sim.ias_kt >= kTurbineSpeed;
}
