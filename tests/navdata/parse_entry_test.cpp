#include "navdata/parse_entry.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "navdata/nav_tables.h"
#include "state/nav.h"
#include "state/plan.h"
#include "state/sim.h"
#include "support/fake_host.h"

namespace {

class ParseEntryTest : public testing::Test {
  protected:
    void Put(std::string_view name, std::string_view text) {
        host.PutFile("Velarion/TZ900/Navdata/" + std::string(name), text);
    }
    // "IDENT LAT LON TYPE", the only candidate; the number of candidates when it isn't one.
    std::string Only(std::string_view entry) {
        ParseEntry(entry);
        if (nav.entry_cnt != 1) return std::to_string(nav.entry_cnt);
        const NavRecord& c = nav.EntryCandidates[1];
        char text[128];
        std::snprintf(text, sizeof text, "%s %.4f %.4f %s", c.ident.c_str(), c.lat, c.lon, c.type.c_str());
        return text;
    }
    FakeHost host;
};

TEST_F(ParseEntryTest, Positions) {
    const char* cases[][2] = {
        {"N45W120", "N45W120 45.0000 -120.0000 I"},
        {"45N120W", "45N120W 45.0000 -120.0000 I"},
        {"S05E008", "S05E008 -5.0000 8.0000 I"},
        {"N4530W12030", "N45W120 45.5000 -120.5000 I"},
        {"4530S12030E", "S45E120 -45.5000 120.5000 I"},
        {"N04530W12030", "N45W120 45.5000 -120.5000 I"},
        {"N4530.6W12030.3", "WPT01 45.5100 -120.5050 I"},
        {"S0000.1E17959.9", "WPT01 -0.0017 179.9983 I"},
        {"N90E180", "N90E180 90.0000 180.0000 I"},
        {"N91W120", "0"},
        {"N45W181", "0"},
        {"N4A W120", "0"},
        {"N4560W12030", "0"},
        {"N4530.6W12030", "0"},
        // coded: the letter gives both signs, in the middle it adds 100 degrees of longitude
        {"5060N", "5060N 50.0000 -60.0000 O"},
        {"5060E", "5060E 50.0000 60.0000 O"},
        {"5060S", "5060S -50.0000 60.0000 O"},
        {"5060W", "5060W -50.0000 -60.0000 O"},
        {"50N60", "50N60 50.0000 -160.0000 O"},
        {"50E60", "50E60 50.0000 160.0000 O"},
        {"50N99", "0"},
        {"5O60N", "0"},
        {"", "0"},
        {"/", "0"},
    };
    for (const auto& [entry, expected] : cases) EXPECT_EQ(Only(entry), expected) << entry;
}

TEST_F(ParseEntryTest, NumberedNamesPassThoseOfTheRoute) {
    plan.active.leg_cnt = 2;
    plan.active.legs[1].ident = "WPT07";
    plan.active.legs[2].ident = "WPT123";
    plan.active.legs[3].ident = "WPT55";  // behind the last leg
    ParseEntry("N4530.5W12030.5");
    EXPECT_EQ(nav.EntryCandidates[1].ident, "WPT08");
    plan.mod.leg_cnt = 1;
    plan.mod.legs[1].ident = "WPT31";
    ParseEntry("N4530.5W12030.5");
    EXPECT_EQ(nav.EntryCandidates[1].ident, "WPT32");
}

TEST_F(ParseEntryTest, IdentsComeNearestFirst) {
    Put("navs.txt", "ABC FAR 50 10 VOR 113.3\nABC NEAR 41 0 NDB 344.0\nABC TIE 42 0 VOR 112.0\n");
    Put("ints.txt", "ABC TIE 42 0\nABC HERE 40 0\nabc LOWER 40 0\n1234N OWN 1 2\n");
    Put("apts.txt", "ABC Tie 99 42 0\n");
    LoadNavTables();
    sim.plane_lat = 40;
    sim.plane_lon = 0;
    ParseEntry("ABC");
    ASSERT_EQ(nav.entry_cnt, 6);
    const char* order[] = {"HERE", "NEAR", "TIE", "TIE", "Tie", "FAR"};
    const char* types[] = {"I", "N", "V", "I", "APT", "V"};
    for (int i = 1; i <= 6; ++i) {
        EXPECT_EQ(nav.EntryCandidates[i].name, order[i - 1]);
        EXPECT_EQ(nav.EntryCandidates[i].type, types[i - 1]) << i;
    }
    EXPECT_EQ(nav.EntryCandidates[6].freq, "113.3");
    EXPECT_EQ(nav.EntryCandidates[5].elevation_text, "99");
    ParseEntry("1234N");
    EXPECT_EQ(nav.EntryCandidates[1].type, "I") << "a fix of that name hides the coded position";
    ParseEntry("AB");
    EXPECT_EQ(nav.entry_cnt, 0);
}

TEST_F(ParseEntryTest, MatchesStopAt250) {
    std::string rows;
    for (int i = 0; i < 300; ++i) rows += "MANY M 1 " + std::to_string(i % 170) + "\n";
    Put("ints.txt", rows);
    LoadNavTables();
    ParseEntry("MANY");
    EXPECT_EQ(nav.entry_cnt, 250);
}

TEST_F(ParseEntryTest, PlacesWithBearings) {
    Put("navs.txt", "ABC A 0 0 VOR 113.3\nABC A2 60 90 VOR 113.3\nDEF D 0 10 VOR 113.4\n");
    LoadNavTables();
    ParseEntry("ABC090/25");
    EXPECT_EQ(nav.entry_cnt, 2);
    EXPECT_EQ(nav.entry_bearing, 90);
    EXPECT_EQ(nav.entry_distance, 25);
    EXPECT_EQ(Only("DEF360/25.7"), "DEF 0.0000 10.0000 V");
    EXPECT_EQ(nav.entry_distance, 25);
    // From both ends of a base on the equator at 45 degrees inwards: half way, where tan lat = sin 5 tan 45.
    EXPECT_EQ(Only("ABC045/DEF315"), "ABC 4.9811 5.0000 V");
    EXPECT_EQ(nav.entry_bearing, 45);
    EXPECT_EQ(nav.entry_bearing2, 315);
    EXPECT_EQ(nav.entry_distance, 0);
    for (const char* entry : {"ABC000/DEF180", "ABC045/XYZ315", "XYZ045/DEF315", "ABC-10/25", "ABC045/DE-10",
                              "ABC361/25", "ABCXYZ/25", "AB/CD", "A/", "ABC090/", "ABC090/-5"}) {
        ParseEntry(entry);
        EXPECT_EQ(nav.entry_cnt, 0) << entry;
    }
}

// Any bytes may be typed: shapes of every form with bytes of every kind.
TEST_F(ParseEntryTest, AnyBytes) {
    Put("navs.txt", "A A 0 0 VOR 113.3\n1 B 0 1 VOR 113.3\n");
    LoadNavTables();
    std::mt19937 random(900);
    const std::string alphabet("NSEW/.-+019AZ \0\xff\n%", 19);
    for (int i = 0; i < 200000; ++i) {
        std::string entry(random() % 34, ' ');
        for (char& c : entry)
            c = random() % 8 ? alphabet[random() % alphabet.size()] : static_cast<char>(random());
        ParseEntry(entry);
        ASSERT_LE(nav.entry_cnt, 2);
        for (int j = 1; j <= nav.entry_cnt; ++j) {
            ASSERT_LE(std::abs(nav.EntryCandidates[j].lat), 90) << entry;
            ASSERT_LE(std::abs(nav.EntryCandidates[j].lon), 180) << entry;
        }
    }
    ParseEntry(std::string(2 << 20, '9'));
    EXPECT_EQ(nav.entry_cnt, 0);
}

}  // namespace
