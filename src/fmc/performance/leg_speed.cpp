#include "fmc/performance/leg_speed.h"

#include <algorithm>

#include "fmc/performance/predictions.h"
#include "state/cfg.h"
#include "state/leg_words.h"
#include "state/perf.h"
#include "state/sim.h"
#include "state/vnav.h"

namespace {

enum class LegPhase { kClimb, kCruise, kDescent };

LegPhase PhaseAt(int leg) {
    if (vnav.tod == 1 || (vnav.tod_stpos > 0 && leg > vnav.tod_stpos)) return LegPhase::kDescent;
    return vnav.toc == 0 && leg <= vnav.toc_stpos ? LegPhase::kClimb : LegPhase::kCruise;
}

// A pair of speeds as an indicated airspeed at an altitude; 0 when there is neither.
double IndicatedSpeed(double ias, double mach, double altitude) {
    if (mach <= 0) return ias;
    constexpr double kProbe = 250;
    const double by_mach = mach / IasToMach(kProbe, altitude) * kProbe;
    return ias > 0 ? std::min(ias, by_mach) : by_mach;
}

void Limit(double& speed, double most) {
    if (most > 0) speed = speed > 0 ? std::min(speed, most) : most;
}

}  // namespace

double PlannedGroundSpeed(const RouteVersion& route, int leg) {
    const FlightPlanLeg& at = route.legs[leg];
    if (!(at.alt > 0)) return sim.ground_speed_kt;
    const PlannedSpeeds& speeds = perf.speeds;
    const LegPhase phase = PhaseAt(leg);
    double speed = 0;
    switch (phase) {
        case LegPhase::kClimb:
            speed = IndicatedSpeed(speeds.climb_ias, speeds.climb_mach, at.alt);
            if (at.alt < cfg.ClbTransAltRest) Limit(speed, cfg.ClbTransSpdRest);
            if (at.alt < cfg.ClbAltRest) Limit(speed, cfg.ClbSpdRest);
            break;
        case LegPhase::kCruise:
            speed = IndicatedSpeed(speeds.cruise_ias, speeds.cruise_mach, at.alt);
            break;
        case LegPhase::kDescent:
            speed = IndicatedSpeed(speeds.descent_ias, speeds.descent_mach, at.alt);
            if (at.alt < cfg.DescTransAltRest) Limit(speed, cfg.DescTransSpdRest);
            if (at.alt < cfg.DesAltRest) Limit(speed, cfg.DesSpdRest);
            break;
    }
    if (HasSpeedRestr(at)) Limit(speed, at.ias_restr);
    if (!(speed > 0)) return sim.ground_speed_kt;
    return std::max(PlanningTas(speed, at.alt) + at.along_wind, 1.0);
}
