#include "module/tick_outputs.h"

#include "cdu/unit/exec_lamps.h"
#include "checklist/checklist.h"
#include "display/eicas/engine_readings.h"
#include "display/nd/nd_memory.h"
#include "display/pfd/pfd_memory.h"
#include "display/pictures/remote_bridge.h"
#include "display/routing/routing.h"
#include "fmc/performance/published_values.h"
#include "fmc/performance/winds.h"
#include "frame/aircraft.h"
#include "frame/model_values.h"
#include "frame/snapshot.h"
#include "guidance/approach_tuning.h"
#include "guidance/autoflight.h"
#include "guidance/speed_trend.h"
#include "guidance/step_climb.h"
#include "module/remote_input.h"
#include "navdata/runways_in_use.h"
#include "panels/save_panel.h"
#include "sound/environment.h"
#include "sound/warnings.h"
#include "state/time_base.h"
#include "surveillance/terrain.h"
#include "surveillance/traffic.h"
#include "systems/air_temperatures.h"
#include "systems/alerting/alert_inputs.h"
#include "systems/alerting/alerts_update.h"
#include "systems/alerting/master_caution.h"
#include "systems/alerting/message_lists.h"
#include "systems/apu.h"
#include "systems/battery.h"
#include "systems/electrical.h"
#include "systems/engine_controls.h"
#include "systems/engine_start.h"
#include "systems/fire_test.h"
#include "systems/fuel_pumps.h"
#include "systems/hydraulics.h"
#include "systems/irs.h"
#include "systems/overhead_lamps.h"
#include "systems/ram_air_turbine.h"
#include "systems/status_dots.h"
#include "systems/surfaces.h"
#include "systems/thrust_values.h"
#include "systems/wheels.h"

namespace {

void StepTimers() {
    StepBattery();
    StepApu();
    StepEngineStart();
    StepFuelPumps();
    StepHydraulics();
    DeployTurbineForPressure();
    ReadSurfaces();
    UpdateSpeedTrend();
    CountStepClimb();
}

void EveryThreeSeconds() {
    ReadTerrainBelow();
    RefreshRunwaysInUse();
    PublishFmcValues();
    PublishModelSettings();
    PublishTakeoffRating();
}

// Once a second in three groups, so that no tick carries all of it.
void FirstGroup() {
    StepEnvironmentTimers();
    CountRecall();
    StepWindUplink();
    StepElectricalPower();
    PublishApu();
    StepTemperatures();
    ReadBrakeTemperatures();
    CountStartTimers();
    CountFireTest();
    ShowOverheadLamps();
    SetStatusDots();
    RepairInboardModes();
}

void SecondGroup() {
    StartApuInFlight();
    ShowMasterCaution();
    AgreeFlightDirector();
    ReturnStartSelectors();
    HeatPitotsWithEngines();
    ExchangeThrustLimit();
}

void ThirdGroup() {
    ArmGearWarning();
    UpdateFlapSpeedRow();
    FollowHostFuel();
    ExchangeThrustValues();
    StepPanelAutosave();
}

void HalfSecond() {
    ReadAutobrake();
    ShowExecLamps();
}

// At the phases 0, 5, 10 and 15.
void QuarterSecond() {
    StepLightOff();
    CheckApproachTuning();
    PublishApproachValues();
}

void StepPhases(int phase) {
    if (time_base.tick3s_phase == 22) EveryThreeSeconds();
    if (time_base.tick2s_phase == 0) {
        ReadFreeAddressSpace();
        ClearDisconnectCaution();
    }
    if (phase == 0) FirstGroup();
    if (phase == 5) SecondGroup();
    if (phase == 11) ThirdGroup();
    if (phase == 0 || phase == 9) HalfSecond();
    if (phase % 5 == 0) QuarterSecond();
}

}  // namespace

void TickOutputs(bool ticked) {
    PollRemoteInput();
    MarkRemoteImages(ticked ? time_base.tick_phase : time_base.frame_phase);
    if (ticked) StepTimers();
    StepIrs();
    EndWarningSounds();
    PublishGuidance();
    ReadAutoflightModes();
    if (ticked) StepNdMemory();
    ReadTrafficAdvisory();
    if (ticked) StepPfdMemory();
    if (ticked) StepEicasReadings();
    if (ticked) StepPhases(time_base.tick_phase);
    TakeDisplaySelector();
    StepChecklist();
    FollowFlightSaves();
    ShowRequestedChecklist();
    if (time_base.frame_phase % 2 == 0) ReadModelValues();
    TakeAlertAural();
}
