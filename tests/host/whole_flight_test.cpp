// Nothing that the system works out or publishes is ever no number, whatever the crew enters or leaves out.

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "host/flightdeck/commands.h"
#include "host/fly/fly.h"
#include "host/fly/start.h"
#include "host/inspection.h"
#include "host/world/world.h"
#include "support/all_variables.h"
#include "support/paths.h"

namespace {

using namespace host;

constexpr const char* kRoute = "KSEA/16L ALDER1 ALDER DCT EUG RBL2 KSFO/ILS28R";

FlyOptions Headless() {
    FlyOptions options;
    options.demo_root = SourceDir() + "/data/root";
    options.route = kRoute;
    options.headless = true;
    return options;
}

// The first variable with a value that is no number, empty when there is none.
std::string NoNumber(const Session& session) {
    const std::string all = AllVariables(*session.linkage->inspection);
    for (const char* value : {"=nan\n", "=-nan\n", "=inf\n", "=-inf\n"})
        if (const std::size_t at = all.find(value); at != std::string::npos) {
            const std::size_t line = all.rfind('\n', at) + 1;
            return all.substr(line, at - line);
        }
    return world.never_a_number;
}

TEST(WholeFlight, IsNeverWithoutANumber) {
    for (const std::vector<double>& wind : {std::vector<double>{}, {160, 100}}) {
        FlyOptions options = Headless();
        options.wind = wind;
        std::string wrong;
        options.watch = [&wrong](const Session& session) {
            if (wrong.empty() && world.ticks % (18 * 60) == 0) wrong = NoNumber(session);
        };
        testing::internal::CaptureStdout();
        EXPECT_EQ(Fly(options), 0);
        const std::string printed = testing::internal::GetCapturedStdout();
        EXPECT_NE(printed.find("Stopped on runway 28R"), std::string::npos) << printed;
        EXPECT_EQ(wrong, "");
    }
}

// Half an hour in the air by LNAV and VNAV, after a bad entry has been executed on the ground.
TEST(WholeFlight, BearsBadEntries) {
    struct Entry {
        const char *variable, *value;
    };
    const struct {
        const char* what;
        std::vector<Entry> entries;
        std::function<void()> spoil;
    } kCases[] = {
        {"no cruise altitude", {{"pending_cruise_alt", "0"}, {"cruise_alt", "0"}}, {}},
        {"no speeds",
         {{"climb_ias", "0"}, {"cruise_ias", "0"}, {"descent_ias", "0"}, {"cruise_mach", "0"}},
         {}},
        {"a cost index alone", {{"ActiveCostIndex", "87"}}, {}},
        {"no weight",
         {{"ZfwEntry", "0"}},
         [] {
             PinCalc("(A:EMPTY WEIGHT,pounds)", 0, "");
             flight.aircraft.payload_lb.fill(0);
         }},
        {"no descent", {{"pending_cruise_alt", "1000"}}, {}},
        {"above the highest altitude", {{"pending_cruise_alt", "60000"}}, {}},
        {"no fuel", {}, [] { LoadFuel(0); }},
        {"fuel for half of the flight", {}, [] { LoadFuel(3500); }},
        {"speed limits of zero",
         {{"DescTransAltRest", "0"}, {"DescTransSpdRest", "0"}, {"ClbTransSpdRest", "0"}, {"DescFpa", "0"}},
         {}},
    };
    for (const auto& bad : kCases) {
        SCOPED_TRACE(bad.what);
        world = World{};
        flight = Flight{};
        Session session;
        std::string error;
        ASSERT_TRUE(StartFlight(session, Headless(), error)) << error;
        if (bad.spoil) bad.spoil();
        for (const Entry& entry : bad.entries) {
            const auto answer = Ask(session.linkage->inspection->write_variable, entry.variable, entry.value);
            EXPECT_TRUE(answer.good) << entry.variable << ": " << answer.error;
        }
        EXPECT_TRUE(ExecuteRoute(session, error)) << error;
        PlaceAircraft({47, -122.4, 9000, 200, 250});
        for (const char* control : {"atarm", "apl", "lnav", "vnav"}) PressMouseArea(session, "MCP", control);
        std::string wrong;
        for (int second = 0; second < 1800 && wrong.empty(); ++second) {
            for (int tick = 0; tick < 18; ++tick) TickSession(session, false);
            if (second % 60 == 0) wrong = NoNumber(session);
        }
        EXPECT_EQ(wrong, "");
        StopSession(session);
    }
}

}  // namespace
