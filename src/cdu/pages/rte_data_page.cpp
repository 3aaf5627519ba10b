#include "cdu/pages/rte_data_page.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "cdu/words/eta.h"
#include "cdu/words/page.h"
#include "cdu/words/shown_plan.h"
#include "fmc/legs/route_state.h"
#include "fmc/performance/predictions.h"
#include "fmc/performance/winds.h"
#include "frame/crew_messages.h"
#include "state/cfg.h"
#include "state/leg_words.h"
#include "state/lnav.h"
#include "state/predictions.h"
#include "state/sim.h"
#include "state/vnav.h"
#include "state/winds.h"

namespace {

constexpr int kLegsPerPage = 5;

int PageCount() {
    return PagesFor(ShownCount() - FirstShownLeg() + 1, kLegsPerPage);
}

struct Arrival {
    double hours = 0;  // from now
    double fuel_lb = 0;
};

double BurnPerNm(int leg) {
    if (vnav.tod_stpos > 0 && leg > vnav.tod_stpos) return predictions.des_burn_per_nm;
    if (vnav.toc == 0 && vnav.toc_stpos > 0 && leg <= vnav.toc_stpos) return predictions.clb_burn_per_nm;
    return predictions.crz_burn_per_nm;
}

// From one leg to the next, as the aircraft goes now.
void FlyTo(Arrival& arrival, int leg) {
    const double distance = DistanceTo(leg);
    arrival.hours += HoursFor(distance);
    arrival.fuel_lb = std::max(0.0, arrival.fuel_lb - distance * BurnPerNm(leg));
}

bool HasWinds(const FlightPlanLeg& leg) {
    return std::any_of(leg.wind.begin(), leg.wind.end(), [](const WindLevel& wind) { return wind.alt != 0; });
}

void OpenWinds(PageCall& call, int leg) {
    if (leg > ShownCount() || !IsPlace(ShownLeg(leg))) return;
    if (IsRouteSettled()) AdvanceRouteState();
    call.unit.wind_leg = leg;
    GoToPage(call.side, kPageWind);
}

constexpr int kUplinkSeconds = 6, kSentBelow = 3;

void RequestWinds(PageCall& call) {
    if (winds.wind_uplink_timer > 0) return;  // on its way already
    OpenModification();
    if (!RequestRouteWinds()) return Refuse(call, "INVALID WIND DATA UPLINK", kHelpWeatherMissing);
    winds.wind_uplink_timer = kUplinkSeconds;
    winds.wind_uplink_side = call.side;
}

void LoadWinds(PageCall& call) {
    winds.wind_uplink_pending = 0;
    ApplyRouteWinds(call.side);
}

const char* UplinkPrompt() {
    if (winds.wind_uplink_pending == 1) return "LOAD>";
    if (winds.wind_uplink_timer >= kSentBelow) return "REQUESTING";
    return winds.wind_uplink_timer > 0 ? "SENT" : "REQUEST>";
}

void OnLastLine(PageCall& call) {
    if (call.line == kR6) {
        if (plan.fms_fpln_active < kRouteActivated) return;
        return winds.wind_uplink_pending == 1 ? LoadWinds(call) : RequestWinds(call);
    }
    if (!TakeErase(call)) GoToPage(call.side, kPageLegs);
}

void DrawRow(PageCall& call, int row, int leg, const Arrival& arrival) {
    const FlightPlanLeg& shown = ShownLeg(leg);
    if (!IsPlace(shown)) return;
    const double y = DataY(row);
    PageText(call, 34, y, EtaText(arrival.hours));
    PageText(call, 90, y, shown.ident, leg == ShownActiveLeg() ? kMagenta : kWhite);
    PageText(call, 150, y, Format("%3.1f", DisplayWeight(arrival.fuel_lb) / 1000));
    if (HasWinds(shown)) PageText(call, 225, y, "W");
    RightData(call, row, ">");
    MarkSelectable(call, kR1 + row - 1);
}

}  // namespace

void RteDataPage(PageCall& call) {
    int& page = call.unit.rte_data_index;
    TurnPages(call, page, PageCount());
    const int first = FirstShownLeg() + (page - 1) * kLegsPerPage;
    const int right = RightLine(call.line);
    if (LineRow(call.line) == 6)
        OnLastLine(call);
    else if (right > 0)
        OpenWinds(call, first + right - 1);

    Title(call, 115, "RTE 1 DATA", IsRouteActive() ? kMapGreen : kWhite);
    RouteStatusMark(call, 90);
    PageText(call, 230, 23, Format("%d/%d", page, PageCount()), kWhite, kLabelSize);
    PageText(call, 40, LabelY(1), "ETA", kCyan, kLabelSize);
    PageText(call, 90, LabelY(1), "WAYPOINT", kCyan, kLabelSize);
    PageText(call, 155, LabelY(1), "FUEL", kCyan, kLabelSize);
    RightLabel(call, 1, "WIND");
    Arrival arrival{0, sim.total_fuel};
    for (int leg = FirstShownLeg(); leg < first + kLegsPerPage && leg <= ShownCount(); ++leg) {
        FlyTo(arrival, leg);
        if (leg >= first) DrawRow(call, leg - first + 1, leg, arrival);
    }
    DashLine(call);
    ErasePrompt(call, "<LEGS");
    RightData(call, 6, plan.fms_fpln_active < kRouteActivated ? "POS REF>" : UplinkPrompt());
    MarkSelectable(call, kL6);
    if (plan.fms_fpln_active >= kRouteActivated) MarkSelectable(call, kR6);
}
