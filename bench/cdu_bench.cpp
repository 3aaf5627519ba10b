#include <benchmark/benchmark.h>

#include <cstdlib>
#include <string>

#include "cdu/unit/cdu_format.h"
#include "cdu/words/page.h"
#include "fmc/procedures/end_airports.h"
#include "fmc/procedures/select_procedures.h"
#include "fmc/route/endpoints.h"
#include "legs.h"
#include "navdata/nav_tables.h"
#include "state/airports.h"
#include "state/fix_info.h"
#include "state/plan.h"
#include "support/fake_host.h"

// What the crew waits for at the CDU.

namespace {

constexpr int kPages[] = {kPageRte,          kPageLegs,        kPageRteData,    kPageWind,
                          kPageDepartures,   kPageArrivals,    kPagePerfInit,   kPageThrustLim,
                          kPageTakeoffRef,   kPageApproachRef, kPageVnav,       kPageDescentForecast,
                          kPageInitRefIndex, kPageIdent,       kPagePosInit,    kPageRefNavData,
                          kPageProgress,     kPagePosReport,   kPageFixInfo,    kPageHold,
                          kPageNavRadio,     kPageAltn,        kPageAltnDetail, kPageAnnouncements};

void FillRoute(int last) {
    FillLegs(plan.active.legs, last);
    FillLegs(plan.mod.legs, last);
    plan.active.leg_cnt = plan.mod.leg_cnt = last;
    plan.active.stpos = plan.mod.stpos = 1;
    plan.fms_fpln_active = 3;
}

// The captain's CDU on the lower unit, each page in turn on a route of 120 legs.
void DrawPages(benchmark::State& state) {
    const FakeHost host;
    FillRoute(120);
    fix_info.FixPages[1] = {"FIX", 45, 10, {{{}, {90, 0}, {0, 20}, {270, 0}}}};
    DrawList picture;
    int turn = 0;
    for (auto _ : state) {
        const auto [round, page] = std::div(turn++, static_cast<int>(std::size(kPages)));
        cdu[0].fms_page = kPages[page];
        cdu[0].fms_vnav_page = round % kVnavDesPage + 1;
        Graphics graphics = GdipCreateGraphics(picture, 564, 424);
        DrawCdu(graphics, 1, 5);
    }
}
BENCHMARK(DrawPages)->Name("CduPage")->Unit(benchmark::kMicrosecond);

// A procedure file of the world's size: 5000 airports with 40 legs each, about 12 MB, the one wanted last.
std::string WorldOfProcedures() {
    std::string text;
    for (int airport = 0; airport < 5000; ++airport) {
        const std::string icao = airport == 4999 ? "ORIG" : "X" + std::to_string(100 + airport);
        text += "[" + icao + "]\n";
        for (int sid = 0; sid < 4; ++sid) {
            const std::string name = "DEPA" + std::to_string(sid);
            text += "T " + name + " RNAV 16,34\n" + name + " /T160/UA 2500 16 0 0\n";
            for (int leg = 0; leg < 9; ++leg)
                text += name + " FIX" + std::to_string(leg) + " 12000+ --- 40." + std::to_string(leg) +
                        "12345 10.123456\n";
        }
    }
    return text;
}

void InsertFromTheWorld(benchmark::State& state) {
    const FakeHost host;
    host.PutFile("Velarion/TZ900/Navdata/apts.txt",
                 "ORIG ORIGIN 430 39.0 10.0 16_9000_39.02_9.99_160.0_0_-_0 34_9000_38.98_10.01_340.0_0_-_0\n"
                 "DEST DESTINATION 1200 45.0 10.0 09_8000_45.0_9.98_90.0_0_-_0\n");
    host.PutFile("Velarion/TZ900/Navdata/sids.txt", WorldOfProcedures());
    LoadNavTables();
    EnterOrigin("ORIG");
    EnterDestination("DEST");
    for (auto _ : state) {
        LoadOriginAirport("ORIG");
        SelectSid(1, 1, false);
    }
    state.counters["sids"] = airports.origin_airport.sid_cnt;
}
BENCHMARK(InsertFromTheWorld)->Name("InsertProcedure/world")->Unit(benchmark::kMillisecond);

}  // namespace
