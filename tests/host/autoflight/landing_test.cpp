// From the localizer's intercept to a stop on the runway, hands off: receivers, aircraft and AutoflightLogic.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "host/aircraft/aircraft.h"
#include "host/aircraft/angles.h"
#include "host/aircraft/tokens.h"
#include "host/autoflight/autoflight_logic.h"
#include "host/flight.h"
#include "host/world/key_event_effects.h"
#include "host/world/receivers.h"
#include "host/world/world.h"

namespace {

using namespace host;

constexpr double kFeetPerNm = 6076.115;

// Runway 36 begins at 47 N 122 W and is 10,000 ft long; its course is published half a degree off, as
// courses are after some years. The field lies at 500 ft.
constexpr const char* kAirports =
    "; test\nKTST Test 500 47.0 -122.0 18_10000_47.027430_-122.0_163.5_110.30_ISOU_0 "
    "36_10000_47.0_-122.0_343.5_110.30_INOR_0 27_4000_47.0_-122.05_270.0_0_-_0\n";
constexpr const char* kVors = "ABC ALPHA 47.5 -122.0 VOR 114.00\nND NODIR 47.1 -122.1 NDB 350\n";
constexpr double kFieldElevation = 500, kVariation = 16;

class LandingTest : public testing::Test {
  protected:
    void SetUp() override {
        world = {};
        const std::filesystem::path folder = std::filesystem::temp_directory_path();
        const std::string name = "tz900_landing_" + std::to_string(::getpid());
        apts = folder / (name + "_apts.txt");
        navs = folder / (name + "_navs.txt");
        std::ofstream(apts) << kAirports;
        std::ofstream(navs) << kVors;
        LoadNavStations(apts, navs);
        PinToken(82, kVariation);
        SetToken(75, 1013.25);
        SetNamedValue("lnav_hdg", 999);
    }
    void TearDown() override {
        std::filesystem::remove(apts);
        std::filesystem::remove(navs);
    }
    static void Receive(double lat, double lon, double altitude, double heading) {
        world.ticks = 0;
        StepReceivers({lat, lon, altitude, kVariation, heading});
    }
    void Fly(double seconds) {
        for (int i = 0; i < static_cast<int>(seconds * 18); ++i) {
            ++world.ticks;
            TakeControlsFromTokens(aircraft);
            FollowCommands(StepAutoflight(logic, 1 / 18.0), aircraft.controls);
            StepAircraft(aircraft, 1 / 18.0);
            FillTokens(aircraft);
            StepReceivers({Latitude(aircraft), Longitude(aircraft), aircraft.altitude, kVariation,
                           TrueHeading(aircraft)});
        }
    }
    static int Mode(const char* name) { return static_cast<int>(NamedValue(name)); }
    /// Feet past the threshold of runway 36, and to the right of its centre line.
    double Along() const { return (Latitude(aircraft) - 47) * 60 * kFeetPerNm; }
    double Aside() const { return (Longitude(aircraft) + 122) * 60 * kFeetPerNm * std::cos(47 * kRad); }

    std::filesystem::path apts, navs;
    Aircraft aircraft;
    AutoflightLogic logic;
};

TEST_F(LandingTest, NeedlesShowWhereTheBeamsAre) {
    SetToken(24, 0x1030);
    // On the beam, where it crosses the threshold: 50 ft above it, 50 / tan 3 degrees before its antenna.
    Receive(47.0 - 1e-9, -122.0, kFieldElevation + 50, 10);
    EXPECT_NEAR(TokenOf(40), 0, 0.1);
    EXPECT_NEAR(TokenOf(41), 0, 0.5);
    EXPECT_NEAR(TokenOf(45) * kFeetPerNm, 954, 10);
    EXPECT_EQ(TokenOf(46), 0xc0);
    EXPECT_GT(TokenOf(49), 0);
    EXPECT_EQ(TokenOf(550), 343.5);
    EXPECT_EQ(world.calc.at("(A:NAV IDENT:1,string)").text, "INOR");
    // 6 nm out on the slope: tan 3 degrees times 6 nm and 954 ft, and 50 ft above that is 0.0745 degrees
    // of 0.7. 175 ft to the left at the threshold is half of the needle.
    const double out = kFieldElevation + std::tan(3 * kRad) * (6 * kFeetPerNm + 954);
    Receive(46.9, -122.0, out + 50, 340);
    EXPECT_NEAR(TokenOf(41), 127 * 50 / (6 * kFeetPerNm + 954) / kRad / 0.7, 0.3);
    Receive(47.0, -122.0 - 175 / kFeetPerNm / 60 / std::cos(47 * kRad), out, 0);
    EXPECT_NEAR(TokenOf(40), 63.5, 0.5);
    // The other end's system has the same frequency and is received from its own side only; nothing abeam.
    Receive(47.1, -122.0, 2000, 0);
    EXPECT_EQ(world.calc.at("(A:NAV IDENT:1,string)").text, "ISOU");
    Receive(47.0, -122.2, 2000, 0);
    EXPECT_EQ(TokenOf(49), 0);
    EXPECT_EQ(TokenOf(46), 0);
    // A VOR's radial and distance on the other receiver: 30 nm north, so on its radial 180 true.
    SetToken(27, 0x1400);
    SetToken(59, 180 - kVariation + 5);
    Receive(47.0, -122.0, 10000, 0);
    EXPECT_NEAR(TokenOf(28) * 360 / 16384, 180 - kVariation, 0.01);
    EXPECT_NEAR(TokenOf(54), std::hypot(30, 10000 / kFeetPerNm), 0.05);
    EXPECT_NEAR(TokenOf(35), 63.5, 0.1) << "a needle is full at ten degrees";
}

TEST_F(LandingTest, ComesToAStopOnTheCentreLine) {
    struct {
        const char* what;
        double wind_from, wind_kt;
        double start_aside_nm, heading;  // 12 nm out
        double flaps_handle;
        const char* sim;
        double payload_lb;
        int autobrake;
    } const approaches[] = {
        {"calm", 0, 0, -2, 30, 14043, "900-8", 10000, 3},
        {"crosswind", 270, 25, 1.5, 330, 14043, "900-8", 20000, 4},
        {"a jet stream above, tail wind below", 180, 100, 0, 10, 16384, "900-9", 15000, 6},
        {"heavy, strong head wind", 20, 45, -3, 45, 16384, "900-10", 30000, 5},
    };
    for (const auto& approach : approaches) {
        SCOPED_TRACE(approach.what);
        logic = {};
        aircraft = {};
        aircraft.airframe = AirframeOf(approach.sim);
        aircraft.fuel_lb = {15000, 15000, 0};
        aircraft.payload_lb.fill(approach.payload_lb);
        aircraft.air.wind_from = approach.wind_from;
        aircraft.air.wind_kt = approach.wind_kt;
        const double aside = approach.start_aside_nm / 60 / std::cos(47 * kRad);
        PlaceAircraftAt(aircraft, 46.8, -122.0 + aside, 3000, approach.heading, 190, kFieldElevation);
        for (const int token : {324, 325, 328, 331}) SetToken(token, 0);
        SetToken(328, 4681);
        FillTokens(aircraft);
        SetToken(24, 0x1030);
        SetToken(116, 190);
        SetToken(107, FoldDegrees(approach.heading - kVariation));
        SetCalc("(A:AUTOPILOT ALTITUDE LOCK VAR, feet)", 3000);
        SetNamedValue("at_armed_left", 1);
        SetNamedValue("at_mode_clicked", 1);
        SetNamedValue("TZ_MCP_L_AP_Button", 1);
        SetNamedValue("ap_lat_mode_clicked", kHeadingSelect);
        SetNamedValue("ap_vert_mode_clicked", kAltitude);
        SetNamedValue("auto_brake_switch", approach.autobrake);
        Fly(1);
        SetNamedValue("ap_vert_mode_clicked", kGlideSlope);
        Fly(1);
        EXPECT_EQ(Mode("ap_vert_mode_armed"), kGlideSlope);
        double sink = 0, aside_at_touch_down = 1e9, touched_at = 0, crossed_at = 0, worst_aside = 0;
        bool down = false, configured = false;
        for (int second = 0; second < 900 && !(down && aircraft.ground_speed < 1); ++second) {
            if (!configured && Mode("ap_vert_mode") == kGlideSlope) {
                configured = true;
                SetToken(331, 1);
                SetToken(324, 1);
                SetToken(328, approach.flaps_handle);
                SetToken(116, std::round(StallSpeedAt(aircraft, 30) * 1.3 + 5));
            }
            for (int tick = 0; tick < 18; ++tick) {
                const double before = aircraft.vertical_speed;
                const double along = Along();
                Fly(1 / 18.0 + 1e-9);
                if (along < 0 && Along() >= 0) crossed_at = aircraft.altitude - kFieldElevation;
                if (!down && aircraft.on_ground) {
                    down = true;
                    sink = -before;
                    touched_at = Along();
                    aside_at_touch_down = Aside();
                }
                if (down) worst_aside = std::max(worst_aside, std::fabs(Aside()));
            }
        }
        EXPECT_TRUE(down);
        EXPECT_NEAR(crossed_at, 50, 12);
        EXPECT_GT(touched_at, 700);
        EXPECT_LT(touched_at, 2800);
        EXPECT_GT(sink, 30);
        EXPECT_LT(sink, 240);
        EXPECT_LT(std::fabs(aside_at_touch_down), 27) << "the main wheels stay within the touch-down box";
        EXPECT_LT(worst_aside, 40);
        EXPECT_LT(aircraft.ground_speed, 1);
        EXPECT_LT(Along(), 8500);
        EXPECT_EQ(Mode("ap_lat_mode"), kRollout);
        EXPECT_EQ(Mode("at_mode"), kThrottleNone);
        EXPECT_GT(TokenOf(326), 16000) << "the armed speedbrakes are out";
    }
}

TEST_F(LandingTest, GoesAroundFromTheSlope) {
    aircraft.fuel_lb = {15000, 15000, 0};
    PlaceAircraftAt(aircraft, 46.87, -122.0, 2900, 0, 160, kFieldElevation);
    for (const int token : {324, 325, 331}) SetToken(token, 0);
    SetToken(328, 14043);
    FillTokens(aircraft);
    SetToken(24, 0x1030);
    SetToken(116, 150);
    SetCalc("(A:AUTOPILOT ALTITUDE LOCK VAR, feet)", 4000);
    SetNamedValue("at_armed_left", 1);
    for (const auto& [name, value] :
         {std::pair{"at_mode_clicked", 1}, {"TZ_MCP_L_AP_Button", 1}, {"ap_vert_mode_clicked", 1}})
        SetNamedValue(name, value);
    Fly(1);
    SetNamedValue("ap_vert_mode_clicked", kGlideSlope);
    for (int second = 0; second < 200 && aircraft.altitude > kFieldElevation + 200; ++second) Fly(1);
    ASSERT_EQ(Mode("ap_vert_mode"), kGlideSlope);
    EXPECT_EQ(Mode("ap_vert_mode_armed"), kFlare);
    EXPECT_EQ(Mode("ap_lat_mode_armed"), kRollout);
    EXPECT_EQ(Mode("tz_thrust_limit"), kLimitGoAround);
    ApplyKeyEvent(0x10145, 0);
    Fly(20);
    EXPECT_EQ(Mode("ap_lat_mode"), kLateralToGa);
    EXPECT_EQ(Mode("ap_vert_mode"), kVerticalToGa);
    EXPECT_EQ(Mode("at_mode"), kThrustReference);
    EXPECT_EQ(Mode("ap_master_l"), 1);
    EXPECT_GT(aircraft.vertical_speed, 1500);
    EXPECT_GT(aircraft.altitude, kFieldElevation + 300);
    EXPECT_NEAR(std::remainder(aircraft.track, 360), 0, 1);
    Fly(180);
    EXPECT_EQ(Mode("ap_vert_mode"), kAltitude);
    EXPECT_NEAR(aircraft.altitude, 4000, 20);
    EXPECT_GE(aircraft.ias, StallSpeed(aircraft) * 1.15);
}

}  // namespace
