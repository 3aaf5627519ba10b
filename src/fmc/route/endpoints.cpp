#include "fmc/route/endpoints.h"

#include <string>

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

void ClearLegs(GrowingList<FlightPlanLeg>& legs, int count) {
    for (int i = 0; i <= count; ++i) legs[i] = {};
}

}  // namespace

int EnterOrigin(std::string_view ident) {
    if (LoadOriginAirport(ident) == 0) return 0;
    RemoveAllHolds();
    plan.executed_hold_cnt = 0;
    ClearLegs(plan.FlightPlan, plan.fp_cnt);
    ClearLegs(plan.FlightPlanMod, plan.mod_cnt);
    plan.FlightPlan[0] = plan.FlightPlanMod[0] = AirportLeg(airports.origin_airport);
    plan.fp_cnt = plan.mod_cnt = 1;
    plan.stpos = plan.mod_stpos = kNoPlan;
    plan.pending_stpos = 0;
    plan.mod_bod_pos = vnav.bod_pos = 0;
    plan.ActiveLeg = plan.ActiveLegMod = {};
    plan.direct_to_pending = 0;
    plan.awy_list_cnt = plan.awy_start_pos = 0;
    plan.along_track_nm = 0;
    plan.ends = {};
    plan.ends.origin = airports.origin_airport.ident;
    plan.ends_mod = plan.ends;
    plan.procedures = plan.procedures_kept = {};
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
    RemoveHold(plan.mod_cnt);
    FlightPlanLeg& last = plan.FlightPlanMod[plan.mod_cnt];
    last = AirportLeg(airports.dest_airport);
    last.mod_flag = IsRouteModified();
    plan.ends_mod.dest = airports.dest_airport.ident;
    if (!IsRouteActive()) {
        plan.ends.dest = plan.ends_mod.dest;
        plan.procedures_kept =
            plan.procedures = {.dep_sid = plan.procedures.dep_sid, .dep_trans = plan.procedures.dep_trans};
        plan.new_route = 1;
        if (plan.fp_cnt < 1) plan.fp_cnt = 1;
        if (plan.stpos == kNoPlan) plan.stpos = 1;
        vnav.bod_pos = plan.fp_cnt;
    } else {
        plan.procedures = {.dep_sid = plan.procedures.dep_sid, .dep_trans = plan.procedures.dep_trans};
    }
    RebuildRouteRows();
    return 1;
}
