#include "cdu/pages/flight_plans_page.h"

#include <utility>

#include "base/text.h"
#include "cdu/words/page.h"
#include "fmc/files/route_files.h"
#include "frame/crew_messages.h"
#include "state/route_files.h"

namespace {

constexpr int kPerPage = 6;

int PageCount() {
    return PagesFor(route_files.route_file_cnt, kPerPage);
}

const std::string& FileAt(int place) {
    return std::as_const(route_files.RouteFiles)[place];
}

void OnFile(PageCall& call, int place) {
    if (place > route_files.route_file_cnt) return;
    if (LoadCompanyRoute(FileAt(place)) == 0) Refuse(call, "NOT IN DATABASE", kHelpCompanyRoute);
    call.unit.rte_index = 1;
    call.unit.ItemCursor = 0;
    GoToPage(call.side, kPageRte);
}

}  // namespace

void FlightPlansPage(PageCall& call) {
    int& page = call.unit.flight_plans_index;
    TurnPages(call, page, PageCount());
    const int first = (page - 1) * kPerPage;
    if (const int row = LeftLine(call.line)) OnFile(call, first + row);

    Title(call, 80, "STORED FLIGHT PLANS");
    PageText(call, 225, 25, Format("%d/%d", page, PageCount()), kWhite, kLabelSize);
    for (int row = 1; row <= kPerPage && first + row <= route_files.route_file_cnt; ++row) {
        LeftData(call, row, "< " + FileAt(first + row));
        MarkSelectable(call, kL1 + row - 1);
    }
}

void OpenFlightPlans(PageCall& call) {
    ListRouteFiles();
    call.unit.flight_plans_index = 1;
    GoToPage(call.side, kPageFlightPlans);
}
