#include "cdu/pages/perf_init_page.h"

#include "base/text.h"
#include "cdu/words/page.h"
#include "cdu/words/perf_lines.h"
#include "cdu/words/typed_values.h"
#include "fmc/legs/route_state.h"
#include "fmc/performance/predictions.h"
#include "fmc/performance/takeoff_reference.h"
#include "frame/aircraft.h"
#include "frame/crew_messages.h"
#include "state/cfg.h"
#include "state/leg_words.h"
#include "state/perf.h"
#include "state/sim.h"
#include "state/takeoff_approach.h"

namespace {

constexpr int kNoCostIndex = -1, kCostIndexTakenAway = -2;

void WeightsChanged(PageCall& call) {
    UpdateWeights();
    UpdateTakeoffSpeeds();
    RefreshProfile();
    IsDelete(call) ? call.unit.ScratchMessage.clear() : ClearEntry(call);
}

void OnFuel(PageCall& call) {
    constexpr double kMost = 235;
    if (IsDelete(call)) {
        perf.FuelEntry = 0;
        return WeightsChanged(call);
    }
    if (Entry(call).empty()) return;
    const auto fuel = TypedNumber(Entry(call), 0, kMost);
    if (!fuel) return Refuse(call, "INVALID ENTRY", kHelpFuelWeight);
    perf.FuelEntry = PoundsOfThousands(*fuel) - sim.total_fuel;
    WeightsChanged(call);
}

// A value that is unlikely in the unit that the crew uses is stored all the same.
void OnZeroFuelWeight(PageCall& call) {
    constexpr double kLeast = 109.9, kMost = 420, kManyKilograms = 190, kFewPounds = 242;
    if (IsDelete(call)) {
        perf.ZfwEntry = 0;
        return WeightsChanged(call);
    }
    if (Entry(call).empty()) return;
    const auto weight = TypedNumber(Entry(call), kLeast, kMost);
    if (!weight) return Refuse(call, "INVALID ENTRY", kHelpZeroFuelWeight);
    const bool unlikely = cfg.WeightUnit == "KGS" ? *weight >= kManyKilograms : *weight <= kFewPounds;
    if (unlikely) Refuse(call, "INVALID ENTRY", kHelpZeroFuelWeight);
    perf.ZfwEntry = PoundsOfThousands(*weight);
    WeightsChanged(call);
}

void OnReserves(PageCall& call) {
    constexpr double kMost = 210;
    const auto weight = TypedNumber(Entry(call), 0, kMost);
    if (!weight) return Refuse(call, "INVALID ENTRY", kHelpReserves);
    perf.resv_fuel = PoundsOfThousands(*weight);
    ClearEntry(call);
}

void OnCruiseAltitude(PageCall& call) {
    if (Entry(call).empty()) return;
    const auto altitude = TypedAltitude(Entry(call));
    if (!altitude) return Refuse(call, "INVALID ENTRY", kHelpCruiseAltitude);
    StoreCruiseAltitude(*altitude);
    if (plan.fms_fpln_active == kRouteEntered || IsRouteSettled()) AdvanceRouteState();
    ClearEntry(call);
}

// Economy for the cost index, where no speed has been selected.
void FollowCostIndex(int cost_index) {
    constexpr double kLowestCruise = 1000;
    const bool active = IsRouteActive();
    const SpeedSelections& selected = plan.mod.selected;
    PlannedSpeeds& speeds = active ? plan.mod.entries.speeds : perf.speeds;
    ApplyCostIndexRow(!active, cost_index);
    const double pending = plan.mod.entries.cruise_alt;
    const double cruise = pending > 0 ? pending : perf.cruise_alt;
    if (selected.ClimbSelected == 0) speeds.climb_ias = EconClimbSpeed(cost_index);
    const bool by_knots = selected.CruiseSelected == 1, by_mach = selected.CruiseMachSelected == 1;
    if (!by_knots && !by_mach && selected.LrcSelected == 0 && cruise >= kLowestCruise)
        speeds.cruise_mach = EconCruiseMach(cost_index, cruise);
    if (selected.DescentSelected == 0) speeds.descent_ias = EconDescentSpeed(cost_index);
}

void StoreCostIndex(int cost_index) {
    if (IsRouteActive())
        plan.mod.entries.ActiveCostIndex = cost_index < 0 ? kCostIndexTakenAway : cost_index;
    else
        perf.cost_index = cost_index;
    if (cost_index >= 0) FollowCostIndex(cost_index);
    if (IsRouteSettled()) AdvanceRouteState();
}

void OnCostIndex(PageCall& call) {
    constexpr int kHighest = 999;
    if (IsDelete(call)) {
        StoreCostIndex(kNoCostIndex);
        return call.unit.ScratchMessage.clear();
    }
    if (Entry(call).empty()) return;
    const auto index = TypedInteger(Entry(call), kNoCostIndex, kHighest);
    if (!index || (*index == 0 && Entry(call) != "0")) return Refuse(call, "INVALID ENTRY", kHelpCostIndex);
    StoreCostIndex(*index);
    ClearEntry(call);
}

void OnCruiseCg(PageCall& call) {
    constexpr double kForward = 6, kAft = 39.5;
    if (Entry(call).empty()) return;
    const auto percent = TypedNumber(Entry(call), kForward, kAft);
    if (!percent) return Refuse(call, "INVALID ENTRY", kHelpCruiseCg);
    takeoff_approach.CrzCg = *percent;
    ClearEntry(call);
}

void OnLine(PageCall& call) {
    if (TakeErase(call)) return;
    switch (call.line) {
        case kL2:
            return OnFuel(call);
        case kL3:
            return OnZeroFuelWeight(call);
        case kL4:
            return OnReserves(call);
        case kL6:
            return GoToPage(call.side, kPageInitRefIndex);
        case kR1:
            return OnCruiseAltitude(call);
        case kR2:
            return OnCostIndex(call);
        case kR4:
            return OnCruiseCg(call);
        case kR5:
            return EnterStepSize(call);
        case kR6:
            return GoToPage(call.side, kPageThrustLim);
        default:
            break;
    }
}

void DrawFuel(PageCall& call) {
    constexpr double kSourceX = 90;
    const double fuel = sim.total_fuel + perf.FuelEntry;
    LeftLabel(call, 2, "FUEL");
    if (fuel <= 0 && perf.FuelEntry == 0)
        LeftBoxes(call, 2, 3);
    else
        LeftData(call, 2, Format("%-2.1f", ThousandsShown(fuel)));
    const char* unit = cfg.WeightUnit == "KGS" ? "KG" : "LB";
    PageText(call, kSourceX, DataY(2), Format("%s %s", unit, perf.FuelEntry == 0 ? "CALC" : "MANUAL"), kWhite,
             kSmallSize);
}

void DrawWeight(PageCall& call, int row, const char* label, double lb) {
    constexpr int kBoxes = 5;
    LeftLabel(call, row, label);
    if (lb > 0)
        LeftData(call, row, Format("%.1f", ThousandsShown(lb)));
    else
        LeftBoxes(call, row, kBoxes);
}

void DrawCostIndex(PageCall& call) {
    RightLabel(call, 2, "COST INDEX");
    const int entered = plan.mod.entries.ActiveCostIndex;
    const bool pending = IsRouteModified() && entered != kNoCostIndex;
    const int index = pending ? entered : perf.cost_index;
    if (index < 0) return RightBoxes(call, 2, 4);
    pending ? HighlightedRight(call, 2, Format("%3d", index)) : RightData(call, 2, Format("%3d", index));
}

}  // namespace

void PerfInitPage(PageCall& call) {
    constexpr double kFuelFreezes = 37;  // degrees C below zero
    OnLine(call);

    Title(call, 110, "PERF INIT");
    RouteStatusMark(call, 85);
    LeftLabel(call, 1, "GR  WT");
    LeftData(call, 1, Format("%-3.1f", ThousandsShown(GrossWeight())));
    DrawFuel(call);
    DrawWeight(call, 3, "ZFW", cfg.CduAutoCalcZfw == 1 ? ZeroFuelWeight() : perf.ZfwEntry);
    DrawWeight(call, 4, "RESERVES", perf.resv_fuel);
    LeftLabel(call, 5, "PERF INIT");
    LeftData(call, 5, "<REQUEST");
    CruiseAltitudeLine(call, false);
    DrawCostIndex(call);
    RightLabel(call, 3, "FUEL FRZ TEMP");
    RightData(call, 3, Format("-%.0f%s", kFuelFreezes, kDegree));
    RightLabel(call, 4, "CRZ CG");
    RightData(call, 4, Format(" %3.1f %%", takeoff_approach.CrzCg));
    RightLabel(call, 5, "STEP SIZE");
    RightData(call, 5, StepSizeText(), IsRouteActive() ? kMagenta : kWhite);
    PreflightLine(call);
    ErasePrompt(call, "<INDEX");
    RightData(call, 6, "THRUST LIM>");
    for (const int line : {kL2, kL3, kL4, kL6, kR2, kR4, kR5, kR6}) MarkSelectable(call, line);
}
