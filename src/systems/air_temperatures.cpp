#include "systems/air_temperatures.h"

#include <algorithm>
#include <cmath>

#include "state/air.h"
#include "state/cockpit.h"
#include "state/sim.h"

namespace {

constexpr int kTargets[] = {65, 68, 72, 75, 78, 82, 85};  // degrees F by position
constexpr int kSecondsADegree = 60;

int TargetOf(int position) {
    return kTargets[std::clamp(position, 0, static_cast<int>(std::size(kTargets)) - 1)];
}

int OutsideTemperature() {
    constexpr double kColdest = -150, kHottest = 150;  // what the air can't pass
    const double fahrenheit = sim.oat_c * 1.8 + 32;
    return static_cast<int>(std::lround(std::clamp(fahrenheit, kColdest, kHottest)));
}

void Drift(int& temperature, int& timer, int target) {
    if (temperature == target) {
        timer = 0;
        return;
    }
    if (timer <= 0) {
        timer = kSecondsADegree;
        return;
    }
    if (--timer > 0) return;
    temperature += temperature < target ? 1 : -1;
    if (temperature != target) timer = kSecondsADegree;
}

}  // namespace

void FollowTemperatureSelectors(int) {
    air.flt_deck_temp_target = TargetOf(cockpit.TZ_OH_FLTDK_Temp_Switch);
    air.cabin_temp_target = TargetOf(cockpit.TZ_OH_CABIN_Temp_Switch);
}

void StepTemperatures() {
    const int outside = std::isfinite(sim.oat_c) ? OutsideTemperature() : air.cargo_temp_target;
    const bool packs_off = cockpit.pack_l_button == 0 && cockpit.pack_r_button == 0;
    const auto cargo = [&](int door_open) { return door_open == 1 ? outside : air.cargo_temp_target; };
    Drift(air.cabin_temp, air.cabin_temp_timer, packs_off ? outside : air.cabin_temp_target);
    Drift(air.flt_deck_temp, air.flt_deck_temp_timer, air.flt_deck_temp_target);
    Drift(air.fwd_cargo_temp, air.fwd_cargo_temp_timer, cargo(sim.door_fwd_cargo));
    Drift(air.aft_cargo_temp, air.aft_cargo_temp_timer, cargo(sim.door_aft_cargo));
    Drift(air.bulk_cargo_temp, air.bulk_cargo_temp_timer, cargo(sim.door_bulk_cargo));
}
