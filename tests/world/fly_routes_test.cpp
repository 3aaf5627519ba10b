#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "host/inspection.h"
#include "host/session.h"
#include "host/world/world.h"
#include "navdata/geodesy.h"
#include "support/paths.h"
#include "support/world_navdata.h"

// Real routes are flown to their last fix, LNAV engaged at cruise: each fix sequenced once and in order,
// never a turn back, and on the track once established. The same route, LNAV and aircraft as in `tz900 fly`.

namespace {

struct FiledRoute {
    double lat, lon;
    std::string text;
};

std::vector<FiledRoute> FiledRoutes() {
    std::vector<FiledRoute> routes;
    std::ifstream file(SourceDir() + "/tests/world/routes_world.txt");
    for (std::string line; std::getline(file, line);) {
        std::istringstream fields(line);
        FiledRoute route;
        double elevation = 0, heading = 0;
        if (line.empty() || line[0] == '#') continue;
        if (!(fields >> route.lat >> route.lon >> elevation >> heading)) continue;
        std::getline(fields >> std::ws, route.text);
        routes.push_back(route);
    }
    return routes;
}

struct RouteInTheAir {
    host::Session session;
    std::string error;

    ~RouteInTheAir() { StopSession(session); }

    bool TakeOff(const FiledRoute& route) {
        host::world = host::World{};
        host::flight = host::Flight{};
        session.settings.module_file = BinaryDir() + "/tz900.gau";
        session.settings.demo_root = SourceDir() + "/data/root";
        session.settings.navdata = WorldNavdata().string();
        session.settings.fdm = true;
        if (!PrepareSession(session, error) || !StartSession(session, error)) return false;
        if (!EnterRoute(session, route.text, error) || !ExecuteRoute(session, error)) return false;
        const DistBearing first =
            GreatCircle(route.lat, route.lon, Number("FlightPlan[1].lat"), Number("FlightPlan[1].lon"));
        host::PlaceAircraft({route.lat, route.lon, 35000, first.bearing, 275});
        for (int i = 0; i < 10 * 18; ++i) TickSession(session, false);
        for (const char* control : {"atarm", "apl", "lnav", "althold", "at"})
            PressMouseArea(session, "MCP", control);
        host::QueueKeyEvent(0x101f5, 275);
        return true;
    }
    double Number(const std::string& path) const { return std::atof(ReadVariable(session, path).c_str()); }
    double Leg(int index, const char* field) const {
        return Number("FlightPlan[" + std::to_string(index) + "]." + field);
    }
};

double Aircraft(const char* name) {
    double value = 0;
    host::AircraftValue(name, value);
    return value;
}

double Between(double a, double b) {
    return std::fabs(std::remainder(a - b, 360.0));
}

class WorldRoute : public testing::TestWithParam<int> {};

TEST_P(WorldRoute, IsFlownToItsLastFix) {
    if (!std::filesystem::exists(WorldNavdata())) GTEST_SKIP() << "no world navigation data";
    const FiledRoute route = FiledRoutes().at(static_cast<std::size_t>(GetParam()));
    SCOPED_TRACE(route.text);
    RouteInTheAir flight;
    ASSERT_TRUE(flight.TakeOff(route)) << flight.error;

    const int last = static_cast<int>(flight.Number("fp_cnt"));
    int to = 1, seconds_on_leg = 0;
    double worst_xtk = 0, before_lat = Aircraft("lat"), before_lon = Aircraft("lon");
    std::string worst_place;
    bool arrived = false, behind = false, established = false;
    for (int second = 0; second < 16 * 3600 && !arrived; ++second) {
        for (int i = 0; i < 18; ++i) TickSession(flight.session, false);
        const int now_to = static_cast<int>(flight.Number("stpos"));
        if (now_to != to) {
            ASSERT_EQ(now_to, to + 1) << "fixes are sequenced once and in order";
            seconds_on_leg = 0;
            behind = established = false;
        }
        to = now_to;
        ++seconds_on_leg;
        const double lat = Aircraft("lat"), lon = Aircraft("lon");
        const double to_go = flight.Number("wpt_dist");
        const double track = GreatCircle(before_lat, before_lon, lat, lon).bearing;
        if (to > 1) {
            const DistBearing passed =
                GreatCircle(lat, lon, flight.Leg(to - 1, "lat"), flight.Leg(to - 1, "lon"));
            behind = behind || Between(track, passed.bearing) > 110;
            ASSERT_TRUE(!behind || passed.dist < 2 || Between(track, passed.bearing) > 80)
                << "a turn back to leg " << to - 1;
        }
        // Established once the turn is behind and the track is met; from then on until the next turn begins.
        const double xtk = flight.Number("xtk");
        established = established || (seconds_on_leg > 60 && xtk < 0.2);
        const double turn_begins = std::max(flight.Number("wpt_chg_dist"), 0.0);
        if (established && to_go > turn_begins + 3 && xtk > worst_xtk) {
            worst_xtk = xtk;
            worst_place = std::to_string(to) + " at " + std::to_string(to_go) + " nm";
        }
        if (to == last)
            arrived =
                to_go < 3 ||
                (seconds_on_leg > 60 &&
                 Between(track,
                         GreatCircle(lat, lon, flight.Leg(last, "lat"), flight.Leg(last, "lon")).bearing) >
                     90);
        before_lat = lat;
        before_lon = lon;
    }
    EXPECT_TRUE(arrived) << "TO leg " << to << " of " << last;
    EXPECT_LT(worst_xtk, 0.3) << "TO leg " << worst_place;
}

// Every second of the fifty, short ones and long ones. Without the world one test is there, to be skipped.
INSTANTIATE_TEST_SUITE_P(EverySecond, WorldRoute,
                         testing::Range(0, std::filesystem::exists(WorldNavdata()) ? 50 : 1, 2));

}  // namespace
