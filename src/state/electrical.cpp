#include "state/electrical.h"

ElectricalState electrical;

namespace {
constexpr Variable kElectricalRows[] = {
    {"power_level", &electrical.power_level},
    {"ac_bus_powered", &electrical.ac_bus_powered},
    {"batt_pwr", &electrical.batt_pwr},
    {"batt_volts", &electrical.batt_volts},
    {"ram_air_turb", &electrical.ram_air_turb},
    {"apu_gen_pwr", &electrical.apu_gen_pwr},
    {"gen_l1_pwr", &electrical.gen_l1_pwr},
    {"gen_l2_pwr", &electrical.gen_l2_pwr},
    {"gen_r1_pwr", &electrical.gen_r1_pwr},
    {"gen_r2_pwr", &electrical.gen_r2_pwr},
    {"ext_ac_pwr", &electrical.ext_ac_pwr},
    {"fwd_ext_pwr_avail", &electrical.fwd_ext_pwr_avail},
    {"running_gens", &electrical.running_gens},
    {"load_shed_level", &electrical.load_shed_level},
    {"cab_bus_on", &electrical.cab_bus_on},
    {"ife_bus_on", &electrical.ife_bus_on},
    {"battery_test_ticks", &electrical.battery_test_ticks},
    {"battery_followed_host", &electrical.battery_followed_host},
    {"generators_held", &electrical.generators_held},
    {"apu_rpm", &electrical.apu_rpm},
    {"apu_egt", &electrical.apu_egt},
    {"apu_oil_press", &electrical.apu_oil_press},
    {"apu_oil_temp", &electrical.apu_oil_temp},
    {"apu_oil_qty", &electrical.apu_oil_qty},
    {"apu_starting", &electrical.apu_starting},
    {"apu_stopping", &electrical.apu_stopping},
    {"apu_pwr_avail", &electrical.apu_pwr_avail},
    {"apu_cooldown", &electrical.apu_cooldown},
    {"apu_start_delay", &electrical.apu_start_delay},
    {"apu_fault_timer", &electrical.apu_fault_timer},
};
}  // namespace

const std::span<const Variable> kElectricalVariables = kElectricalRows;
