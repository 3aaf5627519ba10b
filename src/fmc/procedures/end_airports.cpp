#include "fmc/procedures/end_airports.h"

#include <string>

#include "fmc/legs/route_state.h"
#include "navdata/airport_file.h"
#include "navdata/procedure_files.h"
#include "state/airports.h"
#include "state/leg_words.h"
#include "state/plan.h"

namespace {

constexpr int kLoaded = 1;

int FindRunway(const AirportData& airport, std::string_view ident) {
    for (int i = 1; i <= airport.runway_cnt; ++i)
        if (airport.runways[i].ident == ident) return i;
    return 0;
}

void MoveToThreshold(FlightPlanLeg& leg, const RunwayData& runway) {
    leg.lat = runway.lat;
    leg.lon = runway.lon;
}

}  // namespace

int LoadOriginAirport(std::string_view ident) {
    if (LoadAirport(ident, airports.origin_airport) != kLoaded) return 0;
    LoadSids(airports.origin_airport);
    return 1;
}

int LoadDestinationAirport(std::string_view ident) {
    if (LoadAirport(ident, airports.dest_airport) != kLoaded) return 0;
    LoadStars(airports.dest_airport);
    LoadApproaches(airports.dest_airport);
    return 1;
}

int SelectOriginRunway(std::string_view runway) {
    const int place = FindRunway(airports.origin_airport, runway);
    if (place == 0) return 0;
    const RunwayData& chosen = airports.origin_airport.runways[place];
    plan.mod.ends.dep_runway = runway;
    plan.mod.ends.fms_dep_rwy_pos = place;
    if (IsRouteActive()) {
        OpenModification();
        return 1;
    }
    plan.active.ends.dep_runway = runway;
    plan.active.ends.fms_dep_rwy_pos = place;
    MoveToThreshold(plan.active.legs[0], chosen);
    MoveToThreshold(plan.mod.legs[0], chosen);
    return 1;
}

void ClearArrivalSelections() {
    ProcedureSelections& chosen = plan.mod.procedures;
    chosen = {.dep_sid = chosen.dep_sid, .dep_trans = chosen.dep_trans};
}

int SelectDestinationRunway(std::string_view runway) {
    const int place = FindRunway(airports.dest_airport, runway);
    if (place == 0) return 0;
    plan.mod.procedures.arr_appr_rwy = runway;
    plan.mod.procedures.fms_dest_rwy_pos = place;
    return 1;
}
