#include "fmc/legs/route_rows.h"

#include <string_view>

#include "state/leg_words.h"

namespace {

// Calls visit(index, leg, opens) for the legs that rows are made of, `opens` where a new row begins.
template <class Visit>
void WalkRows(Visit visit) {
    std::string_view running;
    for (int i = 1; i < plan.mod.leg_cnt; ++i) {
        const FlightPlanLeg& leg = plan.mod.legs[i];
        const bool direct = IsDirect(leg);
        const bool opens = direct || leg.via != running;
        running = direct ? kDirectVia : std::string_view(leg.via);
        visit(i, leg, opens);
    }
}

}  // namespace

void RebuildRouteRows() {
    for (int i = 0; i <= plan.route_cnt; ++i) plan.Route[i] = {};
    plan.route_cnt = 0;
    WalkRows([](int, const FlightPlanLeg& leg, bool opens) {
        RouteRow& row = plan.Route[opens ? ++plan.route_cnt : plan.route_cnt];
        if (opens) {
            const bool direct = IsDirect(leg);
            row.via = direct ? kDirectVia : leg.via;
            row.via_type = direct ? "" : leg.via_type;
        }
        if (!IsThen(leg)) row.to = leg.ident;
    });
    static_cast<void>(plan.Route[plan.route_cnt]);
}

RowLegs FindRowLegs(int row) {
    RowLegs found;
    int walked = 0;
    WalkRows([&](int index, const FlightPlanLeg&, bool opens) {
        if (opens) ++walked;
        if (walked != row) return;
        if (opens) found.first = index;
        found.last = index;
    });
    return found;
}

int FindRouteFix(int row, bool want_via) {
    if (row < 1) return 0;
    const RowLegs legs = FindRowLegs(row);
    for (int i = legs.last; i >= legs.first && i > 0; --i) {
        const FlightPlanLeg& leg = plan.mod.legs[i];
        if (!IsPlace(leg)) continue;
        const std::string_view via = leg.via.empty() ? kDirectVia : std::string_view(leg.via);
        return !want_via || via == plan.Route[row].via ? i : 0;
    }
    return 0;
}
