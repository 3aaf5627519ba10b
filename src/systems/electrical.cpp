#include "systems/electrical.h"

#include <algorithm>

#include "frame/controls.h"
#include "frame/cues.h"
#include "frame/named_variables.h"
#include "frame/tokens.h"
#include "platform/host.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/displays.h"
#include "state/electrical.h"
#include "state/power_words.h"
#include "state/sim.h"
#include "state/time_base.h"
#include "systems/battery.h"
#include "systems/ram_air_turbine.h"

namespace {

// What each source gives to the sum.
constexpr int kExternal = 180, kGenerator = 250, kApuGenerator = 450;
constexpr int kMostPower = 1000;
constexpr int kSystemsOnSeed = 255;
constexpr double kGeneratorN2 = 50;  // percent
constexpr double kFollowHostSeconds = 10;
constexpr int kBatteryLoopSeconds = 180;

struct Generator {
    int ElectricalState::*on_line;
    int CockpitState::*button;
    int CockpitState::*drive_disc;
    double SimSnapshot::*n2;
};
constexpr Generator kGenerators[] = {
    {&ElectricalState::gen_l1_pwr, &CockpitState::gen_l1_button, &CockpitState::drive_disc_l1,
     &SimSnapshot::n2_l},
    {&ElectricalState::gen_l2_pwr, &CockpitState::gen_l2_button, &CockpitState::drive_disc_l2,
     &SimSnapshot::n2_l},
    {&ElectricalState::gen_r1_pwr, &CockpitState::gen_r1_button, &CockpitState::drive_disc_r1,
     &SimSnapshot::n2_r},
    {&ElectricalState::gen_r2_pwr, &CockpitState::gen_r2_button, &CockpitState::drive_disc_r2,
     &SimSnapshot::n2_r},
};

void CountDisplayStartUp() {
    const auto count = [](int& seconds, int most) {
        if (seconds < most) ++seconds;
    };
    if (electrical.power_level > 0) {
        count(displays.du_lwr_startup_cnt, 60);
        count(displays.du_cib_startup_cnt, 90);
    }
    if (IsPoweredBeyondBattery()) count(displays.du_pfd_ah_startup_cnt, 10);
    WriteNamedVar(NamedVar("capt_inb_startup_cnt"), displays.du_cib_startup_cnt);
}

void TakeHostBattery() {
    const int before = electrical.batt_pwr;
    electrical.batt_pwr = ReadToken(kTokenMasterBattery) != 0 ? 1 : 0;
    if (electrical.batt_pwr == 1 && before == 0 && electrical.ac_bus_powered == 0) {
        RequestLoop(kLoopBattery);
        sound.env_battery_timer = kBatteryLoopSeconds;
    }
    if (electrical.batt_pwr == 0 && sound.env_battery_timer > 0) StopLoop(kLoopBattery);
}

bool MayComeOnLine(const Generator& generator) {
    return cockpit.*generator.button == 1 && cockpit.*generator.drive_disc == 0 &&
           sim.*generator.n2 > kGeneratorN2;
}

void SwitchGenerators() {
    for (const Generator& generator : kGenerators) {
        int& on_line = electrical.*generator.on_line;
        const bool drops = cockpit.*generator.button == 0 || cockpit.*generator.drive_disc == 1 ||
                           sim.*generator.n2 < kGeneratorN2;
        if (MayComeOnLine(generator))
            on_line = 1;
        else if (drops && electrical.generators_held == 0)
            on_line = 0;
    }
    if (cfg.SystemsOn != 1) return;
    if (MayComeOnLine(kGenerators[0])) {
        cfg.SystemsOn = 0;
    } else {
        electrical.gen_l1_pwr = 1;
        electrical.power_level = kSystemsOnSeed;
    }
}

int CountGenerators() {
    int count = 0;
    for (const Generator& generator : kGenerators) count += electrical.*generator.on_line;
    return count;
}

// The Display Units lose their pictures when the buses get power or change over to external power.
void RestartDisplays(bool external_power_now) {
    const bool source_on_line =
        CountGenerators() > 0 || electrical.ram_air_turb == 1 || electrical.apu_gen_pwr == 1;
    const bool power_up = electrical.power_level < kAcBusPower && source_on_line;
    if (!power_up && !external_power_now) return;
    displays.du_lwr_startup_cnt = 50;
    displays.du_cib_startup_cnt = 90;
    displays.du_pfd_ah_startup_cnt = 0;
}

void SumSources() {
    const ElectricalState& e = electrical;
    const int sum = kBatteryPower * e.batt_pwr + kTurbinePower * e.ram_air_turb +
                    kApuGenerator * e.apu_gen_pwr + kExternal * e.ext_ac_pwr + kGenerator * e.running_gens;
    electrical.power_level = std::min(sum, kMostPower);
}

void PowerBuses() {
    if (electrical.power_level < kAcBusPower) {
        if (electrical.ac_bus_powered == 1)
            for (const int loop : {kLoopQuiet, kLoopLoud}) StopLoop(loop);
        electrical.ac_bus_powered = 0;
        return;
    }
    if (electrical.ac_bus_powered == 0) {
        sound.env_quiet_start_timer = 10;
        sound.env_quiet_timer = 12;
        sound.env_loud_timer = 20;
    }
    electrical.ac_bus_powered = 1;
    if (sound.env_battery_timer > 0) StopLoop(kLoopBattery);
}

void DarkenDisplays() {
    if (electrical.power_level == 0) displays.du_lwr_startup_cnt = displays.du_cib_startup_cnt = 0;
    if (electrical.power_level < kAcBusPower) displays.du_pfd_ah_startup_cnt = 0;
}

void FollowHostBatteryOnce() {
    if (electrical.battery_followed_host == 1 ||
        sim.abs_time - time_base.flight_time_base < kFollowHostSeconds)
        return;
    electrical.battery_followed_host = 1;
    FollowHostBattery();
    electrical.generators_held = 0;
}

// A bus comes on only with power, and stays on without it until its button goes out.
void SwitchCabinBuses() {
    const auto follow = [](int button, int& on) {
        if (button == 0)
            on = 0;
        else if (electrical.ac_bus_powered == 1)
            on = 1;
    };
    follow(cockpit.ife_pass_seats_button, electrical.ife_bus_on);
    follow(cockpit.cabin_util_button, electrical.cab_bus_on);
}

int LoadShedLevel() {
    constexpr int kNorm = 1;  // of the start selectors
    const int stopped = (sim.n2_l < kGeneratorN2 ? 1 : 0) + (sim.n2_r < kGeneratorN2 ? 1 : 0);
    const bool starting =
        cockpit.TZ_OH_ENG_L_START_Switch != kNorm || cockpit.TZ_OH_ENG_R_START_Switch != kNorm;
    if (stopped == 2 && starting) return 1;
    if (stopped == 1 && starting) return 2;
    return stopped == 0 && !IsPowerUnrestricted() ? 3 : 0;
}

}  // namespace

void FollowExternalPower(int) {
    if (electrical.fwd_ext_pwr_avail == 0) return;
    if (sim.on_ground == 1 && sim.ground_speed_kt < 2)
        RequestCue(kCueExternalPower);
    else
        electrical.fwd_ext_pwr_avail = 0;
}

void StepElectricalPower() {
    CountDisplayStartUp();
    TakeHostBattery();
    electrical.apu_gen_pwr = electrical.apu_pwr_avail == 1 && cockpit.apu_gen_button == 1 ? 1 : 0;
    SwitchGenerators();
    const int external = cockpit.fwd_ext_pwr_button == 1 && electrical.fwd_ext_pwr_avail == 1 ? 1 : 0;
    RestartDisplays(external == 1 && electrical.ext_ac_pwr == 0);
    electrical.ext_ac_pwr = external;
    electrical.running_gens = CountGenerators();
    SumSources();
    PowerBuses();
    WriteNamedVar(NamedVar("power_level"), electrical.power_level);
    if (electrical.power_level == kMostPower) cfg.SystemsOn = 0;
    DeployTurbineForPower();
    DarkenDisplays();
    FollowHostBatteryOnce();
    SwitchCabinBuses();
    electrical.load_shed_level = LoadShedLevel();
}

void ResetByMaintenance(int) {
    for (int* latched : {&cockpit.rat_unlocked, &cockpit.drive_disc_l1, &cockpit.drive_disc_l2,
                         &cockpit.drive_disc_r1, &cockpit.drive_disc_r2, &cockpit.pass_oxygen_on})
        SetControl(latched, 0);
    electrical.batt_volts = kFullBatteryVolts;
}
