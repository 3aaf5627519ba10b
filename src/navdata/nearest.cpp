#include "navdata/nearest.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <span>
#include <string>
#include <tuple>
#include <utility>

#include "base/angles.h"
#include "navdata/from_aircraft.h"
#include "navdata/geodesy.h"
#include "navdata/vor_autotune.h"
#include "state/airports.h"
#include "state/nav.h"
#include "state/nav_tables.h"
#include "state/nd.h"
#include "state/side.h"
#include "state/sim.h"

namespace {

constexpr double kFarRebuildNm = 200;
constexpr double kNearRebuildNm = 50;

template <class Row>
bool HasMoved(const NearList<Row>& list, double lat, double lon, double limit_nm) {
    return list.built == 0 || GreatCircle(list.lat, list.lon, lat, lon).dist > limit_nm;
}

// Half the width, in degrees of longitude, of a circle on the sphere; 180 when it holds a pole.
double HalfWidthInLongitude(double lat, double radius_deg) {
    if (std::fabs(lat) + radius_deg >= 89.9) return 180;
    return std::asin(std::sin(radius_deg * kRadPerDeg) / std::cos(lat * kRadPerDeg)) * kDegPerRad;
}

// Takes the rows of `source` within a radius that `wanted` accepts. The circle's box sifts most rows before
// any trigonometry.
template <class Row, class Wanted>
void Rebuild(NearList<Row>& list, const GrowingList<Row>& source, int source_cnt, double lat, double lon,
             double radius_nm, Wanted wanted) {
    constexpr double kMargin = 0.01;
    const double lat_band = radius_nm / 60 + kMargin;
    const double lon_band = HalfWidthInLongitude(lat, lat_band) + kMargin;
    list.cnt = 0;
    for (int i = 1; i <= source_cnt; ++i) {
        const Row& row = source[i];
        if (std::fabs(row.lat - lat) > lat_band) continue;
        const double lon_diff = std::fabs(row.lon - lon);
        if (lon_diff > lon_band && lon_diff < 360 - lon_band) continue;
        if (!wanted(row) || GreatCircle(lat, lon, row.lat, row.lon).dist > radius_nm) continue;
        list.rows[++list.cnt] = row;
    }
    list.lat = lat;
    list.lon = lon;
    list.built = 1;
}

template <class Row>
std::span<Row> RowsOf(NearList<Row>& list) {
    return list.cnt > 0 ? std::span(&list.rows[1], static_cast<std::size_t>(list.cnt)) : std::span<Row>();
}

// A map that has no room for all shows the first ones: airports with long runways.
void Arrange(NearList<AirportRow>& list) {
    std::ranges::stable_sort(RowsOf(list), std::greater<>(), &AirportRow::longest_runway);
}

// A fix stands in the table once for each airway, but once on the map.
void Arrange(NearList<AirwayFixRow>& list) {
    const auto key = [](const AirwayFixRow& row) { return std::tie(row.lat, row.lon, row.ident); };
    const std::span<AirwayFixRow> rows = RowsOf(list);
    std::ranges::sort(rows, {}, key);
    list.cnt -= static_cast<int>(std::ranges::unique(rows, {}, key).size());
}

void Arrange(NearList<NavaidRow>&) {}

constexpr auto kEveryRow = [](const auto&) { return true; };

template <class Row>
bool BringTo(NearListPair<Row>& pair, const GrowingList<Row>& table, int count, double lat, double lon,
             double far_nm, double near_nm) {
    const bool far_moved = HasMoved(pair.far, lat, lon, kFarRebuildNm);
    if (far_moved) Rebuild(pair.far, table, count, lat, lon, far_nm, kEveryRow);
    const bool near_moved = HasMoved(pair.near, lat, lon, kNearRebuildNm);
    if (near_moved) {
        Rebuild(pair.near, pair.far.rows, pair.far.cnt, lat, lon, near_nm, kEveryRow);
        Arrange(pair.near);
    }
    return far_moved || near_moved;
}

void BringVors() {
    constexpr double kRadiusNm = 320;
    if (!HasMoved(nearest.vors, sim.plane_lat, sim.plane_lon, kNearRebuildNm)) return;
    Rebuild(nearest.vors, nav_tables.NavaidTable, nav_tables.nav_cnt, sim.plane_lat, sim.plane_lon, kRadiusNm,
            [](const NavaidRow& row) { return row.type == "V"; });
}

bool IsDrawnFarAway(const NdSide& map) {
    return map.nd_mode == kNdPlan &&
           HasMoved(nearest.around.airports.near, map.map_lat, map.map_lon, kNearRebuildNm);
}

void Forget(NearPlaces& places) {
    const auto forget = [](auto& pair) { pair.far.built = pair.near.built = 0; };
    forget(places.airports);
    forget(places.fixes);
    forget(places.navaids);
}

// True when the airports have been found anew.
bool BringPlaces(NearPlaces& places, double lat, double lon) {
    NearFixes(places, lat, lon);
    NearNavaids(places, lat, lon);
    return NearAirports(places, lat, lon);
}

// A row of the alternates with its distance from the aircraft.
struct Alternate {
    AltnRecord record;
    double dist = 99999;  // nm; that of an empty row
};
bool MayBeAlternate(const AirportRow& airport) {
    constexpr double kMinRunwayFt = 4800;
    return airport.longest_runway >= kMinRunwayFt && airport.ident != airports.origin_airport.ident &&
           airport.ident != airports.dest_airport.ident && airport.ident != nearest.AltnInhibit1 &&
           airport.ident != nearest.AltnInhibit2;
}

// Puts an airport before the first free row that is farther; what stood there, and behind, moves one free row
// down.
template <std::size_t kSize>
void OfferAlternate(std::array<Alternate, kSize>& rows, const AirportRow& airport) {
    const double dist = FromAircraft(airport.lat, airport.lon).dist;
    if (dist >= rows.back().dist && rows.back().record.fixed == 0) return;
    for (const Alternate& row : rows)
        if (row.record.ident == airport.ident && row.record.lat == airport.lat) return;
    Alternate moved{{std::string(airport.ident), airport.lat, airport.lon, 0, {}}, dist};
    for (std::size_t i = 1; i < rows.size(); ++i)
        if (rows[i].record.fixed == 0 && rows[i].dist > moved.dist) std::swap(rows[i], moved);
}

template <std::size_t kSize>
void FillAlternates(std::array<AltnRecord, kSize>& list) {
    std::array<Alternate, kSize> rows;
    for (std::size_t i = 1; i < kSize; ++i)
        if (list[i].fixed != 0) rows[i].record = list[i];
    for (int i = 1; i <= nearest.around.airports.far.cnt; ++i) {
        const AirportRow& airport = std::as_const(nearest.around.airports.far.rows)[i];
        if (MayBeAlternate(airport)) OfferAlternate(rows, airport);
    }
    for (std::size_t i = 1; i < kSize; ++i) list[i] = std::move(rows[i].record);
}

}  // namespace

const NearPlaces& PlacesOfMap(int side) {
    if (!IsDrawnFarAway(NdOf(side))) return nearest.around;
    return nearest.around_plan[side == kFirstOfficer ? 1 : 0];
}

bool NearAirports(NearPlaces& places, double lat, double lon) {
    constexpr double kCloseNm = 200;
    const auto& near = places.airports.near;
    if (!BringTo(places.airports, nav_tables.AirportTable, nav_tables.apt_cnt, lat, lon, 1700, 1280))
        return false;
    Rebuild(places.close_airports, near.rows, near.cnt, lat, lon, kCloseNm, kEveryRow);
    return true;
}

bool NearFixes(NearPlaces& places, double lat, double lon) {
    return BringTo(places.fixes, nav_tables.AirwayFixTable, nav_tables.awy_fix_cnt, lat, lon, 600, 200);
}

bool NearNavaids(NearPlaces& places, double lat, double lon) {
    return BringTo(places.navaids, nav_tables.NavaidTable, nav_tables.nav_cnt, lat, lon, 600, 320);
}

void BuildAltnList() {
    FillAlternates(nearest.AltnRows);
}

void RequestAltnList() {
    FillAlternates(nearest.AltnListRows);
}

void PurgeAltnList() {
    nearest.AltnListRows = {};
}

void RefreshNearest() {
    if (nav.nearest_refresh_due != 0) {
        nav.nearest_refresh_due = 0;
        Forget(nearest.around);
        for (NearPlaces& places : nearest.around_plan) Forget(places);
        nearest.vors.built = 0;
    }
    if (BringPlaces(nearest.around, sim.plane_lat, sim.plane_lon)) BuildAltnList();
    for (std::size_t side = 0; side < nd.size(); ++side)
        if (IsDrawnFarAway(nd[side]))
            BringPlaces(nearest.around_plan[side], nd[side].map_lat, nd[side].map_lon);
    BringVors();
    AutoTuneRadios();
}

void RefreshNearestAtOnce() {
    nav.nearest_refresh_due = 1;
}
