#include "fmc/route/endpoints.h"

#include <string>
#include <utility>

#include "fmc/legs/holds.h"
#include "fmc/legs/leg_list.h"
#include "fmc/legs/route_rows.h"
#include "fmc/legs/route_state.h"
#include "fmc/procedures/end_airports.h"
#include "fmc/procedures/insert_procedures.h"
#include "navdata/airport_file.h"
#include "navdata/procedure_files.h"
#include "state/airports.h"
#include "state/leg_words.h"
#include "state/lnav.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/procedure_lists.h"
#include "state/vnav.h"

namespace {

FlightPlanLeg AirportLeg(const AirportData& airport) {
    FlightPlanLeg leg;
    leg.ident = airport.ident;
    leg.lat = airport.lat;
    leg.lon = airport.lon;
    leg.type = kAirportLegType;
    leg.alt = airport.elevation_ft;
    return leg;
}

}  // namespace

int EnterOrigin(std::string_view ident) {
    if (LoadOriginAirport(ident) == 0) return 0;
    RemoveAllHolds();
    RouteVersion fresh;
    fresh.selected = plan.mod.selected;
    fresh.legs[0] = AirportLeg(airports.origin_airport);
    fresh.leg_cnt = 1;
    fresh.ends.origin = airports.origin_airport.ident;
    plan.active = fresh;
    fresh.entries = plan.mod.entries;
    plan.mod = std::move(fresh);
    plan.pending_stpos = 0;
    plan.direct_to_pending = 0;
    plan.awy_list_cnt = plan.awy_start_pos = 0;
    plan.along_track_nm = 0;
    procedure_lists = {};
    plan.fms_fpln_active = kRouteNone;
    plan.new_route = 1;
    perf.cruise_alt = 0;
    vnav.toc = vnav.tod = 0;
    lnav.lnav_init_mode = 0;
    RebuildRouteRows();
    return 1;
}

int EnterDestination(std::string_view ident) {
    if (LoadDestinationAirport(ident) == 0) return 0;
    EnsureEnds();
    if (!IsRouteModified()) RemoveArrivalAndApproach();
    if (IsRouteSettled()) AdvanceRouteState();
    RemoveHold(plan.mod.leg_cnt);
    FlightPlanLeg& last = plan.mod.legs[plan.mod.leg_cnt];
    last = AirportLeg(airports.dest_airport);
    last.mod_flag = IsRouteModified();
    plan.mod.ends.dest = airports.dest_airport.ident;
    ClearArrivalSelections();
    if (!IsRouteActive()) {
        plan.active.ends.dest = plan.mod.ends.dest;
        plan.new_route = 1;
        if (plan.active.leg_cnt < 1) plan.active.leg_cnt = 1;
        if (plan.active.stpos == kNoPlan) plan.active.stpos = 1;
        plan.active.bod_pos = plan.active.leg_cnt;
    }
    RebuildRouteRows();
    return 1;
}
