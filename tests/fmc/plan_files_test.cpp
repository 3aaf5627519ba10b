#include "fmc/files/plan_files.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "fmc/demo_navdata.h"
#include "fmc/files/host_gps_route.h"
#include "fmc/files/route_files.h"
#include "fmc/route_invariants.h"
#include "platform/files.h"
#include "state/cdu.h"
#include "state/cfg.h"
#include "state/leg_words.h"
#include "state/perf.h"
#include "state/requests.h"
#include "state/side.h"
#include "support/file_text.h"

namespace {

constexpr const char* kTemp = "Velarion/TZ900/flightplans/temp.rte";

class PlanFiles : public testing::Test {
  protected:
    PlanFiles() {
        PutRouteNavdata(host);
        plan.active.legs[0] = {};
    }
    std::string Convert(const std::string& text) const {
        host.PutFile("Velarion/TZ900/flightplans/X.PLN", text);
        EXPECT_EQ(ConvertPlanFile("X.PLN"), 0);
        return FileText(host.root / kTemp);
    }
    FakeHost host;
};

// 99 behind the point reads as 99 seconds: 26/60 + 99/3600 = 0.46083; 58/3600 + 18/60 = 0.31611.
TEST_F(PlanFiles, KeysAndValues) {
    const std::string head =
        "[flightplan]\r\ntitle=A to B\r\ndeparture_id=ORIG, N39* 0.00', E10* 0.00', +0\r\n";
    struct Row {
        std::string line, row;
    };
    const Row rows[] = {
        {"waypoint.0=K1, ORIG, , XXXX, A, N47* 26.99', W122* 18.58', +000433.00, ",
         "ORIG     47.46083 -122.31611  APT\n"},
        {"waypoint.1=AAA, V, N47* 26.99', W122* 18.58', +0,", "AAA      47.46083 -122.31611  VOR\n"},
        {"waypoint.2=K1, OED, J1, OED, N, S47* 26.9', E2* 18', +0,", "OED      -47.45833 2.30000  NDB\n"},
        {"waypoint.3=, BTG, , BTG, I, N9* 26.99', W122* 18.58', +0,", "BTG      9.46083 -122.31611  INT\n"},
        {"waypoint.4=AB CD, U, N9* 26.99', W122* 18.58'", "AB_CD    9.46083 -122.31611  INT\n"},
        {"waypoint.5=NOWHERE, I, , ,", ""},
        {"waypoint.6=NOWHERE, I, N97* 0.00', E10* 0.00'", ""},
        {"waypoint.7=", ""},
        {"waypointless=K1, OED, N, S47* 26.9', E2* 18', +0,", ""},
    };
    for (const Row& row : rows) EXPECT_EQ(Convert(head + row.line + "\r\n"), "[FlightPlan]\n" + row.row);
    EXPECT_EQ(Convert(rows[1].line), "[FlightPlan]\n");  // no departure
    EXPECT_EQ(Convert(""), "[FlightPlan]\n");
}

// 26' 59.40" = 0.449833, 18' 42.6" = 0.311833.
TEST_F(PlanFiles, Xml) {
    const auto waypoint = [](const std::string& id, const std::string& type, const std::string& position) {
        const std::string tag = type == "VOR" ? "<ATCWaypoint uid=\"X\" id='" + id + "' r=\"1\">"
                                              : "<ATCWaypoint id=\"" + id + "\">";
        return tag + "\r\n<ATCWaypointType>" + type + "</ATCWaypointType>\r\n<WorldPosition>" + position +
               "</WorldPosition></ATCWaypoint>\n";
    };
    const std::string head =
        "\xef\xbb\xbf<?xml "
        "version=\"1.0\"?><DepartureID>ORIG</DepartureID><DestinationID>DEST</DestinationID>";
    const std::string latin = "N47\xb0 26' 59.40\",W122\xb0 18' 42.60\",+000433.00",
                      utf8 = "S7\xc2\xb0 26' 59.40\",E2\xc2\xb0 18' 42.60\",+000433.00";
    EXPECT_EQ(Convert(head + waypoint("ORIG", "Airport", latin) + waypoint("AAA", "VOR", utf8) +
                      waypoint("BBFIX", "Intersection", latin) + waypoint("U 1", "User", utf8) +
                      waypoint("BAD", "User", "somewhere") + waypoint("", "User", utf8) +
                      "<ATCWaypoint id=\"CUT\">"),
              "[FlightPlan]\nORIG     47.44983 -122.31183  APT\nAAA      -7.44983 2.31183  VOR\n"
              "BBFIX    47.44983 -122.31183  INT\nU_1      -7.44983 2.31183  WPT\n");
    EXPECT_EQ(Convert("<DepartureID></DepartureID>" + waypoint("ORIG", "Airport", latin)), "[FlightPlan]\n");
}

TEST_F(PlanFiles, LoadedLikeAnyRoute) {
    host.PutFile(
        "Plans/trip.pln",
        "departure_id=ORIG, x\nwaypoint.0=ORIG, A, N39* 0.0', E10* 0.0', +0\n"
        "waypoint.1=AAA, I, N40* 0.00', E10* 0.00', +0\nwaypoint.2=DEST, A, N45* 0.00', E10* 0.00', +0\n");
    cfg.FlightPlansFolder = "Plans";
    ASSERT_EQ(LoadCompanyRoute("trip.pln"), 1);
    EXPECT_EQ(Idents(plan.mod.legs, plan.mod.leg_cnt), "ORIG AAA DEST");
    EXPECT_EQ(plan.mod.legs[1].type, "VOR");
    EXPECT_EQ(plan.active.ends.company_route, "TRIP");
    EXPECT_EQ(ListFolder("\\Plans").size(), 1u);  // the converted file lies in the system's own folder
    EXPECT_FALSE(FileText(host.root / kTemp).empty());
    EXPECT_EQ(ConvertPlanFile("gone.pln"), kNotConverted);
    EXPECT_EQ(ConvertPlanFile("..\\Plans\\trip.pln"), kNotConverted);
}

// --- the host's own GPS

class HostGps : public PlanFiles {
  protected:
    HostGps() { host.shared_pointers[kGpsRouteName] = block; }
    template <class T>
    static void Write(unsigned char* bytes, int offset, T value) {
        std::memcpy(bytes + offset, &value, sizeof value);
    }
    void Publish(int size, int count) {
        Write(block, 0, size);
        Write(block, GpsRouteLayout::kWaypointCount, count);
        Write(block, GpsRouteLayout::kWaypoints, static_cast<const unsigned char*>(records));
    }
    void PutWaypoint(int index, const char16_t* ident, double lat, double lon, double metres) {
        unsigned char* record = records + index * GpsRouteLayout::kWaypointSize;
        Write(record, GpsRouteLayout::kLatitude, static_cast<std::int32_t>(lat / 360 * 40007000));
        Write(record, GpsRouteLayout::kLongitude,
              (static_cast<std::int64_t>(lon / 360 * 18446744073709551616.0) & ~0xffffLL) | 0xabcd);
        Write(record, GpsRouteLayout::kAltitude, metres);
        for (int i = 0; i < 8; ++i) {
            Write(record, GpsRouteLayout::kIdent + 2 * i, *ident);
            if (*ident != 0) ++ident;
        }
    }
    unsigned char block[184] = {};
    unsigned char records[3 * 72] = {};
};

TEST_F(HostGps, WithoutARouteTheCrewIsTold) {
    const auto told = [&] {
        cdu = {};
        ImportHostGpsRoute(kFirstOfficer);
        return cdu[1].CduMessageCount == 1 && cdu[1].CduMessages[1].title == "NO ACTIVE GPS RTE" &&
               cdu[0].CduMessageCount == 0 && cdu[1].fms_page == 0;
    };
    EXPECT_TRUE(told());
    Publish(183, 3);
    EXPECT_TRUE(told());
    for (const int count : {1, 0, -5, 1001, 0x7fffffff}) {
        Publish(184, count);
        EXPECT_TRUE(told()) << count;
    }
    Write(block, GpsRouteLayout::kWaypoints, static_cast<const void*>(nullptr));
    EXPECT_TRUE(told());
}

TEST_F(HostGps, ARouteIsTaken) {
    PutWaypoint(0, u"ORIG", 39, 10, 131);
    PutWaypoint(1, u"AAA", -40, 10, 10668);
    PutWaypoint(2, u"DEST", 45, -10.5, 366);
    Publish(184, 3);
    ImportHostGpsRoute(kCaptain);
    ExpectInvariants("import");
    EXPECT_EQ(Idents(plan.mod.legs, plan.mod.leg_cnt), "ORIG AAA DEST");
    EXPECT_NEAR(plan.mod.legs[1].lat, -40, 1e-5);
    EXPECT_NEAR(plan.mod.legs[2].lon, -10.5, 1e-5);
    EXPECT_EQ(plan.mod.legs[1].type, "VOR");
    EXPECT_EQ(plan.mod.legs[1].freq, "115.00");
    EXPECT_EQ(plan.mod.legs[1].via, "DIRECT");
    EXPECT_NEAR(plan.mod.entries.cruise_alt, 35000, 1);
    EXPECT_EQ(plan.active.ends.origin, "ORIG");
    EXPECT_EQ(plan.active.ends.dest, "DEST");
    EXPECT_EQ(plan.fms_fpln_active, kRouteEntered);
    EXPECT_EQ(plan.new_route, 1);
    EXPECT_EQ(requests.show_rte, 1);
    EXPECT_EQ(host.calls["bind_shared_pointer"], 1);
    PutWaypoint(1, u"ABCDEFGHIJ", 41, 10, 1e300);  // no end, no altitude
    ImportHostGpsRoute(kCaptain);
    EXPECT_EQ(plan.mod.legs[1].ident, "ABCDEFGH");
    EXPECT_EQ(host.calls["bind_shared_pointer"], 1);
}

}  // namespace
