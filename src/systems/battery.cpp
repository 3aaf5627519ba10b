#include "systems/battery.h"

#include <algorithm>

#include "frame/controls.h"
#include "frame/key_events.h"
#include "frame/lamps.h"
#include "frame/named_variables.h"
#include "frame/tokens.h"
#include "platform/host.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/electrical.h"
#include "state/power_words.h"
#include "state/time_base.h"

namespace {

constexpr int kTestTicks = 36;
constexpr double kHighVolts = 22, kMediumVolts = 10;

bool IsHostBatteryOn() {
    return ReadToken(kTokenMasterBattery) != 0;
}

void SwitchHostBattery(bool on) {
    if (IsHostBatteryOn() != on) SendKeyEvent(kKeyMasterBatteryToggle, 0);
}

void ShowTestLamps(bool high, bool medium, bool low) {
    ShowLamp(NamedVar("TZ_OH_Annun_BAT_HI"), high);
    ShowLamp(NamedVar("TZ_OH_Annun_BAT_MED"), medium);
    ShowLamp(NamedVar("TZ_OH_Annun_BAT_LO"), low);
}

}  // namespace

void StepBattery() {
    double& volts = electrical.batt_volts;
    const double step = kFullBatteryVolts / (std::max(cfg.BatteryDrainSecs, 1) * kTicksPerSecond);
    // The last step ends exactly: what the sums round off must not cost a tick.
    if (!IsAcBusPowered()) {
        if (volts > 0 && cockpit.battery_button == 1) {
            volts = volts > 1.5 * step ? volts - step : 0;
            if (volts == 0) SwitchHostBattery(false);
        }
    } else if (volts < kFullBatteryVolts) {
        volts = volts < kFullBatteryVolts - 1.5 * step ? volts + step : kFullBatteryVolts;
        if (volts == kFullBatteryVolts && cockpit.battery_button == 1) SwitchHostBattery(true);
    }
    if (electrical.battery_test_ticks > 0 && --electrical.battery_test_ticks == 0)
        ShowTestLamps(false, false, false);
}

void FollowBatteryButton(int) {
    const bool wanted = cockpit.battery_button == 1;
    if (wanted && electrical.batt_volts <= 0) return;
    SwitchHostBattery(wanted);
}

void FollowHostBattery() {
    int position = cockpit.battery_button;
    if (!IsHostBatteryOn())
        position = 0;
    else if (electrical.batt_volts > 0)
        position = 1;
    SetControl(&cockpit.battery_button, position);
}

void TestBattery(int) {
    if (!IsBatteryBusAlive()) return;
    electrical.battery_test_ticks = kTestTicks;
    const double volts = electrical.batt_volts;
    const bool high = volts > kHighVolts, medium = !high && volts > kMediumVolts;
    ShowTestLamps(high, medium, !high && !medium);
}
