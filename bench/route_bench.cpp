#include <benchmark/benchmark.h>

#include <string>

#include "fmc/route/execute_route.h"
#include "fmc/route/route_text.h"
#include "legs.h"
#include "navdata/nav_tables.h"
#include "state/plan.h"
#include "support/world_navdata.h"

// What a key press does to the route.

namespace {

void Execute(benchmark::State& state) {
    FakeHost host;
    const int last = static_cast<int>(state.range(0));
    FillLegs(plan.mod.legs, last);
    plan.mod.leg_cnt = last;
    for (auto _ : state) ExecuteRoute();
}
BENCHMARK(Execute)->Name("ExecuteRoute")->Arg(120)->Arg(300)->Unit(benchmark::kMicrosecond);

void EnterRouteTextOfTheWorld(benchmark::State& state) {
    FakeHost host;
    if (!UseWorldNavdata(host)) {
        state.SkipWithError("no world navigation data");
        return;
    }
    LoadNavTables();
    std::string error;
    for (auto _ : state)
        if (EnterRouteText("KSEA/16L SEA J1 OAK J1 LAX KLAX/24R", error) == 0) {
            state.SkipWithError(error.c_str());
            return;
        }
}
BENCHMARK(EnterRouteTextOfTheWorld)->Unit(benchmark::kMicrosecond);

}  // namespace
