#include "fmc/legs/route_state.h"

#include <algorithm>
#include <utility>

#include "fmc/legs/active_leg.h"
#include "frame/fuel_loader.h"
#include "frame/key_events.h"
#include "platform/host.h"
#include "state/cfg.h"
#include "state/leg_words.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/sim.h"

namespace {

// What loading a route does to an aircraft at the gate.
void PrepareAircraftForRoute() {
    constexpr double kStanding = 5;
    constexpr double kLowestCruise = 1000;
    if (sim.ground_speed_kt >= kStanding) return;
    if (cfg.LoadFuelonFlightPlanLoad == 1 && perf.planned_fuel > 0)
        LoadTotalFuel(std::exchange(perf.planned_fuel, 0));
    if (cfg.SetMCPCruiseAltonFlightPlanLoad == 1 && plan.mod.entries.cruise_alt >= kLowestCruise)
        SendKeyEvent(kKeyAltitudeSet, static_cast<int>(std::min(plan.mod.entries.cruise_alt, 99999.0)));
}

}  // namespace

void AdvanceRouteState() {
    switch (plan.fms_fpln_active) {
        case kRouteNone:
        case kRouteEntered:
        case kRouteActivated:
            ++plan.fms_fpln_active;
            break;
        case kRouteActive:
            plan.fms_fpln_active = kRouteModified;
            SetPendingActiveLeg(PendingActiveLeg());
            break;
        case kRouteModified:
            plan.fms_fpln_active = kRouteActive;
            break;
        default:
            break;
    }
    PrepareAircraftForRoute();
}

void OpenModification() {
    if (plan.fms_fpln_active == kRouteNone || IsRouteSettled()) AdvanceRouteState();
}
