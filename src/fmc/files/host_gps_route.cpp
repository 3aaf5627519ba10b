#include "fmc/files/host_gps_route.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

#include "base/units.h"
#include "fmc/files/loaded_route.h"
#include "fmc/legs/leg_type.h"
#include "frame/crew_messages.h"
#include "navdata/airport_file.h"
#include "platform/host.h"
#include "state/leg_words.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/requests.h"
#include "state/route_files.h"

namespace {

constexpr int kMostWaypoints = 1000;  // more than any planner's route: the block is no route
constexpr std::uint32_t kBlockSize = GpsRouteLayout::kBlockSize;
using Waypoint = GpsRouteLayout;

template <class T>
T ReadAt(const std::byte* bytes, int offset) {
    T value;
    std::memcpy(&value, bytes + offset, sizeof value);
    return value;
}

// The waypoints of the block, one after the other; empty without a plan.
std::vector<std::byte> CopyWaypoints() {
    if (route_files.gps_route_data == nullptr)
        route_files.gps_route_data = Host().bind_shared_pointer(kGpsRouteName);
    const auto* block = static_cast<const std::byte*>(route_files.gps_route_data);
    if (block == nullptr || ReadAt<std::uint32_t>(block, 0) < kBlockSize) return {};
    const auto* waypoints = ReadAt<const std::byte*>(block, Waypoint::kWaypoints);
    const auto count = ReadAt<std::int32_t>(block, Waypoint::kWaypointCount);
    if (waypoints == nullptr || count < 2 || count > kMostWaypoints) return {};
    return {waypoints, waypoints + std::ptrdiff_t{count} * Waypoint::kWaypointSize};
}

// Turned by whole circles and quarters of the host's own units (metres along a meridian, 2^-32 of a circle).
double Latitude(const std::byte* waypoint) {
    constexpr double kMeridian = 40007000;
    return ReadAt<std::int32_t>(waypoint, Waypoint::kLatitude) / kMeridian * 360;
}
double Longitude(const std::byte* waypoint) {
    constexpr double kHighWord = 2.3283064365386963e-10, kDegrees = 8.381903171539307e-08;
    constexpr std::uint64_t kLowBits = 0xffff;
    const auto word = ReadAt<std::uint64_t>(waypoint, Waypoint::kLongitude) & ~kLowBits;
    return static_cast<double>(static_cast<std::int64_t>(word)) * kHighWord * kDegrees;
}

// A wide string of at most 8 units; what is no ASCII can't stand in an ident.
std::string Ident(const std::byte* waypoint) {
    std::string ident;
    for (int i = 0; i < Waypoint::kIdentUnits; ++i) {
        const auto unit = ReadAt<std::uint16_t>(waypoint, Waypoint::kIdent + 2 * i);
        if (unit == 0) break;
        ident += unit > ' ' && unit < 127 ? static_cast<char>(unit) : '_';
    }
    return ident;
}

FlightPlanLeg LegOf(const std::byte* waypoint, bool is_end) {
    FlightPlanLeg leg;
    leg.ident = Ident(waypoint);
    leg.lat = Latitude(waypoint);
    leg.lon = Longitude(waypoint);
    AirportData airport;
    if (is_end && LoadAirport(leg.ident, airport) == 1) {
        leg.type = kAirportLegType;
        return leg;
    }
    leg.via = kDirectVia;
    LookUpLegType(leg);
    return leg;
}

}  // namespace

void ImportHostGpsRoute(int side) {
    constexpr double kHighest = 99999;
    const std::vector<std::byte> waypoints = CopyWaypoints();
    if (waypoints.empty()) return PostCduMessage("NO ACTIVE GPS RTE", kAdvisory, kHelpFixedList, side);
    BeginLoadedRoute();
    MarkLoadedRouteNew();
    const std::size_t last = waypoints.size() - Waypoint::kWaypointSize;
    double highest = 0;
    for (std::size_t at = 0; at <= last; at += Waypoint::kWaypointSize) {
        const std::byte* waypoint = waypoints.data() + at;
        const double altitude = ReadAt<double>(waypoint, Waypoint::kAltitude) * kFeetPerMetre;
        if (altitude > highest && altitude <= kHighest) highest = altitude;
        FlightPlanLeg leg = LegOf(waypoint, at == 0 || at == last);
        if (!leg.ident.empty() && std::fabs(leg.lat) <= 90) AddLoadedLeg(std::move(leg));
    }
    plan.mod.entries.cruise_alt = highest;
    FinishLoadedRoute("");
    requests.show_rte = side;
}
