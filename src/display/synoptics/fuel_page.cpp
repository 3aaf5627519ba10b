#include "display/synoptics/fuel_page.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "base/text.h"
#include "fmc/performance/predictions.h"
#include "frame/engine_fuel.h"
#include "state/alerts.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/eicas.h"
#include "state/fuel_pumps.h"
#include "state/power_words.h"
#include "state/sim.h"

namespace {

constexpr int kEngineY = 84, kManifoldY = 186, kPumpY = 262, kTankTop = 292;
constexpr int kPressed = 10;  // of a pump's ramp

struct BoostPump {
    std::string_view name;
    int x;
    int feeds_x;  // the manifold's end that it feeds
    int CockpitState::*button;
    int FuelPumpState::*press;
};
constexpr BoostPump kPumps[] = {
    {"FWD", 312, 332, &CockpitState::fuelpump_l_fwd_button, &FuelPumpState::press_fwd_l},
    {"AFT", 346, 332, &CockpitState::fuelpump_l_aft_button, &FuelPumpState::press_aft_l},
    {"L", 408, 332, &CockpitState::fuelpump_l_center_button, &FuelPumpState::press_ctr_l},
    {"R", 438, 514, &CockpitState::fuelpump_r_center_button, &FuelPumpState::press_ctr_r},
    {"AFT", 500, 514, &CockpitState::fuelpump_r_aft_button, &FuelPumpState::press_aft_r},
    {"FWD", 534, 514, &CockpitState::fuelpump_r_fwd_button, &FuelPumpState::press_fwd_r},
};

bool Presses(const BoostPump& pump) {
    return fuel_pumps.*pump.press >= kPressed;
}

bool IsPressed(int manifold_x) {
    return std::ranges::any_of(
        kPumps, [&](const BoostPump& pump) { return pump.feeds_x == manifold_x && Presses(pump); });
}

bool IsCrossfeedOpen() {
    return cockpit.fuelpump_crosfeed_button == 1;
}

double Thousands(double lb) {
    return DisplayWeight(lb) / 1000;
}

void DrawPumpLine(const SysPage& page, const BoostPump& pump, FlowState state) {
    constexpr int kMainJoint = 226, kCentreJoint = 212;
    const bool centre = pump.x > 380 && pump.x < 470;
    const int joint = centre ? kCentreJoint : kMainJoint;
    DrawFlow(page, {{pump.x, kTankTop}, {pump.x, joint}, {pump.feeds_x, joint}, {pump.feeds_x, kManifoldY}},
             state);
}

void DrawPumps(const SysPage& page) {
    // The pumps of a side share a part of their lines: what is live covers what isn't.
    for (const bool live : {false, true})
        for (const BoostPump& pump : kPumps)
            if (Presses(pump) == live) DrawPumpLine(page, pump, LiveIf(live));
    for (const BoostPump& pump : kPumps) {
        const bool on = cockpit.*pump.button == 1, presses = Presses(pump);
        const FlowState state = presses ? FlowState::kLive : on ? FlowState::kWarning : FlowState::kDead;
        DrawPump(page, pump.x, kPumpY, 18, 18, state);
        DrawLineLabel(page, pump.x, 281, pump.name);
    }
}

void DrawEngineFeed(const SysPage& page, int x, std::string_view name, bool runs, bool pressed) {
    DrawUser(page, x - 18, kEngineY, 36, 24, LiveIf(runs && pressed), {name, "ENG"});
    DrawFlow(page, {{x, kManifoldY}, {x, kEngineY + 24}}, LiveIf(runs && pressed));
    DrawValve(page, x, 135, runs, false, LiveIf(runs && pressed));
}

void DrawManifolds(const SysPage& page) {
    constexpr int kLeftX = 332, kRightX = 514;
    const bool left = IsPressed(kLeftX), right = IsPressed(kRightX), open = IsCrossfeedOpen();
    const bool across = open && (left || right);
    DrawFlow(page, {{kLeftX, kManifoldY}, {kRightX, kManifoldY}}, LiveIf(across));
    DrawValve(page, kPageMiddle, kManifoldY, open, true, LiveIf(across));
    DrawSysLabel(page, kPageMiddle, kManifoldY - 14, "CROSSFEED");
    DrawEngineFeed(page, kLeftX, "L", cockpit.eng1_thrott == kFuelRun, left || across);
    DrawEngineFeed(page, kRightX, "R", cockpit.eng2_thrott == kFuelRun, right || across);
}

// With no other power a small pump of its own lifts the left tank's fuel to the APU.
bool IsDcPumpOn() {
    return cockpit.apu_switch != 0 && !IsAcBusPowered();
}

void DrawApuFeed(const SysPage& page) {
    const bool fed = cockpit.apu_switch != 0 && fuel_pumps.press_aft_l > 0;
    DrawFlow(page, {{332, 160}, {400, 160}, {400, 142}}, LiveIf(fed));
    DrawUser(page, 384, 124, 32, 18, LiveIf(fed), {"APU"});
    DrawPump(page, 364, 160, 12, 12, LiveIf(IsDcPumpOn()));
    DrawSysLabel(page, 364, 173, "DC");
}

void DrawTank(const SysPage& page, int x, std::string_view name, double lb, bool low) {
    constexpr int kWidth = 66, kHeight = 36;
    DrawSysBox(page, x - kWidth / 2, kTankTop, kWidth, kHeight,
               low ? FlowState::kWarning : FlowState::kPlain);
    DrawSysLabel(page, x, kTankTop + 9, name);
    DrawSysValue(page, x, kTankTop + 24, Format("%-2.1f", Thousands(lb)), low ? kAmber : kWhite);
}

bool IsImbalanced() {
    constexpr std::size_t kImbalance = 99;
    return alerts.posted[kImbalance] != 0;
}

void DrawTanks(const SysPage& page) {
    const bool imbalance = IsImbalanced();
    DrawTank(page, 329, "L MAIN", sim.left_fuel, imbalance && sim.left_fuel < sim.right_fuel);
    DrawTank(page, kPageMiddle, "CENTER", sim.centre_fuel, false);
    DrawTank(page, 517, "R MAIN", sim.right_fuel, imbalance && sim.right_fuel < sim.left_fuel);
    if (imbalance && cockpit.fuel_balance_button == 0)
        TextAbout(page.graphics, kPageMiddle, 338, 10, kAmber, "BALANCE");
}

void DrawJettison(const SysPage& page) {
    constexpr double kLeastKept = 12000, kFlow = 5500;  // lb; lb a minute through both nozzles
    const bool armed = cockpit.TZ_OH_FUEL_ARM_Button != 0;
    const bool left = armed && cockpit.TZ_OH_NZL_L_Button != 0,
               right = armed && cockpit.TZ_OH_NZL_R_Button != 0;
    DrawFlow(page, {{332, 204}, {298, 204}}, LiveIf(left));
    DrawFlow(page, {{514, 204}, {548, 204}}, LiveIf(right));
    DrawValve(page, 308, 204, left, true, LiveIf(left));
    DrawValve(page, 538, 204, right, true, LiveIf(right));
    DrawSysLabel(page, 308, 191, "L NOZZLE");
    DrawSysLabel(page, 538, 191, "R NOZZLE");
    if (!left && !right) return;
    const double nozzles = (left ? 0.5 : 0.0) + (right ? 0.5 : 0.0);
    DrawSysLabel(page, 330, 392, "TO REMAIN");
    DrawSysValue(page, 330, 404, Format("%2.1f", Thousands(kLeastKept)));
    DrawSysLabel(page, 392, 392, "JET TIME");
    DrawSysValue(page, 392, 404,
                 Format("%2.0f", std::max(sim.total_fuel - kLeastKept, 0.0) / (kFlow * nozzles)));
}

void DrawTotals(const SysPage& page) {
    DrawSysLabel(page, 330, 352, "TOTAL");
    DrawSysLabel(page, 330, 361, "FUEL");
    DrawSysBox(page, 352, 348, 48, 18, FlowState::kPlain);
    DrawSysValue(page, 376, 357, Format("%.1f", Thousands(sim.total_fuel)));
    DrawSysLabel(page, 436, 357, cfg.WeightUnit == "KGS" ? "KGS X 1000" : "LBS X 1000");
    DrawSysLabel(page, 508, 352, "MIN FUEL TEMP");
    DrawSysValue(page, 508, 364, Format("%2.0f c", -37.0));
    DrawSysLabel(page, 508, 378, "FUEL TEMP");
    DrawSysValue(page, 508, 390,
                 Format("%s%2.0f c", eicas.fuel_temp < 0 ? "-" : "+", std::fabs(eicas.fuel_temp)));
}

}  // namespace

void DrawFuelPage(const SysPage& page) {
    DrawSysTitle(page, kPageMiddle, 66, "FUEL");
    DrawJettison(page);
    DrawApuFeed(page);
    DrawPumps(page);
    DrawManifolds(page);
    DrawTanks(page);
    DrawTotals(page);
}
