#pragma once

#include <array>
#include <span>
#include <string>

#include "state/growing_list.h"
#include "state/nav_tables.h"
#include "state/variable.h"

/// Rows of a big table around a point, from 1.
template <class Row>
struct NearList {
    GrowingList<Row> rows;
    int cnt = 0;
    double lat = 0, lon = 0;  // the point of the last rebuild
    int built = 0;            // 0 until there has been one
};

/// The far list is taken from the full table and in its order, the near list from the far one: airports with
/// the longest runways first, a fix only once.
template <class Row>
struct NearListPair {
    NearList<Row> far, near;
};

struct AltnRecord {
    std::string ident;
    double lat = 0, lon = 0;
    int fixed = 0;  // typed by the crew, keeps its place
    std::string text;
};

struct TunedVor {
    std::string ident;
    std::string freq;  // as in the file
    double lat = 0, lon = 0;
    double dist = 0;     // nm from the aircraft
    double bearing = 0;  // degrees true from the aircraft
};

/// What a map can show around its centre.
struct NearPlaces {
    NearListPair<AirportRow> airports;    // 1700 and 1280 nm
    NearListPair<AirwayFixRow> fixes;     // 600 and 200 nm, fixes of airways
    NearListPair<NavaidRow> navaids;      // 600 and 320 nm
    NearList<AirportRow> close_airports;  // those of the near list within 200 nm, for maps of small range
};

/// Filled by navdata/nearest and navdata/vor_autotune; a picture is composed under the state lock, so it
/// never sees a list half made.
struct NearestState {
    NearPlaces around;                      // the aircraft
    std::array<NearPlaces, 2> around_plan;  // the centre of the captain's PLAN, and of the first officer's
    NearList<NavaidRow> vors;               // 320 nm of the aircraft

    std::array<AltnRecord, 5> AltnRows;       // from 1, nearest first
    std::array<AltnRecord, 21> AltnListRows;  // from 1, the crew's own request
    std::string AltnInhibit1, AltnInhibit2;   // airports that are no alternates; empty = none

    std::array<TunedVor, 10> NearestVors;  // from 1, nearest first
    int nearest_vor_cnt = 0;
    TunedVor vor_left, vor_right;           // what the radios are tuned to when in automatic
    int VorLeftMode = 1, VorRightMode = 1;  // 1 auto, 2 manual, 3 procedure (left only)
    int VorLeftFreq = 0, VorRightFreq = 0;  // hundredths of a MHz, by hand; 0 = auto
};

extern NearestState nearest;
extern const std::span<const Variable> kNearestVariables;
