#include "cdu/words/perf_lines.h"

#include "base/text.h"
#include "cdu/words/constraint_text.h"
#include "cdu/words/page.h"
#include "cdu/words/typed_values.h"
#include "fmc/legs/route_state.h"
#include "fmc/performance/predictions.h"
#include "fmc/performance/profile.h"
#include "fmc/performance/takeoff_reference.h"
#include "frame/crew_messages.h"
#include "state/leg_words.h"
#include "state/perf.h"
#include "state/takeoff_approach.h"
#include "state/vnav.h"
#include "systems/thrust_rating.h"

namespace {

constexpr int kIcao = -1, kRvsm = -2;

int ShownStepSize() {
    const int entered = plan.mod.entries.ActiveStepSize;
    return IsRouteActive() && entered > kNoStepEntry ? entered : perf.fms_step_size;
}

// False for what is no step size.
bool StoreStepSize(PageCall& call) {
    constexpr int kLargest = 9000;
    const bool active = IsRouteActive();
    int size = 0;
    if (IsDelete(call) || (active && Entry(call) == "ICAO"))
        size = kIcao;
    else if (active && Entry(call) == "RVSM")
        size = kRvsm;
    else if (const auto feet = TypedInteger(Entry(call), 0, kLargest))
        size = *feet;
    else
        return false;
    (active ? plan.mod.entries.ActiveStepSize : perf.fms_step_size) = size;
    return true;
}

}  // namespace

void CruiseAltitudeLine(PageCall& call, bool left) {
    constexpr int kBoxes = 5;
    left ? LeftLabel(call, 1, "CRZ ALT") : RightLabel(call, 1, "CRZ ALT");
    MarkSelectable(call, left ? kL1 : kR1);
    const double pending = plan.mod.entries.cruise_alt;
    if (IsRouteModified() && pending > 0)
        return left ? HighlightedLeft(call, 1, AltitudeText(pending))
                    : HighlightedRight(call, 1, AltitudeText(pending));
    // Before EXEC that of a route that has just been loaded stands in for one.
    const double altitude = perf.cruise_alt > 0 || IsRouteActive() ? perf.cruise_alt : pending;
    if (altitude <= 0) return left ? LeftBoxes(call, 1, kBoxes) : RightBoxes(call, 1, kBoxes);
    const Rgb colour = altitude == vnav.cross_at_elev ? kMagenta : kWhite;
    left ? LeftData(call, 1, AltitudeText(altitude), colour)
         : RightData(call, 1, AltitudeText(altitude), colour);
}

void StoreCruiseAltitude(double altitude) {
    plan.mod.entries.cruise_alt = altitude;
    if (!IsRouteActive()) perf.cruise_alt = altitude;
}

void EnterStepSize(PageCall& call) {
    if (!IsDelete(call) && Entry(call).empty()) return;
    if (!StoreStepSize(call)) return Refuse(call, "INVALID ENTRY", kHelpStepSize);
    if (IsRouteSettled()) AdvanceRouteState();
    IsDelete(call) ? call.unit.ScratchMessage.clear() : ClearEntry(call);
}

std::string StepSizeText() {
    const int size = ShownStepSize();
    return size == kIcao ? "ICAO" : size == kRvsm ? "RVSM" : Format("%.0f", static_cast<double>(size));
}

void EnterAssumedTemperature(PageCall& call) {
    constexpr int kHottest = 99;
    if (IsDelete(call)) {
        SelectAssumedTemperature(kNoAssumedTemperature);
        return call.unit.ScratchMessage.clear();
    }
    if (Entry(call).empty()) return;
    const auto temperature = TypedInteger(Entry(call), 0, kHottest);
    if (!temperature) return Refuse(call, "INVALID ENTRY", kHelpAssumedTemperature);
    SelectAssumedTemperature(*temperature);
    ClearEntry(call);
}

void RefreshProfile() {
    if (!IsRouteActive() || perf.cruise_alt <= 0) return;
    ComputeProfile(perf.cruise_alt, 0);
    ComputeDistances();
}

void PreflightLine(PageCall& call) {
    constexpr double kY = 173;
    if (!IsPreflightComplete()) PageText(call, 34, kY, "--------------------------", kWhite, kLabelSize);
    PreflightMark(call);
}

void PreflightMark(PageCall& call) {
    RightLabel(call, 6, IsPreflightComplete() ? "FMC PREFLIGHT COMPLETE" : "PRE - FLT", kWhite);
}
