#include "cdu/legs_page.h"

#include <algorithm>

#include "cdu/constraint_entry.h"
#include "cdu/page.h"
#include "cdu/shown_plan.h"
#include "fmc/edit_legs.h"
#include "fmc/holds.h"
#include "fmc/insert_fix.h"
#include "fmc/leg_list.h"
#include "fmc/route.h"
#include "fmc/route_rows.h"
#include "frame/crew_messages.h"
#include "navdata/parse_entry.h"
#include "platform/text.h"
#include "state/cfg.h"
#include "state/nav.h"
#include "state/nd.h"
#include "state/sim.h"

namespace {

constexpr int kLegsPerPage = 5;
constexpr int kNormalView = 0, kDirectView = 1, kHoldView = 2;
constexpr const char* kDegree = "\xb0";
constexpr const char* kHoldAt = "HOLD AT ";
constexpr int kFaceRight = 251;
// The frame of a constraint ends at 245, which the longest of each form must reach: "12000A",
// "----/200A240B".
constexpr int kConstraintX = 165, kWindowX = 157, kSlashX = 200, kAltitudeX = 205;
constexpr float kEnteredSize = 10, kPredictedSize = 9;
constexpr float kTrackSize = 8;  // the course in 20 units, the distance's five columns in 25

int FirstLeg() {
    return std::max(1, ShownActiveLeg());
}

// A row more than the legs, for one more waypoint.
int PageCount() {
    return (std::max(0, ShownCount() - FirstLeg() + 1) + kLegsPerPage) / kLegsPerPage;
}

// --- left keys: the fix

void LegsChanged(PageCall& call) {
    RebuildRouteRows();
    OpenModification();
    ClearEntry(call);
    if (plan.direct_to_pending == 1) route_pages.LegsView = kDirectView;
}

void AskWhich(PageCall& call, int position) {
    route_pages.PendingSelectRow = position;
    call.unit.prev_fms_page = kPageLegs;
    call.unit.select_index = 1;
    GoToPage(call.side, kPageSelectWpt);
}

void EnterFix(PageCall& call, int leg) {
    ParseEntry(Entry(call));
    if (nav.entry_cnt == 0) return Refuse(call, "NOT IN DATABASE", kHelpRoute);
    if (nav.entry_cnt > 1) return AskWhich(call, leg);
    InsertPickedLeg(call, leg, 1);
}

int FindFollowing(int leg, const std::string& ident) {
    const bool active = plan.fms_fpln_active >= kRouteActive && leg == ShownActiveLeg();
    for (int i = active ? leg : leg + 1; i <= plan.mod_cnt; ++i)
        if (plan.FlightPlanMod[i].ident == ident) return i;
    return 0;
}

// "BTG/-5": a point that far from the leg's own fix along the route. 0 when the text is of another form.
bool IsAlongTrack(const std::string& text) {
    const std::size_t slash = text.find('/');
    return slash != std::string::npos && slash >= 2 && slash <= 5;
}

// Refused without a place on that side of the fix, to which the distance would be measured.
void EnterAlongTrack(PageCall& call, int leg) {
    const double distance = LeadingDouble(std::string_view(Entry(call)).substr(Entry(call).find('/') + 1));
    const int legs_before = plan.mod_cnt;
    plan.along_track_nm = distance;
    if (distance != 0) InsertFixAt(leg, 0, true);
    if (plan.mod_cnt == legs_before) return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    LegsChanged(call);
}

void DeleteLeg(PageCall& call, int leg) {
    if (ShownCount() < 2) return call.unit.ScratchMessage.clear();
    if (leg >= ShownCount())
        return call.line == kL3 ? Refuse(call, "INVALID ENTRY", kHelpNotAllowed) : RefuseDelete(call);
    if (IsDisco(ShownLeg(leg))) return RefuseDelete(call);  // a gap is closed, not deleted
    plan.FlightPlanMod[leg].alt = kNone;
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

// No more holds than the list takes, one at a fix, and none at a gap or behind the destination.
bool CanHoldAt(int leg) {
    const GrowingList<FlightPlanLeg>& legs = plan.FlightPlanMod;
    const bool has_place = leg < plan.mod_cnt && IsPlace(legs[leg]);
    return plan.hold_cnt < kMostHolds && has_place && legs[leg].via != "HOLD" && legs[leg + 1].via != "HOLD";
}

// A hold has a leg of its own behind the fix at which it is flown.
void PlaceHold(PageCall& call, int leg) {
    plan.FlightPlanMod[leg].via = "HOLD";
    plan.FlightPlanMod[leg].via_type = "HOLD";
    MarkHold(leg, false, std::max(0, PlaceBefore(plan.FlightPlanMod, leg - 1)));
    route_pages.LegsView = kNormalView;
    route_pages.HoldSelectIndex = 0;
    LegsChanged(call);
}

void HoldAtLeg(PageCall& call, int leg) {
    if (!CanHoldAt(leg)) return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    const FlightPlanLeg fix = plan.FlightPlanMod[leg];
    FlightPlanLeg& hold = OpenModLeg(leg + 1);
    hold.ident = fix.ident;
    hold.lat = fix.lat;
    hold.lon = fix.lon;
    hold.type = fix.type;
    hold.freq = fix.freq;
    hold.mod_flag = 1;
    PlaceHold(call, leg + 1);
}

void HoldAtEntry(PageCall& call, int leg, int candidate) {
    if (plan.hold_cnt >= kMostHolds) return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    EnsureEnds();
    leg = std::min(leg, plan.mod_cnt);
    InsertFixAt(leg, candidate, true);
    PlaceHold(call, leg);
}

// The fix behind "HOLD AT ": the one picked, unless an entry on the other side has taken the list since.
void HoldAtPick(PageCall& call, int leg) {
    const std::string ident = Entry(call).substr(std::string_view(kHoldAt).size());
    int pick = route_pages.hold_candidate;
    if (pick < 1 || pick > nav.entry_cnt || nav.EntryCandidates[pick].ident != ident) {
        ParseEntry(ident);
        pick = 1;
    }
    if (nav.entry_cnt == 0) return Refuse(call, "NOT IN DATABASE", kHelpRoute);
    HoldAtEntry(call, leg, pick);
}

void OnFix(PageCall& call, int leg) {
    if (IsDelete(call)) return DeleteLeg(call, leg);
    if (leg > ShownCount() + 1) return;
    if (Entry(call).empty()) return PickLeg(call, leg);
    if (route_pages.LegsView == kHoldView && Entry(call).starts_with(kHoldAt))
        return HoldAtPick(call, leg + 1);
    if (const int found = FindFollowing(leg, Entry(call)); found > 0) {
        if (IsDisco(ShownLeg(leg)))  // the gap is closed
            for (int i = found - 1; i >= leg; --i) DeleteLegWithDiscontinuity(i, true, call.side);
        else
            ConnectLegs(leg, found, call.side);
        return LegsChanged(call);
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

// A departure's window bears the type of "at".
bool IsWindow(const FlightPlanLeg& leg) {
    return leg.restr_code != 0 && leg.alt_restr <= 0 && leg.block_above > 0;
}

bool HasConstraint(const FlightPlanLeg& leg) {
    return leg.restr_code > 0;
}

std::string AltitudeText(double altitude) {
    return altitude > cfg.TransAlt ? Format("FL%03.0f", altitude / 100) : Format("%5.0f", altitude);
}

std::string SpeedText(const FlightPlanLeg& leg) {
    if (leg.mach_restr > 0 && leg.mach_restr < 1) return Format(".%03.0f", leg.mach_restr * 1000);
    return leg.ias_restr > 0 ? Format("%3.0f", leg.ias_restr) : "----";
}

std::string ConstraintAltitude(const FlightPlanLeg& leg) {
    if (IsWindow(leg)) return Format("%-3.0fA%-3.0fB", leg.block_above / 100, leg.block_below / 100);
    const bool constrained = (leg.restr_code == 1 || leg.restr_code == 3) && leg.alt_restr > 0;
    if (!constrained) return {};
    return AltitudeText(leg.alt_restr) + (leg.restr_type == 1 ? "A" : leg.restr_type == 2 ? "B" : "");
}

std::string ConstraintText(const FlightPlanLeg& leg) {
    const std::string altitude = ConstraintAltitude(leg);
    const bool speed = leg.ias_restr > 0 || leg.mach_restr > 0;
    return (speed ? SpeedText(leg) : std::string()) + "/" + std::string(Trimmed(altitude));
}

void OnConstraint(PageCall& call, int leg) {
    if (leg > ShownCount()) {
        if (IsDelete(call)) RefuseDelete(call);
        return;
    }
    const FlightPlanLeg& shown = ShownLeg(leg);
    if (IsDelete(call)) {
        if (!HasConstraint(shown)) return RefuseDelete(call);
        OpenModification();
        RemoveConstraint(leg);
        return call.unit.ScratchMessage.clear();
    }
    if (Entry(call).empty()) {
        if (HasConstraint(shown)) CopyDown(call, ConstraintText(shown));
        return;
    }
    const auto entry = ParseConstraint(Entry(call));
    if (!entry || !IsPlace(shown)) return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    OpenModification();
    StoreConstraint(leg, *entry);
    ClearEntry(call);
}

// --- line 6

void HoldAtPresentPosition(PageCall& call) {
    if (plan.hold_cnt >= kMostHolds) return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    EnsureEnds();
    const int leg = std::max(1, ShownActiveLeg());
    const bool flying = plan.fms_fpln_active >= kRouteActive;
    if (plan.fms_fpln_active == kRouteActive) AdvanceRouteState();
    FlightPlanLeg& hold = OpenModLeg(leg);
    hold.ident = "HOLD PPOS";
    hold.lat = sim.plane_lat;
    hold.lon = sim.plane_lon;
    hold.type = "WPT";
    hold.mod_flag = 1;
    if (flying) SetPendingActiveLeg(leg);
    PlaceHold(call, leg);
    if (const int place = plan.FlightPlanMod[leg].hold_pos)
        plan.HoldList[place].inbound_crs = sim.mag_track_deg;
}

void OnHoldEntry(PageCall& call) {
    if (const int leg = route_pages.HoldSelectIndex) return HoldAtLeg(call, leg);
    if (Entry(call).starts_with(kHoldAt)) return HoldAtPick(call, FirstLeg());
    if (Entry(call).empty()) return;
    for (int i = FirstLeg(); i < plan.mod_cnt; ++i)
        if (plan.FlightPlanMod[i].ident == Entry(call)) return HoldAtLeg(call, i);
    ParseEntry(Entry(call));
    if (nav.entry_cnt == 0) return Refuse(call, "NOT IN DATABASE", kHelpRoute);
    if (nav.entry_cnt > 1) return AskWhich(call, 0);
    HoldAtEntry(call, FirstLeg(), 1);
}

// The course on which a direct-to joins the picked leg.
void SetInterceptCourse(int leg) {
    FlightPlanLeg& target = plan.FlightPlanMod[leg];
    if (target.rad_int >= 0) return;
    const ShownTrack track = TrackToLeg(leg);
    if (track.known) target.rad_int = track.course;
}

void OnDirectEntry(PageCall& call) {
    if (const int leg = route_pages.DirectSelectIndex) {
        route_pages.DirectSelectIndex = 0;
        if (leg > plan.mod_cnt || !IsPlace(plan.FlightPlanMod[leg])) return;
        if (plan.fms_fpln_active == kRouteActive) AdvanceRouteState();
        SetInterceptCourse(leg);
        ConnectLegs(PendingActiveLeg(), leg, call.side);
        return LegsChanged(call);
    }
    if (!Entry(call).empty()) OnFix(call, FirstLeg());
}

// With the map in PLAN, STEP moves it from leg to leg.
bool MapStandsOnALeg(const PageCall& call) {
    constexpr int kPlanMap = 4;
    return NdOf(call.side).nd_mode == kPlanMap && plan.fms_fpln_active > kRouteEntered;
}

void StepMapCentre(PageCall& call) {
    int& centre = NdOf(call.side).plan_step;
    const int first = FirstLeg();
    int leg = centre < first ? first : centre + 1;
    while (leg <= ShownCount() && !IsPlace(ShownLeg(leg))) ++leg;
    centre = leg <= ShownCount() ? leg : first;
}

void OnLastLine(PageCall& call) {
    if (call.line == kL6) {
        if (plan.fms_fpln_active == kRouteModified && route_pages.LegsView == kNormalView) {
            EraseModification();
            return ClearEntry(call);
        }
        if (route_pages.LegsView == kHoldView) return OnHoldEntry(call);
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
    if (shown.via == "HOLD") return PageText(call, 40, y, "HOLD AT", kWhite, kLabelSize);
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
    if (plan.fms_fpln_active == kRouteModified && shown.mod_flag > 0)
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
    const bool speed = shown.ias_restr > 0 || shown.mach_restr > 0;
    if (IsWindow(shown))
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
        const int target = std::max(1, ShownActiveLeg());
        const double course = ShownLeg(target).rad_int;
        if (course >= 0)
            PageText(call, 218, y, Format("%03.0f%s", course, kDegree), kWhite, kLabelSize);
        else
            EntryBoxes(call, 218, y, 4);
    } else if (route_pages.LegsView == kHoldView) {
        FittedText(call, 34, y, kFaceRight, "------------------- HOLD AT  ------------------");
        if (route_pages.HoldSelectIndex == 0 && plan.fms_fpln_active < kRouteModified)
            EntryBoxes(call, 37, DataY(6), 5);
    } else {
        DashLine(call);
    }
}

void DrawLastLine(PageCall& call, int page) {
    DrawViewLine(call);
    const int state = plan.fms_fpln_active;
    const int view = route_pages.LegsView;
    if (view != kNormalView || state == kRouteModified) MarkSelectable(call, kL6);
    if (view == kNormalView) LeftData(call, 6, state == kRouteModified ? "<ERASE" : "<RTE 2 LEGS");
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

// A fix typed over the leg that is being flown to is flown to directly.
void InsertPickedLeg(PageCall& call, int leg, int candidate) {
    const bool direct = plan.fms_fpln_active >= kRouteActive && leg == ShownActiveLeg();
    InsertFixAt(leg, candidate, false);
    if (direct) {
        SetPendingActiveLeg(leg);
        ConnectLegs(leg, leg, call.side);
    }
    LegsChanged(call);
}

void LegsPage(PageCall& call) {
    int& page = call.unit.legs_index;
    TurnPages(call, page, PageCount());
    const int first = FirstLeg() + (page - 1) * kLegsPerPage;
    const int left = LeftLine(call.line), right = RightLine(call.line);
    if (LineRow(call.line) == 6)
        OnLastLine(call);
    else if (left > 0)
        OnFix(call, first + left - 1);
    else if (right > 0)
        OnConstraint(call, first + right - 1);

    page = std::min(page, PageCount());
    Title(call, 115, "RTE 1 LEGS", plan.fms_fpln_active >= kRouteActive ? kMapGreen : kWhite);
    RouteStatusMark(call, 90);
    PageCounter(call, page, PageCount());
    DrawLegs(call, FirstLeg() + (page - 1) * kLegsPerPage);
    DrawLastLine(call, page);
}
