#include "guidance/speed_trend.h"

#include <cmath>
#include <numeric>

#include "frame/named_variables.h"
#include "state/autoflight.h"
#include "state/sim.h"
#include "state/time_base.h"

void UpdateSpeedTrend() {
    AutoflightState& a = autoflight;
    const double heard = ReadNamedVar(NamedVar("airspeed_smooth"));
    if (std::isfinite(heard)) sim.airspeed_smooth = heard;
    a.spd_ring[static_cast<std::size_t>(time_base.tick_phase)] = sim.airspeed_smooth;
    const double mean =
        std::accumulate(a.spd_ring.begin(), a.spd_ring.end(), 0.0) / static_cast<double>(a.spd_ring.size());
    const double smooth = (mean + a.spd_mean) / 2;
    const double change = smooth - a.spd_mean;
    a.spd_mean = smooth;
    a.spd_lookahead = sim.airspeed_smooth + 60 * change;
    a.spd_trend = (smooth + 180 * change + a.spd_trend) / 2;
}
