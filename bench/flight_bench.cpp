#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <string>
#include <vector>

#include "flying_session.h"
#include "navdata/geodesy.h"

// The whole system from outside, as a simulator drives it.

namespace {

// Yardstick of all that computes: one great-circle distance and bearing.
void GreatCircleYardstick(benchmark::State& state) {
    double lon = 10;
    for (auto _ : state) {
        lon += 1e-4;
        benchmark::DoNotOptimize(GreatCircle(47, lon, 48, 11));
    }
}
BENCHMARK(GreatCircleYardstick)->Name("Yardstick/GreatCircle");

void ServiceCall(benchmark::State& state) {
    FlyingSession flying;
    if (!flying.Start(RouteOf(static_cast<int>(state.range(0)))))
        return state.SkipWithError(flying.error.c_str());
    flying.Engage();
    std::vector<double> samples;
    for (auto _ : state) {
        host::DispatchQueuedCalls();
        host::AdvanceClock();
        host::StepFlight(true);
        const auto start = std::chrono::steady_clock::now();
        CallGauges(flying.session, kServicePreUpdate);
        samples.push_back(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
        state.SetIterationTime(samples.back());
    }
    std::sort(samples.begin(), samples.end());
    state.counters["p99_us"] = samples[samples.size() * 99 / 100] * 1e6;
}
BENCHMARK(ServiceCall)
    ->Arg(60)
    ->Arg(300)
    ->UseManualTime()
    ->Iterations(18 * 600)
    ->Unit(benchmark::kMicrosecond);

void HeadlessFlight(benchmark::State& state) {
    FlyingSession flying;
    if (!flying.Start(RouteOf(60))) return state.SkipWithError(flying.error.c_str());
    flying.Engage();
    constexpr int kTicks = 18 * 600;
    for (auto _ : state)
        for (int i = 0; i < kTicks; ++i) TickSession(flying.session, false);
    state.counters["times_real_time"] =
        benchmark::Counter(kTicks / 18.0, benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(HeadlessFlight)->Iterations(10)->UseRealTime()->Unit(benchmark::kMillisecond);

double ResidentKb() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmRSS:")) return std::atof(line.c_str() + 6);
    return 0;
}

void MemoryOfAFlight(benchmark::State& state) {
    FlyingSession flying;
    if (!flying.Start(RouteOf(60))) return state.SkipWithError(flying.error.c_str());
    flying.Engage();
    const auto fly_hour = [&] {
        for (int i = 0; i < 18 * 3600; ++i) TickSession(flying.session, false);
    };
    for (auto _ : state) {
        fly_hour();
        const double first = ResidentKb();
        for (int hour = 1; hour < 10; ++hour) fly_hour();
        state.counters["rss_mb"] = ResidentKb() / 1024;
        state.counters["growth_kb"] = ResidentKb() - first;
    }
}
BENCHMARK(MemoryOfAFlight)->Iterations(1)->Unit(benchmark::kSecond);

void StartWithTheWorld(benchmark::State& state) {
    for (auto _ : state) {
        FlyingSession flying;
        const auto start = std::chrono::steady_clock::now();
        if (!flying.Start("")) return state.SkipWithError(flying.error.c_str());
        state.SetIterationTime(
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
}
BENCHMARK(StartWithTheWorld)->Iterations(5)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
