#include "cdu/words/eta.h"

#include <cmath>

#include "base/text.h"
#include "state/predictions.h"
#include "state/sim.h"

double HoursFor(double distance) {
    constexpr double kUsableGroundSpeed = 60;  // kt
    const double speed = sim.ground_speed_kt > kUsableGroundSpeed ? sim.ground_speed_kt : predictions.avg_gs;
    return speed > 0 ? distance / speed : 0;
}

std::string EtaText(double hours_from_now) {
    const double minutes =
        std::fmod(sim.utc_hours * 60 + sim.utc_minutes + std::floor(hours_from_now * 60), 1440);
    return Format("%02.0f%02.0fZ", std::floor(minutes / 60), std::fmod(minutes, 60));
}
