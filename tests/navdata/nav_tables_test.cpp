#include "navdata/nav_tables.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "navdata/airport_file.h"
#include "navdata/airways.h"
#include "navdata/nearest.h"
#include "navdata/parse_entry.h"
#include "state/airports.h"
#include "state/cfg.h"
#include "state/nav.h"
#include "state/nav_tables.h"
#include "state/nearest.h"
#include "state/variable_directory.h"
#include "support/world_navdata.h"

namespace {

class NavTablesTest : public testing::Test {
  protected:
    void Put(std::string_view name, std::string_view text) {
        host.PutFile("Velarion/TZ900/Navdata/" + std::string(name), text);
    }
    std::string Value(std::string_view path) {
        const auto variable = FindVariable(path);
        return variable ? FormatValue(*variable) : "no such variable";
    }
    FakeHost host;
};

TEST_F(NavTablesTest, FilesBecomeTables) {
    Put("ints.txt",
        "; a comment\nALPHA FIRST_FIX 47.5 -122.25\n\tBRAVO\t\tB  -1.5e1 x\r\nCUT C 1\n\nLAST L 1 2");
    Put("awys.txt", "J1 1 SEA 47 -122\nJ1 2 ALPHA 47.5 -122.25\nJ1 3 BRAVO -15 0\nJ2 1 ALPHA 47.5 -122.25\n");
    Put("navs.txt", "SEA SEATTLE 47.4 -122.3 vor 116.8\nXX SOMEWHERE 1 2 NDB 344.0\nYY Y 1 2 DME\n");
    Put("apts.txt",
        "KAAA Long 433 47.4 -122.3 16L_11901_47.4_-122.3_160.0_111.70_ISNQ_0 "
        "16R_8500_47.4_-122.3_160.0_0_-_0\n"
        "KBBB Short 12 48.0 -122.0 09_2500_48.0_-122.0_90.0_0_-_0\nKCCC Bare 1 1 1\n");
    Put("landmarks.txt", "47.6 -122.3 Seattle_City\n;x\n1 2 Rome\n");
    LoadNavTables();
    EXPECT_EQ(nav_tables.int_cnt, 3);
    EXPECT_EQ(Value("IntersectionTable[1].name"), "FIRST_FIX");
    EXPECT_EQ(Value("IntersectionTable[2].lat"), "-15");
    EXPECT_EQ(Value("IntersectionTable[2].lon"), "0") << "a field that is no number";
    EXPECT_EQ(Value("IntersectionTable[3].ident"), "LAST");
    EXPECT_EQ(Value("IntersectionTable[0].ident"), "");
    EXPECT_EQ(Value("IntersectionTable[6].ident"), "") << "three records behind the last";
    EXPECT_EQ(nav_tables.awy_fix_cnt, 3) << "idents of four letters and more, once a line";
    EXPECT_EQ(Value("AirwayFixTable[3].name"), "ALPHA");
    EXPECT_EQ(nav_tables.nav_cnt, 3);
    EXPECT_EQ(Value("NavaidTable[1].type") + Value("NavaidTable[2].type"), "VN");
    EXPECT_EQ(Value("NavaidTable[1].freq"), "116.8");
    EXPECT_EQ(nav_tables.apt_cnt, 3);
    EXPECT_EQ(Value("AirportTable[1].longest_runway"), "11901");
    EXPECT_EQ(Value("AirportTable[1].elevation_text"), "433");
    EXPECT_EQ(nav_tables.landmark_cnt, 2);
    EXPECT_EQ(Value("LandmarkTable[1].name"), "Seattle City");

    cfg.MinAptRwyLen = 2600;
    LoadNavTables();
    EXPECT_EQ(nav_tables.apt_cnt, 1);
    ParseEntry("KBBB");
    EXPECT_EQ(nav.entry_cnt, 0);
    EXPECT_EQ(LoadAirport("KBBB", airports.origin_airport), 1) << "still loads as an origin";
}

TEST_F(NavTablesTest, TellsWhatWasReadAndWhatWasSkipped) {
    Put("ints.txt", "; a comment\nALPHA A 47.5 -122.25\n\nNORTH N 90.5 0\nCUT C 1\nPOLE P -90 180\n");
    Put("awys.txt", "J1 1 ALPHA 47 -122\nJ1 2 SEA 47 -180.1\nJ1 3 BRAVO 48 -122\n");
    Put("apts.txt", "");
    Put("navs.txt", "SEA SEATTLE 47.4 -122.3 VOR 116.8\nBAD B 47.4 -122.3\n");
    LoadNavTables();
    const struct {
        const char* name;
        int rows, skipped, first;
        const char* why;
    } kRows[] = {{"ints.txt", 2, 2, 4, "latitude beyond 90"},
                 {"awys.txt", 2, 1, 2, "longitude beyond 180"},
                 {"apts.txt", 0, 0, 0, ""},
                 {"navs.txt", 1, 1, 2, "no kind"},
                 {"landmarks.txt", 0, 0, 0, ""}};
    ASSERT_EQ(nav_tables.navdata_file_cnt, 5);
    for (int i = 1; i <= 5; ++i) {
        const NavdataFile& file = nav_tables.navdata_files[i];
        const auto& row = kRows[i - 1];
        EXPECT_EQ(file.name, row.name);
        EXPECT_EQ(file.rows, row.rows) << row.name;
        EXPECT_EQ(file.skipped, row.skipped) << row.name;
        EXPECT_EQ(file.first_skipped, row.first) << row.name;
        EXPECT_EQ(file.why, row.why) << row.name;
    }
    EXPECT_EQ(LoadAirway("J1", ""), 2) << "its fix off the globe is left out";
}

TEST_F(NavTablesTest, TextBeyondTheBoundIsAFurtherLine) {
    const std::string long_name(1698 - 6, 'n');
    Put("ints.txt", "AAAAA " + long_name + "BBBBB B 1 2\nCCCCC C 3 4\n");
    LoadNavTables();
    ASSERT_EQ(nav_tables.int_cnt, 2);
    EXPECT_EQ(Value("IntersectionTable[1].ident"), "BBBBB");
    // An airway is read with a bound of 199: here the second piece bears another name and ends the run.
    Put("awys.txt",
        "J1 1 AAAA 1 2\nJ1 2 BBBB 3 4 " + std::string(185, 'x') + "J9 2 CCCC 5 6\nJ1 3 DDDD 7 8\n");
    LoadNavTables();
    EXPECT_EQ(LoadAirway("J1", ""), 2);
    EXPECT_EQ(LoadAirway("J9", ""), 1);
}

TEST_F(NavTablesTest, HostileFilesAreSurvived) {
    const std::string binary(
        "\x7f"
        "ELF\0\0\xff\xfe\n\0\0 1 2\n\n\r\n",
        18);
    const std::string two_megabytes(2 << 20, 'A');
    std::string rows;
    for (int i = 0; i < 30000; ++i) rows += "K" + std::to_string(i) + " N 1 2 VOR 113.3 09_1_1_1_90_0_-_0\n";
    const std::string texts[] = {"",
                                 "\n\n\n",
                                 binary,
                                 two_megabytes,
                                 two_megabytes + "\nX Y 1 2 3\n",
                                 "A B 1",
                                 ";",
                                 "J1 1 AAAA 1",
                                 rows,
                                 std::string(100000, '_'),
                                 std::string(50000, '\0'),
                                 "A B 1e999 nan 0x10 -\n"};
    const char* names[] = {"ints.txt",      "awys.txt",   "apts.txt",     "navs.txt",
                           "landmarks.txt", "selcal.txt", "aptcomms.txt", "apt_additional_info.txt"};
    for (const std::string& text : texts) {
        for (const char* name : names) Put(name, text);
        LoadNavTables();
        CheckNavdataDates();
        ParseEntry("K7");
        LoadAirway("J1", "AAAA");
        LoadAirport("K7", airports.origin_airport);
        LoadAirportComms("K7");
        FindSelcal("K7");
        nav.nearest_refresh_due = 1;
        RefreshNearest();
    }
    for (const char* name : names) std::filesystem::remove(host.root / "Velarion/TZ900/Navdata" / name);
    LoadNavTables();
    EXPECT_EQ(nav_tables.int_cnt + nav_tables.awy_fix_cnt + nav_tables.apt_cnt + nav_tables.nav_cnt, 0);
}

TEST_F(NavTablesTest, ValidityOfTheCycle) {
    struct Case {
        const char* line;
        int date, check, out_of_date;
        const char* range;
    };
    const char* january = ";AIRAC 1801 ACTIVE (04-JAN-2018 TO 01-FEB-2018 )\n";
    const Case cases[] = {
        {january, 20180104, 1, 0, "JAN04FEB01/18"},
        {january, 20180201, 1, 0, "JAN04FEB01/18"},
        {january, 20180202, 1, 1, "JAN04FEB01/18"},
        {january, 20180103, 1, 1, "JAN04FEB01/18"},
        {january, 20180103, 0, 0, "JAN04FEB01/18"},
        {"SEA S 47 -122 VOR 116.8\n", 20180103, 1, 0, ""},
        {";AIRAC 1801 ACTIVE (04-ABC-2018 TO\n", 20180104, 1, 1, ""},
    };
    for (const Case& c : cases) {
        Put("navs.txt", c.line);
        host.machine_date = c.date;
        cfg.CheckNavdataStatus = c.check;
        CheckNavdataDates();
        EXPECT_EQ(nav.navdata_out_of_date, c.out_of_date) << c.line << c.date;
        EXPECT_EQ(nav.airac_range_text, c.range) << c.line;
    }
    cfg.CheckNavdataStatus = 1;
    Put("navs.txt", std::string("; a first comment\n") + january);
    CheckNavdataDates();
    EXPECT_EQ(nav.airac_cycle_text, "AIRAC 1801");
    EXPECT_EQ(nav.airac_range_short, "04JAN - 01FEB");
}

TEST_F(NavTablesTest, AirwaysAreTheRunThatBearsTheFix) {
    std::string text;
    for (int i = 1; i <= 40; ++i) text += "J1 " + std::to_string(i) + " FIX" + std::to_string(i) + " 1 2\n";
    text +=
        "; comments and blank lines end nothing\n\nJ1 41 SEA 47 -122\n"
        "J10 1 SEA 47 -122\nJ10 2 FIX33 1 2\nJ10 3 FIX12 1 2\nJ1 1 OTHER 1 2\n";
    Put("awys.txt", text);
    LoadNavTables();
    EXPECT_EQ(LoadAirway("#J1", "FIX33"), 41);
    EXPECT_EQ(nav.EntryCandidates[41].ident, "SEA");
    EXPECT_EQ(nav.EntryCandidates[41].airway, "J1");
    EXPECT_EQ(nav.entry_list_pos, 33);
    EXPECT_EQ(nav.entry_list_page, 3) << "16 to a page";
    EXPECT_EQ(LoadAirway("J1", "FIX32"), 41);
    EXPECT_EQ(nav.entry_list_page, 2);
    EXPECT_EQ(LoadAirway("J1", "NOWHERE"), 41) << "the first where none does";
    EXPECT_EQ(nav.entry_list_pos, 0);
    EXPECT_EQ(LoadAirway("J1", "OTHER"), 1);
    EXPECT_EQ(nav.entry_list_pos, 1);
    EXPECT_EQ(LoadAirway("J99", "SEA"), 0);

    const AirwayCrossing crossing = FindAirwayCrossing("J1", "J10", "FIX5");
    EXPECT_EQ(crossing.index, 41) << "the last fix of the first that the second bears";
    EXPECT_EQ(crossing.context, 5);
    EXPECT_EQ(FindAirwayCrossing("J10", "J1", "FIX5").index, 3);
    EXPECT_EQ(FindAirwayCrossing("J1", "J99", "").index, 0);
}

TEST_F(NavTablesTest, AirportsWithTheirRunways) {
    Put("apts.txt",
        "; comment\nKAAA Seattle_Intl 433 47.5 -122.25 16L_11901_47.46_-122.31_180.0_111.70_ISNQ_3 "
        "34R_11901_47.43_-122.30_0.0_0_-_0 9_3000_47.4_-122.3_270.5_0_-_0 36C_1_47_-122_359_0_-_0 "
        "19_1_47_-122_190_0_-_0 N_1_47_-122_0_0_-_0 CUT_1_2_3\n"
        "kbbb Lower 1 2 3\n");
    Put("apt_additional_info.txt",
        "[KXXX]\nRWY16L=RIGHTPATTERN\n[KAAA] text\nrwy34r=rightpattern\n"
        "RWY16L=LEFTPATTERN\n[KYYY]\nRWY16L=RIGHTPATTERN\n");
    LoadNavTables();
    AirportData& a = airports.origin_airport;
    ASSERT_EQ(LoadAirport("KAAA", a), 1);
    EXPECT_EQ(a.name, "SEATTLE_INTL");
    EXPECT_EQ(a.elevation_ft, 433);
    EXPECT_EQ(airports.elevation_text, "433");
    EXPECT_EQ(a.lat_text, "N47:30:00");
    EXPECT_EQ(a.lon_text, "W122:15:00");
    ASSERT_EQ(a.runway_cnt, 6);
    EXPECT_EQ(a.runways[1].ils_freq, "111.70");
    EXPECT_EQ(a.runways[1].ils_ident, "ISNQ");
    EXPECT_EQ(a.runways[1].sub7, 3);
    EXPECT_EQ(a.runways[1].recip_course, 0);
    EXPECT_EQ(a.runways[1].recip_ident, "34R");
    EXPECT_EQ(a.runways[1].recip_lat, 47.43);
    EXPECT_EQ(a.runways[1].right_pattern, 0);
    EXPECT_EQ(a.runways[2].recip_ident, "16L");
    EXPECT_EQ(a.runways[2].recip_course, 180);
    EXPECT_EQ(a.runways[2].ils_ident + a.runways[2].ils_freq, "") << "no landing system";
    EXPECT_EQ(a.runways[2].right_pattern, 1);
    EXPECT_EQ(a.runways[3].recip_ident, "27");
    EXPECT_EQ(a.runways[3].recip_course, 90.5);
    EXPECT_EQ(a.runways[4].recip_ident, "18C");
    EXPECT_EQ(a.runways[5].recip_ident, "01");
    EXPECT_EQ(a.runways[6].recip_ident, "") << "water, no number";

    EXPECT_EQ(LoadAirport("KZZZ", a), 0);
    EXPECT_EQ(LoadAirport("", a), 0);
    EXPECT_EQ(a.ident, "KAAA") << "the slot stays";
    EXPECT_EQ(LoadAirport("KBBB", airports.dest_airport), 1);
    airports.loading = 1;
    EXPECT_EQ(LoadAirport("KAAA", airports.altn_airport), 99);
}

TEST_F(NavTablesTest, RadioFrequenciesAndSelcal) {
    Put("aptcomms.txt",
        "KAAA ATI 118.00\nKBBB GND 121.70\n;\nKBBB TWR 119.90\nKAAA TWR 120.00\nKBBB APP 1\n");
    const auto comms = LoadAirportComms("KBBB");
    ASSERT_EQ(comms.size(), 2u) << "up to the next airport";
    EXPECT_EQ(comms[1].kind + comms[1].freq, "TWR119.90");
    EXPECT_TRUE(LoadAirportComms("KCCC").empty());
    Put("selcal.txt", "N900TZ abCD\nN900TZ EFGH\nN901TZ ABC\n");
    EXPECT_EQ(FindSelcal("N900TZ"), "AB-CD");
    EXPECT_EQ(FindSelcal("N901TZ"), "");
    EXPECT_EQ(FindSelcal(""), "");
}

// The indexes must answer as the scans would.
TEST_F(NavTablesTest, WorldScale) {
    if (!UseWorldNavdata(host)) GTEST_SKIP() << "no world navigation data";
    LoadNavTables();
    EXPECT_EQ(nav_tables.int_cnt, 119720);
    EXPECT_EQ(nav_tables.nav_cnt, 10819);
    EXPECT_EQ(nav_tables.apt_cnt, 11259);
    EXPECT_EQ(nav_tables.landmark_cnt, 6010);
    int airway_fixes = 0, checked = 0;
    for (int i = 1; i <= nav_tables.airway_run_cnt; i += 97) {
        const std::string name(nav_tables.airway_runs[i].name);
        airway_fixes += LoadAirway(name, "");
        EXPECT_GT(nav.entry_cnt, 0) << name;
    }
    EXPECT_GT(airway_fixes, 100);
    for (int i = 1; i <= nav_tables.int_cnt; i += 1009) {
        const std::string ident(nav_tables.IntersectionTable[i].ident);
        int matches = 0;
        for (int j = 1; j <= nav_tables.int_cnt; ++j)
            matches += nav_tables.IntersectionTable[j].ident == ident;
        for (int j = 1; j <= nav_tables.nav_cnt; ++j) matches += nav_tables.NavaidTable[j].ident == ident;
        for (int j = 1; j <= nav_tables.apt_cnt; ++j) matches += nav_tables.AirportTable[j].ident == ident;
        ParseEntry(ident);
        EXPECT_EQ(nav.entry_cnt, std::min(matches, 250)) << ident;
        ++checked;
    }
    EXPECT_GT(checked, 100);
    EXPECT_EQ(LoadAirport("KSEA", airports.origin_airport), 1);
    EXPECT_EQ(airports.origin_airport.runway_cnt, 6);
}

}  // namespace
