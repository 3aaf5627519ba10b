#include "cdu/page_table.h"

#include <algorithm>
#include <iterator>

#include "cdu/arrivals_page.h"
#include "cdu/dep_arr_index_page.h"
#include "cdu/departures_page.h"
#include "cdu/flight_plans_page.h"
#include "cdu/legs_page.h"
#include "cdu/rte_data_page.h"
#include "cdu/rte_page.h"
#include "cdu/select_wpt_page.h"
#include "cdu/wind_page.h"

namespace {

constexpr CduPage kPages[] = {
    {kPageFlightPlans, FlightPlansPage, true},
    {kPageLegs, LegsPage, true},
    {kPageSelectWpt, SelectWptPage, true},
    {kPageDepartures, DeparturesPage, true},
    {kPageArrivals, ArrivalsPage, true},
    {kPageRte, RtePage, true},
    {kPageDepArrIndex, DepArrIndexPage, false},
    {kPageRteData, RteDataPage, true},
    {kPageWind, WindPage, true},
};

struct FirstItem {
    int page, item;
};
// Pages that aren't here begin at L1.
constexpr FirstItem kFirstItems[] = {
    {kPageFlightPlans, 6}, {kPageInitRefIndex, 6}, {kPageIdent, 6},   {kPageProgress, 6},
    {kPageFixInfo, 6},     {kPagePerfInit, 2},     {kPagePosInit, 2}, {kPageHold, 3},
};

}  // namespace

const CduPage* FindPage(int id) {
    const auto* row = std::find_if(std::begin(kPages), std::end(kPages),
                                   [id](const CduPage& page) { return page.id == id; });
    return row == std::end(kPages) ? nullptr : row;
}

int FirstCursorItem(int page) {
    for (const FirstItem& row : kFirstItems)
        if (row.page == page) return row.item;
    return kL1;
}
