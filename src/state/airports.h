#pragma once

#include <array>
#include <span>
#include <string>

#include "state/growing_list.h"
#include "state/procedures.h"
#include "state/variable.h"

struct RunwayData {
    std::string ident;
    double lat = 0, lon = 0;  // threshold
    int length_ft = 0;
    std::string ils_ident;  // empty = none
    std::string ils_freq;   // "109.90", empty = none
    double course = 0;      // degrees
    double sub7 = 0;
    double recip_course = 0;
    int right_pattern = 0;
    std::string recip_ident;
    double recip_lat = 0, recip_lon = 0;
};

/// One airport in full, read from apts.txt on demand by LoadAirport.
struct AirportData {
    double lat = 0, lon = 0;
    std::string lat_text, lon_text;
    int runway_cnt = 0;
    std::string ident;
    std::string name;
    int elevation_ft = 0;
    int procedure_cnt = 0;            // SIDs, STARs and approaches together
    GrowingList<RunwayData> runways;  // from 1
    // procedures, each list from 1; filled when the airport becomes an end of the route
    GrowingList<ProcedureRecord> sids, stars, approaches;
    int sid_cnt = 0, star_cnt = 0, approach_cnt = 0;
    GrowingList<std::string> approach_kinds;  // in order of first appearance
    int approach_kind_cnt = 0;
};

/// The slots that stand side by side: five of the flight, two of the tablet's performance pages.
struct AirportSlots {
    AirportData origin_airport, dest_airport, altn_airport;
    AirportData chart_origin_airport, chart_dest_airport;
    AirportData tablet_to_airport, tablet_ldg_airport;
    std::string elevation_text;  // of the last load, for the performance pages
    int loading = 0;             // a load is running; a further one is refused
    // runways of the air traffic at the nearer end of the route: two for takeoff, two for landing; empty =
    // none
    std::array<std::string, 4> ai_runways;
};

extern AirportSlots airports;
extern const std::span<const Variable> kAirportVariables;
