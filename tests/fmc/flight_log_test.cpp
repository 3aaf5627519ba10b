#include "fmc/performance/flight_log.h"

#include <gtest/gtest.h>

#include "state/cfg.h"
#include "state/flight_log.h"
#include "state/identity.h"
#include "state/plan.h"
#include "state/sim.h"
#include "state/time_base.h"
#include "state/weights.h"
#include "support/fake_host.h"
#include "support/file_text.h"

namespace {

class FlightLog : public testing::Test {
  protected:
    FlightLog() {
        cfg.LogFlightPlan = 1;
        identity.aircraft = "tz900-9 test";
        plan.active.ends.origin = "ORIG";
        plan.active.ends.dest = "DEST";
        plan.active.leg_cnt = 1;
        plan.active.stpos = 1;
        plan.active.legs[1].ident = "DEST";
        plan.active.legs[1].lat = 5;
        sim.on_ground = 1;
        sim.total_fuel = 90000;
        weights.gross_weight = 400000;
    }
    // Steps once a second for a while.
    static void Fly(double seconds) {
        for (int i = 0; i < seconds; ++i) {
            sim.abs_time += 1;
            if (flight_log.fplog_mode >= 3) time_base.fltsecs += 1;
            FlightLogStep(false);
        }
    }
    std::string Log() const { return FileText(host.root / "Velarion/TZ900/fpl.log"); }
    int Rows() const {
        int lines = 0;
        for (const char c : Log()) lines += c == '\n';
        return lines - 5;
    }
    FakeHost host;
};

TEST_F(FlightLog, PhasesFollowTheFlight) {
    host.PutFile("Velarion/TZ900/fpl.log", "of the flight before\n");
    Fly(1);
    EXPECT_EQ(flight_log.fplog_mode, 0);
    EXPECT_EQ(flight_log.start_fuel, 90000);
    EXPECT_EQ(Log().substr(0, 44), "FlightPlan=ORIG-DEST\nAircraft=tz900-9 test\n-");
    const struct {
        double ground_speed, radio_alt, vs, lat;
        int seconds, mode;
    } kFlight[] = {
        {2, 0, 0, 0, 3, 0},           {3, 0, 0, 0, 1, 1},           {11, 0, 0, 0, 1, 2},
        {61, 50, 0, 0, 1, 2},         {150, 51, 300, 0, 1, 3},      {180, 400, 1500, 0, 1, 4},
        {300, 9000, 1500, 1, 20, 4},  {450, 30000, 40, 2, 1, 5},    {450, 30000, -1000, 3, 20, 5},
        {450, 29000, -1000, 3, 1, 6}, {200, 3000, -700, 4.7, 1, 7}, {59, 0, 0, 5, 1, 8},
        {39, 0, 0, 5, 1, 9},          {4, 0, 0, 5, 1, 10},          {4, 0, 0, 5, 120, 10},
        {4, 0, 0, 5, 1, 11},          {200, 0, 900, 0, 5, 11},
    };
    for (const auto& leg : kFlight) {
        sim.ground_speed_kt = leg.ground_speed;
        sim.radio_alt_ft = leg.radio_alt;
        sim.vs_fpm = leg.vs;
        sim.plane_lat = leg.lat;
        Fly(leg.seconds);
        EXPECT_EQ(flight_log.fplog_mode, leg.mode) << leg.ground_speed << " kt, " << leg.vs << " fpm";
    }
    EXPECT_NE(Log().find("00:00:00 InitLoad     DEST     0      0       0       0      0   90000   400000 0  "
                         "  0.00 0.0\n"),
              std::string::npos)
        << Log();
    EXPECT_NE(Log().find(" End_Flight "), std::string::npos);
    EXPECT_EQ(Log().find("before"), std::string::npos);
}

TEST_F(FlightLog, RowsComeWhenTheyAreDue) {
    Fly(1);
    EXPECT_EQ(Rows(), 1);
    flight_log.fplog_mode = 4;
    sim.ground_speed_kt = 300;
    sim.vs_fpm = 1000;
    Fly(20);
    EXPECT_EQ(Rows(), 5);  // every five seconds
    flight_log.fplog_mode = 5;
    sim.vs_fpm = 0;
    Fly(300);
    EXPECT_EQ(Rows(), 5);  // level
    sim.ind_alt_ft += 150;
    Fly(1);
    EXPECT_EQ(Rows(), 6);
    FlightLogStep(true);
    EXPECT_EQ(Rows(), 7);
    cfg.LogFlightPlan = 0;
    FlightLogStep(true);
    sim.sim_rate = 4;
    cfg.LogFlightPlan = 1;
    FlightLogStep(true);
    EXPECT_EQ(Rows(), 7);
    // Parked on the way: the log ends.
    sim.sim_rate = 1;
    sim.ground_speed_kt = 0;
    sim.parking_brake = 32767;
    Fly(1);
    EXPECT_EQ(flight_log.fplog_mode, 11);
}

}  // namespace
