#include "cdu/unit/page_table.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>

#include "cdu/pages/altn_page.h"
#include "cdu/pages/announcements_page.h"
#include "cdu/pages/approach_ref_page.h"
#include "cdu/pages/arrivals_page.h"
#include "cdu/pages/dep_arr_index_page.h"
#include "cdu/pages/departures_page.h"
#include "cdu/pages/descent_forecast_page.h"
#include "cdu/pages/fix_info_page.h"
#include "cdu/pages/flight_plans_page.h"
#include "cdu/pages/hold_page.h"
#include "cdu/pages/ident_page.h"
#include "cdu/pages/init_ref_index_page.h"
#include "cdu/pages/legs_page.h"
#include "cdu/pages/nav_radio_page.h"
#include "cdu/pages/panels_page.h"
#include "cdu/pages/perf_init_page.h"
#include "cdu/pages/pos_init_page.h"
#include "cdu/pages/progress_page.h"
#include "cdu/pages/ref_nav_data_page.h"
#include "cdu/pages/rte_data_page.h"
#include "cdu/pages/rte_page.h"
#include "cdu/pages/select_wpt_page.h"
#include "cdu/pages/takeoff_ref_page.h"
#include "cdu/pages/thrust_lim_page.h"
#include "cdu/pages/vnav_page.h"
#include "cdu/pages/wind_page.h"

namespace {

consteval unsigned Lines(std::initializer_list<int> lines) {
    unsigned bits = 0;
    for (const int line : lines) bits |= 1U << line;
    return bits;
}
constexpr unsigned kNoLine = 0;
constexpr unsigned kRows1To5 = Lines({kL1, kL2, kL3, kL4, kL5, kR1, kR2, kR3, kR4, kR5});
// The lowest of a leg's winds is only typed over.
constexpr unsigned kWindRows = Lines({kL2, kL3, kL4, kR1, kR2, kR3, kR4});

constexpr CduPage kPages[] = {
    {kPageFlightPlans, FlightPlansPage, true, kNoLine},
    {kPagePerfInit, PerfInitPage, false, Lines({kL2, kL3, kR2, kR5})},
    {kPageLegs, LegsPage, true, kRows1To5},
    {kPageSelectWpt, SelectWptPage, true, kNoLine},
    {kPageDepartures, DeparturesPage, true, kNoLine},
    {kPageArrivals, ArrivalsPage, true, kNoLine},
    {kPageApproachRef, ApproachRefPage, false, kNoLine},
    {kPageVnav, VnavPage, true, Lines({kL3, kL4, kL5})},
    {kPageDescentForecast, DescentForecastPage, false, Lines({kL2, kL3, kL4, kL5, kR1, kR2, kR3, kR4, kR5})},
    {kPageTakeoffRef, TakeoffRefPage, true, Lines({kL2, kL3})},
    {kPageThrustLim, ThrustLimPage, false, Lines({kL1})},
    {kPagePanels, PanelsPage, true, kNoLine},
    {kPageRte, RtePage, true, kRows1To5},
    {kPageInitRefIndex, InitRefIndexPage, false, kNoLine},
    {kPageDepArrIndex, DepArrIndexPage, false, kNoLine},
    {kPageIdent, IdentPage, false, kNoLine},
    {kPagePosInit, PosInitPage, true, Lines({kL2})},
    {kPageRefNavData, RefNavDataPage, false, kNoLine},
    {kPageFixInfo, FixInfoPage, true, Lines({kL1, kL2, kL3, kL4})},
    {kPageHold, HoldPage, true, kNoLine},
    {kPageNavRadio, NavRadioPage, false, Lines({kL1, kL4, kR1})},
    {kPageAltn, AltnPage, true, Lines({kL1, kL2, kL3, kL4, kR5})},
    {kPageAltnDetail, AltnDetailPage, true, kNoLine},
    {kPageProgress, ProgressPage, true, kNoLine},
    {kPagePosReport, PosReportPage, false, kNoLine},
    {kPageAnnouncements, AnnouncementsPage, false, kNoLine},
    {kPageRteData, RteDataPage, true, kNoLine},
    {kPageWind, WindPage, true, kWindRows},
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
