#include <benchmark/benchmark.h>

#include "efb/pages/option_lists.h"
#include "efb/pages/pages.h"
#include "efb/performance/calculate.h"
#include "efb/performance/takeoff_analysis.h"
#include "efb/tablet.h"
#include "state/efb.h"
#include "state/identity.h"
#include "state/tablet_performance.h"
#include "support/fake_host.h"
#include "support/file_text.h"
#include "support/paths.h"

namespace {

void SetUpTakeoff(FakeHost& host) {
    const std::string file = "Velarion/TZ900/Navdata/Airport_Analysis-9.txt";
    host.PutFile(file, FileText(SourceDir() + "/data/root/" + file));
    identity.aircraft_model = "900-9";
    LoadPerformanceTable("900-9");
    TabletTakeoff& page = tablet_performance.takeoff;
    page.EfbRunwayLength = 11000;
    page.EfbTakeoffWeight = 430000;
    CalculateTakeoff();
}

// The pages with fields in turn, each laid out and painted with all that can lie over it.
void PaintTablet(benchmark::State& state) {
    FakeHost host;
    SetUpTakeoff(host);
    efb.EfbKeyboardShown = 1;
    DrawList picture;
    int turn = 0;
    for (auto _ : state) {
        const bool takeoff = ++turn % 2 == 0;
        efb.EfbPage = takeoff ? kTabletTakeoff : kTabletLanding;
        efb.EfbOpenList = takeoff ? kListTakeoffFlaps : kListBrakes;
        Graphics graphics = GdipCreateGraphics(picture, kTabletWidth, kTabletHeight);
        DrawEfb(graphics, 1);
        GdipDeleteGraphics(graphics);
    }
}
BENCHMARK(PaintTablet)->Name("TabletPage")->Unit(benchmark::kMicrosecond);

void Calculate(benchmark::State& state) {
    FakeHost host;
    SetUpTakeoff(host);
    for (auto _ : state) CalculateTakeoff();
}
BENCHMARK(Calculate)->Name("CalculateTakeoff")->Unit(benchmark::kMicrosecond);

}  // namespace
