#include "systems/start_up.h"

#include "frame/controls.h"
#include "frame/engine_fuel.h"
#include "frame/key_events.h"
#include "frame/tokens.h"
#include "platform/host.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/displays.h"
#include "state/electrical.h"
#include "state/irs.h"

void SwitchRecirculationOn() {
    cockpit.recirc_fans_upper_button = cockpit.recirc_fans_lower_button = 1;
}

void ReadFuelControls() {
    for (const EngineFuel& engine : kEngineFuel)
        cockpit.*engine.control = ReadToken(engine.fuel_token) != 0 ? kFuelRun : kFuelCutOff;
}

void StartIrsOfKnobs() {
    constexpr int kStartTicks = 180;
    if (cockpit.irs_left_knob == 1) irs.irs_timer_l = kStartTicks;
    if (cockpit.irs_right_knob == 1) irs.irs_timer_r = kStartTicks;
}

void StartSystemsRunning() {
    if (cfg.SystemsOn != 1) return;
    const bool was_out = cockpit.battery_button == 0;
    if (was_out) SetControl(&cockpit.battery_button, 1);
    if (ReadToken(kTokenMasterBattery) == 0 && electrical.batt_volts > 0)
        SendKeyEvent(kKeyMasterBatteryToggle, 0);
    if (was_out) electrical.batt_volts = 28.0;
    displays.du_lwr_startup_cnt = 60;
    displays.du_cib_startup_cnt = 90;
    displays.du_pfd_ah_startup_cnt = 10;
    irs.irs_timer_l = irs.irs_timer_r = 0;
    irs.irs_left = irs.irs_right = 1;
}
