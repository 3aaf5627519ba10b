#include "fmc/legs/edit_legs.h"

#include <algorithm>

#include "fmc/legs/active_leg.h"
#include "fmc/legs/find_leg.h"
#include "fmc/legs/holds.h"
#include "fmc/legs/leg_list.h"
#include "fmc/legs/route_rows.h"
#include "fmc/legs/route_state.h"
#include "navdata/geodesy.h"
#include "navdata/leg_codes.h"
#include "navdata/magnetic_model.h"
#include "state/airports.h"
#include "state/leg_words.h"
#include "state/perf.h"
#include "state/sim.h"

namespace {

void OpenModificationOfActiveRoute() {
    if (IsRouteSettled()) AdvanceRouteState();
}

bool IsOfBlock(const FlightPlanLeg& leg, const FlightPlanLeg& block) {
    return IsOfSid(block) ? IsOfSid(leg) : leg.via == block.via;
}

// All legs that stand or fall with a row.
RowLegs FindBlock(int leg) {
    const GrowingList<FlightPlanLeg>& legs = plan.mod.legs;
    RowLegs block{leg, leg};
    if (IsDirect(legs[leg]) && !IsOfSid(legs[leg])) return block;
    while (block.first > 1 && IsOfBlock(legs[block.first - 1], legs[leg])) --block.first;
    while (block.last + 1 < plan.mod.leg_cnt && IsOfBlock(legs[block.last + 1], legs[leg])) ++block.last;
    return block;
}

void StartDirectTo(int to) {
    RemoveModLegs(1, to - 1);
    GoDirectTo(1);
}

}  // namespace

void GoDirectTo(int leg) {
    SetPendingActiveLeg(leg);
    plan.direct_to_pending = 1;
    const FlightPlanLeg& target = plan.mod.legs[leg];
    plan.mod.active_leg = {.from = kDirectVia,
                           .from_lat = sim.plane_lat,
                           .from_lon = sim.plane_lon,
                           .to = target.ident,
                           .to_lat = target.lat,
                           .to_lon = target.lon,
                           .course = 0,
                           .direct_flag = 1};
}

void ConnectLegs(int from, int to, int) {
    if (from < 0 || to < from || to > plan.mod.leg_cnt) return;
    const bool direct_to = IsRouteActive() && from == PendingActiveLeg() && IsPlace(plan.mod.legs[to]);
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
    if (leg < 1 || leg >= plan.mod.leg_cnt) return;
    RemoveHold(leg);
    GrowingList<FlightPlanLeg>& legs = plan.mod.legs;
    if (reconnect || IsDisco(legs[leg - 1]) || IsDisco(legs[leg + 1])) {
        RemoveModLegs(leg, 1);
        MergeNeighbourDiscos();
    } else {
        legs[leg] = {};
        legs[leg].ident = kDiscoIdent;
        legs[leg].mod_flag = 1;
    }
    RebuildRouteRows();
}

int RemoveToRow(int row) {
    const RowLegs legs = row > 0 ? FindRowLegs(row) : RowLegs{};
    if (legs.last == 0 || IsDisco(plan.mod.legs[legs.last])) return 0;
    const RowLegs block = FindBlock(legs.last);
    RemoveModLegs(block.first, block.last - block.first + 1);
    // Between the two ends alone there is no route to break.
    const bool nothing_left = plan.mod.leg_cnt <= 1;
    if (!nothing_left) OpenDisco(block.first);
    MergeNeighbourDiscos();
    OpenModificationOfActiveRoute();
    RebuildRouteRows();
    return 1;
}

int RemoveViaRow(int row) {
    const RowLegs legs = row > 0 ? FindRowLegs(row) : RowLegs{};
    if (legs.last == 0 || IsDirect(plan.mod.legs[legs.last])) return 0;
    FlightPlanLeg& end = plan.mod.legs[legs.last];
    if (IsThen(end)) {
        RemoveModLegs(legs.last, 1);
    } else {
        end.via = kDirectVia;
        end.via_type.clear();
        end.mod_flag = 1;
        RemoveModLegs(legs.first, legs.last - legs.first);
    }
    MergeNeighbourDiscos();
    OpenModificationOfActiveRoute();
    RebuildRouteRows();
    return 1;
}

namespace {

// A coded leg that turns or tracks is built again from where the leg before it now ends.
void RecomputeCodedLeg(int index) {
    GrowingList<FlightPlanLeg>& legs = plan.mod.legs;
    FlightPlanLeg& leg = legs[index];
    LegCode code;
    const bool movable =
        leg.vector.starts_with("RT") || leg.vector.starts_with("LT") || leg.vector.starts_with("T");
    const int before = PlaceBefore(legs, index);
    if (!movable || before < 1 || !ParseLegCode("/" + leg.vector, code)) return;
    const bool departing = IsOfSid(leg);
    const AirportData& airport = departing ? airports.origin_airport : airports.dest_airport;
    const int variation = MagVarAt(airport.lat, airport.lon);
    const FlightPlanLeg& from = legs[before];
    const int earlier = PlaceBefore(legs, before);
    double entry_course = from.from_hdg;
    if (from.vector.empty() && earlier >= 0)
        entry_course =
            GreatCircle(legs[earlier].lat, legs[earlier].lon, from.lat, from.lon).bearing - variation;
    LegCodeInput input{.start = {from.lat, from.lon},
                       .entry_course = entry_course,
                       .reference = {leg.anchor_lat, leg.anchor_lon},
                       .altitude = leg.until_alt,
                       .elevation = static_cast<double>(airport.elevation_ft),
                       .variation = variation,
                       .climb_speed = perf.speeds.climb_ias > 0 ? perf.speeds.climb_ias : 250,
                       .role = leg.appr_wpt_type};
    LatLon end;
    const int failed = leg.via_type == kApproachViaType ? ComputeApproachLeg(code, input, end)
                                                        : ComputeDepartureLeg(code, input, end);
    if (failed != 0) return;
    leg.lat = end.lat;
    leg.lon = end.lon;
}

}  // namespace

void NormalizeLegs() {
    GrowingList<FlightPlanLeg>& legs = plan.mod.legs;
    for (int i = plan.mod.leg_cnt; i >= 1; --i)
        if (IsThen(legs[i])) RemoveModLegs(i, 1);
    MergeNeighbourDiscos();
    for (int i = 1; i <= plan.mod.leg_cnt; ++i) {
        RecomputeCodedLeg(i);
        if (!IsVectors(legs[i])) continue;
        const int before = PlaceBefore(legs, i);
        if (before < 0) continue;
        legs[i].lat = legs[before].lat;
        legs[i].lon = legs[before].lon;
    }
    RebuildRouteRows();
}
