#pragma once

#include <array>
#include <span>
#include <string>

#include "state/variable.h"

/// The tablet's take-off page. What is typed stands as it was understood; a field left empty is 0.
struct TabletTakeoff {
    std::string EfbTakeoffAirport, EfbTakeoffRunway;  // empty = none
    std::string EfbThrustRating = "OPTIMUM";
    std::string EfbIntersection;  // empty = the full length
    std::string EfbTakeoffFlaps = "OPTIMUM";
    std::string EfbV1VrMode = "OPTIMUM";
    std::string EfbCondition = "DRY";
    double EfbWindDir = 0, EfbWindSpeed = 0;  // degrees of the runway's reference, kt
    double EfbOat = 0;                        // degrees Celsius
    double EfbQnh = 0;                        // hPa, 0 = standard
    double EfbTakeoffWeight = 0;              // lb
    double EfbCg = 0;                         // percent of the chord
    double EfbRunwayLength = 0, EfbRunwayElevation = 0, EfbRunwayHeading = 0;  // ft, ft, degrees
    // results, shown while EfbTakeoffDone is 1: until an input changes
    int EfbTakeoffDone = 0;
    int EfbV1 = 0, EfbVR = 0, EfbV2 = 0;  // kt
    double EfbVref = 0;                   // kt, for a return with flaps 30
    double EfbSelTemp = -99;              // assumed temperature, -99 = none
    double EfbMaxTakeoffWeight = 0;       // lb
    double EfbLimitWeight = 0;            // lb, before wet runway and wind
    std::string EfbFlapResult;            // the analysis's flaps
    int EfbFlapsUsed = 0;                 // those of the speeds
};

/// The tablet's landing page.
struct TabletLanding {
    std::string EfbLandingAirport, EfbLandingRunway;  // empty = none
    std::string EfbLandingCategory = "MANUAL";
    std::string EfbLandingFlaps = "30";
    std::string EfbLandingCondition = "DRY";
    std::string EfbAntiIce = "AI OFF";
    std::string EfbReverser = "NO CREDIT";
    std::string EfbSpoiler = "AUTO";
    std::string EfbBrakes = "ALL";
    double EfbLandingWindDir = 0, EfbLandingWindSpeed = 0;
    double EfbLandingOat = 0, EfbLandingQnh = 0;
    double EfbLandingWeight = 0;  // lb
    double EfbVrefAdd = 0;        // kt
    double EfbLandingLength = 0, EfbLandingElevation = 0, EfbLandingHeading = 0;
    // results, shown while EfbLandingDone is 1
    int EfbLandingDone = 0;
    double EfbLandingVref = 0;                   // kt, without the addition
    std::array<double, 6> EfbLandingDistance{};  // ft, "MAX MANUAL" to "MAX AUTO"
};

/// What the crew has sent to the FMC and not yet accepted or rejected there: the results above, and the flaps
/// and speed that were in them.
struct TabletUplink {
    int EfbUplinkPending = 0, EfbApproachUplinkPending = 0;
    int EfbUplinkFlaps = 0;
    int EfbApproachUplinkFlaps = 0;
    double EfbApproachUplinkSpeed = 0;  // kt, with the addition
};

/// Rows of ten numbers of the variant's analysis file, and two pairs of columns that are the variant's own.
/// Rows count from 1.
constexpr int kAnalysisColumns = 14, kAnalysisRows = 108;
struct TakeoffAnalysis {
    std::array<std::array<double, kAnalysisColumns>, kAnalysisRows + 1> rows{};
    int analysis_rows = 0;                                      // of the file
    int analysis_wind_rows = 0, analysis_temperature_rows = 0;  // of the last two pairs
    std::string analysis_variant;                               // "900-8" ...; empty = not loaded
};

struct TabletPerformance {
    TabletTakeoff takeoff;
    TabletLanding landing;
    TabletUplink uplink;
    TakeoffAnalysis analysis;
};

extern TabletPerformance tablet_performance;
extern const std::span<const Variable> kTabletPerformanceVariables;
