#include "host/world/terrain.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <sstream>
#include <vector>

namespace host {
namespace {

struct AirportPoint {
    double lat, lon, metres;
};

constexpr int kCells = 180;  // one-degree rows of latitude

struct Terrain {
    bool flat = true;
    double flat_metres = 0;
    std::vector<std::vector<AirportPoint>> rows;  // by whole degree of latitude, south to north
};

Terrain terrain;

int RowOf(double lat) {
    const double row = std::floor(lat) + 90;  // of whatever the module asks for
    return row > 0 ? static_cast<int>(std::min(row, kCells - 1.0)) : 0;
}

}  // namespace

void UseFlatTerrain(double metres) {
    terrain.flat = true;
    terrain.flat_metres = metres;
}

void UseModelTerrain(const std::string& apts_file) {
    terrain.flat = false;
    terrain.rows.assign(kCells, {});
    std::ifstream file(apts_file);
    std::string line;
    while (std::getline(file, line)) {
        if (line.empty() || line[0] == ';') continue;
        std::istringstream words(line);
        std::string icao, name;
        double feet = 0, lat = 0, lon = 0;
        if (words >> icao >> name >> feet >> lat >> lon && std::fabs(lat) <= 90 && std::fabs(lon) <= 180)
            terrain.rows[static_cast<std::size_t>(RowOf(lat))].push_back({lat, lon, feet * 0.3048});
    }
}

double GroundElevationMetres(double lat, double lon) {
    if (terrain.flat) return terrain.flat_metres;
    // The airports within 60 nm weigh by the inverse fourth power of their distance against a sea-level
    // ground that weighs like an airport 30 nm away: an airport stands exactly on its elevation, the surface
    // is smooth between.
    constexpr double kReachNm = 60;
    constexpr double kAirportNm = 2.5;  // within it the ground is level, as far as the longest runways reach
    double nearest = kReachNm * kReachNm, nearest_metres = 0;
    double sum = 0, weights = 1 / (30.0 * 30 * 30 * 30);
    const double cos_lat = std::cos(lat * 0.017453292519943295);
    for (int row = RowOf(lat - 1); row <= RowOf(lat + 1); ++row) {
        for (const AirportPoint& airport : terrain.rows[static_cast<std::size_t>(row)]) {
            const double north = (airport.lat - lat) * 60;
            const double east = std::remainder(airport.lon - lon, 360.0) * 60 * cos_lat;
            const double square = north * north + east * east;
            if (square > kReachNm * kReachNm) continue;
            if (square < nearest) {
                nearest = square;
                nearest_metres = airport.metres;
            }
            sum += airport.metres / (square * square);
            weights += 1 / (square * square);
        }
    }
    return nearest < kAirportNm * kAirportNm ? nearest_metres : sum / weights;
}

}  // namespace host
