#pragma once

#include "navdata/nav_tables.h"
#include "support/fake_host.h"

/// A small world for route tests: meridian 10 E holds an airway Q1 from AAA (40 N) to EEE (44 N), a fix each
/// half degree; Q2 crosses it at CCC (42 N) along the parallel; a namesake of Q1 lies in the south. From CCC
/// two airways Q5 lead to DDFIX and to LONER, where Q3 begins.
inline void PutRouteNavdata(const FakeHost& host) {
    const auto put = [&](const char* name, const char* text) {
        host.PutFile(std::string("Velarion/TZ900/Navdata/") + name, text);
    };
    put("navs.txt",
        ";AIRAC 2612 ACTIVE (05-NOV-2026 TO 31-DEC-2027 )\n"
        "AAA ALPHA 40.0 10.0 VOR 110.00\n"
        "CCC CHARLIE 42.0 10.0 VOR 112.00\n"
        "EEE ECHO 44.0 10.0 NDB 300.0\n"
        "AAA ALPHA_SOUTH -40.0 10.0 VOR 115.00\n");
    put("ints.txt",
        "AAFIX AAFIX 40.5 10.0\nBBFIX BBFIX 41.5 10.0\nDDFIX DDFIX 43.0 10.0\n"
        "WWFIX WWFIX 42.0 8.0\nEASTX EASTX 42.0 12.0\nLONER LONER 41.0 9.0\n"
        "DUPLE DUPLE 43.5 9.0\nDUPLE DUPLE -43.5 9.0\nQ9 Q9 41.0 9.5\n");
    put("awys.txt",
        "Q1 1 AAA 40.0 10.0\nQ1 2 AAFIX 40.5 10.0\nQ1 3 BBFIX 41.5 10.0\nQ1 4 CCC 42.0 10.0\n"
        "Q1 5 DDFIX 43.0 10.0\nQ1 6 EEE 44.0 10.0\n"
        "Q2 1 WWFIX 42.0 8.0\nQ2 2 CCC 42.0 10.0\nQ2 3 EASTX 42.0 12.0\n"
        "Q3 1 LONER 41.0 9.0\nQ3 2 SOLOX 41.0 8.0\n"
        "Q1 1 AAA -40.0 10.0\nQ1 2 DUPLE -43.5 9.0\n"
        "Q5 1 CCC 42.0 10.0\nQ5 2 DDFIX 43.0 10.0\n"
        "Q6 1 SOLOX 41.0 8.0\nQ6 2 WWFIX 42.0 8.0\n"
        "Q5 1 CCC 42.0 10.0\nQ5 2 LONER 41.0 9.0\n");
    put("apts.txt",
        "ORIG ORIGIN 430 39.0 10.0 16_9000_39.02_9.99_160.0_0_-_0 34_9000_38.98_10.01_340.0_110.30_IORG_0\n"
        "DEST DESTINATION 1200 45.0 10.0 09_8000_45.0_9.98_90.0_0_-_0 27_8000_45.0_10.02_270.0_0_-_0\n"
        "ALTN ALTERNATE 50 45.0 12.0 18_7000_45.01_12.0_180.0_0_-_0\n");
    LoadNavTables();
}
