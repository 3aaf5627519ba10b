#include "cdu/pages/rte_page.h"

#include "base/text.h"
#include "cdu/pages/flight_plans_page.h"
#include "cdu/pages/select_wpt_page.h"
#include "cdu/words/page.h"
#include "cdu/words/shown_plan.h"
#include "fmc/files/route_files.h"
#include "fmc/legs/edit_legs.h"
#include "fmc/legs/insert_fix.h"
#include "fmc/legs/route_airway.h"
#include "fmc/legs/route_rows.h"
#include "fmc/legs/route_state.h"
#include "fmc/procedures/end_airports.h"
#include "fmc/procedures/select_procedures.h"
#include "fmc/route/endpoints.h"
#include "frame/crew_messages.h"
#include "navdata/nearest.h"
#include "navdata/parse_entry.h"
#include "state/airports.h"
#include "state/leg_words.h"
#include "state/nav.h"
#include "state/route_files.h"

namespace {

constexpr int kRowsPerPage = 5;
constexpr std::size_t kMaxFlightNumber = 10;
constexpr const char* kDiscontinuity = "----------- ROUTE DISCONTINUITY  ------------";

// --- page 1: the ends

bool HasOrigin() {
    return plan.mod.ends.origin != kNotSelected;
}

// What an end shows: a modification's value stands on a highlight.
void DrawEnd(PageCall& call, int line, const std::string& active, const std::string& modified) {
    const bool left = LeftLine(line) > 0;
    const int row = LineRow(line);
    const bool in_mod = IsRouteModified();
    const std::string& value = in_mod ? modified : active;
    if (value == kNotSelected)
        left ? LeftBoxes(call, row, 4) : RightBoxes(call, row, 4);
    else if (in_mod)
        left ? HighlightedLeft(call, row, value) : HighlightedRight(call, row, value);
    else
        left ? LeftData(call, row, Format("%5s", value.c_str()))
             : RightData(call, row, Format("%5s", value.c_str()));
}

void OriginLine(PageCall& call) {
    LeftLabel(call, 1, "ORIGIN");
    DrawEnd(call, kL1, plan.active.ends.origin, plan.mod.ends.origin);
    MarkSelectable(call, kL1);
}

void OnOrigin(PageCall& call) {
    if (Entry(call).empty()) {
        if (HasOrigin()) return CopyDown(call, plan.mod.ends.origin);
        return Refuse(call, "INVALID ENTRY", kHelpOrigin);
    }
    if (EnterOrigin(Entry(call)) == 0) return Refuse(call, "NOT IN DATABASE", kHelpAirportCode);
    ClearEntry(call);
}

void OnDestination(PageCall& call) {
    if (Entry(call).empty()) {
        if (plan.mod.ends.dest != kNotSelected) return CopyDown(call, plan.mod.ends.dest);
        return Refuse(call, "INVALID ENTRY", kHelpDestination);
    }
    if (EnterDestination(Entry(call)) == 0) return Refuse(call, "NOT IN DATABASE", kHelpAirportCode);
    OpenModification();
    ClearEntry(call);
}

void OnRunway(PageCall& call) {
    if (!HasOrigin()) return Refuse(call, "INVALID ENTRY", kHelpOrigin);
    if (Entry(call).empty()) return;
    if (SelectOriginRunway(Entry(call)) == 0) return Refuse(call, "NOT IN DATABASE", kHelpAirportCode);
    if (plan.mod.procedures.dep_sid != kNotSelected) SelectSid(call.side, 0, true);
    ClearEntry(call);
}

void OnFlightNumber(PageCall& call) {
    if (Entry(call).empty()) return;
    if (Entry(call).size() > kMaxFlightNumber) return Refuse(call, "INVALID ENTRY", kHelpFlightNumber);
    plan.fms_fltno = Entry(call);
    ClearEntry(call);
}

// A new route is entered and waits for ACTIVATE, whatever loading has made of the state.
void OnCompanyRoute(PageCall& call) {
    if (Entry(call).empty()) return;
    ListRouteFiles();
    const int file = FindRouteFile(Entry(call));
    if (file == 0 || LoadCompanyRoute(route_files.RouteFiles[file]) == 0)
        return Refuse(call, "NOT IN DATABASE", kHelpCompanyRoute);
    plan.fms_fpln_active = !IsRouteActive() ? kRouteEntered : kRouteModified;
    ClearEntry(call);
}

void OnEndsLine(PageCall& call) {
    if (IsDelete(call)) return RefuseDelete(call);
    switch (call.line) {
        case kL1:
            return OnOrigin(call);
        case kR1:
            return OnDestination(call);
        case kL2:
            return OnRunway(call);
        case kR2:
            return OnFlightNumber(call);
        case kL3:
            return OpenFlightPlans(call);
        case kR3:
            return OnCompanyRoute(call);
        case kR5:
            BuildAltnList();
            call.unit.altn_index = 1;
            return GoToPage(call.side, kPageAltn);
        default:
            break;
    }
}

void DrawEnds(PageCall& call) {
    OriginLine(call);
    RightLabel(call, 1, "DEST");
    DrawEnd(call, kR1, plan.active.ends.dest, plan.mod.ends.dest);
    if (HasOrigin()) {
        LeftLabel(call, 2, "RUNWAY");
        const bool in_mod = IsRouteModified();
        const std::string& runway = in_mod ? plan.mod.ends.dep_runway : plan.active.ends.dep_runway;
        const std::string shown = runway == kNotSelected ? "-----" : Format("RW%s", runway.c_str());
        if (in_mod && runway != kNotSelected)
            HighlightedLeft(call, 2, shown);
        else
            LeftData(call, 2, shown);
        MarkSelectable(call, kL2);
    }
    RightLabel(call, 2, "FLT NO");
    if (plan.fms_fltno.empty())
        RightBoxes(call, 2, static_cast<int>(kMaxFlightNumber));
    else
        RightData(call, 2, plan.fms_fltno);
    LeftLabel(call, 3, "ROUTE");
    LeftData(call, 3, "<REQUEST");
    RightLabel(call, 3, "CO ROUTE");
    EntryFrame(call, 151, static_cast<int>(DataY(3)), 100);
    const std::string& company_route =
        IsRouteModified() ? plan.mod.ends.company_route : plan.active.ends.company_route;
    if (!company_route.empty()) RightData(call, 3, Format("%14.14s", company_route.c_str()));
    LeftLabel(call, 5, "ROUTE");
    LeftData(call, 5, "<PRINT");
    RightData(call, 5, "ALTN>");
    for (const int line : {kR1, kR2, kL3, kR3, kR5}) MarkSelectable(call, line);
}

// --- pages 2 and up: the rows

// The row that the active leg belongs to: those before it are flown and not shown.
int FirstShownRow() {
    for (int leg = FirstShownLeg(); leg <= ShownCount(); ++leg)
        for (int row = 1; row <= plan.route_cnt; ++row)
            if (plan.Route[row].to == ShownLeg(leg).ident) return row;
    return 1;
}

// One page more than the rows fill, so that there is always room for a new one.
int PageCount() {
    return 2 + (plan.route_cnt - FirstShownRow() + 1) / kRowsPerPage;
}

void OnVia(PageCall& call, int row) {
    if (IsDelete(call)) {
        if (RemoveViaRow(row) == 0) return RefuseDelete(call);
        return call.unit.ScratchMessage.clear();
    }
    if (Entry(call).empty()) return;
    const int fix = row > 1 ? FindRouteFix(row - 1, false) : 0;
    if (fix == 0) return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    LoadAirway("#" + Entry(call), row, fix, call.side);
    if (plan.awy_list_cnt < 1 || plan.awy_start_pos < 1) return Refuse(call, "NOT IN DATABASE", kHelpRoute);
    const bool has_fix = row <= plan.route_cnt && !plan.Route[row].to.empty();
    const int end = has_fix ? FindFixOnAirway(plan.Route[row].to) : 0;
    if (end > 0)
        InsertAirwaySegment(end);
    else
        InsertAirwayPlaceholder(fix + 1, plan.awy_name);
    LegsChanged(call);
}

// The leg, from the row on, that a later row ends with.
int FindLaterEnd(int row, const std::string& ident) {
    for (int later = row + 1; later <= plan.route_cnt; ++later)
        if (plan.Route[later].to == ident) return FindRouteFix(later, false);
    return 0;
}

// The leg that a row ends with, or the place before a row without an end of its own.
int ConnectFrom(int row) {
    for (int earlier = row; earlier >= 1; --earlier)
        if (const int leg = FindRouteFix(earlier, false)) return leg;
    return 0;
}

// A new row along the airway of the row before shows nothing until it has an end: its legs join that row.
bool ContinuesAirway(int row) {
    if (row <= plan.route_cnt || plan.Route[row - 1].via_type != kAirwayViaType) return false;
    const int fix = FindRouteFix(row - 1, false);
    return fix > 0 && fix < plan.mod.leg_cnt && IsThen(plan.mod.legs[fix + 1]);
}

void OnAirwayEnd(PageCall& call, int row, const std::string& airway, bool is_open) {
    LoadAirwayTowards(airway, FindRouteFix(row - 1, false), Entry(call));
    const int end = FindFixOnAirway(Entry(call));
    if (end == 0 || end == plan.awy_start_pos) return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    if (!is_open) RemoveToRow(row);
    InsertAirwaySegment(end);
    LegsChanged(call);
}

void OnTo(PageCall& call, int row) {
    if (IsDelete(call)) {
        if (RemoveToRow(row) == 0) return RefuseDelete(call);
        return call.unit.ScratchMessage.clear();
    }
    const bool exists = row <= plan.route_cnt;
    const RouteRow shown = exists ? plan.Route[row] : RouteRow{};
    if (Entry(call).empty()) {
        if (!shown.to.empty() && shown.to != kDiscoIdent) CopyDown(call, shown.to);
        return;
    }
    if (exists && Entry(call) == shown.to) return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    if (const int later = FindLaterEnd(row, Entry(call)); exists && later > 0) {
        ConnectLegs(ConnectFrom(row), later, call.side);
        return LegsChanged(call);
    }
    if (ContinuesAirway(row)) return OnAirwayEnd(call, row, plan.Route[row - 1].via, true);
    if (shown.via_type == kAirwayViaType) return OnAirwayEnd(call, row, shown.via, shown.to.empty());
    ParseEntry(Entry(call));
    if (nav.entry_cnt == 0) return Refuse(call, "NOT IN DATABASE", kHelpRoute);
    if (nav.entry_cnt > 1) return OpenSelectWpt(call, row);
    InsertDirectRow(1, row);
    LegsChanged(call);
}

void OnRow(PageCall& call, int row) {
    if (row <= plan.route_cnt + 1)
        LeftLine(call.line) > 0 ? OnVia(call, row) : OnTo(call, row);
    else if (IsDelete(call))
        RefuseDelete(call);
    else if (!Entry(call).empty())
        Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
}

void DrawRow(PageCall& call, int line, int row) {
    MarkSelectable(call, kL1 + line - 1);
    MarkSelectable(call, kR1 + line - 1);
    if (row > plan.route_cnt) {
        LeftData(call, line, "-----");
        RightData(call, line, "-----");
        return;
    }
    const RouteRow& shown = plan.Route[row];
    if (shown.to == kDiscoIdent) return FittedText(call, 34, DataY(line), 251, kDiscontinuity);
    LeftData(call, line, shown.via);
    RightData(call, line, shown.to.empty() ? "-----" : Format("%8s", shown.to.c_str()));
}

void DrawRows(PageCall& call, int first_row) {
    PageText(call, 40, LabelY(1), "  VIA", kCyan, kLabelSize);
    RightLabel(call, 1, "TO");
    for (int line = 1; line <= kRowsPerPage; ++line) {
        const int row = first_row + line - 1;
        if (row <= plan.route_cnt + 1) DrawRow(call, line, row);
    }
}

// --- both

void OnLastLine(PageCall& call) {
    if (TakeErase(call) || call.line != kR6) return;
    if (plan.fms_fpln_active == kRouteEntered)
        AdvanceRouteState();
    else if (plan.fms_fpln_active > kRouteEntered)
        GoToPage(call.side, kPagePerfInit);
}

void DrawLastLine(PageCall& call) {
    const int state = plan.fms_fpln_active;
    ErasePrompt(call, "<RTE 2");
    if (state == kRouteModified) MarkSelectable(call, kL6);
    if (state == kRouteNone) return;
    RightData(call, 6, state == kRouteEntered ? "ACTIVATE>" : "PERF INIT>");
    MarkSelectable(call, kR6);
}

}  // namespace

void RtePage(PageCall& call) {
    int& index = call.unit.rte_index;
    TurnPages(call, index, PageCount());
    const int first_row = FirstShownRow() + (index - 2) * kRowsPerPage;
    const int row = LineRow(call.line);
    if (row == 6)
        OnLastLine(call);
    else if (row > 0 && index == 1)
        OnEndsLine(call);
    else if (row > 0)
        OnRow(call, first_row + row - 1);

    Title(call, 132, "RTE 1", IsRouteSettled() ? kMapGreen : kWhite);
    RouteStatusMark(call, 110);
    PageCounter(call, index, PageCount());
    if (index == 1)
        DrawEnds(call);
    else
        DrawRows(call, FirstShownRow() + (index - 2) * kRowsPerPage);
    DashLine(call);
    DrawLastLine(call);
}
