#include "cdu/pages/dep_arr_index_page.h"

#include "cdu/words/page.h"
#include "navdata/procedure_files.h"
#include "state/airports.h"
#include "state/leg_words.h"
#include "state/plan.h"

namespace {

void OpenArrivals(PageCall& call, bool of_origin) {
    call.unit.arrivals_of_origin = of_origin ? 1 : 0;
    if (of_origin) {
        LoadStars(airports.origin_airport);
        LoadApproaches(airports.origin_airport);
    }
    call.unit.arr_index = 1;
    GoToPage(call.side, kPageArrivals);
}

void OnLine(PageCall& call) {
    const bool origin = plan.mod.ends.origin != kNotSelected, dest = plan.mod.ends.dest != kNotSelected;
    if (call.line == kL1 && origin) {
        call.unit.dep_index = 1;
        GoToPage(call.side, kPageDepartures);
    } else if (call.line == kR1 && origin) {
        OpenArrivals(call, true);
    } else if (call.line == kR2 && dest) {
        OpenArrivals(call, false);
    }
}

}  // namespace

void DepArrIndexPage(PageCall& call) {
    if (call.line > 0) OnLine(call);
    constexpr double kMiddle = 127;
    Title(call, 95, "DEP/ARR  INDEX");
    PageText(call, 225, 25, "1/1", kWhite, kLabelSize);
    PageText(call, 122, 35, "RTE 1", kCyan, kLabelSize);
    if (IsRouteModified()) PageText(call, 150, 35, "(ACT)", kCyan, kLabelSize);
    if (plan.mod.ends.origin != kNotSelected) {
        LeftData(call, 1, "<DEP");
        PageText(call, kMiddle, DataY(1), plan.mod.ends.origin);
        RightData(call, 1, "ARR>");
        MarkSelectable(call, kL1);
        MarkSelectable(call, kR1);
    }
    if (plan.mod.ends.dest != kNotSelected) {
        PageText(call, kMiddle, DataY(2), plan.mod.ends.dest);
        RightData(call, 2, "ARR>");
        MarkSelectable(call, kR2);
    }
    PageText(call, 34, 91, "--------------", kWhite, kLabelSize);
    PageText(call, 122, 91, "RTE 2", kCyan, kLabelSize);
    PageText(call, 165, 91, "--------------", kWhite, kLabelSize);
    LeftData(call, 3, "<DEP");
    RightData(call, 3, "ARR>");
    RightData(call, 4, "ARR>");
    PageText(call, 40, 173, "DEP", kCyan, kLabelSize);
    PageText(call, 122, 173, "OTHER", kCyan, kLabelSize);
    PageText(call, 233, 173, "ARR", kCyan, kLabelSize);
    LeftData(call, 6, "----");
    RightData(call, 6, "----");
}
