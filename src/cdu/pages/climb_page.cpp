#include "cdu/pages/climb_page.h"

#include "base/text.h"
#include "cdu/pages/vnav_lines.h"
#include "cdu/words/constraint_text.h"
#include "cdu/words/page.h"
#include "cdu/words/perf_lines.h"
#include "cdu/words/shown_plan.h"
#include "cdu/words/typed_values.h"
#include "fmc/legs/route_state.h"
#include "fmc/route/delete_restrictions.h"
#include "frame/crew_messages.h"
#include "state/cfg.h"
#include "state/leg_words.h"

namespace {

bool CanClimbDirect() {
    return IsRouteActive() && NextClimbConstraint(kAltitudeRestr) > 0;
}

void OnCruiseAltitude(PageCall& call) {
    constexpr int kBelow = 99999;
    if (Entry(call).empty()) return;
    const auto altitude = TypedAltitude(Entry(call));
    if (!altitude || *altitude >= kBelow) return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    StoreCruiseAltitude(*altitude);
    if (IsRouteSettled()) AdvanceRouteState();
    ClearEntry(call);
}

void OnSpeed(PageCall& call) {
    constexpr double kHighestMach = 1.4;
    if (Entry(call).empty()) return;
    const auto typed = ParseSpeeds(Entry(call), kHighestMach);
    if (!typed) {
        EditedSpeeds().climb_mach = 0;
        return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    }
    SelectSpeeds(kClimbPair, *typed);
    SpeedsChanged(call);
}

void OnTransitionAltitude(PageCall& call) {
    constexpr int kLowest = 1000, kHighest = 43100;
    if (Entry(call).empty()) return;
    const auto altitude = TypedInteger(Entry(call), kLowest, kHighest);
    if (!altitude) return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    cfg.TransAlt = *altitude;
    ClearEntry(call);
}

void OnLine(PageCall& call) {
    switch (call.line) {
        case kL1:
            return OnCruiseAltitude(call);
        case kL2:
            return OnSpeed(call);
        case kL3:
            return EnterSpeedLimit(call, cfg.ClbTransSpdRest, cfg.ClbTransAltRest);
        case kL4:
            return EnterSpeedLimit(call, cfg.ClbSpdRest, cfg.ClbAltRest);
        case kL5:
            return IsDelete(call) ? RefuseDelete(call) : void();
        case kR3:
            return OnTransitionAltitude(call);
        case kR6:
            return CanClimbDirect() ? DeleteClimbRestrictions(false) : void();
        default:
            break;
    }
}

}  // namespace

void ClimbPage(PageCall& call) {
    OnLine(call);

    VnavTitle(call, kClimbPair, "CLB");
    CruiseAltitudeLine(call, true);
    SpeedLine(call, kClimbPair, IsSpeedSelected(kClimbPair) ? "  SEL SPD" : "ECON SPD");
    TransitionLine(call, cfg.ClbTransSpdRest, cfg.ClbTransAltRest);
    RestrictionLine(call, cfg.ClbSpdRest, cfg.ClbAltRest);
    if (const int next = NextClimbConstraint(kAltitudeRestr | kSpeedRestr)) {
        RightLabel(call, 1, Format("AT  %6s", ShownLeg(next).ident.c_str()));
        RightData(call, 1, Format("%12s", ConstraintText(ShownLeg(next)).c_str()));
    }
    RightLabel(call, 3, "TRANS ALT");
    RightData(call, 3, Format("%5d", cfg.TransAlt));
    RightData(call, 5, "ENG OUT>");
    PreflightLine(call);
    ErasePrompt(call, "");
    if (IsRouteModified()) MarkSelectable(call, kL6);
    MarkSelectable(call, kR3);
    if (!CanClimbDirect()) return;
    RightData(call, 6, "CLB DIR>");
    MarkSelectable(call, kR6);
}
