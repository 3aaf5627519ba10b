#include <benchmark/benchmark.h>

#include <fstream>
#include <string>
#include <string_view>
#include <vector>

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

// The navigation database at the size of the world.

namespace {

struct World {
    explicit World(benchmark::State& state) : there(UseWorldNavdata(host)) {
        if (!there) state.SkipWithError("no world navigation data");
        LoadNavTables();
        sim.plane_lat = 50;
        sim.plane_lon = 9;
    }
    FakeHost host;
    bool there;
};

// Text read whole and split into a list of lines.
std::size_t ReadAndSplit(const char* name) {
    std::ifstream file(WorldNavdata() / name, std::ios::binary);
    std::string text(std::filesystem::file_size(WorldNavdata() / name), '\0');
    file.read(text.data(), static_cast<std::streamsize>(text.size()));
    std::vector<std::string_view> lines;
    std::string_view rest = text;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        lines.push_back(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return lines.size();
}

void ReadAndSplitWorld(benchmark::State& state) {
    const World world(state);
    if (!world.there) return;
    for (auto _ : state)
        for (const char* name : {"ints.txt", "awys.txt", "apts.txt", "navs.txt", "landmarks.txt"})
            benchmark::DoNotOptimize(ReadAndSplit(name));
}
BENCHMARK(ReadAndSplitWorld)->Name("Yardstick/ReadAndSplitWorld")->Unit(benchmark::kMillisecond);

void LoadWorldTables(benchmark::State& state) {
    const World world(state);
    if (!world.there) return;
    for (auto _ : state) {
        state.PauseTiming();  // what is freed is no part of loading
        nav_tables = {};
        state.ResumeTiming();
        LoadNavTables();
    }
}
BENCHMARK(LoadWorldTables)->Name("LoadNavTables/world")->Unit(benchmark::kMillisecond);

// "A" is among the idents that most places bear: fifteen of them, to be sorted.
void ParseWorldEntry(benchmark::State& state) {
    const World world(state);
    if (!world.there) return;
    for (auto _ : state) ParseEntry("A");
    state.counters["candidates"] = nav.entry_cnt;
}
BENCHMARK(ParseWorldEntry)->Name("ParseEntry/world")->Unit(benchmark::kMicrosecond);

void LoadWorldAirway(benchmark::State& state) {  // the longest
    const World world(state);
    if (!world.there) return;
    for (auto _ : state) LoadAirway("V16", "BTG");
    state.counters["fixes"] = nav.entry_cnt;
}
BENCHMARK(LoadWorldAirway)->Name("LoadAirway/world")->Unit(benchmark::kMicrosecond);

void LoadWorldAirport(benchmark::State& state) {
    const World world(state);
    if (!world.there) return;
    for (auto _ : state) LoadAirport("KORD", airports.origin_airport);
    state.counters["runways"] = airports.origin_airport.runway_cnt;
}
BENCHMARK(LoadWorldAirport)->Name("LoadAirport/world")->Unit(benchmark::kMicrosecond);

// The step of each second while nothing has moved far, and the rebuild of all lists, over Central Europe.
void RefreshWorldLists(benchmark::State& state) {
    const World world(state);
    if (!world.there) return;
    RefreshNearest();
    for (auto _ : state) {
        nav.nearest_refresh_due = static_cast<int>(state.range(0));
        RefreshNearest();
    }
}
BENCHMARK(RefreshWorldLists)
    ->Name("RefreshNearest/world/rebuild")
    ->Arg(0)
    ->Arg(1)
    ->Unit(benchmark::kMicrosecond);

}  // namespace
