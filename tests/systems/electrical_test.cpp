#include "systems/electrical.h"

#include <gtest/gtest.h>

#include "frame/tokens.h"
#include "module/controls/operate.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/displays.h"
#include "state/electrical.h"
#include "state/sim.h"
#include "state/sound.h"
#include "state/time_base.h"
#include "support/fake_host.h"
#include "support/set_variables.h"

namespace {

struct PoweredHost : FakeHost {
    PoweredHost() {
        time_base.flight_time_base = 1000;
        sim.abs_time = 1005;
        NamedVar("power_level") = -1;
        NamedVar("TZ_OH_HYD_RAT_Button") = 0;
    }
};

TEST(Electrical, SumsTheSources) {
    struct Case {
        const char* set;
        int battery, power, generators;
    };
    const Case kCases[] = {
        {"apu_gen_button 1, gen_l1_button 1, fwd_ext_pwr_button 1", 0, 0, 0},
        {"", 1, 5, 0},
        {"ram_air_turb 1", 1, 15, 0},
        {"fwd_ext_pwr_button 1, fwd_ext_pwr_avail 1", 0, 180, 0},
        {"fwd_ext_pwr_avail 1", 0, 0, 0},
        {"apu_pwr_avail 1, apu_gen_button 1", 1, 455, 0},
        {"apu_pwr_avail 1, apu_gen_pwr 1", 0, 0, 0},
        {"gen_l1_button 1, n2_l 50.1", 0, 250, 1},
        {"gen_l1_button 1, n2_l 50", 0, 0, 0},
        {"gen_l1_button 1, gen_l1_pwr 1, n2_l 50", 0, 250, 1},  // at 50 it neither comes nor goes
        {"gen_l1_button 1, gen_l1_pwr 1, n2_l 49.9", 0, 0, 0},
        {"gen_l1_button 1, gen_l2_button 1, n2_r 60", 0, 0, 0},
        {"gen_r1_button 1, gen_r2_button 1, n2_r 60, drive_disc_r2 1", 1, 255, 1},
        {"gen_r2_button 1, gen_r2_pwr 1, n2_r 60, drive_disc_r2 1", 0, 0, 0},
        {"gen_l2_pwr 1, generators_held 1", 0, 250, 1},
        {"gen_l1_button 1, gen_l2_button 1, gen_r1_button 1, n2_l 60, n2_r 60", 1, 755, 3},
        {"gen_l1_button 1, gen_l2_button 1, gen_r1_button 1, gen_r2_button 1, n2_l 60, n2_r 60, "
         "apu_pwr_avail 1, apu_gen_button 1, fwd_ext_pwr_button 1, fwd_ext_pwr_avail 1",
         1, 1000, 4},
    };
    for (const Case& row : kCases) {
        PoweredHost host;
        SetVariables(row.set[0] == '\0' ? "n2_l 0" : row.set);
        host.tokens[kTokenMasterBattery] = row.battery;
        StepElectricalPower();
        EXPECT_EQ(electrical.power_level, row.power) << row.set;
        EXPECT_EQ(host.NamedVar("power_level"), row.power) << row.set;
        EXPECT_EQ(electrical.running_gens, row.generators) << row.set;
        EXPECT_EQ(electrical.ac_bus_powered, row.power >= 10) << row.set;
    }
}

TEST(Electrical, CountsTheDisplaysUpAndRestartsThem) {
    struct Case {
        const char* set;
        int battery, lower, inboard, attitude;
    };
    const Case kCases[] = {
        // nothing feeds: all fall to 0; the battery alone: the attitude does
        {"power_level 5, du_lwr_startup_cnt 20, du_cib_startup_cnt 20, du_pfd_ah_startup_cnt 4", 0, 0, 0, 0},
        {"power_level 5, du_lwr_startup_cnt 20, du_cib_startup_cnt 20, du_pfd_ah_startup_cnt 4", 1, 21, 21,
         0},
        // on external power: a second's step each, up to their ends
        {"power_level 180, ext_ac_pwr 1, fwd_ext_pwr_button 1, fwd_ext_pwr_avail 1, "
         "du_lwr_startup_cnt 59, du_cib_startup_cnt 88, du_pfd_ah_startup_cnt 9",
         0, 60, 89, 10},
        {"power_level 180, ext_ac_pwr 1, fwd_ext_pwr_button 1, fwd_ext_pwr_avail 1, "
         "du_lwr_startup_cnt 60, du_cib_startup_cnt 90, du_pfd_ah_startup_cnt 10",
         0, 60, 90, 10},
        // sources that come to dark buses restart the units; so does external power at any time
        {"power_level 5, apu_pwr_avail 1, apu_gen_button 1", 1, 50, 90, 0},
        {"power_level 5, ram_air_turb 1", 1, 50, 90, 0},
        {"power_level 0, gen_l1_button 1, n2_l 60", 0, 50, 90, 0},
        {"power_level 455, apu_pwr_avail 1, apu_gen_button 1, fwd_ext_pwr_button 1, fwd_ext_pwr_avail 1, "
         "du_lwr_startup_cnt 60, du_cib_startup_cnt 90, du_pfd_ah_startup_cnt 10",
         1, 50, 90, 0},
        {"power_level 455, apu_pwr_avail 1, apu_gen_button 1, gen_l1_button 1, n2_l 60, "
         "du_lwr_startup_cnt 60, du_cib_startup_cnt 90, du_pfd_ah_startup_cnt 10",
         1, 60, 90, 10},
    };
    for (const Case& row : kCases) {
        PoweredHost host;
        SetVariables(row.set);
        host.tokens[kTokenMasterBattery] = row.battery;
        StepElectricalPower();
        EXPECT_EQ(displays.du_lwr_startup_cnt, row.lower) << row.set;
        EXPECT_EQ(displays.du_cib_startup_cnt, row.inboard) << row.set;
        EXPECT_EQ(displays.du_pfd_ah_startup_cnt, row.attitude) << row.set;
    }
}

TEST(Electrical, SystemsOnHoldsOneGeneratorUntilARealOneComes) {
    PoweredHost host;
    SetVariables("SystemsOn 1, du_lwr_startup_cnt 60, du_cib_startup_cnt 90, du_pfd_ah_startup_cnt 10");
    host.tokens[kTokenMasterBattery] = 1;
    for (int second = 0; second < 3; ++second) StepElectricalPower();
    EXPECT_EQ(electrical.gen_l1_pwr, 1);
    EXPECT_EQ(electrical.power_level, 255);
    EXPECT_EQ(displays.du_lwr_startup_cnt, 60) << "no power-up";
    SetVariables("gen_l1_button 1, n2_l 65");
    StepElectricalPower();
    EXPECT_EQ(cfg.SystemsOn, 0);
    EXPECT_EQ(electrical.gen_l1_pwr, 1);
    SetVariables("n2_l 20");
    StepElectricalPower();
    EXPECT_EQ(electrical.gen_l1_pwr, 0) << "now as real as the others";

    SetVariables("SystemsOn 1, gen_l2_button 1, gen_r1_button 1, gen_r2_button 1, n2_l 65, n2_r 65");
    SetVariables("drive_disc_l1 1");
    StepElectricalPower();
    EXPECT_EQ(electrical.power_level, 1000);
    EXPECT_EQ(cfg.SystemsOn, 0);
}

TEST(Electrical, RatFeedsWhileNothingElseDoes) {
    PoweredHost host;
    SetVariables("on_ground 0, ias_kt 250");
    host.tokens[kTokenMasterBattery] = 1;
    sim.abs_time = 1120;
    StepElectricalPower();
    EXPECT_EQ(cockpit.rat_unlocked, 0) << "not in the first 120 seconds";
    sim.abs_time = 1120.1;
    StepElectricalPower();
    EXPECT_EQ(cockpit.rat_unlocked, 1);
    EXPECT_EQ(host.NamedVar("TZ_OH_HYD_RAT_Button"), 1);
    EXPECT_EQ(electrical.power_level, 5) << "it feeds from the next second on";
    for (int second = 0; second < 3; ++second) StepElectricalPower();
    EXPECT_EQ(electrical.power_level, 15);
    EXPECT_EQ(electrical.ac_bus_powered, 1);
    SetVariables("ias_kt 80");
    for (int second = 0; second < 2; ++second) StepElectricalPower();
    EXPECT_EQ(electrical.power_level, 5) << "too slow";
    SetVariables("ias_kt 250, gen_l1_button 1, n2_l 65");
    for (int second = 0; second < 2; ++second) StepElectricalPower();
    EXPECT_EQ(electrical.power_level, 255) << "a generator is enough";
    SetVariables("gen_l1_button 0, on_ground 1");
    for (int second = 0; second < 2; ++second) StepElectricalPower();
    EXPECT_EQ(electrical.power_level, 5) << "on the ground";
    EXPECT_EQ(cockpit.rat_unlocked, 1) << "stays out until the maintenance reset";
}

TEST(Electrical, ShedsLoads) {
    struct Case {
        double n2_l, n2_r;
        int start_l, start_r, power, level;
    };
    constexpr Case kCases[] = {
        {0, 0, 0, 1, 455, 1},     {49.9, 49.9, 1, 0, 1000, 1}, {0, 0, 1, 1, 455, 0},
        {49.9, 50, 0, 1, 705, 2}, {50, 49.9, 1, 0, 250, 2},    {50, 49.9, 1, 1, 250, 0},
        {50, 50, 1, 1, 499, 3},   {50, 50, 0, 0, 499, 3},      {50, 50, 1, 1, 500, 0},
    };
    for (const Case& row : kCases) {
        PoweredHost host;
        cfg.SystemsOn = 0;
        sim.n2_l = row.n2_l;
        sim.n2_r = row.n2_r;
        cockpit.TZ_OH_ENG_L_START_Switch = row.start_l;
        cockpit.TZ_OH_ENG_R_START_Switch = row.start_r;
        // the wanted sum, as sources that don't depend on the engines
        electrical.generators_held = 1;
        electrical.gen_l1_pwr = row.power >= 250;
        electrical.gen_l2_pwr = row.power >= 500;
        electrical.gen_r1_pwr = electrical.gen_r2_pwr = row.power == 1000;
        StepElectricalPower();
        EXPECT_EQ(electrical.load_shed_level, row.level)
            << row.n2_l << ' ' << row.n2_r << ' ' << row.start_l << row.start_r << ' ' << row.power;
    }
}

TEST(Electrical, CabinBusesNeedPowerToComeOn) {
    PoweredHost host;
    SetVariables("ife_pass_seats_button 1");
    StepElectricalPower();
    EXPECT_EQ(electrical.ife_bus_on, 0);
    SetVariables("fwd_ext_pwr_button 1, fwd_ext_pwr_avail 1");
    StepElectricalPower();
    EXPECT_EQ(electrical.ife_bus_on, 1);
    EXPECT_EQ(electrical.cab_bus_on, 0);
    SetVariables("fwd_ext_pwr_button 0, cabin_util_button 1");
    StepElectricalPower();
    EXPECT_EQ(electrical.ife_bus_on, 1);
    EXPECT_EQ(electrical.cab_bus_on, 0);
    SetVariables("ife_pass_seats_button 0");
    StepElectricalPower();
    EXPECT_EQ(electrical.ife_bus_on, 0);
}

TEST(Electrical, ExternalPowerComesOnlyToAParkedAircraft) {
    struct Case {
        const char* set;
        double wanted;
        int taken, cue;
    };
    constexpr Case kCases[] = {
        {"tick_phase 6, on_ground 1, ground_speed_kt 1.9", 1, 1, 9},
        {"tick_phase 0, on_ground 1, ground_speed_kt 2", 1, 0, 0},
        {"tick_phase 10, on_ground 0, ground_speed_kt 0", 1, 0, 0},
        {"tick_phase 14, on_ground 0, ground_speed_kt 200, fwd_ext_pwr_avail 1", 0, 0, 0},
        {"tick_phase 5, on_ground 1, fwd_ext_pwr_avail 1", 1, 1, 0},
    };
    for (const Case& row : kCases) {
        FakeHost host;
        host.NamedVar("ext_power_avail") = row.wanted;
        SetVariables(row.set);
        PollControls(time_base.tick_phase);
        EXPECT_EQ(electrical.fwd_ext_pwr_avail, row.taken) << row.set;
        EXPECT_EQ(host.NamedVar("ext_power_avail"), row.taken) << row.set;
        EXPECT_EQ(sound.event_cue, row.cue) << row.set;
    }
    FakeHost host;
    host.NamedVar("ext_power_avail") = 1;
    SetVariables("on_ground 1");
    PollControls(7);
    EXPECT_EQ(electrical.fwd_ext_pwr_avail, 0) << "not looked at in this phase";
}

TEST(Electrical, AsksForTheSoundsOfPower) {
    PoweredHost host;
    host.tokens[kTokenMasterBattery] = 1;
    StepElectricalPower();
    EXPECT_EQ(sound.env_sound_request, 25);
    EXPECT_EQ(sound.env_battery_timer, 180);
    host.tokens[kTokenMasterBattery] = 0;
    StepElectricalPower();
    EXPECT_EQ(sound.env_battery_timer, 0);
    EXPECT_EQ(sound.env_sound_request, 0);
    EXPECT_EQ(sound.sounds_to_stop, 1 << 25);
    SetVariables("sounds_to_stop 0, fwd_ext_pwr_button 1, fwd_ext_pwr_avail 1, env_battery_timer 100");
    StepElectricalPower();
    EXPECT_EQ(sound.env_quiet_start_timer, 10);
    EXPECT_EQ(sound.env_quiet_timer, 12);
    EXPECT_EQ(sound.env_loud_timer, 20);
    EXPECT_EQ(sound.sounds_to_stop, 1 << 25);
    SetVariables("sounds_to_stop 0, fwd_ext_pwr_button 0");
    StepElectricalPower();
    EXPECT_EQ(sound.sounds_to_stop, 1 << 28 | 1 << 29);
    EXPECT_EQ(sound.env_quiet_timer, 0);
}

TEST(Electrical, MaintenanceResetsWhatLatches) {
    FakeHost host;
    const char* kVariables[] = {"TZ_OH_HYD_RAT_Button",    "TZ_OH_DRVDISC_L1_Button",
                                "TZ_OH_DRVDISC_L2_Button", "TZ_OH_DRVDISC_R1_Button",
                                "TZ_OH_DRVDISC_R2_Button", "TZ_OH_PASS_OXY1_Button"};
    for (const char* name : kVariables) host.NamedVar(name) = 1;
    SetVariables(
        "rat_unlocked 1, drive_disc_l1 1, drive_disc_l2 1, drive_disc_r1 1, drive_disc_r2 1, "
        "pass_oxygen_on 1, batt_volts 3");
    ResetByMaintenance(0);
    for (const char* name : kVariables) EXPECT_EQ(host.NamedVar(name), 0) << name;
    EXPECT_EQ(cockpit.rat_unlocked + cockpit.drive_disc_l1 + cockpit.drive_disc_l2 + cockpit.drive_disc_r1 +
                  cockpit.drive_disc_r2 + cockpit.pass_oxygen_on,
              0);
    EXPECT_EQ(electrical.batt_volts, 31);
}

}  // namespace
