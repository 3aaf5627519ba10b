#include "efb/performance/calculate.h"

#include <algorithm>
#include <cmath>

#include "base/angles.h"
#include "base/text.h"
#include "efb/performance/takeoff_analysis.h"
#include "fmc/performance/approach_speeds.h"
#include "fmc/performance/takeoff_speeds.h"
#include "state/efb.h"
#include "state/identity.h"
#include "state/tablet_performance.h"

const char* const kBrakeNames[kBrakeSettings] = {"MAX MANUAL", "AUTO BRK 1", "AUTO BRK 2",
                                                 "AUTO BRK 3", "AUTO BRK 4", "MAX AUTO"};

namespace {

// Kilograms of a pound as the speed formulas were fitted with.
constexpr double kFittedKgPerLb = 0.453592;
constexpr int kUsualFlaps = 5, kReturnFlaps = 30;

double PressureAltitude(double elevation, double qnh) {
    constexpr double kStandard = 1013.25, kFeetPerHpa = 27;
    return qnh == 0 ? elevation : elevation + (kStandard - qnh) * kFeetPerHpa;
}

// One line of the landing table: feet without wind and addition, what 10 knots of head wind and 5 knots more
// of speed change, what the reversers and a wet runway add.
struct BrakeRow {
    double base, per_10_wind, per_5_add, one_inop, all_off, wet;
};
constexpr BrakeRow kBrakeRows[kBrakeSettings] = {
    {4540, 220, 190, 240, 100, 1600}, {8510, 490, 380, 900, 840, 70}, {8010, 440, 390, 260, 260, 200},
    {7360, 400, 410, 0, 0, 400},      {6470, 340, 380, 0, 0, 600},    {5340, 260, 310, 0, 0, 1600},
};

}  // namespace

RunwayWind WindOnRunway(double wind_dir, double wind_speed, double heading) {
    return {-TailWind(wind_dir, wind_speed, heading),
            std::sin((wind_dir - heading) * kRadPerDeg) * wind_speed};
}

int TakeoffFlapsChosen() {
    const TabletTakeoff& page = tablet_performance.takeoff;
    const int flaps =
        LeadingInt(page.EfbTakeoffFlaps == "OPTIMUM" ? page.EfbFlapResult : page.EfbTakeoffFlaps);
    return flaps == 0 ? kUsualFlaps : flaps;
}

int TakeoffReduction() {
    const std::string& chosen = tablet_performance.takeoff.EfbThrustRating;
    if (chosen == "OPTIMUM") return efb.efb_thr_ref == "TO1" ? 1 : efb.efb_thr_ref == "TO2" ? 2 : 0;
    return chosen == "10" ? 1 : chosen == "20" ? 2 : 0;
}

void CalculateTakeoff() {
    if (tablet_performance.analysis.analysis_variant != identity.aircraft_model)
        LoadPerformanceTable(identity.aircraft_model);
    TabletTakeoff& page = tablet_performance.takeoff;
    const bool wet = page.EfbCondition == "WET";
    const TakeoffLimits limits =
        AnalyseTakeoff({page.EfbRunwayLength, page.EfbRunwayElevation, page.EfbOat, page.EfbTakeoffWeight,
                        TailWind(page.EfbWindDir, page.EfbWindSpeed, page.EfbRunwayHeading), wet});
    page.EfbSelTemp = limits.sel_temp;
    page.EfbLimitWeight = limits.limit_weight;
    page.EfbMaxTakeoffWeight = limits.max_weight;
    page.EfbFlapResult = Format("%.0f", static_cast<double>(limits.flaps));
    efb.efb_thr_ref = limits.rating;

    const double kg = page.EfbTakeoffWeight * kFittedKgPerLb;
    const double altitude = PressureAltitude(page.EfbRunwayElevation, page.EfbQnh);
    const int reduction = TakeoffReduction(), flaps = TakeoffFlapsChosen();
    page.EfbFlapsUsed = flaps;
    page.EfbVR = ComputeVR(kg, reduction, flaps, page.EfbOat, altitude);
    page.EfbV1 = std::min(ComputeV1(kg, wet ? 1 : 0, reduction, flaps, page.EfbWindDir, page.EfbWindSpeed,
                                    page.EfbRunwayHeading, page.EfbOat, altitude),
                          page.EfbVR);
    page.EfbV2 = ComputeV2(kg, reduction, flaps, page.EfbOat, altitude);
    page.EfbVref = ApproachSpeed(kReturnFlaps, page.EfbTakeoffWeight, LandingWeight::kLimited);
    page.EfbTakeoffDone = 1;
    efb.EfbKeyboardShown = 0;
}

void CalculateLanding() {
    TabletLanding& page = tablet_performance.landing;
    const LandingConditions at{
        .vref_add = page.EfbVrefAdd,
        .head_wind =
            WindOnRunway(page.EfbLandingWindDir, page.EfbLandingWindSpeed, page.EfbLandingHeading).head,
        .flaps = LeadingInt(page.EfbLandingFlaps),
        .anti_ice = page.EfbAntiIce == "ENG ONLY"     ? 1
                    : page.EfbAntiIce == "ENG + WING" ? 2
                                                      : 0,
        .reversers_lost = page.EfbReverser == "ONE INOP"  ? 1
                          : page.EfbReverser == "ALL OFF" ? 2
                                                          : 0,
        .wet = page.EfbLandingCondition == "WET",
        .manual_spoiler = page.EfbSpoiler == "MANUAL"};
    for (int brakes = 0; brakes < kBrakeSettings; ++brakes)
        page.EfbLandingDistance[static_cast<std::size_t>(brakes)] = ComputeLandingDistance(brakes, at);
    page.EfbLandingVref = ApproachSpeed(at.flaps, page.EfbLandingWeight, LandingWeight::kPresent);
    page.EfbLandingDone = 1;
    efb.EfbKeyboardShown = 0;
}

double ComputeLandingDistance(int brakes, const LandingConditions& at) {
    const BrakeRow& row = kBrakeRows[std::clamp(brakes, 0, kBrakeSettings - 1)];
    double feet = row.base - at.head_wind * row.per_10_wind / 10 + at.vref_add * row.per_5_add / 5;
    if (at.reversers_lost == 1) feet += row.one_inop;
    if (at.reversers_lost == 2) feet += row.all_off;
    if (at.wet) feet += row.wet;
    if (at.flaps == 25) feet += 180;
    if (at.manual_spoiler) feet += 25;
    return feet + at.anti_ice * 20;
}
