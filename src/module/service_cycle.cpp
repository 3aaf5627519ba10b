#include "module/service_cycle.h"

#include <algorithm>
#include <cstring>

#include "cdu/unit/cdu_service.h"
#include "display/routing/cdu_shown.h"
#include "frame/aircraft.h"
#include "frame/key_events.h"
#include "frame/keyboard_capture.h"
#include "frame/named_variables.h"
#include "frame/snapshot.h"
#include "frame/tokens.h"
#include "module/controls/operate.h"
#include "module/delayed_start.h"
#include "module/main_update.h"
#include "module/tick_outputs.h"
#include "platform/host.h"
#include "state/displays.h"
#include "state/identity.h"
#include "state/module_life.h"
#include "state/side.h"
#include "state/sim.h"
#include "state/time_base.h"

namespace {

constexpr double kDelayedStartSeconds = 4;
constexpr double kOutputsSeconds = 8;
constexpr int kMaxIdentifyAttempts = 10;
constexpr int kMainPanelWindow = 0;
constexpr int kSecondPanelWindow = 37;

void CopyTraffic() {
    if (module_life.tcas_targets_variable == nullptr) return;
    std::memcpy(&module_life.tcas_targets, module_life.tcas_targets_variable,
                sizeof module_life.tcas_targets);
    if (module_life.tcas_count_variable != nullptr)
        std::memcpy(&module_life.tcas_target_cnt, module_life.tcas_count_variable,
                    sizeof module_life.tcas_target_cnt);
}

// The gear can't be up on the ground, wherever the lever of the model stands.
void CheckGearLever() {
    if (sim.on_ground == 0 || ReadNamedVar(NamedVar("gearleverpos")) <= 0) return;
    WriteNamedVar(NamedVar("gearleverpos"), 0);
    SendKeyEvent(kKeyGearDown, 0);
}

void IdentifyLateAircraft() {
    if (identity.aircraft_identified == 1 || identity.identify_attempts >= kMaxIdentifyAttempts) return;
    ++identity.identify_attempts;
    ReadAircraftTitle();
    ScanAircraftCfg();
}

}  // namespace

void RunUpdateCycle(bool virtual_cockpit) {
    CopyTraffic();
    PollKeyboard();
    const double now = ReadToken(kTokenAbsoluteTime);
    const bool first_update = time_base.flight_time_base == 0;
    if (first_update) time_base.flight_time_base = now;
    const double since_start = now - time_base.flight_time_base;
    if (module_life.startup_done == 0 && since_start > kDelayedStartSeconds) DelayedStart();
    MainUpdate();
    if (first_update) ReadSnapshot();  // where the aircraft is, is known before the counter moves
    if (time_base.tick2s_phase == 35) CheckGearLever();
    IdentifyLateAircraft();
    const bool main_panel_visible = IsWindowVisible(kMainPanelWindow) != 0;
    displays.cockpit_2d_active = main_panel_visible ? 1 : 0;
    if (main_panel_visible && IsWindowVisible(kSecondPanelWindow) != 0) ToggleWindow(kMainPanelWindow);
    // Once begun they go on: the pilot may set the simulator's clock back.
    if (since_start > kOutputsSeconds) module_life.outputs_running = 1;
    if (virtual_cockpit && main_panel_visible) return;
    if (module_life.outputs_running == 1) {
        time_base.tick_phase = std::clamp(time_base.tick_phase, 0, 17);  // tables are indexed by it
        int& frame = time_base.frame_phase;
        frame = frame < 0 || frame >= 17 ? 0 : frame + 1;
        const bool ticked = time_base.tick18 != time_base.output_tick18;
        time_base.output_tick18 = time_base.tick18;
        PollControls(time_base.tick_phase);
        if (!ticked) PollControls(frame);  // in pause every control is seen too
        for (const int side : {kCaptain, kFirstOfficer}) StepCdu(side, IsCduShown(side));
        TickOutputs(ticked);
    }
}
