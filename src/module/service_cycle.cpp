#include "module/service_cycle.h"

#include "cdu/unit/cdu_service.h"
#include "display/routing/cdu_shown.h"
#include "display/routing/panel_windows.h"
#include "efb/tablet.h"
#include "frame/aircraft.h"
#include "frame/keyboard_capture.h"
#include "frame/snapshot.h"
#include "frame/time_base.h"
#include "frame/tokens.h"
#include "module/controls/operate.h"
#include "module/delayed_start.h"
#include "module/main_update.h"
#include "module/tick_outputs.h"
#include "platform/host.h"
#include "state/displays.h"
#include "state/module_life.h"
#include "state/side.h"
#include "state/time_base.h"
#include "surveillance/traffic.h"

namespace {

constexpr double kDelayedStartSeconds = 4;
constexpr double kOutputsSeconds = 8;

void RunOutputs() {
    StepFramePhase();
    const bool ticked = time_base.tick18 != time_base.output_tick18;
    time_base.output_tick18 = time_base.tick18;
    PollControls(time_base.tick_phase);
    if (!ticked) PollControls(time_base.frame_phase);  // in pause every control is seen too
    for (const int side : {kCaptain, kFirstOfficer}) StepCdu(side, IsCduShown(side));
    TickOutputs(ticked);
    StepTablets();
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
    IdentifyLateAircraft();
    WatchPanelWindows();
    // Once begun they go on: the pilot may set the simulator's clock back.
    if (since_start > kOutputsSeconds) module_life.outputs_running = 1;
    const bool left_to_the_other = virtual_cockpit && displays.cockpit_2d_active == 1;
    if (module_life.outputs_running == 1 && !left_to_the_other) RunOutputs();
}
