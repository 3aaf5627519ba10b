#include "cdu/pages/legs_page.h"

#include <algorithm>

#include "base/text.h"
#include "cdu/pages/hold_selection.h"
#include "cdu/pages/legs_edit.h"
#include "cdu/pages/select_wpt_page.h"
#include "cdu/words/constraint_entry.h"
#include "cdu/words/constraint_text.h"
#include "cdu/words/page.h"
#include "cdu/words/shown_plan.h"
#include "fmc/legs/active_leg.h"
#include "fmc/legs/edit_legs.h"
#include "fmc/legs/insert_fix.h"
#include "fmc/legs/route_state.h"
#include "frame/crew_messages.h"
#include "navdata/parse_entry.h"
#include "state/leg_words.h"
#include "state/nav.h"
#include "state/nd.h"

namespace {

constexpr int kLegsPerPage = 5;
constexpr const char* kDegree = "\xb0";
constexpr int kFaceRight = 251;
// The frame of a constraint ends at 245, which the longest of each form must reach: "12000A",
// "----/200A240B".
constexpr int kConstraintX = 165, kWindowX = 157, kSlashX = 200, kAltitudeX = 205;
constexpr float kEnteredSize = 10, kPredictedSize = 9;
constexpr float kTrackSize = 8;  // the course in 20 units, the distance's five columns in 25

// A row more than the legs, for one more waypoint.
int PageCount() {
    return PagesFor(ShownCount() - FirstShownLeg() + 2, kLegsPerPage);
}

// --- left keys: the fix

void EnterFix(PageCall& call, int leg) {
    ParseEntry(Entry(call));
    if (nav.entry_cnt == 0) return Refuse(call, "NOT IN DATABASE", kHelpRoute);
    if (nav.entry_cnt > 1) return OpenSelectWpt(call, leg);
    InsertPickedLeg(call, leg, 1);
}

int FindFollowing(int leg, const std::string& ident) {
    const bool active = IsRouteActive() && leg == ShownActiveLeg();
    for (int i = active ? leg : leg + 1; i <= plan.mod.leg_cnt; ++i)
        if (plan.mod.legs[i].ident == ident) return i;
    return 0;
}

// "BTG/-5": a point that far from the leg's own fix along the route.
bool IsAlongTrack(const std::string& text) {
    const std::size_t slash = text.find('/');
    return slash != std::string::npos && slash >= 2 && slash <= 5;
}

// Refused without a place on that side of the fix, to which the distance would be measured.
void EnterAlongTrack(PageCall& call, int leg) {
    const double distance = LeadingDouble(std::string_view(Entry(call)).substr(Entry(call).find('/') + 1));
    const int legs_before = plan.mod.leg_cnt;
    plan.along_track_nm = distance;
    if (distance != 0) InsertFixAt(leg, 0, true);
    if (plan.mod.leg_cnt == legs_before) return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    FinishLegsEdit(call);
}

void DeleteLeg(PageCall& call, int leg) {
    if (ShownCount() < 2) return call.unit.ScratchMessage.clear();
    if (leg >= ShownCount())
        return call.line == kL3 ? Refuse(call, "INVALID ENTRY", kHelpNotAllowed) : RefuseDelete(call);
    if (IsDisco(ShownLeg(leg))) return RefuseDelete(call);  // a gap is closed, not deleted
    plan.mod.legs[leg].alt = kNone;
    DeleteLegWithDiscontinuity(leg, false, call.side);
    OpenModification();
    call.unit.ScratchMessage.clear();
}

void PickLeg(PageCall& call, int leg) {
    const FlightPlanLeg& shown = ShownLeg(leg);
    if (leg > ShownCount() || shown.ident.empty() || IsDisco(shown) || IsThen(shown)) return;
    CopyDown(call, shown.ident);
    if (route_pages.LegsView == kDirectView) route_pages.DirectSelectIndex = leg;
    if (route_pages.LegsView == kHoldView) route_pages.HoldSelectIndex = leg;
}

void OnFix(PageCall& call, int leg) {
    if (IsDelete(call)) return DeleteLeg(call, leg);
    if (leg > ShownCount() + 1) return;
    if (Entry(call).empty()) return PickLeg(call, leg);
    if (route_pages.LegsView == kHoldView && IsHoldAtEntry(call)) return HoldAtPick(call, leg + 1);
    if (const int found = FindFollowing(leg, Entry(call)); found > 0) {
        if (IsDisco(ShownLeg(leg)))  // the gap is closed
            for (int i = found - 1; i >= leg; --i) DeleteLegWithDiscontinuity(i, true, call.side);
        else
            ConnectLegs(leg, found, call.side);
        return FinishLegsEdit(call);
    }
    const std::string& text = Entry(call);
    if (IsAlongTrack(text)) {
        const std::string fix = text.substr(0, text.find('/'));
        if (leg <= ShownCount() && fix == ShownLeg(leg).ident) return EnterAlongTrack(call, leg);
    }
    if (leg <= ShownCount() && text == ShownLeg(leg).ident)  // which the row has already
        return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    EnterFix(call, leg);
}

// --- right keys: the constraint

void OnConstraint(PageCall& call, int leg) {
    if (leg > ShownCount()) {
        if (IsDelete(call)) RefuseDelete(call);
        return;
    }
    const FlightPlanLeg& shown = ShownLeg(leg);
    if (IsDelete(call)) {
        if (shown.restr_code == kFree) return RefuseDelete(call);
        OpenModification();
        RemoveConstraint(leg);
        return call.unit.ScratchMessage.clear();
    }
    if (Entry(call).empty()) {
        if (shown.restr_code != kFree) CopyDown(call, ConstraintText(shown));
        return;
    }
    const auto entry = ParseConstraint(Entry(call));
    if (!entry || !IsPlace(shown)) return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    OpenModification();
    StoreConstraint(leg, *entry);
    ClearEntry(call);
}

// --- line 6

// The course on which a direct-to joins the picked leg.
void SetInterceptCourse(int leg) {
    FlightPlanLeg& target = plan.mod.legs[leg];
    if (target.rad_int >= 0) return;
    const ShownTrack track = TrackToLeg(leg);
    if (track.known) target.rad_int = track.course;
}

void OnDirectEntry(PageCall& call) {
    if (const int leg = route_pages.DirectSelectIndex) {
        route_pages.DirectSelectIndex = 0;
        if (leg > plan.mod.leg_cnt || !IsPlace(plan.mod.legs[leg])) return;
        if (IsRouteSettled()) AdvanceRouteState();
        SetInterceptCourse(leg);
        ConnectLegs(PendingActiveLeg(), leg, call.side);
        return FinishLegsEdit(call);
    }
    if (!Entry(call).empty()) OnFix(call, FirstShownLeg());
}

// With the map in PLAN, STEP moves it from leg to leg.
bool MapStandsOnALeg(const PageCall& call) {
    constexpr int kPlanMap = 4;
    return NdOf(call.side).nd_mode == kPlanMap && plan.fms_fpln_active > kRouteEntered;
}

void StepMapCentre(PageCall& call) {
    NdSide& map = NdOf(call.side);
    map.plan_lat = map.plan_lon = 0;  // an entered centre gives way
    int& centre = map.plan_step;
    const int first = FirstShownLeg();
    int leg = centre < first ? first : centre + 1;
    while (leg <= ShownCount() && !IsPlace(ShownLeg(leg))) ++leg;
    centre = leg <= ShownCount() ? leg : first;
}

void OnLastLine(PageCall& call) {
    if (call.line == kL6) {
        if (route_pages.LegsView == kNormalView && TakeErase(call)) return;
        if (route_pages.LegsView == kHoldView) return PlaceEnteredHold(call);
        if (route_pages.LegsView == kDirectView) return OnDirectEntry(call);
        return;
    }
    if (route_pages.LegsView == kHoldView) return HoldAtPresentPosition(call);
    if (plan.fms_fpln_active == kRouteEntered) return AdvanceRouteState();
    if (MapStandsOnALeg(call)) return StepMapCentre(call);
    if (plan.fms_fpln_active > kRouteEntered) {
        call.unit.rte_data_index = 1;
        GoToPage(call.side, kPageRteData);
    }
}

// --- the face

void DrawLabel(PageCall& call, int line, int leg) {
    const FlightPlanLeg& shown = ShownLeg(leg);
    const FlightPlanLeg& before = ShownLeg(leg - 1);
    const double y = LabelY(line);
    if (leg > ShownActiveLeg() && (IsDisco(before) || IsThen(before)))
        return FittedText(call, 34, y, kFaceRight, "----------- ROUTE DISCONTINUITY  -----------");
    if (IsHoldLeg(shown)) return PageText(call, 40, y, "HOLD AT", kWhite, kLabelSize);
    const ShownTrack track = TrackToLeg(leg);
    if (!track.known) return;
    PageText(call, 40, y, Format("%03.0f%s", track.course, kDegree), kWhite, kTrackSize);
    if (!shown.via_type.empty()) PageText(call, 60, y, shown.via, kWhite, kTrackSize);
    PageText(call, 130, y, Format("%5.0f", track.dist), kWhite, kTrackSize);
    PageText(call, 155, y, "NM", kWhite, kTrackSize);
}

void DrawIdent(PageCall& call, int line, int leg) {
    const FlightPlanLeg& shown = ShownLeg(leg);
    if (IsDisco(shown) || IsThen(shown)) return LeftBoxes(call, line, 5);
    const std::string ident = Format("%-5s", shown.ident.c_str());
    if (IsRouteModified() && shown.mod_flag > 0)
        HighlightedLeft(call, line, ident);
    else
        LeftData(call, line, ident, leg == ShownActiveLeg() ? kMagenta : kWhite);
    if (MapStandsOnALeg(call) && leg == NdOf(call.side).plan_step)
        PageText(call, 110, DataY(line), "<CTR>", kWhite, kLabelSize);
}

void DrawConstraint(PageCall& call, int line, int leg) {
    const FlightPlanLeg& shown = ShownLeg(leg);
    if (!IsPlace(shown)) return;
    const double y = DataY(line);
    EntryFrame(call, 155, static_cast<int>(y), 90);
    const bool speed = HasSpeedRestr(shown);
    if (HasWindow(shown))
        return PageText(call, kWindowX, y, SpeedText(shown) + "/" + ConstraintAltitude(shown), kWhite,
                        kEnteredSize);
    PageText(call, kConstraintX, y, SpeedText(shown), kWhite, speed ? kEnteredSize : kPredictedSize);
    PageText(call, kSlashX, y, "/", kWhite, kEnteredSize);
    const std::string entered = ConstraintAltitude(shown);
    const std::string altitude = !entered.empty() ? entered
                                 : shown.alt > 0  ? AltitudeText(shown.alt)
                                                  : "----";
    PageText(call, kAltitudeX, y, altitude, kWhite, entered.empty() ? kPredictedSize : kEnteredSize);
}

void DrawLegs(PageCall& call, int first) {
    for (int line = 1; line <= kLegsPerPage; ++line) {
        const int leg = first + line - 1;
        if (leg > ShownCount() + 1) return;
        MarkSelectable(call, kL1 + line - 1);
        DrawLabel(call, line, leg);
        if (leg > ShownCount()) {
            EntryFrame(call, 34, static_cast<int>(DataY(line)), 46);
            LeftData(call, line, "------");
            return;
        }
        MarkSelectable(call, kR1 + line - 1);
        DrawIdent(call, line, leg);
        DrawConstraint(call, line, leg);
    }
}

void DrawViewLine(PageCall& call) {
    const double y = 176;
    if (route_pages.LegsView == kDirectView) {
        FittedText(call, 34, y, 215, "--------------------------------- INTC CRS TO");
        const int target = FirstShownLeg();
        const double course = ShownLeg(target).rad_int;
        if (course >= 0)
            PageText(call, 218, y, Format("%03.0f%s", course, kDegree), kWhite, kLabelSize);
        else
            EntryBoxes(call, 218, y, 4);
    } else if (route_pages.LegsView == kHoldView) {
        FittedText(call, 34, y, kFaceRight, "------------------- HOLD AT  ------------------");
        if (route_pages.HoldSelectIndex == 0 && !IsRouteModified()) EntryBoxes(call, 37, DataY(6), 5);
    } else {
        DashLine(call);
    }
}

void DrawLastLine(PageCall& call, int page) {
    DrawViewLine(call);
    const int state = plan.fms_fpln_active;
    const int view = route_pages.LegsView;
    if (view != kNormalView || state == kRouteModified) MarkSelectable(call, kL6);
    if (view == kNormalView) ErasePrompt(call, "<RTE 2 LEGS");
    if (view == kHoldView && route_pages.HoldSelectIndex > 0)
        LeftData(call, 6, ShownLeg(route_pages.HoldSelectIndex).ident);
    const bool last_of_mod = state == kRouteModified && page == PageCount();
    const bool steps = view == kNormalView && (last_of_mod || MapStandsOnALeg(call));
    const char* right = view == kHoldView        ? "PPOS>"
                        : state == kRouteEntered ? "ACTIVATE>"
                        : steps                  ? "STEP>"
                        : state > kRouteEntered  ? "RTE DATA>"
                                                 : "";
    RightData(call, 6, right);
    if (right[0] != '\0') MarkSelectable(call, kR6);
}

}  // namespace

void LegsPage(PageCall& call) {
    int& page = call.unit.legs_index;
    TurnPages(call, page, PageCount());
    const int first = FirstShownLeg() + (page - 1) * kLegsPerPage;
    const int left = LeftLine(call.line), right = RightLine(call.line);
    if (LineRow(call.line) == 6)
        OnLastLine(call);
    else if (left > 0)
        OnFix(call, first + left - 1);
    else if (right > 0)
        OnConstraint(call, first + right - 1);

    page = std::min(page, PageCount());
    Title(call, 115, "RTE 1 LEGS", IsRouteActive() ? kMapGreen : kWhite);
    RouteStatusMark(call, 90);
    PageCounter(call, page, PageCount());
    DrawLegs(call, FirstShownLeg() + (page - 1) * kLegsPerPage);
    DrawLastLine(call, page);
}
