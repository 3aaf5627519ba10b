#include "display/nd/place_layers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string>
#include <utility>

#include "base/angles.h"
#include "display/nd/map_symbols.h"
#include "navdata/nearest.h"
#include "paint/painter.h"
#include "state/airports.h"
#include "state/nearest.h"
#include "state/plan.h"
#include "state/sim.h"

namespace {

constexpr double kSymbolRoom = 8, kLabelRoom = 60;
constexpr std::size_t kLabelLength = 5;

// Whether a symbol, or the label to the right of it, can be seen.
bool IsLabelledPointSeen(const MapView& view, MapPoint p) {
    const MapBox& seen = view.seen;
    return p.x >= seen.left - kLabelRoom && p.x <= seen.right + kSymbolRoom &&
           p.y >= seen.top - 3 * kSymbolRoom && p.y <= seen.bottom + 2 * kSymbolRoom;
}

// Calls draw(row, point) for each row of a list that can be seen, until it gives false.
template <class Row, class Draw>
void ForEachSeen(const NearList<Row>& list, const MapView& view, Draw draw) {
    for (int i = 1; i <= list.cnt; ++i) {
        const Row& row = list.rows[i];
        if (!IsInReach(view, row.lat, row.lon)) continue;
        const MapPoint at = PointOnMap(view, row.lat, row.lon);
        if (IsLabelledPointSeen(view, at) && !draw(row, at)) return;
    }
}

void LabelBeside(Graphics& graphics, MapPoint at, Rgb colour, std::string_view ident) {
    MapLabel(graphics, at.x + 2, at.y + 7, colour, ident.substr(0, kLabelLength));
}

void DrawStation(Graphics& graphics, MapPoint at, bool is_vor, std::string_view ident) {
    if (is_vor) {
        const Pen white = GdipCreatePen1(Opaque(kWhite), 1);
        DrawCircle(graphics, GdipCreatePen1(Opaque(kMapGreen), 1), at, 10);
        GdipDrawLine(graphics, white, at.x - 3, at.y, at.x + 3, at.y);
        GdipDrawLine(graphics, white, at.x, at.y - 3, at.x, at.y + 3);
    } else {
        DrawMapSymbol(graphics, {at.x, at.y - 4}, MapSymbol::kFix, kMapGreen);
    }
    LabelBeside(graphics, at, kMapGreen, ident);
}

void DrawAirport(Graphics& graphics, const MapView& view, MapPoint at, std::string_view ident) {
    constexpr double kLongestSymbolRange = 640;
    if (view.range > kLongestSymbolRange)
        return MapLabel(graphics, at.x, at.y - 15, kCyan, ident.substr(0, kLabelLength));
    DrawCircle(graphics, GdipCreatePen1(Scaled(kCyan), 1), at, 6);
    LabelBeside(graphics, at, kCyan, ident);
}

// A VOR that a receiver hears.
struct HeardStation {
    const std::string& ident;
    double bearing;  // magnetic, to the station
    double signal;
    bool is_localizer;
};
std::array<HeardStation, 2> HeardStations() {
    return {{{sim.nav1_ident, sim.nav1_radial, sim.nav1_signal, sim.nav1_is_loc != 0},
             {sim.nav2_ident, sim.nav2_radial, sim.nav2_signal, sim.nav2_is_loc != 0}}};
}

// The nearest station of a name: a name stands more than once in the world.
const NavaidRow* FindStation(std::string_view ident) {
    const NavaidRow* found = nullptr;
    double least = 1e9;
    const auto& list = nearest.around.navaids.near;
    for (int i = 1; i <= list.cnt; ++i) {
        const NavaidRow& row = std::as_const(list.rows)[i];
        if (row.ident != ident || row.type != "V") continue;
        const double dist = GreatCircle(sim.plane_lat, sim.plane_lon, row.lat, row.lon).dist;
        if (dist >= least) continue;
        least = dist;
        found = &row;
    }
    return found;
}

// The radial's number along its line, never upside down.
void DrawRadialText(Graphics& graphics, MapPoint aircraft, MapPoint station, double radial) {
    char text[8] = {'R', '-', '0', '0', '0'};
    const int degrees = static_cast<int>(std::lround(radial)) % 360;
    text[2] = static_cast<char>('0' + degrees / 100);
    text[3] = static_cast<char>('0' + degrees / 10 % 10);
    text[4] = static_cast<char>('0' + degrees % 10);
    const TransformBlock block(graphics);
    GdipTranslateWorldTransform(graphics, (aircraft.x + station.x) / 2, (aircraft.y + station.y) / 2);
    const double along = std::atan2(station.y - aircraft.y, station.x - aircraft.x) * kDegPerRad;
    GdipRotateWorldTransform(graphics, std::fabs(along) > 90 ? along + 180 : along);
    MapLabel(graphics, -15, 0, kGreen, {text, 5});
}

void DrawHeardStation(Graphics& graphics, const MapView& view, const HeardStation& heard, bool with_line) {
    if (!(heard.signal > 0) || heard.is_localizer || heard.ident.empty()) return;
    const NavaidRow* station = FindStation(heard.ident);
    if (station == nullptr) return;
    const MapPoint at = PointOnMap(view, station->lat, station->lon);
    if (view.seen.Has(at, kLabelRoom)) DrawStation(graphics, at, true, station->ident);
    if (!with_line) return;
    const MapPoint aircraft = PointOnMap(view, sim.plane_lat, sim.plane_lon);
    Pen pen = GdipCreatePen1(Scaled(kGreen), 1);
    GdipSetPenDashStyle(pen, 1);
    DrawMapLine(graphics, pen, view, aircraft, at);
    DrawRadialText(graphics, aircraft, at, FoldBearing(heard.bearing + 180));
}

template <class Row>
NearItem NearestOf(const NearList<Row>& list, double lat, double lon) {
    constexpr double kNearNm = 1, kNearDegrees = 0.02;
    NearItem item;
    double least = kNearNm;
    for (int i = 1; i <= list.cnt; ++i) {
        const Row& row = list.rows[i];
        if (std::fabs(row.lat - lat) > kNearDegrees) continue;
        const double dist = GreatCircle(lat, lon, row.lat, row.lon).dist;
        if (dist > least) continue;
        least = dist;
        item = {row.ident, {row.lat, row.lon}};
    }
    return item;
}

void DrawRouteAirport(Graphics& graphics, const MapView& view, const AirportData& airport) {
    if (airport.ident.empty() || !IsInReach(view, airport.lat, airport.lon)) return;
    DrawAirport(graphics, view, PointOnMap(view, airport.lat, airport.lon), airport.ident);
}

}  // namespace

void DrawStations(Graphics& graphics, const NdFrame& frame) {
    const NdSide& settings = NdOf(frame.side);
    if (settings.nd_sta == 1)
        ForEachSeen(PlacesOfMap(frame.side).navaids.near, frame.view, [&](const NavaidRow& row, MapPoint at) {
            DrawStation(graphics, at, row.type == "V", row.ident);
            return true;
        });
    const auto heard = HeardStations();
    const bool wanted[] = {settings.nd_vor_l == 1, settings.nd_vor_r == 1};
    for (std::size_t i = 0; i < heard.size(); ++i)
        if (settings.nd_pos == 1 || wanted[i])
            DrawHeardStation(graphics, frame.view, heard[i], settings.nd_pos == 1);
}

void DrawAirports(Graphics& graphics, const NdFrame& frame) {
    constexpr int kMostAirports = 80;
    constexpr double kSmallRange = 80;
    const NearPlaces& places = PlacesOfMap(frame.side);
    int drawn = 0;
    ForEachSeen(frame.view.range <= kSmallRange ? places.close_airports : places.airports.near, frame.view,
                [&](const AirportRow& row, MapPoint at) {
                    DrawAirport(graphics, frame.view, at, row.ident);
                    return ++drawn < kMostAirports;
                });
}

void DrawRouteAirports(Graphics& graphics, const MapView& view) {
    if (plan.active.ends.origin != kNotSelected || plan.mod.ends.origin != kNotSelected)
        DrawRouteAirport(graphics, view, airports.origin_airport);
    if (plan.active.ends.dest != kNotSelected || plan.mod.ends.dest != kNotSelected)
        DrawRouteAirport(graphics, view, airports.dest_airport);
}

void DrawFixes(Graphics& graphics, const NdFrame& frame) {
    ForEachSeen(PlacesOfMap(frame.side).fixes.near, frame.view, [&](const AirwayFixRow& row, MapPoint at) {
        DrawMapSymbol(graphics, at, MapSymbol::kTriangle, kMapGreen);
        LabelBeside(graphics, at, kMapGreen, row.ident);
        return true;
    });
}

NearItem ItemNear(int side, double lat, double lon) {
    const NdSide& settings = NdOf(side);
    NearItem item;
    if (settings.nd_apt == 1) item = NearestOf(PlacesOfMap(side).airports.near, lat, lon);
    if (item.ident.empty() && settings.nd_sta == 1)
        item = NearestOf(PlacesOfMap(side).navaids.near, lat, lon);
    if (item.ident.empty() && settings.nd_wpt == 1) item = NearestOf(PlacesOfMap(side).fixes.near, lat, lon);
    return item;
}
