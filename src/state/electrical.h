#pragma once

#include <span>

#include "state/variable.h"

/// Electrical power: one sum of what feeds the aircraft, and the APU. Filled by systems/electrical and
/// systems/apu.
struct ElectricalState {
    int power_level = 0;       // 0 to 1000, sum of the sources; the battery alone gives 5
    int ac_bus_powered = 0;    // power_level at least 10
    int batt_pwr = 0;          // the host's master battery is on
    double batt_volts = 31.0;  // V, 0 empty to 31 full
    int ram_air_turb = 0;      // the RAT feeds the buses
    int apu_gen_pwr = 0;
    int gen_l1_pwr = 0, gen_l2_pwr = 0, gen_r1_pwr = 0, gen_r2_pwr = 0;
    int ext_ac_pwr = 0;
    int fwd_ext_pwr_avail = 0;
    int running_gens = 0;                // 0 to 4
    int load_shed_level = 0;             // 0 to 3
    int cab_bus_on = 0, ife_bus_on = 0;  // cabin utilities and passenger entertainment
    int battery_test_ticks = 0;          // ticks left of the battery test's lamp
    int battery_followed_host = 0;       // the button has been brought to the host's battery, once
    int generators_held = 0;  // a panel load keeps the generators on line until the host has settled
    // APU
    double apu_rpm = 0;         // percent
    double apu_egt = 50;        // degrees C
    double apu_oil_press = 15;  // psi
    double apu_oil_temp = 29;   // degrees C
    double apu_oil_qty = 9;
    int apu_starting = 0, apu_stopping = 0;
    int apu_pwr_avail = 0;  // ready to load
    int apu_cooldown = 0;
    int apu_start_delay = 0;  // ticks
    int apu_fault_timer = 0;  // ticks
};

extern ElectricalState electrical;
extern const std::span<const Variable> kElectricalVariables;
