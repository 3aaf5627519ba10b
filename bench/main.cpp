#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

// Runs the benchmarks and prints the figures to reach, each beside a yardstick of the same run: machines
// differ, ratios don't.

namespace {

struct Figure {
    std::string what;       // as a pilot or an engineer would name it
    std::string measured;   // the benchmark's name
    std::string yardstick;  // another benchmark's name, empty = none
    std::string counter;    // the benchmark's counter that is the figure, empty = its time
    std::string unit;       // of the counter
    double reach;           // ns for a time, else in the counter's unit; 0 = only told
    bool at_least = false;  // the figure is to be as high as that, not as low
};

const std::vector<Figure> kFigures = {
    {"one service call, 60 legs active, mean", "ServiceCall/60", "Yardstick/GreatCircle", "", "", 12e3},
    {"one service call, 60 legs active, p99", "ServiceCall/60", "", "p99_us", "us", 50},
    {"one service call, 300 legs active, mean", "ServiceCall/300", "ServiceCall/60", "", "", 0},
    {"EXEC of 120 legs, path and predictions", "ExecuteRoute/120", "Yardstick/GreatCircle", "", "", 1e6},
    {"all world navigation data loaded, indexed", "LoadNavTables/world", "Yardstick/ReadAndSplitWorld", "",
     "", 20e6},
    {"ParseEntry on world data, 15 candidates", "ParseEntry/world", "Yardstick/GreatCircle", "", "", 10e3},
    {"LoadAirway on world data, the longest", "LoadAirway/world", "Yardstick/ReadAndSplitWorld", "", "", 1e6},
    {"LoadAirport on world data", "LoadAirport/world", "Yardstick/ReadAndSplitWorld", "", "", 1e6},
    {"headless flight, painting off, times real time", "HeadlessFlight", "", "times_real_time", "x", 3000,
     true},
    {"composing a Display Unit, the slowest format", "ComposeDisplayUnit", "Yardstick/GreatCircle", "", "",
     60e3},
    {"composing an ND, all layers, 40 nm, New York, mean", "ComposeNdMap/legs:60/nm:40",
     "Yardstick/GreatCircle", "", "", 100e3},
    {"  p99", "ComposeNdMap/legs:60/nm:40", "", "p99_us", "us", 300},
    {"  on a route of 1,000 legs, mean", "ComposeNdMap/legs:1000/nm:40", "ComposeNdMap/legs:60/nm:40", "", "",
     100e3},
    {"  p99", "ComposeNdMap/legs:1000/nm:40", "", "p99_us", "us", 300},
    {"  in PLAN from leg to leg at 1280 nm, mean", "ComposeNdPlan/legs:60/nm:1280", "Yardstick/GreatCircle",
     "", "", 100e3},
    {"  p99", "ComposeNdPlan/legs:60/nm:1280", "", "p99_us", "us", 300},
    {"composing a PFD with everything on, mean", "ComposePfd/legs:60/nm:40", "Yardstick/GreatCircle", "", "",
     60e3},
    {"rasterising a dense picture at 1128 by 848", "Rasterise", "Yardstick/FillPixels", "", "", 6e6},
    {"nine screens painted and made ready to send, once", "StreamNineScreens", "Yardstick/GreatCircle", "",
     "", 0},
    {"  at 18 pictures a second, share of a core", "StreamNineScreens", "", "cpu_percent", "%", 5},
    {"  bytes a second to a browser in cruise", "StreamNineScreens", "", "bytes_per_s", "B/s", 100e3},
    {"key press to changed picture, painting included", "KeyPressToPicture", "Yardstick/GreatCircle", "", "",
     0},
    {"  service calls at most", "KeyPressToPicture", "", "calls_max", "", 6},
    {"a pass of the crew alerting, every row tested", "AlertPass", "Yardstick/GreatCircle", "", "", 20e3},
    {"a page of the CDU, acted on and composed", "CduPage", "Yardstick/GreatCircle", "", "", 100e3},
    {"a page of a tablet, with keyboard and list", "TabletPage", "Yardstick/GreatCircle", "", "", 100e3},
    {"CALC of the take-off page", "CalculateTakeoff", "Yardstick/GreatCircle", "", "", 1e6},
    {"a procedure loaded from 12 MB and inserted", "InsertProcedure/world", "Yardstick/ReadAndSplitWorld", "",
     "", 10e6},
    {"headless, nine screens composed every tick", "HeadlessPainting", "", "times_real_time", "x", 400, true},
    {"memory of the program, world data loaded", "MemoryOfAFlight", "", "rss_mb", "MB", 80},
    {"  its growth from the first hour to the tenth", "MemoryOfAFlight", "", "growth_kb", "kB", 0.5},
    {"start to the first update, world data included", "StartWithTheWorld", "", "", "", 1e9},
};

struct Result {
    double ns = 0;
    benchmark::UserCounters counters;
};
std::map<std::string, Result> results;

class Collector : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs)
            if (!run.error_occurred)
                results[run.benchmark_name()] = {run.GetAdjustedRealTime() * Nanoseconds(run.time_unit),
                                                 run.counters};
        ConsoleReporter::ReportRuns(runs);
    }

  private:
    static double Nanoseconds(benchmark::TimeUnit unit) {
        return unit == benchmark::kSecond        ? 1e9
               : unit == benchmark::kMillisecond ? 1e6
               : unit == benchmark::kMicrosecond ? 1e3
                                                 : 1;
    }
};

// A benchmark by its name, which may carry what the library adds behind it ("/iterations:100").
const Result* FindResult(const std::string& name) {
    for (const auto& [full, result] : results)
        if (full == name || full.starts_with(name + "/iterations:") || full.starts_with(name + "/min_time") ||
            full.starts_with(name + "/manual_time") || full.starts_with(name + "/real_time"))
            return &result;
    return nullptr;
}

std::string TimeText(double ns) {
    char text[32];
    const double value = ns >= 1e9 ? ns / 1e9 : ns >= 1e6 ? ns / 1e6 : ns >= 1e3 ? ns / 1e3 : ns;
    std::snprintf(text, sizeof text, "%.3g %s", value,
                  ns >= 1e9   ? "s"
                  : ns >= 1e6 ? "ms"
                  : ns >= 1e3 ? "us"
                              : "ns");
    return text;
}

void PrintFigures() {
    std::printf("\n%-52s %14s %14s  %s\n", "figure", "measured", "to reach", "ratio to its yardstick");
    for (const Figure& figure : kFigures) {
        const Result* measured = FindResult(figure.measured);
        if (measured == nullptr) continue;
        double value = measured->ns;
        if (!figure.counter.empty()) {
            const auto counter = measured->counters.find(figure.counter);
            if (counter == measured->counters.end()) continue;
            value = counter->second.value;
        }
        const auto text = [&](double number) {
            char with_unit[48];
            std::snprintf(with_unit, sizeof with_unit, "%.4g %s", number, figure.unit.c_str());
            return figure.counter.empty() ? TimeText(number) : std::string(with_unit);
        };
        const bool reached =
            figure.reach == 0 || (figure.at_least ? value >= figure.reach : value <= figure.reach);
        std::printf("%-52s %14s %14s", figure.what.c_str(), text(value).c_str(),
                    figure.reach == 0 ? "" : text(figure.reach).c_str());
        if (const Result* yardstick = FindResult(figure.yardstick); yardstick != nullptr && yardstick->ns > 0)
            std::printf("  %.3g x %s (%s)", value / yardstick->ns, figure.yardstick.c_str(),
                        TimeText(yardstick->ns).c_str());
        std::printf("%s\n", reached ? "" : "  NOT REACHED");
    }
}

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);
    benchmark::Shutdown();
    PrintFigures();
    return 0;
}
