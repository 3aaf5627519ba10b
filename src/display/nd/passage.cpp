#include "display/nd/passage.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "state/irs.h"
#include "state/sim.h"

std::string TimeOfPassage(double nm) {
    constexpr double kLeastSpeed = 50, kMinutesOfDay = 24 * 60, kFarthest = 1e5;  // kt; minutes
    if (!(sim.ground_speed_kt > kLeastSpeed)) return "------";
    const double minutes = nm / sim.ground_speed_kt * 60;
    const double to_go = minutes > 0 ? std::min(minutes, kFarthest) : 0;
    const double now = sim.utc_hours * 60 + sim.utc_minutes + sim.utc_seconds / 60.0;
    const int tenths = static_cast<int>(std::fmod(std::max(now, 0.0) + to_go, kMinutesOfDay) * 10);
    return Format("%02d%02d.%d", tenths / 600, tenths / 10 % 60, tenths % 10);
}

int TicksToAlign() {
    const int left = irs.irs_timer_l, right = irs.irs_timer_r;
    const bool both = left > 0 && right > 0;
    return both ? std::min(left, right) : std::max({left, right, 0});
}
