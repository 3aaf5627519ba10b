#include "fmc/route/delete_restrictions.h"

#include "fmc/legs/active_leg.h"
#include "fmc/legs/route_rows.h"
#include "fmc/legs/route_state.h"
#include "fmc/route/execute_route.h"
#include "fmc/route/modification.h"
#include "navdata/geodesy.h"
#include "state/leg_words.h"
#include "state/plan.h"
#include "state/vnav.h"

namespace {

constexpr int kRestrictionDeleted = 3;  // mod_flag

void BeginDeletion() {
    if (!IsRouteSettled()) return;
    RefreshLegsForModification();
    RebuildRouteRows();
}

// The speed constraint of the leg stays.
void DeleteAltitude(FlightPlanLeg& leg) {
    leg.restr_code &= ~kAltitudeRestr;
    leg.restr_type = kAt;
    leg.alt_restr = kNone;
    leg.block_above = leg.block_below = 0;
    leg.mod_flag = kRestrictionDeleted;
    if (IsRouteSettled()) AdvanceRouteState();
}

// True when the walk ends here.
bool DeletedTheOnly(FlightPlanLeg& leg, bool only_next) {
    if (!HasAltitudeRestr(leg)) return false;
    DeleteAltitude(leg);
    if (!only_next) return false;
    if (IsRouteActive()) ExecuteRoute();
    return true;
}

int NextLeg(int leg) {
    for (int next = leg + 1; next <= plan.mod.leg_cnt; ++next)
        if (!IsDisco(plan.mod.legs[next])) return next;
    return 0;
}

}  // namespace

void DeleteClimbRestrictions(bool only_next) {
    if (PendingActiveLeg() == kNoPlan) return;
    BeginDeletion();
    int leg = PendingActiveLeg() - 1;
    for (int next = NextLeg(leg); next > 0; leg = next, next = NextLeg(leg)) {
        const FlightPlanLeg& from = plan.mod.legs[leg];
        FlightPlanLeg& to = plan.mod.legs[next];
        const double to_top = GreatCircle(from.lat, from.lon, vnav.toc_lat, vnav.toc_lon).dist;
        if (to_top < GreatCircle(from.lat, from.lon, to.lat, to.lon).dist) return;
        if (DeletedTheOnly(to, only_next)) return;
    }
}

void DeleteDescentRestrictions(bool only_next) {
    if (PendingActiveLeg() == kNoPlan) return;
    BeginDeletion();
    for (int i = PendingActiveLeg(); i <= plan.mod.leg_cnt; ++i) {
        FlightPlanLeg& leg = plan.mod.legs[i];
        if (IsMissedApproach(leg)) return;
        if (!IsDisco(leg) && DeletedTheOnly(leg, only_next)) return;
    }
}
