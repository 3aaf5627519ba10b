#include "navdata/runways_in_use.h"

#include "frame/active_runways.h"
#include "navdata/from_aircraft.h"
#include "state/airports.h"
#include "state/cfg.h"
#include "state/leg_words.h"

void RefreshRunwaysInUse() {
    if (cfg.DispAiActiveRwys != 1 || !IsRouteActive()) return;
    const AirportData& origin = airports.origin_airport;
    const AirportData& dest = airports.dest_airport;
    const auto distance = [](const AirportData& airport) {
        return FromAircraft(airport.lat, airport.lon).dist;
    };
    const AirportData& nearer = distance(dest) < distance(origin) ? dest : origin;
    if (!nearer.ident.empty()) airports.ai_runways = QueryActiveRunways(nearer.ident);
}
