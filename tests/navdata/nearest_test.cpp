#include "navdata/nearest.h"

#include <gtest/gtest.h>

#include <string>

#include "base/bcd.h"
#include "navdata/nav_tables.h"
#include "navdata/vor_autotune.h"
#include "state/airports.h"
#include "state/nav.h"
#include "state/nd.h"
#include "state/plan.h"
#include "state/side.h"
#include "state/sim.h"
#include "support/fake_host.h"

namespace {

class NearestTest : public testing::Test {
  protected:
    void Put(std::string_view name, std::string_view text) {
        host.PutFile("Velarion/TZ900/Navdata/" + std::string(name), text);
    }
    void At(double lat, double lon) {
        sim.plane_lat = lat;
        sim.plane_lon = lon;
        RefreshNearest();
    }
    std::string Alternates() const {
        std::string text;
        for (std::size_t i = 1; i < nearest.AltnRows.size(); ++i) text += nearest.AltnRows[i].ident + " ";
        return text;
    }
    FakeHost host;
};

// Fixes every degree (60 nm) up the Greenwich meridian: distances can be counted.
TEST_F(NearestTest, TwoStagesFollowTheReference) {
    std::string fixes;
    for (int lat = 0; lat <= 40; ++lat)
        fixes += "M1 " + std::to_string(lat) + " FIX" + std::to_string(lat + 10) + " " + std::to_string(lat) +
                 " 0\n";
    Put("awys.txt", fixes);
    LoadNavTables();
    At(20.5, 0);
    EXPECT_EQ(nearest.around.fixes.far.cnt, 20) << "9.5 degrees each way";
    EXPECT_EQ(nearest.around.fixes.near.cnt, 6) << "200 nm: 2.5 degrees each way";
    At(21.3, 0);  // 48 nm on: nothing is rebuilt
    EXPECT_EQ(nearest.around.fixes.near.rows[1].lat, 18);
    At(21.5, 0);  // 60 nm: the near list only
    EXPECT_EQ(nearest.around.fixes.near.rows[1].lat, 19);
    EXPECT_EQ(nearest.around.fixes.far.rows[1].lat, 11);
    At(24.5, 0);  // 240 nm: the far list too
    EXPECT_EQ(nearest.around.fixes.far.rows[1].lat, 15);
    nav.nearest_refresh_due = 1;
    At(24.6, 0);
    EXPECT_EQ(nearest.around.fixes.near.lat, 24.6) << "at once when asked";
    EXPECT_EQ(nav.nearest_refresh_due, 0);
    // One map is drawn elsewhere: it has its own, and the aircraft and the other side keep theirs.
    NdOf(kFirstOfficer).nd_mode = kNdPlan;
    NdOf(kFirstOfficer).map_lat = 5;
    At(24.6, 0);
    EXPECT_EQ(PlacesOfMap(kFirstOfficer).fixes.near.rows[1].lat, 2);
    EXPECT_EQ(&PlacesOfMap(kCaptain), &nearest.around);
    EXPECT_EQ(nearest.around.fixes.near.lat, 24.6);
    NdOf(kFirstOfficer).map_lat = 24;
    EXPECT_EQ(&PlacesOfMap(kFirstOfficer), &nearest.around) << "close by";
}

TEST_F(NearestTest, AlternatesByDistanceAroundFixedRows) {
    // ident, minutes of latitude north of the aircraft, runway length
    std::string text;
    for (const auto& [ident, lat, runway] : {std::tuple{"ORIG", 10.1, 9000},
                                             {"FOUR", 10.4, 9000},
                                             {"ONE", 9.9, 4800},
                                             {"SHRT", 10.0, 4799},
                                             {"THRE", 10.3, 9000},
                                             {"DEST", 10.15, 9000},
                                             {"TWO", 9.8, 9000},
                                             {"FIVE", 10.5, 9000}})
        text += std::string(ident) + " N 0 " + std::to_string(lat) + " 0 09_" + std::to_string(runway) +
                "_1_1_90_0_-_0\n";
    Put("apts.txt", text);
    LoadNavTables();
    airports.origin_airport.ident = "ORIG";
    airports.dest_airport.ident = "DEST";
    At(10, 0);
    EXPECT_EQ(Alternates(), "ONE TWO THRE FOUR ");
    nearest.AltnRows[2] = {"FIX", 50, 50, 1, {}};
    BuildAltnList();
    EXPECT_EQ(Alternates(), "ONE FIX TWO THRE ");
    nearest.AltnRows[1] = {"THRE", 10.3, 0, 1, {}};
    BuildAltnList();
    EXPECT_EQ(Alternates(), "THRE FIX ONE TWO ") << "no airport twice";
}

TEST_F(NearestTest, VorsAheadAreTuned) {
    EXPECT_EQ(FrequencyToBcd("113.3"), 0x11330);
    EXPECT_EQ(FrequencyToBcd("108"), 0x10800);
    EXPECT_EQ(FrequencyToBcd("115.955"), 0x11595);
    EXPECT_EQ(FrequencyToBcd("x."), 0);

    Put("navs.txt",
        "BEH B 9.9 0 VOR 110.0\nAH1 A 10.5 0 VOR 113.3\nNDB N 10.1 0 NDB 344\nAH2 A 11 0.1 VOR 116.85\n"
        "AH3 A 12 0 VOR 117.0\nOUT O 16 0 VOR 117.9\n");
    LoadNavTables();
    sim.true_track_deg = 350;
    At(10, 0);
    EXPECT_EQ(nearest.nearest_vor_cnt, 4) << "320 nm, VORs only";
    EXPECT_EQ(nearest.NearestVors[1].ident, "BEH");
    EXPECT_NEAR(nearest.NearestVors[2].dist, 30, 1e-6);
    EXPECT_EQ(nearest.vor_left.ident, "AH1");
    EXPECT_EQ(nearest.vor_right.ident, "AH2");
    using Events = std::vector<std::pair<int, int>>;
    EXPECT_EQ(host.events, (Events{{0x100ac, 0x11330}, {0x100ad, 0x11685}}));

    host.events.clear();
    host.tokens[24] = 0x1330;  // the host has followed on the left
    nearest.VorRightMode = 2;  // the crew tunes the right one
    At(10, 0);
    EXPECT_TRUE(host.events.empty());

    // Along an active leg that runs south from north of the aircraft: bearings count from its start.
    plan.fms_fpln_active = 3;
    plan.active.stpos = 1;
    plan.active.leg_cnt = 1;
    plan.active.legs[0].lat = 10.2;
    plan.active.legs[1].lat = 5;
    At(10, 0);
    EXPECT_EQ(nearest.vor_left.ident, "BEH");
    EXPECT_EQ(nearest.vor_right.ident, "AH2") << "none found, so it keeps the old";
}

}  // namespace
