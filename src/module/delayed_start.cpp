#include "module/delayed_start.h"

#include "base/bcd.h"
#include "base/numbers.h"
#include "display/pictures/remote_bridge.h"
#include "frame/configuration.h"
#include "frame/crew_messages.h"
#include "frame/key_events.h"
#include "frame/named_variables.h"
#include "frame/snapshot.h"
#include "frame/tokens.h"
#include "module/controls/control_table.h"
#include "module/model_settings.h"
#include "navdata/airport_file.h"
#include "platform/host.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/displays.h"
#include "state/electrical.h"
#include "state/identity.h"
#include "state/irs.h"
#include "state/module_life.h"
#include "state/nav.h"
#include "state/perf.h"
#include "state/sim.h"

namespace {

constexpr int kIrsStartTicks = 180;

int FuelControlOf(int combustion_token) {
    return ReadToken(combustion_token) != 0 ? 1 : 2;
}

void ShowControls() {
    cockpit.recirc_fans_upper_button = 1;
    cockpit.recirc_fans_lower_button = 1;
    WriteControlVariables();
    if (cockpit.irs_left_knob == 1) irs.irs_timer_l = kIrsStartTicks;
    if (cockpit.irs_right_knob == 1) irs.irs_timer_r = kIrsStartTicks;
    PublishModelSettings();
}

// The aircraft starts with its systems running, the host's battery too.
void StartSystemsRunning() {
    const bool was_out = cockpit.battery_button == 0;
    if (was_out) {
        cockpit.battery_button = 1;
        WriteNamedVar(NamedVar("TZ_OH_ELE_BAT_Button"), 1);
    }
    if (ReadToken(kTokenMasterBattery) == 0 && electrical.batt_volts > 0)
        SendKeyEvent(kKeyMasterBatteryToggle, 0);
    if (was_out) electrical.batt_volts = 28.0;
    displays.du_lwr_startup_cnt = 60;
    displays.du_cib_startup_cnt = 90;
    displays.du_pfd_ah_startup_cnt = 10;
    irs.irs_timer_l = irs.irs_timer_r = 0;
    irs.irs_left = irs.irs_right = 1;
}

void ReadModelValues() {
    sim.v_mo_kt = ReadNamedVar(NamedVar("TZ_V_MO"));
    cockpit.ovhd_ldg_lights_l_switch = WholeNumber(ReadNamedVar(NamedVar("TZ_OH_LDG_LEFT_Switch")));
    cockpit.ovhd_nose_lights_switch = WholeNumber(ReadNamedVar(NamedVar("TZ_OH_LDG_NSE_Switch")));
    cockpit.ovhd_ldg_lights_r_switch = WholeNumber(ReadNamedVar(NamedVar("TZ_OH_LDG_RIGHT_Switch")));
}

}  // namespace

void DelayedStart() {
    if (identity.aircraft_model == "900-9" || identity.aircraft_model == "900-10")
        perf.takeoff_flap_list = ",5,10,15,17,18,20,";
    cockpit.eng1_thrott = FuelControlOf(kTokenEng1Combustion);
    cockpit.eng2_thrott = FuelControlOf(kTokenEng2Combustion);
    identity.selcal = FindSelcal(identity.registration);
    ShowControls();
    sim.nav1_freq = DecodeBcd(ReadToken(kTokenNav1Freq)) + 10000;
    sim.nav2_freq = DecodeBcd(ReadToken(kTokenNav2Freq)) + 10000;
    if (nav.navdata_out_of_date == 1)
        PostCduMessage("NAV DATA OUT OF DATE", kAdvisory, kHelpNavdataDate, kBothSides);
    if (cfg.SystemsOn == 1) StartSystemsRunning();
    ReadModelValues();
    if (!cfg.HiFiSnapshotDir.empty()) module_life.ActiveSkyFolder = cfg.HiFiSnapshotDir;
    if (cfg.LoadFuelonAircraftLoad == 1 && ReadToken(kTokenOnGround) != 0) LoadStoredFuel();
    if (cfg.RemoteCdu == 1) OpenRemoteBridge(identity.panel_hires == 1 && cfg.remotecduhires == 1);
    nav.nearest_refresh_due = 1;
    module_life.startup_done = 1;
}
