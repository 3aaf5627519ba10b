#include "navdata/nearest.h"

#include <cmath>

#include "navdata/geodesy.h"
#include "navdata/vor_autotune.h"
#include "state/airports.h"
#include "state/nav.h"
#include "state/nav_tables.h"
#include "state/sim.h"

namespace {

constexpr double kFarRebuildNm = 200;
constexpr double kNearRebuildNm = 50;

template <class Row>
bool HasMoved(const NearList<Row>& list, double lat, double lon, double limit_nm) {
    return list.built == 0 || GreatCircle(list.lat, list.lon, lat, lon).dist > limit_nm;
}

// Takes the rows of `source` within a radius that `wanted` accepts. The latitude sifts nine rows out of ten
// before any trigonometry.
template <class Row, class Wanted>
void Rebuild(NearList<Row>& list, const GrowingList<Row>& source, int source_cnt, double lat, double lon,
             double radius_nm, Wanted wanted) {
    const double lat_band = radius_nm / 60 + 0.01;
    list.cnt = 0;
    for (int i = 1; i <= source_cnt; ++i) {
        const Row& row = source[i];
        if (std::fabs(row.lat - lat) > lat_band || !wanted(row)) continue;
        if (GreatCircle(lat, lon, row.lat, row.lon).dist <= radius_nm) list.rows[++list.cnt] = row;
    }
    list.lat = lat;
    list.lon = lon;
    list.built = 1;
}

template <class Row>
bool BringTo(NearListPair<Row>& pair, const GrowingList<Row>& table, int count, double lat, double lon,
             double far_nm, double near_nm) {
    const auto every_row = [](const Row&) { return true; };
    const bool far_moved = HasMoved(pair.far, lat, lon, kFarRebuildNm);
    if (far_moved) Rebuild(pair.far, table, count, lat, lon, far_nm, every_row);
    const bool near_moved = HasMoved(pair.near, lat, lon, kNearRebuildNm);
    if (near_moved) Rebuild(pair.near, pair.far.rows, pair.far.cnt, lat, lon, near_nm, every_row);
    return far_moved || near_moved;
}

void BringVors() {
    constexpr double kRadiusNm = 320;
    if (!HasMoved(nearest.vors, sim.plane_lat, sim.plane_lon, kNearRebuildNm)) return;
    Rebuild(nearest.vors, nav_tables.NavaidTable, nav_tables.nav_cnt, sim.plane_lat, sim.plane_lon, kRadiusNm,
            [](const NavaidRow& row) { return row.type == "V"; });
}

template <class Row>
void Forget(NearListPair<Row>& pair) {
    pair.far.built = pair.near.built = 0;
}

double AlternateDistance(const AltnRecord& row) {
    constexpr double kEmptyRowNm = 99999;
    return row.lat == 0 ? kEmptyRowNm : GreatCircle(sim.plane_lat, sim.plane_lon, row.lat, row.lon).dist;
}

// Puts an airport into the row and moves what stood there, and behind, one free row down.
void InsertAlternate(std::size_t at, AltnRecord record) {
    for (std::size_t i = at; i < nearest.AltnRows.size(); ++i)
        if (nearest.AltnRows[i].fixed == 0) std::swap(nearest.AltnRows[i], record);
}

void OfferAlternate(const AirportRow& airport) {
    constexpr double kMinRunwayFt = 4800;
    if (airport.longest_runway < kMinRunwayFt) return;
    if (airport.ident == airports.origin_airport.ident || airport.ident == airports.dest_airport.ident)
        return;
    for (std::size_t i = 1; i < nearest.AltnRows.size(); ++i)
        if (nearest.AltnRows[i].ident == airport.ident && nearest.AltnRows[i].lat == airport.lat) return;
    const double dist = GreatCircle(sim.plane_lat, sim.plane_lon, airport.lat, airport.lon).dist;
    for (std::size_t i = 1; i < nearest.AltnRows.size(); ++i) {
        const AltnRecord& row = nearest.AltnRows[i];
        if (row.fixed != 0 || AlternateDistance(row) <= dist) continue;
        return InsertAlternate(i, {std::string(airport.ident), airport.lat, airport.lon, 0, {}});
    }
}

}  // namespace

bool NearAirports(double lat, double lon) {
    return BringTo(nearest.airports, nav_tables.AirportTable, nav_tables.apt_cnt, lat, lon, 1700, 1280);
}

bool NearFixes(double lat, double lon) {
    return BringTo(nearest.fixes, nav_tables.AirwayFixTable, nav_tables.awy_fix_cnt, lat, lon, 600, 200);
}

bool NearNavaids(double lat, double lon) {
    return BringTo(nearest.navaids, nav_tables.NavaidTable, nav_tables.nav_cnt, lat, lon, 600, 320);
}

void BuildAltnList() {
    for (AltnRecord& row : nearest.AltnRows)
        if (row.fixed == 0) row = {};
    for (int i = 1; i <= nearest.airports.far.cnt; ++i) OfferAlternate(nearest.airports.far.rows[i]);
}

void RefreshNearest() {
    if (nav.nearest_refresh_due != 0) {
        nav.nearest_refresh_due = 0;
        Forget(nearest.airports);
        Forget(nearest.fixes);
        Forget(nearest.navaids);
        nearest.vors.built = 0;
    }
    const bool elsewhere = nearest.map_centre_set != 0;
    const double lat = elsewhere ? nearest.map_centre_lat : sim.plane_lat;
    const double lon = elsewhere ? nearest.map_centre_lon : sim.plane_lon;
    if (NearAirports(lat, lon)) BuildAltnList();
    NearFixes(lat, lon);
    NearNavaids(lat, lon);
    BringVors();
    AutoTuneRadios();
}
