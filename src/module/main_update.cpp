#include "module/main_update.h"

#include "fmc/performance/flight_log.h"
#include "frame/aircraft.h"
#include "frame/snapshot.h"
#include "frame/time_base.h"
#include "guidance/autoflight.h"
#include "guidance/autothrottle.h"
#include "guidance/decision_height.h"
#include "guidance/lnav.h"
#include "guidance/pause_points.h"
#include "navdata/nearest.h"
#include "state/nav.h"
#include "state/time_base.h"
#include "systems/alerting/alerts_update.h"
#include "systems/wheels.h"

void MainUpdate() {
    constexpr int kNearestPhase = 6, kGearLeverPhase = 35, kMiddlePhase = 9;
    ReadMotion();
    if (!HasTicked()) return;
    StepTimeBase();
    if (time_base.tick2s_phase == 0) UpdateWeights();
    ReadSnapshot();
    StepFlightClock();
    ReadRestOfSnapshot();
    if (time_base.tick_phase == 0) ReadSlowValues();
    if (time_base.tick_phase == 0 || time_base.tick_phase == kMiddlePhase) ReadDoors();
    if (time_base.tick_phase == kNearestPhase || nav.nearest_refresh_due == 1) RefreshNearest();
    LnavUpdate();
    if (time_base.tick_phase == kMiddlePhase) AlertsUpdate();
    ReadTailValues();
    FollowAutothrottleArm();
    StepAutoflightTimers();
    ReadSimRate();
    ActAtTopOfDescent();
    ActNearDestination();
    FlightLogStep(false);
    SetDecisionHeight();
    if (time_base.tick2s_phase == kGearLeverPhase) CheckGearLever();
    if (time_base.tick_phase == 0) AlertsUpdate();
}
