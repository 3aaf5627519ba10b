#include "navdata/procedure_files.h"

#include <gtest/gtest.h>

#include "fmc/demo_navdata.h"
#include "navdata/airport_file.h"
#include "navdata/geodesy.h"

namespace {

class ProcedureFiles : public testing::Test {
  protected:
    ProcedureFiles() {
        PutRouteNavdata(host);
        LoadAirport("ORIG", airport);
    }
    void Put(const char* name, const std::string& text) const {
        host.PutFile(std::string("Velarion/TZ900/Navdata/") + name, text);
    }
    static std::string Legs(const ProcedureRecord& record) {
        std::string text;
        for (int i = 1; i <= record.leg_cnt; ++i) text += (i > 1 ? " " : "") + record.legs[i].ident;
        return text;
    }

    FakeHost host;
    AirportData airport;
};

TEST_F(ProcedureFiles, DeparturesOfTheSection) {
    Put("sids.txt",
        "SID0 OTHER 0 --- 1 1\n"
        "[DEST]\nSID9 DDFIX 0 --- 43.0 10.0\n"
        "[orig]\n"
        "T DEENA7 RNAV 16,34\n"
        "DEENA7 RW16 /LT 0 16 39.02 9.99\n"
        "DEENA7 /T160/UA 2500 16 0 0\n"
        "DEENA7 RW34 /RT 0 34 38.98 10.01\n"
        "DEENA7 AAFIX 12000+ --- 40.5 10.0 FO\n"
        "DEENA7 BBFIX /RT 14000 --- 41.5 10.0 FO\n"
        "DEENA7.KADOM CCC 0 KADOM 42.0 10.0 LT\n"
        "; a comment\n"
        "DEENA7 --- 0 --- 1 1\n"
        "LONE1 DDFIX 08000 --- 0 0\n"
        "[NEXT]\nLONE1 EEE 0 --- 44 10\n");
    LoadSids(airport);
    ASSERT_EQ(airport.sid_cnt, 3);
    const ProcedureRecord& main_part = airport.sids[1];
    EXPECT_EQ(main_part.name, "DEENA7");
    EXPECT_EQ(main_part.kind, "RNAV");
    EXPECT_EQ(main_part.runways, "16,34");
    EXPECT_EQ(Legs(main_part), "RW16 (2500) RW34 AAFIX BBFIX");
    EXPECT_EQ(main_part.legs[2].turn, 2);  // from the runway fix behind it
    EXPECT_EQ(main_part.legs[2].code, "/T160/UA");
    EXPECT_EQ(main_part.legs[4].alt_token, "12000+");
    EXPECT_EQ(main_part.legs[4].flyover, 1);
    EXPECT_EQ(main_part.legs[5].turn, 2);
    EXPECT_EQ(main_part.legs[5].alt_token, "14000");
    EXPECT_DOUBLE_EQ(main_part.legs[5].lat, 41.5);
    EXPECT_EQ(main_part.legs[5].flyover, 1);
    EXPECT_EQ(airport.sids[2].name, "DEENA7.KADOM");
    EXPECT_EQ(airport.sids[2].base_name, "DEENA7");
    EXPECT_EQ(airport.sids[2].legs[1].turn, 1);
    EXPECT_EQ(Legs(airport.sids[3]), "DDFIX");
    EXPECT_NE(airport.sids[3].legs[1].lat, 0) << "a position of 0 is where the leg before ends";
}

TEST_F(ProcedureFiles, ArrivalsOfTheSection) {
    Put("stars.txt",
        "[ORIG]\r\n"
        "T ECHO2 RNAV 16\r\n"
        "ECHO2.OUTER EEE EEE 25000 44.0 10.0\n"
        "ECHO2 --- /LT DDFIX 1400018000B 43.0 10.0 FO\r\n"
        "ECHO2 16 CCC 9000- 42.0 10.0\n"
        "ECHO2 16 /H180/VT 0 0 0\r\n");
    LoadStars(airport);
    ASSERT_EQ(airport.star_cnt, 2);
    EXPECT_EQ(Legs(airport.stars[1]), "DDFIX CCC VECTORS");
    EXPECT_EQ(airport.stars[1].legs[1].turn, 1);
    EXPECT_EQ(airport.stars[1].legs[1].alt_token, "1400018000B");
    EXPECT_EQ(airport.stars[1].legs[1].flyover, 1);
    EXPECT_EQ(airport.stars[1].legs[2].applies_to, "16");
    EXPECT_EQ(airport.stars[1].legs[3].text, "VECTOR");
    EXPECT_DOUBLE_EQ(airport.stars[1].legs[3].lat, 42.0);
}

TEST_F(ProcedureFiles, ApproachesWithAProcedureTurn) {
    Put("apps.txt",
        "[ORIG]\n"
        "16 ILS LONER LONER 6000+ 41.0 9.0 IAF 210 0\n"
        "16 ILS AAFIX --- 5000 40.5 10.0 - 0 0\n"
        "16 ILS BBFIX 4000+ 41.5 10.0 - 0 0\n"
        "16 ILS FINAL FAF 2300 39.2 9.95 - 170 5\n"
        "16 ILS RW16 MAP 480 39.02 9.99 - 140 0 FO\n"
        "16 ILS SHORT MAF 39.1 9.9 - 0 0\n"
        "34 VOR FINAL IAF 3000 38.7 10.0 - 0 0\n"
        "34 VOR /RT/H300/IC270 --- 2500 38.7 10.0 - 0 0\n"
        "34 VOR /H090/IC090 MAF 2500 60 10 - 0 0\n"
        "-- GPS AAFIX IAF 3000 40.5 10.0 - 0 0\n");
    LoadApproaches(airport);
    ASSERT_EQ(airport.approach_cnt, 3);
    EXPECT_EQ(airport.approaches[1].name, "ILS16");
    EXPECT_EQ(Legs(airport.approaches[1]), "LONER AAFIX BBFIX FINAL RW16 SHORT");
    EXPECT_EQ(airport.approaches[1].legs[1].segment, "LONER");
    EXPECT_EQ(airport.approaches[1].legs[1].applies_to, "IAF");
    EXPECT_EQ(airport.approaches[1].legs[2].segment, "LONER");  // "---" stays with the transition
    // without a role, or without an altitude, the fields behind it stand one place further left
    EXPECT_EQ(airport.approaches[1].legs[3].segment, "LONER");
    EXPECT_EQ(airport.approaches[1].legs[3].alt_token, "4000+");
    EXPECT_DOUBLE_EQ(airport.approaches[1].legs[3].lat, 41.5);
    EXPECT_EQ(airport.approaches[1].legs[6].alt_token, "");
    EXPECT_DOUBLE_EQ(airport.approaches[1].legs[6].lat, 39.1);
    EXPECT_EQ(airport.approaches[1].legs[4].segment, "");
    EXPECT_EQ(airport.approaches[1].legs[4].speed, 170);
    EXPECT_EQ(airport.approaches[1].legs[4].alt2, 5);
    EXPECT_EQ(airport.approaches[1].legs[5].flyover, 1);
    EXPECT_EQ(airport.approaches[3].runways, "");
    ASSERT_EQ(airport.approach_kind_cnt, 3);
    EXPECT_EQ(airport.approach_kinds[2], "VOR");

    // Out on 120 for 3 nm, across on 210 for 1.5: both magnetic.
    const ProcedureRecord& turn = airport.approaches[2];
    ASSERT_GE(turn.leg_cnt, 3);
    EXPECT_EQ(turn.legs[2].ident, "PT300");
    EXPECT_EQ(turn.legs[3].ident, "PT210");
    const DistBearing out = GreatCircle(38.7, 10.0, turn.legs[2].lat, turn.legs[2].lon);
    EXPECT_NEAR(out.dist, 3.0, 1e-6);
    const DistBearing across =
        GreatCircle(turn.legs[2].lat, turn.legs[2].lon, turn.legs[3].lat, turn.legs[3].lon);
    EXPECT_NEAR(across.dist, 1.5, 1e-6);
    EXPECT_NEAR(across.bearing - out.bearing, 90, 0.1);
}

// Each group of runways starts at its own, each transition at what all fly; a turn may stand behind the
// ident.
TEST_F(ProcedureFiles, AlternativesInOneRecord) {
    Put("sids.txt",
        "[ORIG]\nT BOTH1 RNAV 16,34\n"
        "BOTH1 /T160/UA 2500 16 0 0\nBOTH1 /H160/UD9.0 3000 16 39.0 10.0\n"
        "BOTH1 /T340/UA 2500 34 0 0\nBOTH1 /H340/UD9.0 0300005000B 34 39.0 10.0\n"
        "BOTH1 /H340/UA 0300005000B 34 0 0\n"
        "T ELSE1 RNAV 99\nELSE1 /T160/UA 2500 --- 0 0\n"
        "FAR1 AAFIX 0 --- 91.0 10.0\nFAR1 AAFIX 0 --- 40.5 -181\n");
    LoadSids(airport);
    ASSERT_EQ(airport.sid_cnt, 3);
    const ProcedureRecord& both = airport.sids[1];
    ASSERT_EQ(both.leg_cnt, 5);
    for (int leg : {2, 4}) {  // straight out: 9 nm from the field, on either side
        const DistBearing from_field = GreatCircle(39.0, 10.0, both.legs[leg].lat, both.legs[leg].lon);
        EXPECT_NEAR(from_field.dist, 9.0, 0.1) << leg;
        EXPECT_EQ(both.legs[leg].lat > 39.0, leg == 4);
    }
    EXPECT_EQ(both.legs[5].ident, "(03000)");  // the lower bound counts
    EXPECT_DOUBLE_EQ(both.legs[5].code_alt, 3000);
    // a runway that isn't there starts where the procedure before it did
    EXPECT_DOUBLE_EQ(airport.sids[2].legs[1].start_lat, both.legs[1].start_lat);
    EXPECT_EQ(airport.sids[3].leg_cnt, 0) << "off the globe";

    Put("stars.txt", "[ORIG]\nEND1 --- CCC 0 42.0 10.0\nEND1 16 RW16 /LT 500 39.02 9.99 FO\n");
    LoadStars(airport);
    ASSERT_EQ(Legs(airport.stars[1]), "CCC RW16");
    EXPECT_EQ(airport.stars[1].legs[1].turn, 1);
    EXPECT_EQ(airport.stars[1].legs[2].alt_token, "500");
    EXPECT_EQ(airport.stars[1].legs[2].flyover, 1);

    // The fix without a name that ends a missed approach is the one before it: a hold.
    Put("apps.txt",
        "[ORIG]\n16 ILS FINAL FAF 2300 39.2 9.95 - 0 0\n16 ILS RW16 /RT MAP 480 39.02 9.99 - 0 0 FO\n"
        "16 ILS --- MAF 3000 39.1 9.9 - 0 0\n16 ILS SHORT MAF 3000 39.1 9.9 - 0 0\n"
        "16 ILS --- MAF 3000 39.1 9.9 - 0 0\n34 VOR --- MAF 3000 39.1 9.9 - 0 0\n");
    LoadApproaches(airport);
    ASSERT_EQ(Legs(airport.approaches[1]), "FINAL RW16 SHORT SHORT");
    EXPECT_EQ(airport.approaches[1].legs[1].turn, 2);
    EXPECT_EQ(airport.approaches[1].legs[2].alt_token, "480");
    EXPECT_EQ(airport.approaches[1].legs[4].marker, "*");
    EXPECT_EQ(airport.approaches[2].leg_cnt, 0);
}

TEST_F(ProcedureFiles, WhateverTheFilesHold) {
    std::string hostile = "[ORIG]\n\n \t\nT\nT X\nX\n" + std::string(3000, 'Q') + "\n\x01\xff /RT/\n";
    for (int i = 0; i < 10000; ++i) hostile += "LONG1 AAFIX 0 --- 40.5 10.0\n";
    hostile += "A /RT/H /X /LT\n16 ILS\n16 ILS /RT/H000/IC --- /LT nan inf - 9e99 -9e99 FO\n[";
    for (const char* name : {"sids.txt", "stars.txt", "apps.txt"}) Put(name, hostile);
    LoadSids(airport);
    LoadStars(airport);
    LoadApproaches(airport);
    bool long_one = false;
    for (int i = 1; i <= airport.sid_cnt; ++i) long_one = long_one || airport.sids[i].leg_cnt == 10000;
    EXPECT_TRUE(long_one);
    airport.ident = "NONE";
    LoadSids(airport);
    EXPECT_EQ(airport.sid_cnt, 0);
    for (const char* name : {"sids.txt", "stars.txt", "apps.txt"}) Put(name, "");
    LoadApproaches(airport);
    EXPECT_EQ(airport.approach_cnt, 0);
}

}  // namespace
