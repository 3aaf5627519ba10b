#include "efb/performance/takeoff_analysis.h"

#include <gtest/gtest.h>

#include "efb/performance/calculate.h"
#include "state/tablet_performance.h"
#include "support/fake_host.h"
#include "support/file_text.h"
#include "support/paths.h"

namespace {

constexpr const char* kVariants[] = {"900-8", "900-9", "900-10"};

std::string FileOf(const std::string& variant) {
    return "Velarion/TZ900/Navdata/Airport_Analysis" + variant.substr(variant.find('-')) + ".txt";
}

void LoadDemonstration(FakeHost& host, const std::string& variant) {
    host.PutFile(FileOf(variant), FileText(SourceDir() + "/data/root/" + FileOf(variant)));
    LoadPerformanceTable(variant);
}

TEST(TakeoffAnalysis, AnswersSensiblyOverTheWholeRange) {
    FakeHost host;
    for (const char* variant : kVariants) {
        LoadDemonstration(host, variant);
        ASSERT_EQ(tablet_performance.analysis.analysis_rows, 108) << variant;
        for (const double length : {3500.0, 6000.0, 8000.0, 11000.0, 14000.0})
            for (const double elevation : {0.0, 2000.0, 5431.0, 9500.0})
                for (const double weight : {300000.0, 380000.0, 440000.0, 490000.0, 545000.0}) {
                    double hotter = 1e9, windier = 1e9;
                    for (int oat = -20; oat <= 52; ++oat) {
                        const double limit =
                            AnalyseTakeoff({length, elevation, static_cast<double>(oat), weight}).max_weight;
                        EXPECT_LE(limit, hotter)
                            << variant << ' ' << length << ' ' << elevation << ' ' << weight << ' ' << oat;
                        hotter = limit;
                    }
                    for (int tail = 0; tail <= 16; ++tail) {
                        const double limit =
                            AnalyseTakeoff({length, elevation, 20, weight, static_cast<double>(tail)})
                                .max_weight;
                        EXPECT_LE(limit, windier) << variant << ' ' << length << ' ' << tail;
                        windier = limit;
                    }
                }
        // A longer or lower runway never carries less; a heavier aircraft has no cooler day to assume.
        double longer = 0, higher = 1e9, assumed = 1e9;
        for (double feet = 3000; feet <= 15000; feet += 100) {
            const double limit = AnalyseTakeoff({feet, 0, 20, 400000}).limit_weight;
            EXPECT_GE(limit, longer) << variant << ' ' << feet;
            longer = limit;
        }
        for (double feet = 0; feet <= 14000; feet += 100) {
            const double limit = AnalyseTakeoff({12000, feet, 20, 400000}).limit_weight;
            EXPECT_LE(limit, higher) << variant << ' ' << feet;
            higher = limit;
        }
        for (double weight = 260000; weight <= 560000; weight += 1000) {
            const double temperature = AnalyseTakeoff({12000, 0, 15, weight}).sel_temp;
            EXPECT_LE(temperature, assumed) << variant << ' ' << weight;
            assumed = temperature;
        }
    }
}

// A table of two records, of which each conclusion follows by hand.
TEST(TakeoffAnalysis, HandWorked) {
    FakeHost host;
    host.PutFile(FileOf("900-9"),
                 "300000 60 6000 -100000 0 0 1 15 0 5\n400000 40 12000 0 6000 -50000 2 10 0 20\n");
    LoadPerformanceTable("900-9");
    // 12,000 ft, sea level, 15 degrees: 560,500 lb are the limit; 300,000 lb are 0.54 of it.
    TakeoffLimits at = AnalyseTakeoff({12000, 0, 15, 300000});
    EXPECT_EQ(at.limit_weight, 560500);
    EXPECT_EQ(at.max_weight, 560500);
    EXPECT_EQ(at.sel_temp, 60);
    EXPECT_EQ(at.rating, "TO2");
    EXPECT_EQ(at.flaps, 5);
    // Wet: three degrees and 8,500 lb less. From 30 degrees on each costs 3,500 lb.
    at = AnalyseTakeoff({12000, 0, 15, 300000, 0, true});
    EXPECT_EQ(at.sel_temp, 57);
    EXPECT_EQ(at.max_weight, 552000);
    EXPECT_EQ(AnalyseTakeoff({12000, 0, 30, 300000}).limit_weight, 560500);
    EXPECT_EQ(AnalyseTakeoff({12000, 0, 31, 300000}).limit_weight, 557000);
    // Ten knots from behind: 16,000 lb, and full thrust; one knot takes one step of it.
    at = AnalyseTakeoff({12000, 0, 15, 300000, 10});
    EXPECT_EQ(at.max_weight, 544500);
    EXPECT_EQ(at.rating, "TO");
    EXPECT_EQ(AnalyseTakeoff({12000, 0, 15, 300000, 1}).rating, "TO1");
    // A short runway takes its change, and at 4,500 ft fourteen degrees in a tail wind.
    EXPECT_EQ(AnalyseTakeoff({6000, 0, 15, 300000}).limit_weight, 460500);
    EXPECT_EQ(AnalyseTakeoff({4500, 0, 15, 300000, 1}).sel_temp, 46);
    // 455,000 lb are 0.81 of the limit: no derate by the flaps 15 of sea level. At 6,000 ft flaps 10 leave
    // it.
    at = AnalyseTakeoff({12000, 0, 15, 455000});
    EXPECT_EQ(at.sel_temp, kNoSelTemp);
    EXPECT_EQ(at.flaps, 15);
    EXPECT_EQ(at.rating, "TO");
    at = AnalyseTakeoff({12000, 6000, 15, 455000});
    EXPECT_EQ(at.flaps, 10);
    EXPECT_EQ(at.rating, "TO1");
}

TEST(TakeoffAnalysis, BadFiles) {
    FakeHost host;
    const auto rows_of = [&](const std::string& text) {
        host.PutFile(FileOf("900-8"), text);
        LoadPerformanceTable("900-8");
        AnalyseTakeoff({12000, 0, 35, 400000, 3, true});
        return tablet_performance.analysis.analysis_rows;
    };
    const std::string row = "300000 60 6000 -100000 0 0 1 15 0 5\n";
    std::string many;
    for (int i = 0; i < 5000; ++i) many += row;
    EXPECT_EQ(rows_of(""), 0);
    EXPECT_EQ(rows_of(row), 1);
    EXPECT_EQ(rows_of(many), 108);
    EXPECT_EQ(rows_of(many.substr(0, 108 * row.size())), 108);
    EXPECT_EQ(rows_of("one two three\n1e999 nan inf - . 0x10 1 2 3\n"), 2);
    EXPECT_EQ(tablet_performance.analysis.rows[1][0], 0);
    EXPECT_EQ(rows_of(std::string(100000, '9')), 101) << "a line of 999 characters after the other";
    // Without a file the heat alone is a limit.
    LoadPerformanceTable("900-9");
    EXPECT_EQ(tablet_performance.analysis.analysis_rows, 0);
    EXPECT_EQ(AnalyseTakeoff({12000, 0, 32, 300000}).limit_weight, 553500);
}

TEST(LandingDistance, HandWorked) {
    const LandingConditions dry{};
    const int bases[] = {4540, 8510, 8010, 7360, 6470, 5340};
    const int wet[] = {1600, 70, 200, 400, 600, 1600};
    LandingConditions wet_runway = dry;
    wet_runway.wet = true;
    for (int brakes = 0; brakes < kBrakeSettings; ++brakes) {
        EXPECT_EQ(ComputeLandingDistance(brakes, dry), bases[brakes]);
        EXPECT_EQ(ComputeLandingDistance(brakes, wet_runway), bases[brakes] + wet[brakes]);
    }
    // 10 kt ahead, 5 kt added, flaps 25, manual spoilers, anti-ice of engines and wing, reversers lost
    EXPECT_EQ(ComputeLandingDistance(0, {5, 10, 25, 2, 1, false, true}),
              4540 - 220 + 190 + 180 + 25 + 40 + 240);
    EXPECT_EQ(ComputeLandingDistance(1, {0, 0, 20, 0, 2, false, false}), 8510 + 840);
    EXPECT_EQ(ComputeLandingDistance(2, {0, 0, 30, 1, 2, false, false}), 8010 + 260 + 20);
    EXPECT_EQ(ComputeLandingDistance(3, {0, 0, 30, 0, 1, false, false}), 7360);
}

}  // namespace
