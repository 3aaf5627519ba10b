#include "display/routing/nd_controls.h"

#include <algorithm>
#include <array>

#include "frame/controls.h"
#include "state/cockpit.h"
#include "state/nd.h"
#include "state/side.h"
#include "state/sim.h"

namespace {

constexpr int kOff = 0, kByButton = 2;
constexpr std::array kRanges = {0.5,  1.0,  2.0,   5.0,   10.0,  20.0,
                                40.0, 80.0, 160.0, 320.0, 640.0, 1280.0};  // nm
constexpr int kLastRange = static_cast<int>(kRanges.size()) - 1;

double RangeAt(int knob) {
    return kRanges[static_cast<std::size_t>(std::clamp(knob, 0, kLastRange))];
}

}  // namespace

double SelectedRange(int side) {
    const NdSide& display = NdOf(side);
    const bool is_range = std::ranges::find(kRanges, display.rng_nm) != kRanges.end();
    return is_range ? display.rng_nm : RangeAt(display.rng_knob);
}

void FollowRangeKnob(int side) {
    NdSide& display = NdOf(side);
    display.rng_knob = std::clamp(display.rng_knob, 0, kLastRange);
    display.rng_nm = RangeAt(display.rng_knob);
}

void TurnRangeKnob(int side, int steps) {
    FollowRangeKnob(side);
    NdOf(side).rng_knob += std::clamp(steps, -kLastRange, kLastRange);
    FollowRangeKnob(side);
    ShowControl(&NdOf(side).rng_knob);
}

void SelectNdMode(int side, int mode) {
    NdSide& display = NdOf(side);
    display.nd_mode = mode;
    if (mode != kNdPlan) return;
    display.plan_step = 0;
    if (display.plan_lat == 0 && display.plan_lon == 0) {
        display.plan_lat = sim.plane_lat;
        display.plan_lon = sim.plane_lon;
    }
}

void FollowNdKnob(int side) {
    const int knob = side == kCaptain ? cockpit.TZ_MCP_L_NDMAP_Knob : cockpit.TZ_MCP_R_NDMAP_Knob;
    SelectNdMode(side, knob == 0 ? kNdMap : kNdPlan);
}

void ToggleNdCentre(int side) {
    NdSide& display = NdOf(side);
    display.nd_ctr = display.nd_ctr == 0 ? 1 : 0;
}

void PressWeatherButton(int side) {
    NdSide& display = NdOf(side);
    display.nd_wxr_lamp = display.nd_wxr_lamp == 0 ? 1 : 0;
    display.nd_wxr = display.nd_wxr_lamp == 1 ? kByButton : kOff;
    if (display.nd_wxr != kOff) display.nd_terr = kOff;
}

void PressTerrainButton(int side) {
    NdSide& display = NdOf(side);
    display.nd_terr = display.nd_terr == kByButton ? kOff : kByButton;
    if (display.nd_terr == kOff) return;
    display.nd_wxr = kOff;
    display.nd_wxr_lamp = 0;
}

void PressTrafficButton(int side) {
    NdSide& display = NdOf(side);
    display.nd_tfc = display.nd_tfc == kOff ? kByButton : kOff;
}
