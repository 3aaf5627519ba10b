// The system's lateral guidance and the stand-in aircraft with AutoflightLogic, tied together as the
// simulator ties them: what the one publishes the other flies.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <variant>
#include <vector>

#include "display/nd/map_view.h"
#include "display/nd/route_line.h"
#include "fmc/legs/path.h"
#include "guidance/autoflight.h"
#include "guidance/lnav.h"
#include "host/aircraft/aircraft.h"
#include "host/aircraft/tokens.h"
#include "host/autoflight/autoflight_logic.h"
#include "host/flight.h"
#include "host/world/world.h"
#include "state/lnav.h"
#include "state/plan.h"
#include "state/sim.h"
#include "state/time_base.h"
#include "support/fake_host.h"

namespace {

struct Fix {
    double lat, lon;
};

struct Air {
    double altitude, ias;
    double wind_from, wind_kt;
};

class LateralFlight {
  public:
    LateralFlight(const std::vector<Fix>& fixes, const Air& air) : altitude_(air.altitude) {
        host::world = {};
        for (const Fix& fix : fixes) {
            FlightPlanLeg& leg = plan.active.legs[plan.active.leg_cnt];
            leg.ident = "FIX" + std::to_string(plan.active.leg_cnt++);
            leg.lat = fix.lat;
            leg.lon = fix.lon;
        }
        --plan.active.leg_cnt;
        plan.active.stpos = 1;
        plan.fms_fpln_active = 3;
        plan.active.active_leg = {"FIX0", fixes[0].lat, fixes[0].lon, "FIX1", fixes[1].lat, fixes[1].lon, 0,
                                  0};
        aircraft.air.wind_from = air.wind_from;
        aircraft.air.wind_kt = air.wind_kt;
        const double course = GreatCircle(fixes[0].lat, fixes[0].lon, fixes[1].lat, fixes[1].lon).bearing;
        PlaceAircraftAt(aircraft, fixes[0].lat, fixes[0].lon, air.altitude, course, air.ias, 0);
        host::SetToken(75, 1013.25);
        host::SetToken(116, air.ias);
        host::SetCalc("(A:AUTOPILOT ALTITUDE LOCK VAR, feet)", air.altitude);
        FillTokens(aircraft);
        const std::pair<const char*, int> presses[] = {{"at_armed_left", 1},
                                                       {"at_mode_clicked", 1},
                                                       {"TZ_MCP_L_AP_Button", 1},
                                                       {"ap_vert_mode_clicked", 1},
                                                       {"ap_lat_mode_clicked", 6}};
        for (const auto& [name, value] : presses) host::SetNamedValue(name, value);
    }

    void Tick() {
        time_base.tick_phase = (time_base.tick_phase + 1) % 18;
        time_base.tick2s_phase = (time_base.tick2s_phase + 1) % 36;
        TakeSnapshot();
        LnavUpdate();
        lnav.lnav_engaged = host::NamedValue("ap_lat_mode") == 6 && lnav.plan_finished == 0;
        host::SetNamedValue("lnav_hdg", IsHoldPatternFlown() ? lnav.hold_hdg : lnav.fms_hdg);
        host::SetNamedValue("xtk_err_dist", lnav.xtk);
        host::SetNamedValue("xtk_err_dir", lnav.xtk_side);
        FollowCommands(StepAutoflight(autoflight_logic, kTick), aircraft.controls);
        StepAircraft(aircraft, kTick);
        FillTokens(aircraft);
        seconds += kTick;
    }

    LegPosition Place() const {
        const FlightPlanLeg& to = plan.active.legs[plan.active.stpos];
        return LocateOnLeg(sim.plane_lat, sim.plane_lon, plan.active.active_leg.from_lat,
                           plan.active.active_leg.from_lon, to.lat, to.lon);
    }

    static constexpr double kTick = 1 / 18.0;
    host::Aircraft aircraft;
    host::AutoflightLogic autoflight_logic;
    double seconds = 0;

  private:
    void TakeSnapshot() const {
        sim.plane_lat = Latitude(aircraft);
        sim.plane_lon = Longitude(aircraft);
        sim.mgvar = host::TokenOf(82);
        sim.mag_hdg = host::TokenOf(81);
        sim.true_hdg = host::TokenOf(86);
        sim.ground_speed_kt = aircraft.ground_speed;
        sim.tas_kt = aircraft.tas;
        sim.ias_kt = aircraft.ias;
        sim.radio_alt_ft = sim.ind_alt_ft = altitude_;
        sim.ap_master = static_cast<int>(host::TokenOf(106));
    }
    double altitude_;
};

TEST(LateralFlightTest, RoutesAreFlownFixByFixOnTheirLegs) {
    constexpr Air kCruise = {35000, 280, 0, 0}, kWindy = {37000, 265, 300, 110}, kLow = {5000, 220, 200, 35};
    const struct {
        const char* what;
        Air air;
        std::vector<Fix> fixes;
    } routes[] = {
        {"straight", kCruise, {{47, -122}, {47, -119}, {47, -116}}},
        {"jet stream across", kWindy, {{47, -122}, {48, -121}, {49.5, -120.5}, {50, -118}}},
        {"turns of every size",
         kWindy,
         {{47, -122}, {47, -121}, {48, -120}, {47, -119}, {47, -118}, {46, -118}, {46, -117}}},
        {"terminal area",
         kLow,
         {{47, -122},
          {47, -121.7},
          {47.3, -121.5},
          {47.1, -121.2},
          {47, -121},
          {46.8, -121},
          {46.8, -120.5}}},
        {"nearly back", kCruise, {{47, -122}, {47, -120}, {47.2, -121}, {48, -121}}},
        {"over an ocean", kWindy, {{56, -30}, {56, -40}, {54, -45}}},
        {"over the date line", kCruise, {{51, 175}, {52, 179}, {52, -178}, {51, -175}}},
        {"round the pole", kCruise, {{85, -60}, {87, -30}, {88, 90}, {85, 110}}},
        {"over the pole", kCruise, {{87, 0}, {89.5, 10}, {87, 180}}},
        {"southern ocean", kWindy, {{-68, 175}, {-72, -170}, {-72, -160}}},
    };
    for (const auto& route : routes) {
        SCOPED_TRACE(route.what);
        const FakeHost fake;
        LateralFlight flight(route.fixes, route.air);
        double length = 0;
        for (std::size_t i = 1; i < route.fixes.size(); ++i)
            length += GreatCircle(route.fixes[i - 1].lat, route.fixes[i - 1].lon, route.fixes[i].lat,
                                  route.fixes[i].lon)
                          .dist;
        const double slowest = flight.aircraft.tas - route.air.wind_kt;
        int leg = 1;
        double near_for = 0, worst = 0;
        while (lnav.plan_finished == 0 && flight.seconds < (length + 60) / slowest * 3600) {
            flight.Tick();
            if (plan.active.stpos != leg) {
                ASSERT_EQ(plan.active.stpos, leg + 1) << "each fix once and in order";
                leg = plan.active.stpos;
                near_for = 0;
            }
            // Established: within the limit for a quarter of a minute; from then on it must stay there.
            const double cross_track = flight.Place().cross_track;
            if (near_for >= 15) worst = std::max(worst, cross_track);
            near_for = cross_track < 0.3 || near_for >= 15 ? near_for + LateralFlight::kTick : 0;
        }
        EXPECT_EQ(lnav.plan_finished, 1) << "the last fix is reached without a detour";
        EXPECT_EQ(plan.active.stpos, plan.active.leg_cnt);
        EXPECT_LT(worst, 0.3);
        EXPECT_NEAR(flight.aircraft.altitude, route.air.altitude, 20);
        EXPECT_LT(
            GreatCircle(sim.plane_lat, sim.plane_lon, route.fixes.back().lat, route.fixes.back().lon).dist,
            2.5);
    }
}

// The route's line on a map around a fix, ten units to a mile; the largest of its figures is it.
std::vector<PaintPoint> DrawnPath(const MapView& view) {
    DrawList list;
    Graphics graphics = GdipCreateGraphics(list, 1000, 1000);
    DrawRouteLines(graphics, view, false);
    std::vector<PaintPoint> path;
    for (const Primitive& primitive : list.primitives)
        if (const auto* stroke = std::get_if<StrokePath>(&primitive);
            stroke != nullptr && stroke->path.points.count > path.size()) {
            const auto first = list.points.begin() + stroke->path.points.first;
            path.assign(first, first + stroke->path.points.count);
        }
    return path;
}

double DistanceToPath(MapPoint p, const std::vector<PaintPoint>& path) {
    double least = 1e9;
    for (std::size_t i = 1; i < path.size(); ++i) {
        const double ax = path[i - 1].x, ay = path[i - 1].y, dx = path[i].x - ax, dy = path[i].y - ay;
        const double length = dx * dx + dy * dy;
        const double t = length > 0 ? std::clamp(((p.x - ax) * dx + (p.y - ay) * dy) / length, 0.0, 1.0) : 0;
        least = std::min(least, std::hypot(p.x - ax - t * dx, p.y - ay - t * dy));
    }
    return least;
}

// What the map shows just before a fix is what is then flown.
TEST(LateralFlightTest, TurnsAreDrawnAsTheyAreFlown) {
    const struct {
        const char* what;
        Air air;
        Fix next;  // behind a leg to the east along 47 degrees north, to 121 degrees west
        int flyover;
    } kCases[] = {
        {"slow, square", {3000, 180, 0, 0}, {47.6, -121}, 0},
        {"climb, slight", {9000, 250, 0, 0}, {47.3, -120.3}, 0},
        {"climb, sharp", {9000, 250, 0, 0}, {46.6, -121.4}, 0},
        {"climb, overflown", {9000, 250, 0, 0}, {47.6, -121}, 1},
        {"fast, square", {20000, 290, 0, 0}, {46.3, -121}, 0},
        {"cruise", {36000, 280, 0, 0}, {46.5, -119.8}, 0},
        {"cruise, square", {36000, 280, 0, 0}, {48.2, -121}, 0},
        {"wind across", {9000, 250, 0, 30}, {47.6, -121}, 0},
    };
    for (const auto& row : kCases) {
        SCOPED_TRACE(row.what);
        const FakeHost fake;
        LateralFlight flight({{47, -121.8}, {47, -121}, row.next, {row.next.lat, row.next.lon + 0.01}},
                             row.air);
        plan.active.legs[1].flyover = row.flyover;
        MapView view{.lat = 47, .lon = -121, .scale = 10, .range = 40, .seen = {-500, -500, 500, 500}};
        OrientMap(view);
        std::vector<PaintPoint> drawn;
        while (plan.active.stpos == 1 && flight.seconds < 3600) {
            if (lnav.wpt_dist < 12) drawn = DrawnPath(view);
            flight.Tick();
        }
        ASSERT_GT(drawn.size(), 4U);
        double worst = 0;
        for (int seconds = 0; seconds < 120 && plan.active.stpos == 2; ++seconds) {
            for (int tick = 0; tick < 18; ++tick) flight.Tick();
            worst =
                std::max(worst, DistanceToPath(PointOnMap(view, sim.plane_lat, sim.plane_lon), drawn) / 10);
        }
        EXPECT_LT(worst, 0.3);
    }
}

TEST(LateralFlightTest, AHoldIsFlownUntilItsExitIsExecuted) {
    const FakeHost fake;
    LateralFlight flight({{47, -122}, {47, -121}, {47, -119}}, {14000, 230, 250, 40});
    HoldRecord& hold = plan.HoldList[1];
    plan.hold_cnt = 1;
    hold.leg = plan.active.legs[1].hold_pos = 1;
    hold.inbound_crs = 73;
    hold.magvar = 17;
    hold.points[0].lat = 47;
    hold.points[0].lon = -121;
    int rounds = 0, last_point = 0;
    double farthest = 0;
    while (rounds < 3 && flight.seconds < 3600) {
        flight.Tick();
        if (lnav.hold_point == 1 && last_point == 4) ++rounds;
        last_point = lnav.hold_point;
        if (lnav.holding == 1)
            farthest = std::max(farthest, GreatCircle(sim.plane_lat, sim.plane_lon, 47, -121).dist);
    }
    EXPECT_EQ(rounds, 3);
    EXPECT_EQ(plan.active.stpos, 1);
    EXPECT_LT(farthest, 1.5 * hold.leg_dist * 1.5);
    lnav.hold_exit = 3;
    for (int i = 0; i < 18; ++i) flight.Tick();
    EXPECT_EQ(plan.active.stpos, 2);
    while (lnav.plan_finished == 0 && flight.seconds < 7200) flight.Tick();
    EXPECT_LT(GreatCircle(sim.plane_lat, sim.plane_lon, 47, -119).dist, 2);
}

}  // namespace
