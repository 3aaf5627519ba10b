#include "cdu/pages/approach_ref_page.h"

#include <cmath>

#include "base/text.h"
#include "cdu/words/page.h"
#include "cdu/words/perf_lines.h"
#include "cdu/words/typed_values.h"
#include "fmc/performance/approach_speeds.h"
#include "fmc/performance/predictions.h"
#include "frame/crew_messages.h"
#include "state/cfg.h"
#include "state/plan.h"
#include "state/tablet_performance.h"
#include "state/takeoff_approach.h"

namespace {

struct FlapSpeed {
    int flaps;
    double TakeoffApproachState::*speed;
};
constexpr FlapSpeed kFlapSpeeds[] = {
    {20, &TakeoffApproachState::Vref20},
    {25, &TakeoffApproachState::Vref25},
    {30, &TakeoffApproachState::Vref30},
};

bool IsUplinkPending() {
    return tablet_performance.uplink.EfbApproachUplinkPending != 0;
}

void FillSpeeds() {
    if (cfg.CduAutoCalcVspeeds == 1) FillApproachSpeeds(LandingWeight::kPresent);
}

void OnWeight(PageCall& call) {
    constexpr int kMost = 999;
    if (Entry(call).empty()) return;
    const auto weight = TypedInteger(Entry(call), 1, kMost);
    if (!weight) return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    takeoff_approach.ApproachWeightEntry = PoundsOfThousands(*weight);
    if (cfg.CduAutoCalcVspeeds == 1)
        for (const FlapSpeed& row : kFlapSpeeds) takeoff_approach.*row.speed = 0;
    FillSpeeds();
    ClearEntry(call);
}

void OnFlapSpeed(PageCall& call, const FlapSpeed& row) {
    constexpr int kAbove = 100, kBelow = 240;
    double& speed = takeoff_approach.*row.speed;
    if (Entry(call).empty()) return CopyDown(call, Format("%d/%.0f", row.flaps, speed));
    const auto typed = TypedInteger(Entry(call), kAbove + 1, kBelow - 1);
    if (!typed) return Refuse(call, "INVALID ENTRY", kHelpVref);
    speed = *typed;
    ClearEntry(call);
}

void OnSelection(PageCall& call) {
    if (Entry(call).empty()) return;
    for (const FlapSpeed& row : kFlapSpeeds) {
        const double speed = takeoff_approach.*row.speed;
        if (Entry(call) != Format("%d/%.0f", row.flaps, speed)) continue;
        takeoff_approach.ldg_flaps = row.flaps;
        takeoff_approach.vref = std::round(speed);
        return ClearEntry(call);
    }
    Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
}

void AcceptUplink() {
    TabletUplink& uplink = tablet_performance.uplink;
    takeoff_approach.ldg_flaps = uplink.EfbApproachUplinkFlaps;
    takeoff_approach.vref = uplink.EfbApproachUplinkSpeed;
    uplink.EfbApproachUplinkPending = 0;
}

void OnWindCorrection(PageCall& call) {
    constexpr double kMost = 20;
    if (IsUplinkPending()) return AcceptUplink();
    if (Entry(call).empty()) return;
    const auto correction = TypedNumber(Entry(call), 0, kMost);
    if (!correction) return Refuse(call, "INVALID ENTRY", kHelpWindCorrection);
    takeoff_approach.WindCorr = *correction;
    ClearEntry(call);
}

void OnLine(PageCall& call) {
    switch (call.line) {
        case kL1:
            return OnWeight(call);
        case kL5:
            tablet_performance.uplink.EfbApproachUplinkPending = 0;
            return;
        case kL6:
            return GoToPage(call.side, kPageInitRefIndex);
        case kR1:
        case kR2:
        case kR3:
            return OnFlapSpeed(call, kFlapSpeeds[call.line - kR1]);
        case kR4:
            return OnSelection(call);
        case kR5:
            return OnWindCorrection(call);
        case kR6:
            return GoToPage(call.side, kPageThrustLim);
        default:
            break;
    }
}

void DrawRunway(PageCall& call) {
    constexpr double kMetresPerFoot = 0.3048;
    const RunwayData* runway = DestinationRunway();
    if (runway == nullptr) return;
    PageText(call, 34, DataY(2), Format("%s %s", plan.mod.ends.dest.c_str(), runway->ident.c_str()));
    LeftData(call, 3, Format("%05dFT %04.0fM", runway->length_ft, runway->length_ft * kMetresPerFoot));
    const std::string& kind = plan.mod.procedures.appr_type;
    if (kind != "ILS" && kind != "LOC") return;
    LeftLabel(call, 4, Format("%s %s", kind.c_str(), runway->ident.c_str()));
    LeftData(call, 4,
             Format("%s%s/%03.0f%s", runway->ils_freq.c_str(), runway->ils_ident.c_str(), runway->course,
                    kDegree));
}

void DrawSpeeds(PageCall& call) {
    constexpr double kFlapsX = 160;
    PageText(call, kFlapsX, LabelY(1), "FLAPS", kCyan, kLabelSize);
    RightLabel(call, 1, "VREF");
    for (int i = 0; i < 3; ++i) {
        const FlapSpeed& row = kFlapSpeeds[i];
        PageText(call, kFlapsX, DataY(i + 1), Format("%d/", row.flaps));
        RightData(call, i + 1, Format("%.0fKT", takeoff_approach.*row.speed));
    }
    RightLabel(call, 4, "FLAP/SPEED");
    const bool uplink = IsUplinkPending();
    const int flaps = uplink ? tablet_performance.uplink.EfbApproachUplinkFlaps : takeoff_approach.ldg_flaps;
    const double speed = uplink ? tablet_performance.uplink.EfbApproachUplinkSpeed : takeoff_approach.vref;
    RightData(call, 4, flaps > 0 && speed > 0 ? Format("%d/%.0f", flaps, speed) : "---/---");
}

}  // namespace

void ApproachRefPage(PageCall& call) {
    FillSpeeds();
    OnLine(call);

    const bool uplink = IsUplinkPending();
    if (uplink) PageText(call, 34, 25, "UPLINK", kMagenta, kSmallSize);
    Title(call, 100, "APPROACH REF");
    LeftLabel(call, 1, "GROSS WT");
    const double entered = takeoff_approach.ApproachWeightEntry;
    LeftData(call, 1, Format("%3.1f", ThousandsShown(entered > 0 ? entered : GrossWeight())));
    DrawRunway(call);
    DrawSpeeds(call);
    const std::string correction = Format("%.0fKT", takeoff_approach.WindCorr);
    if (!uplink) LeftLabel(call, 5, "WIND CORR");
    LeftData(call, 5, uplink ? "<REJECT" : correction);
    if (!uplink) RightLabel(call, 5, "WIND CORR");
    RightData(call, 5, uplink ? "ACCEPT>" : correction);
    PreflightLine(call);
    LeftData(call, 6, "<INDEX");
    RightData(call, 6, "THRUST LIM>");
    for (const int line : {kL1, kL6, kR1, kR2, kR3, kR4, kR5, kR6}) MarkSelectable(call, line);
    if (uplink) MarkSelectable(call, kL5);
}
