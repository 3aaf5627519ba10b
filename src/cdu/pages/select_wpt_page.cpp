#include "cdu/pages/select_wpt_page.h"

#include "base/text.h"
#include "cdu/pages/legs_edit.h"
#include "cdu/words/page.h"
#include "cdu/words/position_text.h"
#include "fmc/legs/insert_fix.h"
#include "state/nav.h"

namespace {

constexpr int kPerPage = 6;

int PageCount() {
    return PagesFor(nav.entry_cnt, kPerPage);
}

const char* KindOf(const NavRecord& place) {
    return place.type == "V" ? "VOR" : place.type == "N" ? "NDB" : "WAYPOINT";
}

void Pick(PageCall& call, int candidate) {
    if (candidate > nav.entry_cnt) return;
    const int row = route_pages.PendingSelectRow;
    CduState& unit = call.unit;
    if (unit.prev_fms_page == kPageRte) {
        InsertDirectRow(candidate, row);
        LegsChanged(call);
    } else if (unit.prev_fms_page == kPageLegs && row > 0) {
        InsertPickedLeg(call, row, candidate);
    } else if (unit.prev_fms_page == kPageLegs && route_pages.LegsView == kHoldView) {
        unit.ScratchPad = "HOLD AT " + nav.EntryCandidates[candidate].ident;
        route_pages.hold_candidate = candidate;
    }
    if (unit.prev_fms_page == kPageRefNavData) nav.ref_nav_data = nav.EntryCandidates[candidate];
    route_pages.PendingSelectRow = 0;
    GoToPage(call.side, unit.prev_fms_page);
}

void DrawPlace(PageCall& call, int row, const NavRecord& place) {
    PageText(call, 40, LabelY(row), place.ident, kWhite, kSmallSize);
    PageText(call, 90, LabelY(row), KindOf(place), kWhite, kLabelSize);
    PageText(call, 198, LabelY(row), place.freq, kWhite, kLabelSize);
    PageText(call, 145, DataY(row), LatitudeText(place.lat, "\xb0") + LongitudeText(place.lon, "\xb0"),
             kWhite, kLabelSize);
}

}  // namespace

void OpenSelectWpt(PageCall& call, int row) {
    route_pages.PendingSelectRow = row;
    call.unit.prev_fms_page = call.unit.fms_page;
    call.unit.select_index = 1;
    GoToPage(call.side, kPageSelectWpt);
}

void SelectWptPage(PageCall& call) {
    int& page = call.unit.select_index;
    TurnPages(call, page, PageCount());
    const int first = (page - 1) * kPerPage;
    if (const int row = LineRow(call.line)) Pick(call, first + row);

    Title(call, 75, "SELECT DESIRED WPT");
    PageText(call, 220, 28, Format("%2d/%2d", page, PageCount()), kWhite, kLabelSize);
    for (int line = 1; line <= kPerPage && first + line <= nav.entry_cnt; ++line) {
        DrawPlace(call, line, nav.EntryCandidates[first + line]);
        MarkSelectable(call, kL1 + line - 1);
        MarkSelectable(call, kR1 + line - 1);
    }
}
