#include <benchmark/benchmark.h>

#include <chrono>
#include <fstream>
#include <string>

#include "navdata/airport_file.h"
#include "navdata/airways.h"
#include "navdata/nav_tables.h"
#include "navdata/nearest.h"
#include "navdata/parse_entry.h"
#include "state/airports.h"
#include "state/nav.h"
#include "state/nav_tables.h"
#include "state/sim.h"
#include "support/world_navdata.h"

// On the world's navigation data. `ratio` is the time of the operation over that of its yardstick, timed in
// the same loop.

namespace {

constexpr int kRuns = 200;  // the yardsticks are slow

template <class Work>
double TimeOf(Work work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

template <class Work, class Yardstick, class Prepare = void (*)()>
void Compare(
    benchmark::State& state, Work work, Yardstick yardstick, Prepare prepare = [] {}) {
    double work_s = 0, yardstick_s = 0;
    for (auto _ : state) {
        yardstick_s += TimeOf(yardstick);
        prepare();
        const double seconds = TimeOf(work);
        work_s += seconds;
        state.SetIterationTime(seconds);
    }
    state.counters["ratio"] = work_s / yardstick_s;
    state.counters["yardstick_us"] =
        benchmark::Counter(yardstick_s * 1e6, benchmark::Counter::kAvgIterations);
}

std::size_t SplitLinesOf(const char* name) {
    std::ifstream file(WorldNavdata() / name);
    std::size_t bytes = 0;
    for (std::string line; std::getline(file, line);) bytes += line.size();
    return bytes;
}

bool Prepare(benchmark::State& state, FakeHost& host) {
    if (!UseWorldNavdata(host)) {
        state.SkipWithError("no world navigation data");
        return false;
    }
    LoadNavTables();
    sim.plane_lat = 47.45;
    sim.plane_lon = -122.3;
    return true;
}

// Yardstick: reading the same bytes and splitting lines.
void LoadNavTablesOfTheWorld(benchmark::State& state) {
    FakeHost host;
    if (!Prepare(state, host)) return;
    Compare(
        state, [] { LoadNavTables(); },
        [] {
            for (const char* name : {"ints.txt", "awys.txt", "apts.txt", "navs.txt", "landmarks.txt"})
                benchmark::DoNotOptimize(SplitLinesOf(name));
        },
        [] { nav_tables = {}; });  // what is freed is no part of loading
}
BENCHMARK(LoadNavTablesOfTheWorld)->UseManualTime()->Iterations(30)->Unit(benchmark::kMillisecond);

int CountMatches(std::string_view ident) {
    int count = 0;
    for (int i = 1; i <= nav_tables.nav_cnt; ++i) count += nav_tables.NavaidTable[i].ident == ident;
    for (int i = 1; i <= nav_tables.int_cnt; ++i) count += nav_tables.IntersectionTable[i].ident == ident;
    for (int i = 1; i <= nav_tables.apt_cnt; ++i) count += nav_tables.AirportTable[i].ident == ident;
    return count;
}

// Yardstick: one scan of the three tables. "A" is among the idents that most places bear.
void ParseEntryOfTheWorld(benchmark::State& state, const char* entry) {
    FakeHost host;
    if (!Prepare(state, host)) return;
    Compare(
        state, [entry] { ParseEntry(entry); }, [entry] { benchmark::DoNotOptimize(CountMatches(entry)); });
    state.counters["candidates"] = nav.entry_cnt;
}
BENCHMARK_CAPTURE(ParseEntryOfTheWorld, SEA, "SEA")
    ->UseManualTime()
    ->Iterations(kRuns)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ParseEntryOfTheWorld, A, "A")
    ->UseManualTime()
    ->Iterations(kRuns)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ParseEntryOfTheWorld, none, "QQQQQ")
    ->UseManualTime()
    ->Iterations(kRuns)
    ->Unit(benchmark::kMicrosecond);

// Yardstick: reading the airway file by lines.
void LoadAirwayOfTheWorld(benchmark::State& state) {
    FakeHost host;
    if (!Prepare(state, host)) return;
    Compare(
        state, [] { LoadAirway("V16", "BTG"); }, [] { benchmark::DoNotOptimize(SplitLinesOf("awys.txt")); });
    state.counters["fixes"] = nav.entry_cnt;
}
BENCHMARK(LoadAirwayOfTheWorld)->UseManualTime()->Iterations(kRuns)->Unit(benchmark::kMicrosecond);

// Yardstick: reading the airport file by lines.
void LoadAirportOfTheWorld(benchmark::State& state) {
    FakeHost host;
    if (!Prepare(state, host)) return;
    Compare(
        state, [] { LoadAirport("KORD", airports.origin_airport); },
        [] { benchmark::DoNotOptimize(SplitLinesOf("apts.txt")); });
    state.counters["runways"] = airports.origin_airport.runway_cnt;
}
BENCHMARK(LoadAirportOfTheWorld)->UseManualTime()->Iterations(kRuns)->Unit(benchmark::kMicrosecond);

// The step of each second while nothing has moved far, and the rebuild of all lists, over Central Europe.
void RefreshNearestInEurope(benchmark::State& state) {
    FakeHost host;
    if (!Prepare(state, host)) return;
    sim.plane_lat = 50;
    sim.plane_lon = 9;
    RefreshNearest();
    for (auto _ : state) {
        nav.nearest_refresh_due = static_cast<int>(state.range(0));
        RefreshNearest();
    }
}
BENCHMARK(RefreshNearestInEurope)->ArgName("rebuild")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

}  // namespace
