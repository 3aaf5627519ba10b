#include "efb/performance/chosen_runway.h"

#include <string>

#include "navdata/airport_file.h"
#include "state/tablet_performance.h"

namespace {

const RunwayData* FindRunway(const AirportData& airport, std::string_view ident) {
    for (int i = 1; i <= airport.runway_cnt; ++i)
        if (airport.runways[i].ident == ident) return &airport.runways[i];
    return nullptr;
}

// Where a page keeps what is told of its runway.
struct RunwayFields {
    std::string& runway;
    double &length, &elevation, &heading;
};

void TakeRunway(const AirportData& airport, std::string_view ident, const RunwayFields& fields) {
    const RunwayData* runway = FindRunway(airport, ident);
    fields.runway = runway == nullptr ? std::string() : runway->ident;
    fields.length = runway == nullptr ? 0 : runway->length_ft;
    fields.heading = runway == nullptr ? 0 : runway->course;
    fields.elevation = airport.elevation_ft;
}

}  // namespace

bool ChooseTakeoffAirport(std::string_view ident) {
    if (LoadAirport(ident, airports.tablet_to_airport) != 1) return false;
    tablet_performance.takeoff.EfbTakeoffAirport = airports.tablet_to_airport.ident;
    ChooseTakeoffRunway("");
    return true;
}

bool ChooseLandingAirport(std::string_view ident) {
    if (LoadAirport(ident, airports.tablet_ldg_airport) != 1) return false;
    tablet_performance.landing.EfbLandingAirport = airports.tablet_ldg_airport.ident;
    ChooseLandingRunway("");
    return true;
}

void ChooseTakeoffRunway(std::string_view ident) {
    TabletTakeoff& page = tablet_performance.takeoff;
    TakeRunway(airports.tablet_to_airport, ident,
               {page.EfbTakeoffRunway, page.EfbRunwayLength, page.EfbRunwayElevation, page.EfbRunwayHeading});
    page.EfbTakeoffDone = 0;
}

void ChooseLandingRunway(std::string_view ident) {
    TabletLanding& page = tablet_performance.landing;
    TakeRunway(
        airports.tablet_ldg_airport, ident,
        {page.EfbLandingRunway, page.EfbLandingLength, page.EfbLandingElevation, page.EfbLandingHeading});
    page.EfbLandingDone = 0;
}
