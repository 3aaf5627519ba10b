#include "fmc/edit_legs.h"

#include <algorithm>

#include "fmc/holds.h"
#include "fmc/leg_list.h"
#include "fmc/route.h"
#include "fmc/route_rows.h"
#include "state/sim.h"

namespace {

void OpenModificationOfActiveRoute() {
    if (plan.fms_fpln_active == kRouteActive) AdvanceRouteState();
}

bool IsDirect(const FlightPlanLeg& leg) {
    return leg.via.empty() || leg.via == "DIRECT";
}

bool IsOfSid(const FlightPlanLeg& leg) {
    return leg.via_type == "SID" || leg.via_type == "SIDSTAR";
}

bool IsOfBlock(const FlightPlanLeg& leg, const FlightPlanLeg& block) {
    return IsOfSid(block) ? IsOfSid(leg) : leg.via == block.via;
}

// All legs that stand or fall with a row.
RowLegs FindBlock(int leg) {
    const GrowingList<FlightPlanLeg>& legs = plan.FlightPlanMod;
    RowLegs block{leg, leg};
    if (IsDirect(legs[leg]) && !IsOfSid(legs[leg])) return block;
    while (block.first > 1 && IsOfBlock(legs[block.first - 1], legs[leg])) --block.first;
    while (block.last + 1 < plan.mod_cnt && IsOfBlock(legs[block.last + 1], legs[leg])) ++block.last;
    return block;
}

void StartDirectTo(int to) {
    RemoveModLegs(1, to - 1);
    SetPendingActiveLeg(1);
    plan.direct_to_pending = 1;
    const FlightPlanLeg& target = plan.FlightPlanMod[1];
    ActiveLegRecord& leg = plan.ActiveLegMod;
    leg = {.from = "DIRECT",
           .from_lat = sim.plane_lat,
           .from_lon = sim.plane_lon,
           .to = target.ident,
           .to_lat = target.lat,
           .to_lon = target.lon,
           .course = 0,
           .direct_flag = 1};
}

}  // namespace

void ConnectLegs(int from, int to, int) {
    if (from < 0 || to < from || to > plan.mod_cnt) return;
    const bool direct_to =
        plan.fms_fpln_active >= kRouteActive && from == PendingActiveLeg() && IsPlace(plan.FlightPlanMod[to]);
    if (to == from && !direct_to) return;
    if (direct_to)
        StartDirectTo(to);
    else
        RemoveModLegs(from + 1, to - from - 1);
    MergeNeighbourDiscos();
    OpenModification();
    RebuildRouteRows();
}

void DeleteLegWithDiscontinuity(int leg, bool reconnect, int) {
    if (leg < 1 || leg >= plan.mod_cnt) return;
    RemoveHold(leg);
    GrowingList<FlightPlanLeg>& legs = plan.FlightPlanMod;
    if (reconnect || IsDisco(legs[leg - 1]) || IsDisco(legs[leg + 1])) {
        RemoveModLegs(leg, 1);
        MergeNeighbourDiscos();
    } else {
        legs[leg] = {};
        legs[leg].ident = "DISCO";
        legs[leg].mod_flag = 1;
    }
    RebuildRouteRows();
}

int RemoveToRow(int row) {
    const RowLegs legs = row > 0 ? FindRowLegs(row) : RowLegs{};
    if (legs.last == 0 || IsDisco(plan.FlightPlanMod[legs.last])) return 0;
    const RowLegs block = FindBlock(legs.last);
    RemoveModLegs(block.first, block.last - block.first + 1);
    // Between the two ends alone there is no route to break.
    const bool nothing_left = plan.mod_cnt <= 1;
    if (!nothing_left) OpenDisco(block.first);
    MergeNeighbourDiscos();
    OpenModificationOfActiveRoute();
    RebuildRouteRows();
    return 1;
}

int RemoveViaRow(int row) {
    const RowLegs legs = row > 0 ? FindRowLegs(row) : RowLegs{};
    if (legs.last == 0 || IsDirect(plan.FlightPlanMod[legs.last])) return 0;
    FlightPlanLeg& end = plan.FlightPlanMod[legs.last];
    if (IsThen(end)) {
        RemoveModLegs(legs.last, 1);
    } else {
        end.via = "DIRECT";
        end.via_type.clear();
        end.mod_flag = 1;
        RemoveModLegs(legs.first, legs.last - legs.first);
    }
    MergeNeighbourDiscos();
    OpenModificationOfActiveRoute();
    RebuildRouteRows();
    return 1;
}

void NormalizeLegs() {
    GrowingList<FlightPlanLeg>& legs = plan.FlightPlanMod;
    for (int i = plan.mod_cnt; i >= 1; --i)
        if (IsThen(legs[i])) RemoveModLegs(i, 1);
    MergeNeighbourDiscos();
    for (int i = 1; i <= plan.mod_cnt; ++i) {
        if (legs[i].ident != "VECTORS") continue;
        const int before = PlaceBefore(legs, i);
        if (before < 0) continue;
        legs[i].lat = legs[before].lat;
        legs[i].lon = legs[before].lon;
    }
    RebuildRouteRows();
}
