#include "host/fly/runway.h"

#include <cmath>
#include <cstdlib>

#include "host/aircraft/angles.h"
#include "host/aircraft/magnetic_variation.h"
#include "host/inspection.h"

namespace host {
namespace {

RunwayEnd ReadEnd(const Session& session, const std::string& airport, int place) {
    const auto text = [&](const std::string& field) {
        return ReadVariable(session, airport + ".runways[" + std::to_string(place) + "]." + field);
    };
    const auto number = [&](const std::string& field) { return std::atof(text(field).c_str()); };
    RunwayEnd runway{text("ident"), number("lat"), number("lon")};
    runway.elevation = std::atof(ReadVariable(session, airport + ".elevation_ft").c_str());
    runway.magnetic_course = number("course");
    runway.length = number("length_ft");
    runway.ils_frequency = text("ils_freq");
    if (std::atof(runway.ils_frequency.c_str()) < 100) runway.ils_frequency.clear();
    runway.course = FoldDegrees(runway.magnetic_course + MagneticVariation(runway.lat, runway.lon));
    const double north = number("recip_lat") - runway.lat;
    const double east = (number("recip_lon") - runway.lon) * std::cos(runway.lat * kRad);
    constexpr double kFar = 0.2;  // degrees: no runway reaches so far, the other end isn't known
    if (std::hypot(north, east) < kFar) runway.course = FoldDegrees(std::atan2(east, north) / kRad);
    return runway;
}

}  // namespace

RunwayEnd ReadRunway(const Session& session, const std::string& airport, int place) {
    if (place > 0) return ReadEnd(session, airport, place);
    const int count = std::atoi(ReadVariable(session, airport + ".runway_cnt").c_str());
    RunwayEnd best;
    for (int i = 1; i <= count; ++i) {
        const RunwayEnd end = ReadEnd(session, airport, i);
        const bool better_equipped = best.ils_frequency.empty() && !end.ils_frequency.empty();
        const bool worse_equipped = !best.ils_frequency.empty() && end.ils_frequency.empty();
        if (best.name.empty() || better_equipped || (!worse_equipped && end.length > best.length)) best = end;
    }
    return best;
}

RunwayPosition PositionBefore(const RunwayEnd& runway, double lat, double lon) {
    const double north = (lat - runway.lat) * 60;
    const double east = std::remainder(lon - runway.lon, 360) * 60 * std::cos(runway.lat * kRad);
    const double c = std::cos(runway.course * kRad), s = std::sin(runway.course * kRad);
    return {-(north * c + east * s), east * c - north * s};
}

}  // namespace host
