#include "cdu/pages/takeoff_ref_page.h"

#include <cmath>

#include "base/numbers.h"
#include "base/text.h"
#include "cdu/words/page.h"
#include "cdu/words/perf_lines.h"
#include "cdu/words/typed_values.h"
#include "fmc/performance/predictions.h"
#include "fmc/performance/takeoff_reference.h"
#include "frame/crew_messages.h"
#include "platform/host.h"
#include "state/autoflight.h"
#include "state/cfg.h"
#include "state/efb.h"
#include "state/engines.h"
#include "state/plan.h"
#include "state/tablet_performance.h"
#include "state/takeoff_approach.h"
#include "systems/thrust_rating.h"

namespace {

constexpr int kPages = 2;

bool IsUplinkPending() {
    return tablet_performance.uplink.EfbUplinkPending != 0;
}

// --- what the tablet has sent

int UplinkDerate() {
    const TabletTakeoff& sent = tablet_performance.takeoff;
    const std::string& rating = sent.EfbThrustRating == "OPTIMUM" ? efb.efb_thr_ref : sent.EfbThrustRating;
    if (rating == "TO1" || rating == "10") return 1;
    return rating == "TO2" || rating == "20" ? 2 : 0;
}

int UplinkTemperature() {
    const double temperature = tablet_performance.takeoff.EfbSelTemp;
    return temperature > 0 ? WholeNumber(temperature) : kNoAssumedTemperature;
}

void StoreTrimCg(double percent) {
    takeoff_approach.TakeoffTrimCg = percent;
    ComputeTakeoffTrim();
}

constexpr double kForwardCg = 8, kAftCg = 39;

void AcceptUplink() {
    const TabletTakeoff& sent = tablet_performance.takeoff;
    TabletUplink& uplink = tablet_performance.uplink;
    TakeoffApproachState& takeoff = takeoff_approach;
    takeoff.V1Entered = takeoff.v1 = sent.EfbV1;
    takeoff.VREntered = takeoff.vr = sent.EfbVR;
    takeoff.V2Entered = takeoff.v2 = sent.EfbV2;
    if (uplink.EfbUplinkFlaps > 0) takeoff.to_flaps = uplink.EfbUplinkFlaps;
    takeoff.RefWindSpeed = sent.EfbWindSpeed;
    takeoff.RefWindDir = sent.EfbWindDir;
    SelectTakeoffDerate(UplinkDerate());
    SelectAssumedTemperature(UplinkTemperature());
    if (sent.EfbCg >= kForwardCg && sent.EfbCg <= kAftCg) StoreTrimCg(sent.EfbCg);
    ComputeRunwayWind();
    uplink.EfbUplinkPending = 0;
}

// --- page 1: flaps, thrust, trim, speeds

bool IsTakeoffFlap(int flaps) {
    return takeoff_approach.takeoff_flap_list.find(Format(",%d,", flaps)) != std::string::npos;
}

void OnFlaps(PageCall& call) {
    constexpr int kMost = 20;
    if (Entry(call).empty()) return;
    const auto flaps = TypedInteger(Entry(call), 1, kMost);
    if (!flaps || !IsTakeoffFlap(*flaps)) return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    takeoff_approach.to_flaps = *flaps;
    UpdateTakeoffSpeeds();
    ComputeTakeoffTrim();
    ClearEntry(call);
}

void OnTrim(PageCall& call) {
    if (IsDelete(call)) {
        takeoff_approach.TakeoffTrimCg = takeoff_approach.TakeoffTrim = 0;
        return call.unit.ScratchMessage.clear();
    }
    if (Entry(call).empty()) {
        const double sensed = EvalCalc("(A:CG PERCENT,percent)");
        return sensed > 0 ? CopyDown(call, Format("%.1f", sensed)) : void();
    }
    const auto percent = TypedNumber(Entry(call), kForwardCg, kAftCg);
    if (!percent) return Refuse(call, "INVALID ENTRY", kHelpTakeoffCg);
    StoreTrimCg(*percent);
    ClearEntry(call);
}

void EnterSpeed(PageCall& call, int& entered, int& shown, int highest) {
    if (IsUplinkPending() || Entry(call).empty()) return;
    const auto speed = TypedInteger(Entry(call), 1, highest);
    if (!speed) return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    entered = shown = *speed;
    ClearEntry(call);
}

void OnTakeoffWeight(PageCall& call) {
    constexpr int kAbove = 150, kBelow = 600;
    if (Entry(call).empty()) return;
    const auto weight = TypedInteger(Entry(call), kAbove + 1, kBelow - 1);
    if (!weight) return Refuse(call, "INVALID ENTRY", kHelpTakeoffWeight);
    takeoff_approach.TogwEntry = PoundsOfThousands(*weight);
    UpdateTakeoffSpeeds();
    ClearEntry(call);
}

void OnSpeedsLine(PageCall& call) {
    constexpr int kMostV1 = 249, kMostV2 = 269;
    TakeoffApproachState& takeoff = takeoff_approach;
    switch (call.line) {
        case kL1:
            return OnFlaps(call);
        case kL2:
            return EnterAssumedTemperature(call);
        case kL3:
            return OnTrim(call);
        case kL5:
            tablet_performance.uplink.EfbUplinkPending = 0;
            return;
        case kR1:
            return EnterSpeed(call, takeoff.V1Entered, takeoff.v1, kMostV1);
        case kR2:
            return EnterSpeed(call, takeoff.VREntered, takeoff.vr, kMostV1);
        case kR3:
            return EnterSpeed(call, takeoff.V2Entered, takeoff.v2, kMostV2);
        case kR4:
            return OnTakeoffWeight(call);
        case kR5:
            return IsUplinkPending() ? AcceptUplink() : void();
        default:
            break;
    }
}

std::string ThrustText(int temperature, int derate) {
    const std::string prefix = temperature != kNoAssumedTemperature ? "D-" : "";
    const std::string mode = autoflight.thrust_limit == kThrustTakeoff
                                 ? (derate > 0 ? Format("TO%d", derate) : "TO")
                                 : ThrustModeName();
    const std::string assumed =
        temperature != kNoAssumedTemperature ? Format(" %d%s", temperature, kDegree) : std::string(" --");
    return prefix + mode + assumed;
}

void DrawSpeed(PageCall& call, int row, const char* label, int speed, int entered) {
    RightLabel(call, row, label);
    if (speed == 0) return RightData(call, row, "---");
    RightData(call, row, Format("%3d", speed), entered > 0 || IsUplinkPending() ? kMapGreen : kCyan);
}

void DrawSpeeds(PageCall& call) {
    const TakeoffApproachState& own = takeoff_approach;
    const TabletTakeoff& sent = tablet_performance.takeoff;
    const bool uplink = IsUplinkPending();
    DrawSpeed(call, 1, "V1", uplink ? sent.EfbV1 : own.v1, own.V1Entered);
    DrawSpeed(call, 2, "VR", uplink ? sent.EfbVR : own.vr, own.VREntered);
    DrawSpeed(call, 3, "V2", uplink ? sent.EfbV2 : own.v2, own.V2Entered);
}

void DrawFirst(PageCall& call) {
    const TakeoffApproachState& own = takeoff_approach;
    const bool uplink = IsUplinkPending();
    LeftLabel(call, 1, "FLAPS");
    const int flaps = uplink ? tablet_performance.uplink.EfbUplinkFlaps : own.to_flaps;
    if (flaps == 0)
        LeftBoxes(call, 1, 2);
    else
        LeftData(call, 1, Format("%d%s", flaps, kDegree));
    LeftLabel(call, 2, "THRUST");
    LeftData(call, 2,
             uplink ? ThrustText(UplinkTemperature(), UplinkDerate())
                    : ThrustText(own.SelTemp, engines.FMC_TO_Derate));
    LeftLabel(call, 3, "CG  TRIM");
    const double cg = uplink ? tablet_performance.takeoff.EfbCg : own.TakeoffTrimCg;
    if (cg > 0)
        LeftData(call, 3,
                 uplink ? Format("%.0f%%", cg) : Format("%.0f", cg) + Format("%% %2.2f", own.TakeoffTrim));
    else
        LeftBoxes(call, 3, 2);
    LeftLabel(call, 4, "RWY / POS");
    const std::string& runway = plan.mod.ends.dep_runway;
    LeftData(call, 4, runway == kNotSelected ? "---/----" : Format("%s/----", runway.c_str()));
    LeftLabel(call, 5, "TAKEOFF   DATA");
    LeftData(call, 5, uplink ? "<REJECT" : "<REQUEST");
    DrawSpeeds(call);
    RightLabel(call, 4, "GR WT   TOGW");
    const double sent_weight = tablet_performance.takeoff.EfbTakeoffWeight;
    const double togw = uplink && sent_weight > 0 ? sent_weight : TakeoffWeight();
    RightData(call, 4, Format("%-3.1f %-3.1f", ThousandsShown(GrossWeight()), ThousandsShown(togw)));
    if (uplink) RightData(call, 5, "ACCEPT>");
    for (const int line : {kL1, kL2, kL3, kL5, kR4}) MarkSelectable(call, line);
    if (uplink) return MarkSelectable(call, kR5);
    for (const int line : {kR1, kR2, kR3}) MarkSelectable(call, line);
}

// --- page 2: heights and wind

void EnterHeight(PageCall& call, int& height, int help_id) {
    constexpr int kLowest = 400, kHighest = 9999;
    if (Entry(call).empty()) return;
    const auto feet = TypedInteger(Entry(call), kLowest, kHighest);
    if (!feet) return Refuse(call, "INVALID ENTRY", help_id);
    height = *feet;
    ClearEntry(call);
}

void OnRunwayWind(PageCall& call) {
    if (Entry(call).empty()) return;
    constexpr double kFullCircle = 360, kStrongest = 999;
    const auto parts = SplitAtSlash(Entry(call));
    if (!parts) return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    const auto direction = TypedNumber(parts->first, 0, kFullCircle);
    const auto speed = TypedNumber(parts->second, 0, kStrongest);
    if (!direction || !speed) return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    takeoff_approach.RefWindDir = *direction;
    takeoff_approach.RefWindSpeed = *speed;
    ComputeRunwayWind();
    ClearEntry(call);
}

void OnHeightsLine(PageCall& call) {
    if (IsDelete(call) && LineRow(call.line) > 0) return RefuseDelete(call);
    switch (call.line) {
        case kL1:
            return EnterHeight(call, takeoff_approach.EoAccelHt, kHelpAccelerationHeight);
        case kL2:
            return EnterHeight(call, cfg.AccelHt, kHelpAccelerationHeight);
        case kL3:
            return OnRunwayWind(call);
        case kR1:
            return EnterHeight(call, cfg.ThrustReductionHt, kHelpThrustReduction);
        default:
            break;
    }
}

void DrawSecond(PageCall& call) {
    const TakeoffApproachState& takeoff = takeoff_approach;
    const bool windy = takeoff.RefWindSpeed > 0;
    LeftLabel(call, 1, "EO ACCEL HT");
    LeftData(call, 1, Format("%4dFT", takeoff.EoAccelHt));
    LeftLabel(call, 2, "ACCEL HT");
    LeftData(call, 2, Format("%4dFT", cfg.AccelHt));
    LeftLabel(call, 3, "WIND");
    const TabletTakeoff& sent = tablet_performance.takeoff;
    if (IsUplinkPending())
        LeftData(call, 3, Format("%03.0f%s/%.0fKT", sent.EfbWindDir, kDegree, sent.EfbWindSpeed));
    else
        LeftData(call, 3,
                 windy ? Format("%03.0f%s/%.0fKT", takeoff.RefWindDir, kDegree, takeoff.RefWindSpeed)
                       : Format("---%s/---KT", kDegree));
    RightLabel(call, 1, "THR REDUCTION");
    PageText(call, 165, DataY(1), "CLB");
    RightData(call, 1, Format("%4dFT", cfg.ThrustReductionHt));
    RightLabel(call, 2, "RWY WIND");
    const bool known = windy && DepartureRunway() != nullptr;
    RightData(call, 2,
              known ? Format("%s%.0fKT %s%.0fKT", takeoff.HeadWindComp > 0 ? "T" : "H",
                             std::fabs(takeoff.HeadWindComp), takeoff.CrossWindComp < 0 ? "L" : "R",
                             std::fabs(takeoff.CrossWindComp))
                    : "H---KT R---KT");
    RightLabel(call, 3, "LIM TOGW");
    RightLabel(call, 4, "REF OAT");
    for (const int line : {kL1, kL2, kL3, kR1}) MarkSelectable(call, line);
}

}  // namespace

void TakeoffRefPage(PageCall& call) {
    int& page = call.unit.takeoff_index;
    TurnPages(call, page, kPages);
    if (call.line == kL6)
        GoToPage(call.side, kPageInitRefIndex);
    else if (call.line == kR6 && page == 1)
        GoToPage(call.side, kPageThrustLim);
    else
        page == 1 ? OnSpeedsLine(call) : OnHeightsLine(call);

    if (takeoff_approach.RefWindSpeed > 0) ComputeRunwayWind();
    if (IsUplinkPending()) PageText(call, 34, 25, "UPLINK", kMagenta, kSmallSize);
    Title(call, 105, "TAKEOFF REF");
    PageText(call, 230, 25, Format("%d/%d", page, kPages), kWhite, kLabelSize);
    page == 1 ? DrawFirst(call) : DrawSecond(call);
    PreflightLine(call);
    LeftData(call, 6, "<INDEX");
    MarkSelectable(call, kL6);
    if (page != 1) return;
    RightData(call, 6, "THRUST LIM>");
    MarkSelectable(call, kR6);
}
