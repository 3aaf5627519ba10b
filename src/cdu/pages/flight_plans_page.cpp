#include "cdu/pages/flight_plans_page.h"

#include <utility>

#include "base/text.h"
#include "cdu/pages/stored_files.h"
#include "cdu/words/page.h"
#include "fmc/files/route_files.h"
#include "frame/crew_messages.h"
#include "state/route_files.h"

namespace {

void LoadRoute(PageCall& call, const std::string& name) {
    if (LoadCompanyRoute(name) == 0) Refuse(call, "NOT IN DATABASE", kHelpCompanyRoute);
    call.unit.rte_index = 1;
    call.unit.ItemCursor = 0;
    GoToPage(call.side, kPageRte);
}

}  // namespace

void FlightPlansPage(PageCall& call) {
    int& page = call.unit.flight_plans_index;
    const GrowingList<std::string>& files = std::as_const(route_files.RouteFiles);
    const int count = route_files.route_file_cnt;
    if (const std::string* name = PickStoredFile(call, page, files, count)) LoadRoute(call, *name);

    Title(call, 80, "STORED FLIGHT PLANS");
    PageText(call, 225, 25, Format("%d/%d", page, StoredFilePages(count)), kWhite, kLabelSize);
    DrawStoredFiles(call, page, files, count);
}

void OpenFlightPlans(PageCall& call) {
    ListRouteFiles();
    call.unit.flight_plans_index = 1;
    GoToPage(call.side, kPageFlightPlans);
}
