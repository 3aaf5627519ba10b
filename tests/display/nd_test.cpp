#include <gtest/gtest.h>

#include <cmath>
#include <regex>
#include <sstream>
#include <string>

#include "display/formats/clicks.h"
#include "display/nd/map_view.h"
#include "display/nd/nd_picture.h"
#include "display/nd/turn_shape.h"
#include "display/routing/nd_controls.h"
#include "state/autoflight.h"
#include "state/cdu.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/displays.h"
#include "state/fix_info.h"
#include "state/irs.h"
#include "state/leg_words.h"
#include "state/lnav.h"
#include "state/nd.h"
#include "state/nearest.h"
#include "state/plan.h"
#include "state/sim.h"
#include "state/vnav.h"
#include "support/fake_host.h"

namespace {

// --- geometry

MapView View(double lat, double lon, double up, double range = 40) {
    MapView view{
        .lat = lat, .lon = lon, .up = up, .scale = 2, .range = range, .seen = {-100, -100, 100, 100}};
    OrientMap(view);
    return view;
}

TEST(MapView, PlacesStandByDistanceAndBearing) {
    // A degree is 60 nm, which are 120 units here.
    const struct {
        double lat, lon, up, place_lat, place_lon, x, y;
    } kCases[] = {
        {10, 20, 0, 11, 20, 0, -120},  {0, 20, 0, 0, 21, 120, 0},        {10, 20, 90, 11, 20, -120, 0},
        {10, 20, 180, 11, 20, 0, 120}, {0, 179.5, 0, 0, -179.5, 120, 0}, {0, -179.5, 270, 0, 179.5, 0, -120},
        {90, 0, 0, 89, 90, 120, 0},    {-90, 0, 0, -89, 0, 0, -120},     {10, 20, 45, 10, 20, 0, 0},
    };
    for (const auto& row : kCases) {
        const MapPoint p = PointOnMap(View(row.lat, row.lon, row.up), row.place_lat, row.place_lon);
        EXPECT_NEAR(p.x, row.x, 1e-6) << row.lat << " " << row.lon << " " << row.up;
        EXPECT_NEAR(p.y, row.y, 1e-6) << row.lat << " " << row.lon << " " << row.up;
    }
    // Opposite, and a centre that is none.
    const MapPoint opposite = PointOnMap(View(10, 20, 0), -10, -160);
    EXPECT_TRUE(std::isfinite(opposite.x) && std::isfinite(opposite.y));
    EXPECT_EQ(View(std::nan(""), 7, 0).lat, 0);
}

TEST(MapView, FarPlacesAndLegsAreOutOfReach) {
    const struct {
        double lat, lon, range, place_lat, place_lon;
        bool reached;
    } kPlaces[] = {
        // 1.5 times 40 and 10 nm are 70: 1.1667 degrees
        {0, 0, 40, 1.16, 0, true},   {0, 0, 40, 1.17, 0, false},  {0, 179.9, 40, 0, -179.9, true},
        {60, 0, 40, 60, 2.33, true}, {60, 0, 40, 60, 2.4, false}, {89.5, 0, 40, 89.5, 180, true},
        {0, 0, 40, 0, -1.17, false},
    };
    for (const auto& row : kPlaces)
        EXPECT_EQ(IsInReach(View(row.lat, row.lon, 0, row.range), row.place_lat, row.place_lon), row.reached)
            << row.place_lat << " " << row.place_lon;
    const MapView view = View(50, 0, 0);
    EXPECT_TRUE(IsLegInReach(view, 50, -9, 50, 9)) << "both ends far, to either side";
    EXPECT_TRUE(IsLegInReach(view, 30, 0, 70, 0));
    EXPECT_FALSE(IsLegInReach(view, 55, -1, 60, 1));
    EXPECT_FALSE(IsLegInReach(view, 50, 4, 50, 9));
    EXPECT_TRUE(IsLegInReach(View(40, 180, 0), 40, 179, 40, -179));
    EXPECT_TRUE(IsLegInReach(view, 45, -60, 45, 60)) << "swells over the view";
}

double Farthest(const TurnShape& shape, double (*of)(PaintPoint)) {
    double most = -1e9;
    for (const PaintPoint& p : shape.All()) most = std::max(most, of(p));
    return most;
}

// From a leg that comes up the screen onto one to the right, ten units to a mile.
TEST(TurnShape, LeadsFromOneLegOntoTheOther) {
    const MapPoint before{0, 400}, fix{0, 0}, after{400, 0};
    // At 250 kt and 28 degrees of bank the radius is 250^2 / (11.26 tan 28) = 10439 ft = 1.72 nm: begun two
    // miles before the fix the turn stays inside of it, and cuts the corner by (sqrt 2 - 1) of two miles at
    // the least.
    const TurnShape inside =
        ShapeTurn(before, fix, after, {.angle = 90, .radius = 2, .begins = 2}, 250, 10, 1000);
    ASSERT_GT(inside.count, 5U);
    EXPECT_NEAR(inside.leaves, 20, 1e-9);
    EXPECT_NEAR(inside.points[0].y, 20, 1e-4);
    EXPECT_NEAR(inside.All().back().y, 0, 1e-4) << "on the next leg";
    EXPECT_NEAR(inside.All().back().x, inside.joins, 1e-4);
    EXPECT_LT(Farthest(inside, [](PaintPoint p) { return -static_cast<double>(p.y); }), 0.6)
        << "nothing beyond it";
    EXPECT_NEAR(Farthest(inside, [](PaintPoint p) { return -std::hypot(static_cast<double>(p.x), p.y); }),
                -8.9, 0.9)
        << "the corner cut";
    // Begun half a mile before, of which the roll takes a part, the radius carries the aircraft over by 1.36.
    const TurnShape over =
        ShapeTurn(before, fix, after, {.angle = 90, .radius = 2, .begins = 0.5}, 250, 10, 1000);
    EXPECT_NEAR(Farthest(over, [](PaintPoint p) { return -static_cast<double>(p.y); }), 13.6, 2);
    // To the left it is the same, mirrored.
    const TurnShape left =
        ShapeTurn(before, fix, {-400, 0}, {.angle = 90, .radius = 2, .begins = 2}, 250, 10, 1000);
    ASSERT_EQ(left.count, inside.count);
    for (std::size_t i = 0; i < left.count; ++i) EXPECT_NEAR(left.points[i].x, -inside.points[i].x, 1e-3);
    // Corners: a small change, turns too small to be seen, legs of no length; and a turn longer than its leg.
    const FixTurn turn{.angle = 90, .radius = 2, .begins = 2};
    EXPECT_EQ(ShapeTurn(before, fix, {80, -400}, turn, 250, 10, 1000).count, 0U);
    EXPECT_EQ(ShapeTurn(before, fix, after, turn, 250, 0.1, 1000).count, 0U);
    EXPECT_EQ(ShapeTurn(fix, fix, after, turn, 250, 10, 1000).count, 0U);
    EXPECT_GT(ShapeTurn(before, fix, {0, 400}, turn, 250, 10, 1000).count, 5U) << "straight back";
    EXPECT_EQ(ShapeTurn(before, fix, after, turn, 250, 10, 7).leaves, 7);
}

// --- pictures

class NdPicture : public testing::Test {
  protected:
    NdPicture() {
        irs.irs_left = 1;
        sim.plane_lat = 47;
        sim.plane_lon = -122;
        sim.ground_speed_kt = 360;
        sim.radio_alt_ft = 5000;
        sim.ind_alt_ft = 10000;
        sim.apalt = 20000;
    }
    // One line for each primitive.
    std::string Draw(bool wide = false) {
        Graphics graphics = GdipCreateGraphics(list, 564, 424);
        DrawNdPicture(graphics, 1, 1, wide);
        std::string text;
        for (const Primitive& primitive : list.primitives) text += DescribePrimitive(list, primitive) + "\n";
        return text;
    }
    // The text, with its place, that begins so; empty when there is none.
    std::string TextLine(const std::string& text) {
        std::istringstream lines(Draw());
        for (std::string line; std::getline(lines, line);)
            if (line.starts_with("text ") && line.ends_with('"' + text + '"')) return line;
        return {};
    }
    bool Shows(const std::string& text) { return !TextLine(text).empty(); }
    // Legs 0 to `last` up the meridian of the aircraft, half a degree from one to the next.
    static void PutRoute(int last) {
        for (RouteVersion* route : {&plan.active, &plan.mod}) {
            for (int i = 0; i <= last; ++i) {
                FlightPlanLeg& leg = route->legs[i];
                leg.ident = "LEG" + std::to_string(i);
                leg.type = "INT";
                leg.lat = 46.5 + 0.5 * i;
                leg.lon = -122;
            }
            route->leg_cnt = last;
            route->stpos = 1;
            route->active_leg = {.from = "LEG0",
                                 .from_lat = 46.5,
                                 .from_lon = -122,
                                 .to = "LEG1",
                                 .to_lat = 47,
                                 .to_lon = -122};
        }
        plan.fms_fpln_active = kRouteActive;
    }
    FakeHost host;
    DrawList list;
    NdSide& side = NdOf(1);
};

TEST_F(NdPicture, RangesAndTheirLabels) {
    const struct {
        double range;
        const char *arc, *centred, *above_vsd;  // half, a quarter, and half of it
    } kCases[] = {{0.5, "0.25", "0.125", "0.250"}, {1, "0.50", "0.250", "0.50"}, {2, "1", "0.50", "1.0"},
                  {5, "2.5", "1.25", "2.50"},      {10, "5", "2.50", "5.0"},     {20, "10", "5", "10"},
                  {640, "320", "160", "320"},      {1280, "640", "320", "640"}};
    for (const auto& row : kCases) {
        side.rng_nm = row.range;
        side.nd_ctr = side.nd_vsd = 0;
        EXPECT_TRUE(Shows(row.arc)) << row.range;
        side.nd_ctr = 1;
        EXPECT_TRUE(Shows(row.centred)) << row.range;
        side.nd_vsd = 1;
        EXPECT_TRUE(Shows(row.above_vsd)) << row.range;
    }
    // What no knob could have set: the knob's own range stands.
    side.rng_knob = 99;
    for (const double range : {0.0, -40.0, 41.0, 1e300, std::nan("")}) {
        side.rng_nm = range;
        EXPECT_EQ(SelectedRange(1), 1280) << range;
        EXPECT_FALSE(Draw().empty());
    }
    side.nd_mode = side.nd_menu = side.nd_ctr = side.plan_step = side.nd_pick_use = side.nd_pick_pending = -7;
    side.plan_lat = 1e9;
    EXPECT_TRUE(Shows("MAP")) << "an unknown mode is MAP";
    side.nd_mode = kNdPlan;
    EXPECT_FALSE(Draw().empty());
}

TEST_F(NdPicture, LayoutsPutTheMapWhereTheirTableSays) {
    const struct {
        int mode, ctr, vsd;
        double x, y;  // of a place 10 nm north, in the display's frame
    } kCases[] = {
        // 300 units are 40 nm; 90 units 20 nm; and so with the VSD: 180, 40; 45, 20; PLAN 240, 40
        {3, 0, 0, 141, 356 - 75},   {3, 1, 0, 141, 213 - 45}, {3, 0, 1, 141, 235 - 45},
        {3, 1, 1, 141, 158 - 22.5}, {4, 1, 1, 141, 213 - 60},
    };
    cfg.NdFontSizeAdj = 2;
    for (const auto& row : kCases) {
        side.nd_mode = row.mode;
        side.nd_ctr = row.ctr;
        side.nd_vsd = row.vsd;
        fix_info.FixPages[1] = {"HERE", 47 + 10.0 / 60, -122, {}};
        // The label stands 8 right of the point and 2 below, its baseline an ascent lower, a sixth of an em
        // in.
        const std::string line = TextLine("HERE");
        double x = 0, y = 0, size = 0;
        ASSERT_EQ(std::sscanf(line.c_str(), "text %lf %lf %lf", &x, &y, &size), 3) << line;
        EXPECT_EQ(size, 12);
        EXPECT_NEAR(x, row.x + 8 + 2, 0.01) << row.ctr << row.vsd;
        EXPECT_NEAR(y, row.y + 2 + 12 * 0.985, 0.5) << row.ctr << row.vsd;
    }
}

TEST_F(NdPicture, CompassTurnsWithTheReference) {
    const std::string kBug = "stroke 255,19,213,255 1 M 141 56 ";
    sim.mag_hdg = 350;
    sim.mag_track_deg = 358;
    sim.mgvar = 15;
    sim.true_hdg = 5;
    sim.ap_hdgbug = 350;
    EXPECT_NE(Draw().find(kBug), std::string::npos) << "heading up, and the bug on it";
    sim.ap_hdgbug = 355;
    EXPECT_EQ(Draw().find(kBug), std::string::npos);
    cockpit.hdg_trk_mode = 1;
    sim.ap_hdgbug = 358;
    EXPECT_NE(Draw().find(kBug), std::string::npos) << "track up";
    EXPECT_TRUE(Shows("TRK") && Shows("358"));
    cockpit.hdg_trk_mode = 0;
    cockpit.TZ_OH_HDG_REF_Button = 1;
    sim.ap_hdgbug = 5;
    EXPECT_NE(Draw().find(kBug), std::string::npos) << "true";
    EXPECT_TRUE(Shows("TRU") && Shows("36") && Shows("005"));
    // A place due true north stands left of the top by the true direction of the top.
    cockpit.TZ_OH_HDG_REF_Button = 0;
    side.nd_ctr = 1;
    fix_info.FixPages[1] = {"NORTH", 48, -122, {}};
    const std::string magnetic = TextLine("NORTH");
    cockpit.TZ_OH_HDG_REF_Button = 1;
    EXPECT_EQ(TextLine("NORTH"), magnetic) << "the map itself doesn't turn";
    // The line to the bug goes when LNAV follows the route, until the bug is moved.
    const auto dashed = [&] {
        return Draw().find("stroke 255,19,213,255 1 dash 10,10,10,10") != std::string::npos;
    };
    EXPECT_TRUE(dashed());
    autoflight.ap_lat_mode = 6;
    EXPECT_FALSE(dashed());
    nd_memory.hdg_sel_timer = 1;
    EXPECT_TRUE(dashed());
}

TEST_F(NdPicture, WithoutAnyIrsThereIsNoMap) {
    PutRoute(3);
    side.nd_wpt = side.nd_data = side.nd_vor_l = 1;
    sim.nav1_radial = 20;
    EXPECT_NE(Draw().find("255,19,213"), std::string::npos);
    irs = {.irs_timer_l = 90, .irs_timer_r = 40};
    const std::string picture = Draw();
    EXPECT_EQ(picture.find("stroke 255,19,213"), std::string::npos) << "no route, no bug";
    EXPECT_EQ(picture.find("\"GS\""), std::string::npos);
    EXPECT_TRUE(Shows("LEG1") && Shows("------") && Shows("----")) << "nobody knows how far it is";
    sim.tas_kt = 400;
    EXPECT_TRUE(Shows("TAS") && Shows("400")) << "the air data needs none";
    EXPECT_NE(TextLine("TRK").find("233,183,62"), std::string::npos);
    sim.ground_speed_kt = 4;
    sim.on_ground = 1;
    EXPECT_TRUE(Shows("ALIGN") && Shows("2")) << "40 ticks, cut to seconds";
    irs = {.irs_timer_l = 90};
    EXPECT_TRUE(Shows("5")) << "only one runs";
    irs = {.irs_right = 1};
    EXPECT_TRUE(Shows("GS"));
}

TEST_F(NdPicture, NextWaypointAndItsTime) {
    EXPECT_TRUE(Shows("------") && Shows("----"));
    PutRoute(2);
    lnav.wpt_dist = 33;  // 5.5 minutes at 360 kt
    sim.utc_hours = 23;
    sim.utc_minutes = 55;
    EXPECT_TRUE(Shows("LEG1") && Shows("     33.0") && Shows("0000.5"));
    sim.utc_seconds = 29;
    EXPECT_TRUE(Shows("0000.9")) << "cut, not rounded";
    sim.ground_speed_kt = 50;
    EXPECT_TRUE(Shows("------"));
    lnav.wpt_dist = -1;
    EXPECT_TRUE(Shows("      0.0"));
    lnav.xtk_shown = 0.85;
    EXPECT_FALSE(Shows("L"));
    lnav.xtk_shown = 0.9;
    lnav.xtk_side_shown = 1;
    EXPECT_TRUE(Shows("L") && Shows("0.9"));
    plan.active.stpos = kNoPlan;
    EXPECT_FALSE(Shows("L"));
}

TEST_F(NdPicture, RoutePensByWhatALegIs) {
    PutRoute(4);
    side.rng_nm = 160;
    const std::string kMagentaLine = "stroke 255,19,213,255 2 M", kCyanLine = "stroke 2,167,235,255 2 ";
    std::string picture = Draw();
    EXPECT_NE(picture.find(kMagentaLine), std::string::npos);
    EXPECT_EQ(picture.find(kCyanLine), std::string::npos);
    plan.active.legs[3].via = kMissedVia;  // and the way back to the airport behind it
    plan.HoldList[1].leg = 3;
    plan.hold_cnt = 1;
    picture = Draw();  // each leg of 30 nm is 56.25 units long
    EXPECT_NE(picture.find(kMagentaLine + " 141 412.25 L 141 356 L 141 299.75\n"), std::string::npos);
    EXPECT_NE(picture.find(kCyanLine + "M 141 299.75 L 141 243.5 L 141 187.25\n"), std::string::npos);
    EXPECT_NE(picture.find(kCyanLine + "dash 6,2"), std::string::npos) << "its hold, not entered";
    plan.hold_cnt = 0;
    plan.active.stpos = 3;
    EXPECT_EQ(Draw().find(kCyanLine), std::string::npos) << "until it is flown";
    plan.active.stpos = 1;
    plan.active.legs[3].via = "";
    plan.active.legs[3].ident = kDiscoIdent;
    plan.active.legs[2].lat = 47.5;
    picture = Draw();  // two legs of 30 nm up to LEG2, 56.25 units each, and none behind the gap
    EXPECT_NE(picture.find(kMagentaLine + " 141 412.25 L 141 356 L 141 299.75\n"), std::string::npos)
        << picture;
    plan.fms_fpln_active = kRouteModified;
    EXPECT_NE(Draw().find(kCyanLine + "dash 6,2"), std::string::npos);
    plan.fms_fpln_active = kRouteEntered;
    picture = Draw();
    EXPECT_EQ(picture.find(kMagentaLine), std::string::npos);
    EXPECT_NE(picture.find(kCyanLine + "dash 6,2"), std::string::npos);
    plan.fms_fpln_active = kRouteNone;
    EXPECT_EQ(Draw().find(kCyanLine), std::string::npos);
    // The corridor goes with a track that is followed, above a VSD; else there is the strip ahead.
    plan.fms_fpln_active = kRouteActive;
    side.nd_vsd = 1;
    EXPECT_NE(Draw().find("stroke 2,167,235,255 1 dash 3,1 M 133 235 L 133 55"), std::string::npos);
    autoflight.ap_lat_mode_armed = 7;
    picture = Draw();
    EXPECT_EQ(picture.find("M 133 235"), std::string::npos);
    EXPECT_NE(picture.find("stroke 2,167,235,255 2.2 dash 2.75,2.75"), std::string::npos)
        << "11 wide: 0.2, 0.25";
}

TEST_F(NdPicture, LabelsAndDataAlongTheRoute) {
    PutRoute(4);
    side.rng_nm = 160;
    lnav.wpt_dist = 0;
    plan.active.legs[2].alt_restr = 7000;
    plan.active.legs[2].restr_code = kAltitudeRestr;
    plan.active.legs[3].ident = "RW16";
    EXPECT_NE(TextLine("LEG2").find("222,230,233"), std::string::npos);
    std::istringstream lines(Draw());
    bool magenta = false;
    for (std::string line; std::getline(lines, line);)
        magenta = magenta || (line.ends_with("10 Velarion900DispL 255,19,213 \"LEG1\""));
    EXPECT_TRUE(magenta) << "on the map the leg that is flown";
    EXPECT_TRUE(Shows("RW16"));
    EXPECT_FALSE(Shows("7000"));
    side.nd_data = 1;
    sim.utc_hours = 10;
    EXPECT_TRUE(Shows("7000") && Shows("1005Z")) << "30 nm at 360 kt";
    plan.active.legs[3].via = kMissedVia;
    EXPECT_FALSE(Shows("RW16"));
    plan.active.legs[3] = plan.active.legs[2];
    plan.active.legs[3].ident = "TWIN";
    EXPECT_TRUE(Shows("LEG2") && Shows("TWIN")) << "each has its name, though they stand on one spot";
    sim.ground_speed_kt = 100;
    EXPECT_FALSE(Shows("1018Z"));
    vnav.toc_lat = vnav.tod_lat = vnav.step_lat = 47.8;
    vnav.toc_lon = vnav.tod_lon = vnav.step_lon = -122;
    EXPECT_TRUE(Shows("T/C") && Shows("S/C") && Shows("T/D"));
    vnav.toc = 1;
    EXPECT_TRUE(!Shows("T/C") && Shows("T/D"));
    vnav.tod = 1;
    EXPECT_FALSE(Shows("T/D"));
}

TEST_F(NdPicture, VectorsAndArcs) {
    const auto trend_lines = [&] {
        const std::string picture = Draw();
        int count = 0;
        // They begin or go on at the aircraft's axis, 13 points each.
        for (std::size_t at = 0;
             (at = picture.find("stroke 222,230,233,255 1 M 141 ", at)) != std::string::npos; ++at) {
            const std::string line = picture.substr(at, picture.find('\n', at) - at);
            count += static_cast<int>(std::count(line.begin(), line.end(), 'L')) == 12;
        }
        return count;
    };
    sim.bank_deg = 0;
    side.rng_nm = 10;
    EXPECT_EQ(trend_lines(), 1);
    side.rng_nm = 20;
    EXPECT_EQ(trend_lines(), 2);
    side.rng_nm = 40;
    EXPECT_EQ(trend_lines(), 3);
    // In a turn of 25 degrees at 360 kt the radius is 360^2 / (11.23 tan 25) = 24750 ft; after 30 s the
    // aircraft has turned 42.2 degrees. 40 nm are 300 units: 7.9 units to the right, 20.5 up.
    sim.bank_deg = -25;
    EXPECT_NE(Draw().find("148.9"), std::string::npos);
    const auto draws_arc = [&] {
        return std::regex_search(Draw(), std::regex("stroke 0,250,0,255 2 M [^L\\n]* C"));
    };
    sim.ind_alt_ft = 10000;
    sim.apalt = 8000;
    sim.vs_fpm = -200;
    EXPECT_FALSE(draws_arc());
    sim.vs_fpm = -1000;  // two minutes, 12 nm, 90 units ahead
    EXPECT_TRUE(draws_arc());
    sim.apalt = 10000;
    EXPECT_FALSE(draws_arc());
}

TEST_F(NdPicture, VnavScaleMovesItsPointerOnly) {
    PutRoute(2);
    EXPECT_FALSE(Shows("400"));
    vnav.tod = 1;
    vnav.dist_from_tod_to_bod = 50;
    vnav.dist_from_bod = 20;
    vnav.desc_grad_alt = 9800;
    // 200 ft above the path: half of 30 units down from 96, in a frame that begins at 235
    EXPECT_NE(Draw().find("stroke 255,19,213,255 2 M 274 380 L 274 320"), std::string::npos);
    const std::string scale = TextLine("400");
    vnav.desc_grad_alt = 5000;
    EXPECT_TRUE(Shows(" 5000"));
    EXPECT_EQ(TextLine("400"), scale);
    vnav.dist_from_bod = 60;
    EXPECT_NE(Draw().find("M 274 365 L 274 305"), std::string::npos) << "behind the end of the descent";
}

TEST_F(NdPicture, RingsHoldsAndPointers) {
    fix_info.FixPages[2] = {"FIXX", 47.1, -122, {{{}, {.dist = 5}, {.bearing = 90}, {}}}};
    EXPECT_TRUE(Shows("FIXX") && Shows("5.0") && Shows("090"));
    fix_info.FixPages[2].ident = "";
    EXPECT_FALSE(Shows("5.0"));
    PutRoute(2);
    plan.HoldList[1].ident = "LEG2";
    plan.HoldList[1].leg = 2;
    plan.hold_cnt = 1;
    const std::string kWhiteHold = "stroke 222,230,233,255 2 dash";
    EXPECT_NE(Draw().find(kWhiteHold), std::string::npos);
    plan.active.stpos = 2;
    EXPECT_NE(Draw().find("stroke 255,19,213,255 2 dash"), std::string::npos) << "not entered";
    lnav.holding = 1;
    EXPECT_EQ(Draw().find("stroke 255,19,213,255 2 dash"), std::string::npos);
    // The left needle's head is a filled triangle; the receiver tells the way to the station.
    side.nd_vor_l = 1;
    sim.nav1_radial = 360;
    EXPECT_NE(Draw().find("fill 0,250,0,255 M 141 56 L 146 64 L 136 64"), std::string::npos);
    sim.nav1_radial = 0;
    EXPECT_EQ(Draw().find("fill 0,250,0,255 M"), std::string::npos) << "none";
}

TEST_F(NdPicture, LayersByRange) {
    const auto put = [](auto& near, auto row) {
        near.rows[1] = row;
        near.cnt = 1;
    };
    put(nearest.around.close_airports, AirportRow{"KABCDEF", "", 47.05, -122, 0, ""});
    put(nearest.around.airports.near, AirportRow{"KABCDEF", "", 47.05, -122, 0, ""});
    put(nearest.around.fixes.near, AirwayFixRow{"FIXES", 47.03, -122});
    put(nearest.around.navaids.near, NavaidRow{"NAV", "", 47.04, -122, "V", ""});
    side.nd_apt = side.nd_wpt = side.nd_sta = 1;
    const struct {
        double range;
        bool airport, fix, station;
    } kCases[] = {{5, true, true, false},  {10, true, true, true},   {40, true, true, true},
                  {80, true, false, true}, {640, true, false, true}, {1280, true, false, false}};
    for (const auto& row : kCases) {
        side.rng_nm = row.range;
        EXPECT_EQ(Shows("KABCD"), row.airport) << row.range;
        EXPECT_EQ(Shows("FIXES"), row.fix) << row.range;
        EXPECT_EQ(Shows("NAV"), row.station) << row.range;
    }
    side.nd_apt = side.nd_wpt = side.nd_sta = 0;
    side.rng_nm = 40;
    EXPECT_FALSE(Shows("KABCD") || Shows("FIXES") || Shows("NAV"));
    EXPECT_FALSE(Shows("TCAS"));
    side.nd_tfc = 2;
    EXPECT_TRUE(Shows("TCAS") && Shows("OFF"));
    cockpit.TZ_AFT_Transponder_Knob = 3;
    EXPECT_TRUE(Shows("TA ONLY"));
    cockpit.TZ_AFT_Transponder_Knob = 4;
    EXPECT_TRUE(Shows("TFC"));
}

TEST_F(NdPicture, PlanStandsStillAroundItsCentre) {
    PutRoute(3);
    side.nd_mode = kNdPlan;
    side.plan_step = 2;  // half a degree north of the aircraft
    sim.mag_hdg = sim.true_hdg = 90;
    EXPECT_TRUE(Shows("N") && Shows("E") && !Shows("RNP") && Shows("LEG2"));
    // 30 nm are 180 units: the outline's nose is 5 ahead of it, to the east.
    EXPECT_NE(Draw().find("M 146 393"), std::string::npos);
    side.rng_nm = 80;
    EXPECT_NE(Draw().find("M 146 303"), std::string::npos);
    side.plan_step = 77;
    EXPECT_NE(Draw().find("M 146 213"), std::string::npos) << "no such leg: the aircraft";
    side.plan_lat = 48;
    side.plan_lon = -122;
    EXPECT_NE(Draw().find("M 146 393"), std::string::npos) << "an entered centre";
    side.rng_nm = 2.5;
    EXPECT_FALSE(Draw().empty());
}

// --- keys

TEST(NdKeys, EachTouchAreaHasItsOwn) {
    const struct {
        int mode, x, y;
        int NdSide::*flag;
        int becomes;
    } kCases[] = {
        {3, 7, 0, &NdSide::nd_mode, 3},
        {3, 111, 24, &NdSide::nd_mode, 4},
        {3, 216, 10, &NdSide::nd_mode, 3},
        {4, 109, 10, &NdSide::nd_mode, 3},
        {3, 230, 10, &NdSide::nd_menu, 0},
        {3, 218, 36, &NdSide::nd_vsd, 1},
        {3, 276, 50, &NdSide::nd_vsd, 1},
        {3, 220, 51, &NdSide::nd_vsd, 0},
        {3, 220, 57, &NdSide::nd_wxr, 1},
        {3, 220, 85, &NdSide::nd_terr, 1},
        {3, 220, 95, &NdSide::nd_tfc, 1},
        {3, 220, 126, &NdSide::nd_apt, 1},
        {3, 220, 131, &NdSide::nd_wpt, 1},
        {3, 220, 165, &NdSide::nd_sta, 1},
        {3, 220, 168, &NdSide::nd_pos, 1},
        {3, 220, 200, &NdSide::nd_data, 1},
        {3, 220, 210, &NdSide::nd_vor_l, 1},
        {3, 220, 242, &NdSide::nd_vor_r, 1},
        {3, 230, 300, &NdSide::nd_menu, 0},
        {3, 230, 170, &NdSide::nd_menu, 1},
        {4, 220, 44, &NdSide::nd_apt, 1},
        {4, 220, 76, &NdSide::nd_wpt, 1},
        {4, 220, 81, &NdSide::nd_sta, 1},
        {4, 220, 113, &NdSide::nd_data, 1},
        {4, 230, 170, &NdSide::nd_menu, 0},
        {4, 230, 300, &NdSide::nd_menu, 1},
        {4, 118, 400, &NdSide::nd_pick_pending, 1},
        {4, 180, 416, &NdSide::nd_pick_use, 2},
        {4, 250, 394, &NdSide::nd_pick_pending, 1},
        {3, 118, 400, &NdSide::nd_pick_pending, 0},
    };
    for (const auto& row : kCases)
        for (const bool wide : {false, true}) {
            const FakeHost host;
            displays.du_capt_inb_mode = wide ? 47 : 42;
            NdSide& side = NdOf(1);
            side.nd_mode = row.mode;
            side.nd_menu = 1;
            OnDisplayUnitClick(row.x + (wide ? 141 : 0), row.y, 2);
            EXPECT_EQ(side.*row.flag, row.becomes) << row.mode << ": " << row.x << ", " << row.y;
        }
    const FakeHost host;
    displays.du_capt_inb_mode = 42;
    NdSide& side = NdOf(1);
    OnDisplayUnitClick(220, 57, 2);
    EXPECT_EQ(side.nd_wxr, 0) << "a closed menu takes nothing";
    side.nd_menu = 1;
    side.nd_wxr = side.nd_wxr_lamp = side.nd_tfc = 2;
    OnDisplayUnitClick(220, 80, 2);
    EXPECT_TRUE(side.nd_terr == 1 && side.nd_wxr == 0 && side.nd_wxr_lamp == 0);
    OnDisplayUnitClick(220, 100, 2);
    EXPECT_EQ(side.nd_tfc, 0) << "from either";
    OnDisplayUnitClick(220, 60, 2);
    EXPECT_TRUE(side.nd_wxr == 1 && side.nd_terr == 0);
}

TEST(NdKeys, PlanIsCentredAndPicked) {
    const FakeHost host;
    displays.du_capt_inb_mode = 42;
    NdSide& side = NdOf(1);
    sim.plane_lat = 47;
    sim.plane_lon = -122;
    OnDisplayUnitClick(150, 10, 2);
    EXPECT_TRUE(side.plan_lat == 47 && side.plan_lon == -122);
    plan.mod.legs[1].ident = "DEST";
    plan.mod.legs[1].lat = 40;
    plan.mod.legs[1].lon = -100;
    plan.mod.leg_cnt = 1;
    OnDisplayUnitClick(80, 400, 2);
    EXPECT_TRUE(side.plan_lat == 40 && side.plan_lon == -100);
    OnDisplayUnitClick(20, 400, 2);
    EXPECT_EQ(side.plan_lat, 47);
    side.rng_nm = 40;                 // 240 units
    OnDisplayUnitClick(180, 400, 2);  // CTR ON
    OnDisplayUnitClick(141, 213 - 60, 2);
    EXPECT_NEAR(side.plan_lat, 47 + 10.0 / 60, 1e-9);
    EXPECT_EQ(side.nd_pick_pending, 0);
    OnDisplayUnitClick(250, 400, 2);  // PICK WPT
    OnDisplayUnitClick(141, 213, 2);
    EXPECT_EQ(CduOf(1).ScratchPad, "N4710.0W12200.0");
    nearest.around_plan[0].airports.near.rows[1] = AirportRow{"KAPT", "", 47 + 10.5 / 60, -122, 0, ""};
    nearest.around_plan[0].airports.near.cnt = 1;
    side.nd_apt = 1;
    OnDisplayUnitClick(250, 400, 2);
    OnDisplayUnitClick(141, 213, 2);
    EXPECT_EQ(CduOf(1).ScratchPad, "KAPT") << "half a mile from it";
    OnDisplayUnitClick(150, 400, 2);  // CURSOR
    OnDisplayUnitClick(100, 200, 2);
    OnDisplayUnitClick(120, 200, 2);
    EXPECT_TRUE(side.nd_pick_pending == 1 && side.nd_cursor_x == 120) << "it follows each press";
    OnDisplayUnitClick(150, 400, 2);
    EXPECT_EQ(side.nd_pick_pending, 0) << "taken back";
}

// A route of 1,000 legs around the world, over both poles and the date line, on every range.
TEST_F(NdPicture, NothingHangsOnWhatARouteMayHold) {
    PutRoute(1000);
    for (int i = 0; i <= 1000; ++i) {
        FlightPlanLeg& leg = plan.active.legs[i];
        leg.lat = 90 * std::sin(i * 0.7);
        leg.lon = std::remainder(i * 37.0, 360);
        if (i % 11 == 0) leg.ident = i % 2 == 0 ? kDiscoIdent : kVectorsIdent;
        if (i % 13 == 0) leg.lat = plan.active.legs[i > 0 ? i - 1 : 0].lat;
        if (i % 97 == 0) leg.lat = std::nan("");
        leg.flyover = i % 3 == 0;
        leg.alt = i * 40;
    }
    side.nd_data = side.nd_vsd = 1;
    autoflight.ap_lat_mode = 6;
    for (const double lat : {47.0, 90.0, -90.0})
        for (const double range : {0.5, 40.0, 1280.0}) {
            sim.plane_lat = lat;
            sim.plane_lon = 180;
            side.rng_nm = range;
            for (const int mode : {kNdMap, kNdPlan}) {
                side.nd_mode = mode;
                EXPECT_FALSE(Draw().empty());
            }
        }
}

}  // namespace
