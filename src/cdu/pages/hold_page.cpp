#include "cdu/pages/hold_page.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "cdu/words/enroute.h"
#include "cdu/words/page.h"
#include "cdu/words/typed_values.h"
#include "frame/crew_messages.h"
#include "guidance/holds.h"
#include "state/leg_words.h"
#include "state/lnav.h"
#include "state/plan.h"
#include "state/sim.h"

namespace {

constexpr int kByTime = 1, kByDistance = 2;
constexpr int kExitArmed = 2, kExiting = 3;
constexpr int kMostForExit = 4, kMostForNext = 5;
constexpr double kLongest = 99.9;  // minutes and nm

void RefuseFigure(PageCall& call) {
    Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
}

// "250/L".
void OnCourse(PageCall& call, HoldRecord& hold) {
    const auto parts = SplitAtSlash(Entry(call));
    if (!parts || parts->second.size() != 1) return RefuseFigure(call);
    const auto course = TypedNumber(parts->first, 0, 361);
    const std::string turn = UpperCase(parts->second);
    if (!course || *course >= 361 || (turn != "L" && turn != "R")) return RefuseFigure(call);
    hold.inbound_crs = *course;
    hold.right_turn = turn == "R" ? 1 : 0;
    ClearEntry(call);
}

void OnLength(PageCall& call, HoldRecord& hold, double HoldRecord::*length, int measured_by) {
    const auto value = TypedNumber(Entry(call), 0, kLongest);
    if (!value || *value <= 0) return RefuseFigure(call);
    hold.*length = *value;
    hold.use_time = measured_by;
    ClearEntry(call);
}

void OnSpeed(PageCall& call) {
    const auto speed = TypedInteger(Entry(call), 141, 999);
    if (!speed) return RefuseFigure(call);
    lnav.hold_speed = *speed;
    ClearEntry(call);
}

bool CanExit(const PageCall& call) {
    return call.unit.hold_index == 1 && lnav.holding == 1 && plan.hold_cnt >= 1 &&
           plan.hold_cnt <= kMostForExit;
}

void OnLine(PageCall& call, HoldRecord& hold) {
    const bool has_entry = !Entry(call).empty();
    if (call.line == kL3 && has_entry) OnCourse(call, hold);
    if (call.line == kL4 && has_entry) OnLength(call, hold, &HoldRecord::leg_time, kByTime);
    if (call.line == kL5 && has_entry) OnLength(call, hold, &HoldRecord::leg_dist, kByDistance);
    if (call.line == kR5 && has_entry) OnSpeed(call);
    if (call.line == kL6 && !TakeErase(call)) NextHold(call.side);
    if (call.line == kR6 && CanExit(call)) {
        lnav.hold_exit = kExiting;
        ExitHold();
    }
}

std::string FixEta(const HoldRecord& hold) {
    const double distance = DistanceAlongRoute(hold.leg);
    if (hold.leg < 1 || distance < 0 || !HasEstimates()) return "../...";
    // Whole tenths of a minute, so that 59.96 doesn't show as 60.0.
    const long tenths = std::lround((sim.utc_hours * 60 + sim.utc_minutes + sim.utc_seconds / 60.0 +
                                     distance / sim.ground_speed_kt * 60) *
                                    10) %
                        14400;
    return Format("%02ld%02ld.%1ldZ", tenths / 600, tenths / 10 % 60, tenths % 10);
}

void DrawHold(PageCall& call, const HoldRecord& hold) {
    LeftData(call, 1, hold.ident.empty() ? "- - -" : hold.ident);
    RightData(call, 1, FixEta(hold));
    LeftData(call, 3, Format("%03.0f/%s", hold.inbound_crs, hold.right_turn == 1 ? "R TURN" : "L TURN"));
    LeftData(call, 4, hold.use_time == kByTime ? Format("%1.1f   MIN", hold.leg_time) : "-.-  MIN");
    LeftData(call, 5, (hold.use_time == kByTime ? "--.-" : Format("%2.1f", hold.leg_dist)) + " NM");
    for (const int line : {kL3, kL4, kL5, kR5}) MarkSelectable(call, line);
}

}  // namespace

void HoldPage(PageCall& call) {
    int& page = call.unit.hold_index;
    TurnPages(call, page, std::max(1, plan.hold_cnt));
    if (plan.hold_cnt > 0) OnLine(call, plan.HoldList[page]);
    const int count = std::max(1, plan.hold_cnt);
    page = std::min(page, count);

    RouteStatusMark(call, 85);
    Title(call, 115, "RTE HOLD");
    PageText(call, 225, 25, Format("%d/%d", page, count), kWhite, kLabelSize);
    LeftLabel(call, 1, "FIX");
    RightLabel(call, 1, "FIX ETA");
    LeftLabel(call, 3, "INBD CRS/DIR");
    LeftLabel(call, 4, "LEG  TIME");
    LeftLabel(call, 5, "LEG DIST");
    RightLabel(call, 5, "BEST SPEED");
    RightData(call, 5, Format("%3d KT", lnav.hold_speed));
    if (plan.hold_cnt > 0) DrawHold(call, plan.HoldList[page]);
    DashLine(call);
    ErasePrompt(call, plan.hold_cnt < kMostForNext ? "<NEXT HOLD" : "");
    if (IsRouteModified() || plan.hold_cnt < kMostForNext) MarkSelectable(call, kL6);
    if (!CanExit(call)) return;
    const bool armed = lnav.hold_exit == kExitArmed || lnav.hold_exit == kExiting;
    RightData(call, 6, armed ? "EXIT ARMED>" : "EXIT HOLD>");
    MarkSelectable(call, kR6);
}
