#include "cdu/pages/cruise_page.h"

#include <algorithm>

#include "base/text.h"
#include "cdu/pages/vnav_lines.h"
#include "cdu/words/eta.h"
#include "cdu/words/page.h"
#include "cdu/words/perf_lines.h"
#include "cdu/words/typed_values.h"
#include "fmc/legs/route_state.h"
#include "fmc/performance/predictions.h"
#include "frame/crew_messages.h"
#include "state/cfg.h"
#include "state/engines.h"
#include "state/leg_words.h"
#include "state/perf.h"
#include "state/predictions.h"
#include "state/sim.h"
#include "state/vnav.h"

namespace {

void OnCruiseAltitude(PageCall& call) {
    constexpr int kLowest = 1000, kBelow = 43100;
    if (Entry(call).empty()) return;
    const auto altitude = TypedAltitude(Entry(call));
    if (!altitude || *altitude < kLowest || *altitude >= kBelow)
        return Refuse(call, "INVALID ENTRY", kHelpCruiseAltitude);
    StoreCruiseAltitude(*altitude);
    if (IsRouteSettled()) AdvanceRouteState();
    ClearEntry(call);
}

void SelectKnots(double knots) {
    SpeedSelections& selected = plan.mod.selected;
    EditedSpeeds().cruise_ias = knots;
    selected.CruiseSelected = 1;
    selected.CruiseMachSelected = selected.LrcSelected = 0;
}

// A Mach ends the knots.
void SelectMach(double mach) {
    SpeedSelections& selected = plan.mod.selected;
    EditedSpeeds().cruise_mach = mach;
    selected.CruiseMachSelected = 1;
    selected.CruiseSelected = selected.LrcSelected = 0;
}

void OnSpeed(PageCall& call) {
    constexpr double kSlowest = 100, kFastest = 400, kLowestMach = 0.1, kHighestMach = 0.999;
    if (Entry(call).empty()) return;
    const bool by_knots = LeadingDouble(Entry(call)) >= 1;
    const auto typed = by_knots ? TypedNumber(Entry(call), kSlowest, kFastest)
                                : TypedNumber(Entry(call), kLowestMach, kHighestMach);
    if (!typed) return Refuse(call, "INVALID ENTRY", by_knots ? kHelpNotAllowed : kHelpSpeed);
    by_knots ? SelectKnots(*typed) : SelectMach(*typed);
    SpeedsChanged(call);
}

// Economy or long range, at the altitude that is planned.
void FollowTable(PageCall& call, bool long_range) {
    constexpr double kLowestCruise = 1000;
    SpeedSelections& selected = plan.mod.selected;
    selected.CruiseSelected = selected.CruiseMachSelected = 0;
    selected.LrcSelected = long_range ? 1 : 0;
    const PerfEntries& entries = plan.mod.entries;
    const double cruise = entries.cruise_alt > 0 ? entries.cruise_alt : perf.cruise_alt;
    const int index = long_range ? kLongRangeCruise
                                 : (entries.ActiveCostIndex >= 0 ? entries.ActiveCostIndex : perf.cost_index);
    if (cruise >= kLowestCruise && index >= 0) EditedSpeeds().cruise_mach = EconCruiseMach(index, cruise);
    if (IsRouteActive()) EditedSpeeds().cruise_ias = 0;  // typed knots wait no longer
    if (IsRouteSettled()) AdvanceRouteState();
    call.unit.ScratchMessage.clear();
}

void OnStep(PageCall& call) {
    constexpr double kOnGround = 20;  // ft of radio height
    if (sim.radio_alt_ft <= kOnGround) return EnterStepSize(call);
    if (IsDelete(call)) return RefuseDelete(call);
    if (!Entry(call).empty()) Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
}

void TogglePause() {
    if (cfg.ArmPauseAtTod == 1)
        cfg.PauseAtTod = cfg.PauseAtTod == 1 ? 0 : 1;
    else if (cfg.Arm1xAtTod == 1)
        cfg.OneXAtTod = cfg.OneXAtTod == 1 ? 0 : 1;
}

void OnLine(PageCall& call) {
    switch (call.line) {
        case kL1:
            return OnCruiseAltitude(call);
        case kL2:
            return OnSpeed(call);
        case kL3:
            return IsDelete(call) ? RefuseDelete(call) : void();
        case kL4:
            return OnStep(call);
        case kL5:
            return IsDelete(call) ? RefuseDelete(call) : FollowTable(call, false);
        case kL6:
            return TogglePause();
        case kR5:
            return FollowTable(call, true);
        default:
            break;
    }
}

// Fuel (lb) at the destination, by the planned burns of what is left of each phase.
double FuelAtDestination() {
    const PredictionState& p = predictions;
    const double climb = vnav.toc == 0 ? p.dist_to_toc : 0;
    const double to_descent = vnav.tod == 0 ? p.dist_to_tod : 0;
    const double burn = climb * p.clb_burn_per_nm + std::max(to_descent - climb, 0.0) * p.crz_burn_per_nm +
                        std::max(p.dist_to_dest - to_descent, 0.0) * p.des_burn_per_nm;
    return std::max(sim.total_fuel + perf.FuelEntry - burn * (1 + PerfFactor()), 0.0);
}

std::string StepPointText() {
    if (vnav.step_due == 1) return "NOW";
    const bool ahead = vnav.step_lat != 0 || vnav.step_lon != 0;
    return ahead ? Format("%.0fNM", vnav.dist_to_step) : "NONE";
}

void DrawProgress(PageCall& call) {
    constexpr double kStepPointX = 115;
    RightLabel(call, 2, "TO T/D");
    const bool descends = IsRouteActive() && vnav.tod == 0 && predictions.dist_to_tod > 0;
    RightData(call, 2,
              descends
                  ? EtaText(HoursFor(predictions.dist_to_tod)) + Format("/%.0fNM", predictions.dist_to_tod)
                  : "-----/---NM");
    PageText(call, kStepPointX, LabelY(3), "AT", kCyan, kLabelSize);
    PageText(call, kStepPointX, DataY(3), StepPointText());
    RightLabel(call, 3, "ETA/FUEL");
    const bool goes = IsRouteActive() && predictions.dist_to_dest > 0;
    RightData(call, 3,
              goes ? EtaText(HoursFor(predictions.dist_to_dest)) +
                         Format("/%3.1f", ThousandsShown(FuelAtDestination()))
                   : "-----/---.-");
}

void DrawAltitudes(PageCall& call) {
    constexpr double kStepToX = 84;
    LeftLabel(call, 4, "STEP");
    LeftData(call, 4, StepSizeText());
    PageText(call, kStepToX, LabelY(4), "STEP TO", kCyan, kLabelSize);
    PageText(
        call, kStepToX, DataY(4),
        perf.fms_step_to_alt > 0 ? Format("FL%d", static_cast<int>(perf.fms_step_to_alt / 100)) : "-----");
    const int best = OptimumAltitude(), most = MaxAltitude();
    constexpr int kWholeThousand = 10;
    struct Column {
        double x;
        const char* label;
        int level;
    };
    const int recommended = std::min(best, most) / kWholeThousand * kWholeThousand;
    const Column columns[] = {{146, "OPT", best}, {183, "MAX", most}, {217, "RECMD", recommended}};
    for (const Column& column : columns) {
        PageText(call, column.x, LabelY(4), column.label, kCyan, kLabelSize);
        PageText(call, column.x, DataY(4),
                 column.level > 0 ? Format("%.0f", static_cast<double>(column.level)) : "---");
    }
}

// On the sixth line: the pause, or ERASE in its place.
void DrawPause(PageCall& call) {
    const bool pause = cfg.ArmPauseAtTod == 1;
    const bool rate = !pause && cfg.Arm1xAtTod == 1;
    if (IsRouteModified() || !(pause || rate)) return PreflightLine(call);
    LeftLabel(call, 6, pause ? "PAUSE @ TOD" : "1X @ TOD");
    const bool armed = pause ? cfg.PauseAtTod == 1 : cfg.OneXAtTod == 1;
    LeftData(call, 6, armed ? "ARMED" : "OFF");
    MarkSelectable(call, kL6);
    PreflightMark(call);
}

}  // namespace

void CruisePage(PageCall& call) {
    OnLine(call);

    const bool long_range = plan.mod.selected.LrcSelected == 1;
    VnavTitle(call, kCruisePair, "CRZ");
    CruiseAltitudeLine(call, true);
    SpeedLine(call, kCruisePair,
              IsSpeedSelected(kCruisePair) ? "SEL SPD"
              : long_range                 ? "LRC SPD"
                                           : "ECON SPD");
    LeftLabel(call, 3, "N1");
    LeftData(call, 3, Format("%.1f%%", engines.Eng1_N1_calc > 0 ? engines.Eng1_N1_calc : sim.n1_l));
    DrawProgress(call);
    DrawAltitudes(call);
    LeftData(call, 5, "<ECON");
    RightData(call, 5, "LRC>");
    DrawPause(call);
    if (IsRouteModified()) {
        ErasePrompt(call, "");
        MarkSelectable(call, kL6);
    }
    for (const int line : {kL4, kL5, kR5}) MarkSelectable(call, line);
}
