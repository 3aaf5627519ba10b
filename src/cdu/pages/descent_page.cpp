#include "cdu/pages/descent_page.h"

#include <cmath>

#include "base/angles.h"
#include "base/text.h"
#include "cdu/pages/vnav_lines.h"
#include "cdu/words/constraint_text.h"
#include "cdu/words/page.h"
#include "cdu/words/perf_lines.h"
#include "cdu/words/shown_plan.h"
#include "cdu/words/typed_values.h"
#include "fmc/route/delete_restrictions.h"
#include "frame/crew_messages.h"
#include "state/cfg.h"
#include "state/leg_words.h"
#include "state/sim.h"
#include "state/vnav.h"

namespace {

bool CanDescendDirect() {
    return IsRouteActive() && vnav.tod != 0;
}

void OnSpeed(PageCall& call) {
    constexpr double kHighestMach = 1.2;
    if (Entry(call).empty()) return;
    const auto typed = ParseSpeeds(Entry(call), kHighestMach);
    if (!typed) return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    SelectSpeeds(kDescentPair, *typed);
    SpeedsChanged(call);
}

void OnPause(PageCall& call) {
    constexpr int kFarthest = 9999;
    if (cfg.ArmPauseAtDistFromDest != 1) return IsDelete(call) ? RefuseDelete(call) : void();
    if (IsDelete(call)) {
        cfg.PauseAtDistFromDest = 0;
        return call.unit.ScratchMessage.clear();
    }
    if (Entry(call).empty()) return;
    const auto distance = TypedInteger(Entry(call), 1, kFarthest);
    if (!distance) return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    cfg.PauseAtDistFromDest = *distance;
    ClearEntry(call);
}

void OnLine(PageCall& call) {
    switch (call.line) {
        case kL2:
            return OnSpeed(call);
        case kL3:
            return EnterSpeedLimit(call, cfg.DescTransSpdRest, cfg.DescTransAltRest);
        case kL4:
            return EnterSpeedLimit(call, cfg.DesSpdRest, cfg.DesAltRest);
        case kL5:
            return OnPause(call);
        case kR5:
            return GoToPage(call.side, kPageDescentForecast);
        case kR6:
            return CanDescendDirect() ? DeleteDescentRestrictions(false) : void();
        default:
            break;
    }
}

void DrawEndOfDescent(PageCall& call) {
    LeftLabel(call, 1, "E/D AT");
    for (int i = ShownCount(); i >= 1; --i) {
        const FlightPlanLeg& leg = ShownLeg(i);
        if (!IsPlace(leg) || IsOfMissedApproach(leg)) continue;
        const double altitude = HasAltitudeRestr(leg) && leg.alt_restr > 0 ? leg.alt_restr : leg.alt;
        return LeftData(
            call, 1,
            altitude == kNone ? "----- " + leg.ident : Format("%5.0f %s", altitude, leg.ident.c_str()));
    }
}

void DrawNextSpeed(PageCall& call) {
    const int next = NextDescentConstraint(kSpeedRestr);
    if (next == 0) return;
    RightLabel(call, 1, Format("AT  %-6s", ShownLeg(next).ident.c_str()));
    RightData(call, 1, Format("%8s", SpeedText(ShownLeg(next)).c_str()));
}

double ConstraintFeet(const FlightPlanLeg& leg) {
    return leg.alt_restr > 0 ? leg.alt_restr : leg.block_above;
}

// The path to the constraint ahead: its angle in degrees, 0 without one.
double BearingTo(int next) {
    double distance = 0;
    for (int i = FirstShownLeg(); i <= next; ++i)
        if (IsPlace(ShownLeg(i))) distance += DistanceTo(i);
    constexpr double kFeetPerNm = 6076.1;
    const double down = sim.ind_alt_ft - ConstraintFeet(ShownLeg(next));
    return distance > 0 ? std::atan2(down, distance * kFeetPerNm) / kRadPerDeg : 0;
}

// Without the sign of a zero.
std::string AngleText(double degrees) {
    const std::string text = Format("%2.1f", degrees);
    return text == "-0.0" ? "0.0" : text;
}

void DrawPath(PageCall& call) {
    constexpr double kAngleX = 140, kBearingX = 180, kFpmPerKnot = 101.27;
    const int next = NextDescentConstraint(kAltitudeRestr);
    RightLabel(call, 3, "WPT/ALT");
    if (next == 0) {
        RightData(call, 3, "------/------");
    } else {
        const FlightPlanLeg& leg = ShownLeg(next);
        const double feet = ConstraintFeet(leg);
        const char* how = leg.restr_type == kAtOrAbove ? "A" : leg.restr_type == kAtOrBelow ? "B" : "";
        RightData(
            call, 3,
            Format("%6s/", leg.ident.c_str()) +
                (feet > cfg.TransAlt ? Format("FL%03.0f%s", feet / 100, how) : Format("%.0f%s", feet, how)));
    }
    const double per_knot = sim.ground_speed_kt * kFpmPerKnot;
    const double angle = per_knot > 0 ? -std::atan2(sim.vs_fpm, per_knot) / kRadPerDeg : 0;
    const double bearing = next > 0 ? BearingTo(next) : 0;
    PageText(call, kAngleX, LabelY(4), "FPA", kCyan, kLabelSize);
    PageText(call, kAngleX, DataY(4), AngleText(angle));
    PageText(call, kBearingX, LabelY(4), "V/B", kCyan, kLabelSize);
    PageText(call, kBearingX, DataY(4), AngleText(bearing));
    RightLabel(call, 4, "V/S");
    RightData(call, 4, Format("%2.0f", std::tan(bearing * kRadPerDeg) * per_knot));
}

void DrawPause(PageCall& call) {
    if (cfg.ArmPauseAtDistFromDest != 1) return;
    LeftLabel(call, 5, "PAUSE @ DIST FROM DEST");
    LeftData(call, 5, cfg.PauseAtDistFromDest > 0 ? Format("%d NM", cfg.PauseAtDistFromDest) : "OFF");
    MarkSelectable(call, kL5);
}

}  // namespace

void DescentPage(PageCall& call) {
    OnLine(call);

    VnavTitle(call, kDescentPair, "DES");
    DrawEndOfDescent(call);
    SpeedLine(call, kDescentPair, IsSpeedSelected(kDescentPair) ? "  SEL SPD" : "ECON SPD");
    TransitionLine(call, cfg.DescTransSpdRest, cfg.DescTransAltRest);
    RestrictionLine(call, cfg.DesSpdRest, cfg.DesAltRest);
    DrawPause(call);
    DrawNextSpeed(call);
    DrawPath(call);
    RightData(call, 5, "FORECAST>");
    PreflightLine(call);
    ErasePrompt(call, "<OFFPATH DES");
    if (IsRouteModified()) MarkSelectable(call, kL6);
    MarkSelectable(call, kR5);
    if (!CanDescendDirect()) return;
    RightData(call, 6, "DES DIR>");
    MarkSelectable(call, kR6);
}
