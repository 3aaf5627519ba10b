#include "fmc/performance/step_point.h"

#include <algorithm>

#include "base/angles.h"
#include "base/numbers.h"
#include "fmc/performance/performance_tables.h"
#include "fmc/performance/predictions.h"
#include "frame/key_events.h"
#include "navdata/from_aircraft.h"
#include "navdata/geodesy.h"
#include "platform/host.h"
#include "state/cfg.h"
#include "state/leg_words.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/predictions.h"
#include "state/sim.h"
#include "state/vnav.h"

namespace {

// The highest altitude that the table gives a weight.
double OptimumAltitude(double weight) {
    double altitude = kAltitudeByWeight.front().altitude;
    for (const WeightAltitude& row : kAltitudeByWeight)
        if (weight <= row.weight) altitude = row.altitude;
    return altitude;
}

// The first weight from the present one down, by 100 lb, that allows 500 ft above the cruise altitude; 0 =
// none.
double WeightForStep() {
    constexpr double kMargin = 500, kStep = 100;
    const double wanted = perf.cruise_alt + kMargin;
    for (double weight = GrossWeight(); weight > 0; weight -= kStep)
        if (MaxAltitudeFor(weight) * 100.0 >= wanted && OptimumAltitude(weight) >= wanted) return weight;
    return 0;
}

// How far the aircraft flies to burn that much.
double DistanceForBurn(double pounds) {
    const double climb = vnav.toc == 1 ? 0 : predictions.dist_to_toc;
    const double climb_burn = climb * predictions.clb_burn_per_nm;
    if (pounds <= climb_burn && predictions.clb_burn_per_nm > 0) return pounds / predictions.clb_burn_per_nm;
    return predictions.crz_burn_per_nm > 0 ? climb + (pounds - climb_burn) / predictions.crz_burn_per_nm : 0;
}

void PlaceStep(double lat, double lon, double dist) {
    vnav.step_lat = lat;
    vnav.step_lon = lon;
    vnav.dist_to_step = dist;
}

// Calls visit(leg, lat, lon, dist, begins) for each stretch ahead of the aircraft until it gives true.
template <class Visit>
void WalkAhead(Visit visit) {
    double lat = sim.plane_lat, lon = sim.plane_lon, begins = 0;
    for (int i = std::max(plan.active.stpos, 1); i <= plan.active.leg_cnt; ++i) {
        const FlightPlanLeg& leg = FlightPlanLegAt(i);
        if (!IsPlace(leg) || IsOfMissedApproach(leg)) continue;
        const double dist = GreatCircle(lat, lon, leg.lat, leg.lon).dist;
        if (visit(leg, lat, lon, dist, begins)) return;
        begins += dist;
        lat = leg.lat;
        lon = leg.lon;
    }
}

}  // namespace

void ComputeStepPoint() {
    PlaceStep(0, 0, 0);
    if (plan.active.stpos == kNoPlan || vnav.tod == 1) return;
    WalkAhead([](const FlightPlanLeg& leg, double, double, double dist, double begins) {
        if (leg.step_alt <= 0) return false;
        perf.fms_step_to_alt = leg.step_alt;
        PlaceStep(leg.lat, leg.lon, begins + dist);
        return true;
    });
    if (vnav.dist_to_step > 0 || perf.fms_step_to_alt <= perf.cruise_alt) return;
    const double weight = WeightForStep();
    if (weight <= 0) return;
    const double along = DistanceForBurn(GrossWeight() - weight);
    if (along >= predictions.dist_to_tod) return;
    WalkAhead([along](const FlightPlanLeg& leg, double lat, double lon, double dist, double begins) {
        if (begins + dist < along) return false;
        const LatLon at =
            ProjectPoint(lat, lon, GreatCircle(lat, lon, leg.lat, leg.lon).bearing, along - begins);
        PlaceStep(at.lat, at.lon, along);
        return true;
    });
}

void BeginStepClimb(double altitude) {
    vnav.step_due = 1;
    vnav.step_noted_alt = perf.cruise_alt;
    vnav.step_climb_timer = 1;
    if (cfg.autostepclimb == 1 && perf.cruise_alt < perf.fms_step_to_alt)
        SendKeyEvent(kKeyAltitudeSet, WholeNumber(altitude));
}

void WatchStepPoint() {
    if ((vnav.step_lat == 0 && vnav.step_lon == 0) || vnav.toc == 0 || vnav.tod == 1) return;
    constexpr double kAtPoint = 1.5, kAbeam = 90;  // nm, degrees
    const DistBearing to = FromAircraft(vnav.step_lat, vnav.step_lon);
    vnav.dist_to_step = to.dist;
    if (to.dist > kAtPoint && BearingDifference(to.bearing, sim.true_track_deg) <= kAbeam) return;
    PlaceStep(0, 0, 0);
    BeginStepClimb(perf.fms_step_to_alt);
}
