#include "cdu/words/constraint_text.h"

#include "base/text.h"
#include "state/cfg.h"
#include "state/leg_words.h"
#include "state/perf.h"

std::string AltitudeText(double altitude) {
    return altitude > cfg.TransAlt ? Format("FL%03.0f", altitude / 100) : Format("%5.0f", altitude);
}

// A predicted speed is a Mach in cruise.
std::string SpeedText(const FlightPlanLeg& leg) {
    const bool by_mach = HasSpeedRestr(leg) || (perf.cruise_alt > 0 && leg.alt >= perf.cruise_alt);
    if (by_mach && leg.mach_restr > 0 && leg.mach_restr < 1) return Format(".%03.0f", leg.mach_restr * 1000);
    return leg.ias_restr > 0 ? Format("%3.0f", leg.ias_restr) : "----";
}

std::string ConstraintAltitude(const FlightPlanLeg& leg) {
    if (HasWindow(leg)) return Format("%-3.0fA%-3.0fB", leg.block_above / 100, leg.block_below / 100);
    const bool constrained = HasAltitudeRestr(leg) && leg.alt_restr > 0;
    if (!constrained) return {};
    return AltitudeText(leg.alt_restr) + (leg.restr_type == kAtOrAbove   ? "A"
                                          : leg.restr_type == kAtOrBelow ? "B"
                                                                         : "");
}

std::string ConstraintText(const FlightPlanLeg& leg) {
    const std::string altitude = ConstraintAltitude(leg);
    const bool speed = HasSpeedRestr(leg);
    return (speed ? SpeedText(leg) : std::string()) + "/" + std::string(Trimmed(altitude));
}
