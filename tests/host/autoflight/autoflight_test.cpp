#include "host/autoflight/autoflight_logic.h"

#include <gtest/gtest.h>

#include <cmath>

#include "host/aircraft/aircraft.h"
#include "host/aircraft/tokens.h"
#include "host/autoflight/flight_values.h"
#include "host/flight.h"
#include "host/world/world.h"

namespace {

using namespace host;

constexpr const char* kAltitudeWindow = "(A:AUTOPILOT ALTITUDE LOCK VAR, feet)";

/// An aircraft over the equator, where the variation is set to 0 by hand, flown by the logic alone.
class AutoflightTest : public testing::Test {
  protected:
    void SetUp() override {
        world = {};
        PinToken(82, 0);
        SetToken(75, 1013.25);
        SetToken(116, 280);
        SetToken(107, 90);
        SetCalc(kAltitudeWindow, 30000);
        PlaceAircraftAt(aircraft, 0, 0, 30000, 90, 280, 0);
        FillTokens(aircraft);
        SetNamedValue("lnav_hdg", 999);
        SetNamedValue("xtk_err_dir", 1);
        SetNamedValue("at_armed_left", 1);
        Press("at_mode_clicked", 1);
    }
    void Press(const char* request, int value) { SetNamedValue(request, value); }
    void EngageAutopilot() { Press("TZ_MCP_L_AP_Button", 1); }
    int Mode(const char* name) { return static_cast<int>(NamedValue(name)); }
    void FlyFor(double seconds) {
        for (int i = 0; i < static_cast<int>(seconds * 18); ++i) {
            FollowCommands(StepAutoflight(logic, 1 / 18.0), aircraft.controls);
            StepAircraft(aircraft, 1 / 18.0);
            FillTokens(aircraft);
        }
    }
    Aircraft aircraft;
    AutoflightLogic logic;
};

TEST_F(AutoflightTest, EngagesToHoldWhatItFinds) {
    FlyFor(1);
    EXPECT_EQ(Mode("ap_master_l"), 0);
    EngageAutopilot();
    FlyFor(60);
    EXPECT_EQ(Mode("TZ_MCP_L_AP_Button"), 0);
    EXPECT_EQ(Mode("ap_master_l"), 1);
    EXPECT_EQ(Mode("tz_ap_master_l"), 1);
    EXPECT_EQ(TokenOf(106), 1);
    EXPECT_EQ(Mode("ap_lat_mode"), kHeadingHold);
    EXPECT_NEAR(TrueHeading(aircraft), 90, 0.2);
    EXPECT_NEAR(aircraft.altitude, 30000, 50);
    EXPECT_NEAR(aircraft.ias, 280, 1);
}

TEST_F(AutoflightTest, BankedEngagementHoldsTheBank) {
    aircraft.bank = aircraft.controls.bank = 20;
    FillTokens(aircraft);
    EngageAutopilot();
    FlyFor(20);
    EXPECT_EQ(Mode("ap_lat_mode"), kAttitude);
    EXPECT_NEAR(aircraft.bank, 20, 0.5);
}

TEST_F(AutoflightTest, HeadingModesTurnTheShorterWay) {
    EngageAutopilot();
    SetToken(107, 330);
    Press("ap_lat_mode_clicked", kHeadingSelect);
    FlyFor(20);
    EXPECT_EQ(Mode("ap_lat_mode"), kHeadingSelect);
    EXPECT_EQ(Mode("ap_lat_mode_clicked"), 0);
    EXPECT_LT(aircraft.bank, -20);
    EXPECT_GT(aircraft.bank, -26);
    Press("ap_lat_mode_clicked", kHeadingHold);  // rolls out where it is
    const double heading = TrueHeading(aircraft);
    FlyFor(30);
    EXPECT_EQ(Mode("ap_lat_mode"), kHeadingHold);
    EXPECT_NEAR(aircraft.bank, 0, 0.3);
    EXPECT_NEAR(Difference(heading, TrueHeading(aircraft)), 0, 6);
    Press("ap_lat_mode_clicked", kHeadingSelect);
    FlyFor(150);
    EXPECT_NEAR(TrueHeading(aircraft), 330, 0.3);
    // a track in place of the heading, with the wind across
    SetNamedValue("TZ_MCP_HDG_TRK_Status", 1);
    aircraft.air.wind_from = 240;
    aircraft.air.wind_kt = 80;
    FlyFor(90);
    EXPECT_EQ(Mode("ap_lat_mode"), kTrackSelect);
    EXPECT_NEAR(aircraft.track, 330, 0.3);
}

TEST_F(AutoflightTest, LnavArmsFarFromTheLegAndCapturesNearIt) {
    EngageAutopilot();
    Press("ap_lat_mode_clicked", kLnav);
    FlyFor(1);
    EXPECT_EQ(Mode("ap_lat_mode_armed"), 0) << "there is no heading to follow, the request waits";
    SetNamedValue("lnav_hdg", 120);
    SetNamedValue("xtk_err_dist", 6);
    FlyFor(5);
    EXPECT_EQ(Mode("ap_lat_mode_armed"), kLnav);
    EXPECT_EQ(Mode("ap_lat_mode"), kHeadingHold);
    SetNamedValue("xtk_err_dist", 2);
    FlyFor(60);
    EXPECT_EQ(Mode("ap_lat_mode"), kLnav);
    EXPECT_EQ(Mode("ap_lat_mode_armed"), 0);
    EXPECT_NEAR(aircraft.track, 120, 0.2);
    SetNamedValue("lnav_hdg", 999);  // the plan is gone
    FlyFor(1);
    EXPECT_EQ(Mode("ap_lat_mode"), kHeadingHold);
}

TEST_F(AutoflightTest, ASecondPressTakesLnavBack) {
    EngageAutopilot();
    SetNamedValue("lnav_hdg", 120);
    SetNamedValue("xtk_err_dist", 6);
    Press("ap_lat_mode_clicked", kLnav);
    FlyFor(1);
    ASSERT_EQ(Mode("ap_lat_mode_armed"), kLnav);
    EXPECT_EQ(Mode("ap_lat_mode_clicked"), kLnav) << "the request stands as long as the mode does";
    Press("ap_lat_mode_clicked", 0);
    FlyFor(1);
    EXPECT_EQ(Mode("ap_lat_mode_armed"), 0);
    // A mode that takes over from LNAV keeps it, though LNAV's request has stood all the while.
    SetNamedValue("xtk_err_dist", 0);
    Press("ap_lat_mode_clicked", kLnav);
    FlyFor(1);
    ASSERT_EQ(Mode("ap_lat_mode"), kLnav);
    Press("ap_vert_mode_clicked", kGlideSlope);
    FlyFor(1);
    SetToken(550, 95);
    SetToken(46, 0x80);
    SetToken(49, 200);
    FlyFor(5);
    EXPECT_EQ(Mode("ap_lat_mode"), kLocalizer);
    EXPECT_EQ(Mode("ap_lat_mode_clicked"), 0);
}

TEST_F(AutoflightTest, LocalizerIsCapturedWhenItsNeedleComesAlive) {
    EngageAutopilot();
    SetToken(550, 110);  // its course
    SetToken(40, 127);
    Press("ap_lat_mode_clicked", kLocalizer);
    FlyFor(2);
    EXPECT_EQ(Mode("ap_lat_mode_armed"), kLocalizer);
    SetToken(46, 0x80);
    SetToken(49, 200);
    FlyFor(2);
    EXPECT_EQ(Mode("ap_lat_mode"), kHeadingHold);
    SetToken(40, 100);
    FlyFor(2);
    EXPECT_EQ(Mode("ap_lat_mode"), kLocalizer);
    SetToken(40, 0);
    FlyFor(60);
    EXPECT_NEAR(aircraft.track, 110, 0.3);
}

TEST_F(AutoflightTest, LevelChangesEndAtTheWindow) {
    struct {
        const char* what;
        int mode;
        double target, vertical_speed_bug;
        double at_least, at_most;  // fpm, half a minute into the change
    } const changes[] = {
        {"vertical speed down", kVerticalSpeed, 27000, -1500, -1600, -1400},
        {"level change up", kFlightLevelChange, 29000, 0, 500, 6000},
        {"level change down", kFlightLevelChange, 24000, 0, -4000, -800},
        {"vertical speed up", kVerticalSpeed, 25500, 800, 700, 900},
    };
    EngageAutopilot();
    FlyFor(1);
    for (const auto& change : changes) {
        SCOPED_TRACE(change.what);
        SetCalc(kAltitudeWindow, change.target);
        SetToken(120, change.vertical_speed_bug);
        Press("ap_vert_mode_clicked", change.mode);
        FlyFor(30);
        EXPECT_EQ(Mode("ap_vert_mode"), change.mode);
        EXPECT_EQ(Mode("ap_vert_mode_armed"), kAltitude);
        EXPECT_GT(aircraft.vertical_speed, change.at_least);
        EXPECT_LT(aircraft.vertical_speed, change.at_most);
        double worst = 0, speed_error = 0;
        const double from = aircraft.altitude;
        for (int second = 0; second < 400; ++second) {
            FlyFor(1);
            const double past = (aircraft.altitude - change.target) * (change.target > from ? 1 : -1);
            worst = std::max(worst, past);
            speed_error = std::max(speed_error, std::fabs(aircraft.ias - 280));
        }
        EXPECT_EQ(Mode("ap_vert_mode"), kAltitude);
        EXPECT_NEAR(aircraft.altitude, change.target, 10);
        EXPECT_LT(worst, 60) << "it shoots past the altitude";
        EXPECT_LT(speed_error, 8);
        EXPECT_NEAR(aircraft.ias, 280, 1);
    }
}

TEST_F(AutoflightTest, AltitudeHoldLevelsOffWhereTheClimbEnds) {
    EngageAutopilot();
    FlyFor(1);
    SetCalc(kAltitudeWindow, 35000);
    SetToken(120, 1200);
    Press("ap_vert_mode_clicked", kVerticalSpeed);
    FlyFor(60);
    const double pressed_at = aircraft.altitude;
    Press("ap_vert_mode_clicked", kAltitude);
    FlyFor(90);
    EXPECT_NEAR(aircraft.vertical_speed, 0, 20);
    EXPECT_GT(aircraft.altitude, pressed_at);
    EXPECT_LT(aircraft.altitude, pressed_at + 250);
}

TEST_F(AutoflightTest, AutothrottleFollowsTheWindowAndThePitchMode) {
    EngageAutopilot();
    Press("ap_vert_mode_clicked", kAltitude);
    SetToken(116, 250);
    FlyFor(180);
    EXPECT_EQ(Mode("at_mode"), kSpeed);
    EXPECT_NEAR(aircraft.ias, 250, 1);
    SetCalc(kAltitudeWindow, 33000);
    Press("ap_vert_mode_clicked", kFlightLevelChange);
    FlyFor(20);
    EXPECT_EQ(Mode("at_mode"), kThrust);
    EXPECT_GT(TokenOf(128), 0.9 * 16384);
    SetNamedValue("at_armed_left", 0);
    FlyFor(1);
    EXPECT_EQ(Mode("at_mode"), 0);
}

TEST_F(AutoflightTest, AMachWindowKeepsItsMachNumber) {
    EngageAutopilot();
    FlyFor(60);
    SetNamedValue("tz_mach_status", 1);
    FlyFor(1);
    EXPECT_NEAR(TokenOf(118), 0.742, 0.004) << "280 kt at 30000 ft";
    SetCalc(kAltitudeWindow, 36000);
    Press("ap_vert_mode_clicked", kFlightLevelChange);
    FlyFor(900);
    EXPECT_EQ(Mode("ap_vert_mode"), kAltitude);
    EXPECT_NEAR(aircraft.ias, 244.6, 2) << "the same Mach number at 36000 ft";
    EXPECT_EQ(Mode("at_mode"), kMach);
    SetNamedValue("tz_mach_status", 0);
    FlyFor(1);
    EXPECT_NEAR(TokenOf(116), 245, 2);
    EXPECT_EQ(Mode("at_mode"), kSpeed);
}

TEST_F(AutoflightTest, TakesOffAlongTheRunwayAndHandsOverToLnav) {
    PlaceAircraftAt(aircraft, 0, 0, 0, 90, 0, 0);
    aircraft.flaps = aircraft.controls.flaps = 15;
    aircraft.air.wind_from = 120;
    aircraft.air.wind_kt = 15;
    FillTokens(aircraft);
    SetToken(116, 160);
    SetCalc(kAltitudeWindow, 5000);
    SetNamedValue("lnav_hdg", 70);
    SetNamedValue("xtk_err_dist", 0.1);
    Press("ap_lat_mode_clicked", kLnav);
    Press("at_mode_clicked", 5);
    FlyFor(15);
    EXPECT_EQ(Mode("ap_lat_mode"), kLateralToGa);
    EXPECT_EQ(Mode("ap_lat_mode_armed"), kLnav);
    EXPECT_EQ(Mode("ap_vert_mode"), kVerticalToGa);
    EXPECT_EQ(Mode("at_mode"), kThrustReference);
    EXPECT_TRUE(aircraft.on_ground);
    EXPECT_NEAR(TrueHeading(aircraft), 90, 0.5);
    FlyFor(55);
    EXPECT_FALSE(aircraft.on_ground);
    EXPECT_GT(aircraft.altitude, 500);
    EXPECT_NEAR(aircraft.ias, 175, 12);
    EXPECT_EQ(Mode("ap_lat_mode"), kLnav);
    EngageAutopilot();
    FlyFor(180);
    EXPECT_EQ(Mode("ap_master_l"), 1);
    EXPECT_EQ(Mode("ap_vert_mode"), kAltitude);
    EXPECT_NEAR(aircraft.altitude, 5000, 20);
    EXPECT_NEAR(aircraft.track, 70, 0.5);
    EXPECT_EQ(Mode("at_mode"), kSpeed);
}

TEST_F(AutoflightTest, AnApproachByTheRouteArmsItsOwnModes) {
    EngageAutopilot();
    SetNamedValue("tz_fmc_ian_appr", 1);
    SetNamedValue("tz_dest_rwy_fac", 75);
    SetNamedValue("tz_dest_rwy_nm", 8);
    SetNamedValue("tz_dest_rwy_trk", 85);  // 1.4 nm to the right
    SetNamedValue("tz_dest_elev", aircraft.altitude - 50 - 8 * 318.4 + 200);
    Press("ap_vert_mode_clicked", kGlideSlope);
    FlyFor(1);
    EXPECT_EQ(Mode("ap_lat_mode_armed"), kFinalApproachCourse);
    EXPECT_EQ(Mode("ap_vert_mode_armed"), kGlidePath);
    EXPECT_EQ(Mode("tz_ian_fac_needle"), 127);
    EXPECT_NEAR(NamedValue("tz_ian_gp_needle"), -200 / 400.0 * 127, 2);  // below the path
    SetNamedValue("tz_dest_rwy_trk", 75);
    FlyFor(60);
    EXPECT_EQ(Mode("ap_lat_mode"), kFinalApproachCourse);
    EXPECT_NEAR(aircraft.track, 75, 0.3);
}

TEST_F(AutoflightTest, ADisconnectIsSeenBeforeTheAutopilotLetsGo) {
    EngageAutopilot();
    FlyFor(1);
    SetNamedValue("ap_master_disconnect", 1);
    StepAutoflight(logic, 1 / 18.0);
    EXPECT_EQ(Mode("ap_master_l"), 1);
    EXPECT_EQ(Mode("ap_master_disconnect"), 1);
    StepAutoflight(logic, 1 / 18.0);
    EXPECT_EQ(Mode("ap_master_l"), 0);
    EXPECT_EQ(Mode("ap_master_disconnect"), 2) << "the warning is now the system's";
    EXPECT_EQ(Mode("ap_lat_mode"), 0);
    // without an autopilot the second press only acknowledges
    SetNamedValue("ap_master_disconnect", 1);
    FlyFor(1);
    EXPECT_EQ(Mode("ap_master_disconnect"), 0);
}

/// A profile as guidance publishes it.
void PublishProfile(double angle, double speed, double cross_at) {
    SetNamedValue("lnav_hdg", 90);
    SetNamedValue("tz_fpln_active", 3);
    SetNamedValue("vnav_fpa", angle);
    SetNamedValue("vnav_spd", speed);
    SetNamedValue("fms_cross_at_elev", cross_at);
}

TEST_F(AutoflightTest, VnavClimbsToWhatComesFirstAndCruisesAtTheMach) {
    EngageAutopilot();
    SetCalc(kAltitudeWindow, 34000);
    PublishProfile(999, 300, 32000);
    Press("ap_vert_mode_clicked", kVnavSpeed);
    FlyFor(60);
    EXPECT_EQ(Mode("ap_vert_mode"), kVnavSpeed);
    EXPECT_EQ(Mode("at_mode"), kThrustReference);
    EXPECT_EQ(Mode("tz_thrust_limit"), kLimitClimb);
    EXPECT_GT(aircraft.vertical_speed, 200);
    FlyFor(240);
    EXPECT_NEAR(aircraft.ias, 300, 3) << "the profile's, not the window's 280";
    EXPECT_EQ(Mode("ap_vert_mode"), kVnavPath);
    EXPECT_NEAR(aircraft.altitude, 32000, 15) << "the constraint";
    EXPECT_EQ(Mode("at_mode"), kSpeed);
    PublishProfile(999, 290, 36000);
    FlyFor(20);
    EXPECT_EQ(Mode("ap_vert_mode"), kVnavSpeed);
    FlyFor(400);
    EXPECT_EQ(Mode("ap_vert_mode"), kVnavPath);
    EXPECT_NEAR(aircraft.altitude, 34000, 15) << "the window";
    // A cruise at a Mach; the window turned down ahead of the descent moves nothing.
    PublishProfile(0, 0.82, 12000);
    SetCalc(kAltitudeWindow, 12000);
    FlyFor(200);
    EXPECT_EQ(Mode("at_mode"), kMach);
    EXPECT_NEAR(aircraft.mach, 0.82, 0.002);
    EXPECT_NEAR(aircraft.altitude, 34000, 15);
    // A step to a higher cruise altitude, with the window there.
    PublishProfile(0, 0.82, 35000);
    SetCalc(kAltitudeWindow, 35000);
    FlyFor(10);
    EXPECT_EQ(Mode("ap_vert_mode"), kVnavSpeed);
    FlyFor(200);
    EXPECT_EQ(Mode("ap_vert_mode"), kVnavPath);
    EXPECT_NEAR(aircraft.altitude, 35000, 15);
}

TEST_F(AutoflightTest, VnavFollowsThePathDownAndStopsAtTheHigherOfWindowAndConstraint) {
    EngageAutopilot();
    PublishProfile(0, 290, 14000);
    Press("ap_vert_mode_clicked", kVnavSpeed);
    FlyFor(20);
    ASSERT_EQ(Mode("ap_vert_mode"), kVnavPath);
    SetCalc(kAltitudeWindow, 15000);
    // The path leads down by 230 ft a mile, a little less than the angle tells.
    double path = 30000, worst = 0, idle_seconds = 0;
    PublishProfile(2.4, 290, 14000);
    int seconds = 0;
    for (; seconds < 900 && aircraft.altitude > 15400; ++seconds) {
        path -= 230 * aircraft.ground_speed / 3600;
        SetNamedValue("vnav_vert_dev", std::round(aircraft.altitude - path));
        FlyFor(1);
        if (seconds > 90) worst = std::max(worst, std::fabs(aircraft.altitude - path));
        if (Mode("at_mode") == kIdle) ++idle_seconds;
        EXPECT_EQ(Mode("ap_vert_mode"), kVnavPath);
    }
    EXPECT_LT(worst, 60);
    EXPECT_GT(idle_seconds, 0.3 * seconds);
    EXPECT_NEAR(aircraft.ias, 290, 10);
    SetNamedValue("vnav_vert_dev", 0);
    FlyFor(60);
    EXPECT_NEAR(aircraft.altitude, 15000, 15);
    EXPECT_EQ(Mode("at_mode"), kSpeed);
}

TEST_F(AutoflightTest, ATurnOfTheSpeedWindowInVnavHoldsTheSpeedUntilVnavIsPressedAgain) {
    EngageAutopilot();
    PublishProfile(0, 290, 30000);
    Press("ap_vert_mode_clicked", kVnavSpeed);
    FlyFor(60);
    EXPECT_EQ(Mode("tz_spd_intv_active"), 0);
    EXPECT_NEAR(aircraft.ias, 290, 2);
    SetToken(116, 265);
    FlyFor(120);
    EXPECT_EQ(Mode("tz_spd_intv_active"), 1);
    EXPECT_NEAR(aircraft.ias, 265, 2);
    Press("ap_vert_mode_clicked", kVnavSpeed);
    FlyFor(120);
    EXPECT_EQ(Mode("tz_spd_intv_active"), 0);
    EXPECT_NEAR(aircraft.ias, 290, 2);
    EXPECT_EQ(Mode("ap_vert_mode"), kVnavPath);
}

TEST_F(AutoflightTest, TheEnvelopeIsNotLeft) {
    EngageAutopilot();
    Press("ap_vert_mode_clicked", kVerticalSpeed);
    SetNamedValue("at_armed_left", 0);
    FlyFor(1);
    aircraft.controls.thrust_levers.fill(0);
    SetCalc(kAltitudeWindow, 40000);
    SetToken(120, 2000);
    double slowest = 1e9, fastest = 0;
    bool marked = false;
    const auto fly = [&](int seconds) {
        for (; seconds > 0; --seconds) {
            FlyFor(1);
            slowest = std::min(slowest, aircraft.ias / StallSpeed(aircraft));
            fastest = std::max(fastest, aircraft.ias - NamedValue("TZ_V_MO"));
            marked |= Mode("ap_envelope_prot") == 1;
        }
    };
    fly(240);
    EXPECT_TRUE(marked);
    EXPECT_GT(slowest, 1.03);
    marked = false;
    aircraft.controls.thrust_levers.fill(1);
    SetToken(120, -4000);
    SetCalc(kAltitudeWindow, 5000);
    fly(240);
    EXPECT_TRUE(marked);
    EXPECT_LT(fastest, 14);
    // An armed autothrottle that was off wakes.
    aircraft.controls.thrust_levers.fill(0);
    Press("ap_vert_mode_clicked", kAltitude);
    FlyFor(60);
    SetNamedValue("at_armed_left", 1);
    EXPECT_EQ(Mode("at_mode"), kThrottleNone);
    fly(400);
    EXPECT_EQ(Mode("at_mode"), kSpeed);
    EXPECT_EQ(Mode("ap_envelope_prot"), 0);
    EXPECT_NEAR(aircraft.ias, 280, 3);
}

TEST_F(AutoflightTest, TheThrustLimitFollowsTheFlightAndADropOfTheArmIsTold) {
    SetNamedValue("tz_thrust_reduction_ht", 1000);
    SetNamedValue("tz_accel_ht", 1500);
    PlaceAircraftAt(aircraft, 0, 0, 0, 90, 0, 0);
    aircraft.flaps = aircraft.controls.flaps = 5;
    FillTokens(aircraft);
    SetToken(116, 165);
    PublishProfile(999, 250, 8000);
    SetCalc(kAltitudeWindow, 8000);
    Press("ap_vert_mode_clicked", kVnavSpeed);
    Press("at_mode_clicked", 5);
    FlyFor(10);
    EXPECT_EQ(Mode("ap_vert_mode_armed"), kVnavSpeed);
    EXPECT_EQ(Mode("tz_thrust_limit"), kLimitTakeoff);
    const double takeoff_limit = NamedValue("TZ_FADEC_Green_line");
    EXPECT_NEAR(takeoff_limit, 100, 0.1);
    for (int second = 0; second < 60 && aircraft.ias < 90; ++second) FlyFor(1);
    EXPECT_EQ(Mode("at_mode"), kThrottleHold);
    for (int second = 0; second < 60 && aircraft.altitude < 700; ++second) FlyFor(1);
    EXPECT_EQ(Mode("ap_vert_mode"), kVnavSpeed);
    EXPECT_EQ(Mode("at_mode"), kThrustReference);
    EXPECT_EQ(Mode("tz_thrust_limit"), kLimitTakeoff);
    EXPECT_NEAR(aircraft.ias, 180, 10) << "below the acceleration height";
    FlyFor(30);
    EXPECT_EQ(Mode("tz_thrust_limit"), kLimitClimb);
    EXPECT_LT(NamedValue("TZ_FADEC_Green_line"), takeoff_limit - 2);
    aircraft.controls.flaps = 0;
    EngageAutopilot();
    FlyFor(120);
    EXPECT_NEAR(aircraft.ias, 250, 5);
    SetNamedValue("at_armed_left", 0);
    FlyFor(1);
    EXPECT_EQ(Mode("at_disc"), 1);
    SetNamedValue("at_armed_left", 1);
    FlyFor(1);
    EXPECT_EQ(Mode("at_disc"), 0);
}

}  // namespace
