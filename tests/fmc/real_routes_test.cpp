#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "fmc/route/route_text.h"
#include "navdata/geodesy.h"
#include "navdata/nav_tables.h"
#include "state/plan.h"
#include "support/paths.h"
#include "support/world_navdata.h"

// Real routes must enter as they are filed: every fix known, every airway joined, no absurd turn.

namespace {

struct RouteFacts {
    int legs = 0;
    double sharpest_turn = 0;  // degrees
    bool crosses_date_line = false;
    double highest_lat = 0;
};

RouteFacts FactsOfModification() {
    RouteFacts facts{.legs = plan.mod.leg_cnt};
    for (int i = 1; i <= plan.mod.leg_cnt; ++i) {
        const FlightPlanLeg &from = plan.mod.legs[i - 1], &to = plan.mod.legs[i];
        facts.crosses_date_line |= std::fabs(to.lon - from.lon) > 180;
        facts.highest_lat = std::max(facts.highest_lat, std::fabs(to.lat));
        if (i == plan.mod.leg_cnt) continue;
        const FlightPlanLeg& next = plan.mod.legs[i + 1];
        const double in = GreatCircle(to.lat, to.lon, from.lat, from.lon).bearing + 180;
        const double out = GreatCircle(to.lat, to.lon, next.lat, next.lon).bearing;
        facts.sharpest_turn = std::max(facts.sharpest_turn, std::fabs(std::remainder(out - in, 360)));
    }
    return facts;
}

TEST(RealRoutes, FiftyJoinOnWorldData) {
    FakeHost host;
    if (!UseWorldNavdata(host)) GTEST_SKIP() << "no world navigation data";
    LoadNavTables();
    std::ifstream file(SourceDir() + "/tests/world/routes_world.txt");
    int routes = 0, date_line = 0, polar = 0;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line[0] == '#') continue;
        std::istringstream fields(line);
        double lat, lon, elevation, heading;
        std::string route, error;
        ASSERT_TRUE(fields >> lat >> lon >> elevation >> heading && std::getline(fields, route)) << line;
        ASSERT_EQ(EnterRouteText(route, error), 1) << route << ": " << error;
        const FlightPlanLeg& origin = plan.mod.legs[0];
        EXPECT_LT(GreatCircle(lat, lon, origin.lat, origin.lon).dist, 5) << route;
        const RouteFacts facts = FactsOfModification();
        EXPECT_TRUE(facts.legs >= 5 && facts.legs <= 40) << route << ": " << facts.legs;
        EXPECT_LT(facts.sharpest_turn, 100) << route;
        ++routes;
        date_line += facts.crosses_date_line;
        polar += facts.highest_lat > 80;
    }
    EXPECT_EQ(routes, 50);
    EXPECT_GE(date_line, 3);
    EXPECT_GE(polar, 2);
}

// Those that the demonstration's README offers for a try.
TEST(RealRoutes, TheDemonstrationsOwnJoin) {
    FakeHost host;
    const std::string root = SourceDir() + "/data/root";
    std::filesystem::copy(root, host.root, std::filesystem::copy_options::recursive);
    LoadNavTables();
    std::ifstream readme(root + "/README");
    int routes = 0;
    bool offered = false;
    for (std::string line; std::getline(readme, line); offered |= line.starts_with("Routes that join")) {
        if (!offered) continue;
        for (std::size_t at = line.find_first_not_of(' '); at < line.size();) {
            const std::size_t end = std::min(line.find("  ", at), line.size());
            std::string error;
            EXPECT_EQ(EnterRouteText(line.substr(at, end - at), error), 1)
                << line.substr(at, end - at) << error;
            EXPECT_LT(FactsOfModification().sharpest_turn, 100) << line.substr(at, end - at);
            at = line.find_first_not_of(' ', end);
            ++routes;
        }
    }
    EXPECT_EQ(routes, 6);
}

}  // namespace
