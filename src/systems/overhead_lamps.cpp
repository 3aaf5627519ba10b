#include "systems/overhead_lamps.h"

#include "frame/lamps.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/electrical.h"
#include "state/fuel_pumps.h"
#include "state/hydraulics.h"
#include "state/irs.h"
#include "state/power_words.h"
#include "state/sim.h"

namespace {

bool IsOutOnBattery(int button) {
    return IsBatteryBusAlive() && button == 0;
}

bool IsOutWithPower(int button) {
    return IsAcBusPowered() && button == 0;
}

// At rest the drive has no oil pressure; turning, only a disconnected one.
bool DriveLamp(double n2, int drive_disc) {
    return n2 > 25 ? drive_disc == 1 : IsBatteryBusAlive();
}

bool ExternalPowerLamp() {
    return electrical.fwd_ext_pwr_avail == 1 && cockpit.fwd_ext_pwr_button == 0;
}

bool EnginePumpFault(int pressure) {
    constexpr int kLowPumpPressure = 3000;  // psi
    return IsBatteryBusAlive() && pressure < kLowPumpPressure;
}

// A demand pump that waits on AUTO has no fault.
bool DemandPumpFault(int selector, int pump, int pressure) {
    return EnginePumpFault(pressure) && (selector == 0 || pump == 1);
}

bool IsFuelPumpLow(int pressure) {
    constexpr int kLowFuelPressure = 18;
    return IsAcBusPowered() && pressure < kLowFuelPressure;
}

bool PackIsOff(int button) {
    const int shed = electrical.load_shed_level;
    return IsAcBusPowered() && (button == 0 || shed == 1 || shed == 2);
}

bool HeatIsInoperative(int button) {
    return IsBatteryBusAlive() && (button == 0 || !IsAcBusPowered() || electrical.load_shed_level == 1);
}

constexpr Lamp kOverheadLamps[] = {
    // electrical
    {NamedVar("TZ_OH_Annun_OFF_BATT"),
     [] { return cockpit.battery_button == 0 && IsPoweredBeyondBattery(); }},
    {NamedVar("TZ_OH_Annun_OFF_APUL"), [] { return IsOutOnBattery(cockpit.apu_gen_button); }},
    {NamedVar("TZ_OH_Annun_OFF_APUR"), [] { return IsOutOnBattery(cockpit.apu_gen_button); }},
    {NamedVar("TZ_OH_Annun_OFF_GCL1"), [] { return IsOutOnBattery(electrical.gen_l1_pwr); }},
    {NamedVar("TZ_OH_Annun_OFF_GCL2"), [] { return IsOutOnBattery(electrical.gen_l2_pwr); }},
    {NamedVar("TZ_OH_Annun_OFF_GCR1"), [] { return IsOutOnBattery(electrical.gen_r1_pwr); }},
    {NamedVar("TZ_OH_Annun_OFF_GCR2"), [] { return IsOutOnBattery(electrical.gen_r2_pwr); }},
    {NamedVar("TZ_OH_Annun_DRIVE_DDL1"), [] { return DriveLamp(sim.n2_l, cockpit.drive_disc_l1); }},
    {NamedVar("TZ_OH_Annun_DRIVE_DDL2"), [] { return DriveLamp(sim.n2_l, cockpit.drive_disc_l2); }},
    {NamedVar("TZ_OH_Annun_DRIVE_DDR1"), [] { return DriveLamp(sim.n2_r, cockpit.drive_disc_r1); }},
    {NamedVar("TZ_OH_Annun_DRIVE_DDR2"), [] { return DriveLamp(sim.n2_r, cockpit.drive_disc_r2); }},
    {NamedVar("TZ_OH_Annun_OFF_IFE"), [] { return IsOutOnBattery(electrical.ife_bus_on); }},
    {NamedVar("TZ_OH_Annun_OFF_CAB"), [] { return IsOutOnBattery(electrical.cab_bus_on); }},
    {NamedVar("TZ_OH_Annun_AVAIL_FXPL"), ExternalPowerLamp},
    {NamedVar("TZ_OH_Annun_AVAIL_FXPR"), ExternalPowerLamp},
    {NamedVar("TZ_OH_Annun_RAT_UNLKD"), [] { return cockpit.rat_unlocked == 1; }},
    {NamedVar("TZ_OH_Annun_RAT_PRESS"), [] { return cockpit.rat_unlocked == 1 && sim.ias_kt > 80; }},
    {NamedVar("TZ_OH_Annun_DISC_PFC"),
     [] { return cfg.PfcSwitch == kPfcDisconnected && IsBatteryBusAlive(); }},
    {NamedVar("TZ_OH_Annun_BAT_IRS"),
     [] { return IsOnBatteryAlone() && (irs.irs_left == 1 || irs.irs_right == 1); }},
    {NamedVar("TZ_OH_Annun_TP_ONBAT"),
     [] { return IsOnBatteryAlone() && cockpit.TZ_OH_TOWER_PWR_Button == 1; }},
    // inertial reference, flight deck
    {NamedVar("TZ_OH_Annun_TRUE_IRS"),
     [] { return IsBatteryBusAlive() && cockpit.TZ_OH_HDG_REF_Button == 1; }},
    {NamedVar("TZ_OH_Annun_FDD_OFF"), [] { return IsOutOnBattery(cockpit.fd_door_power_button); }},
    {NamedVar("TZ_OH_Annun_POXY_ON"), [] { return IsBatteryBusAlive() && cockpit.pass_oxygen_on == 1; }},
    // engines
    {NamedVar("TZ_OH_Annun_ECCL_ALTN"), [] { return IsOutOnBattery(cockpit.TZ_OH_ECC_L_Button); }},
    {NamedVar("TZ_OH_Annun_ECCR_ALTN"), [] { return IsOutOnBattery(cockpit.TZ_OH_ECC_R_Button); }},
    // hydraulics
    {NamedVar("TZ_OH_Annun_LEH_FAULT"), [] { return EnginePumpFault(hydraulics.press_eng_l); }},
    {NamedVar("TZ_OH_Annun_REH_FAULT"), [] { return EnginePumpFault(hydraulics.press_eng_r); }},
    {NamedVar("TZ_OH_Annun_LEH_FAULT1"),
     [] {
         return DemandPumpFault(cockpit.hydr_c1_elec_demand_knob, hydraulics.elec_pump_c1,
                                hydraulics.press_c1);
     }},
    {NamedVar("TZ_OH_Annun_REH_FAULT1"),
     [] {
         return DemandPumpFault(cockpit.hydr_c2_elec_demand_knob, hydraulics.elec_pump_c2,
                                hydraulics.press_c2);
     }},
    {NamedVar("TZ_OH_Annun_LEH_FAULT2"),
     [] {
         return DemandPumpFault(cockpit.hydr_l_elec_demand_knob, hydraulics.elec_pump_l,
                                hydraulics.press_elec_l);
     }},
    {NamedVar("TZ_OH_Annun_REH_FAULT2"),
     [] {
         return DemandPumpFault(cockpit.hydr_r_elec_demand_knob, hydraulics.elec_pump_r,
                                hydraulics.press_elec_r);
     }},
    // fuel
    {NamedVar("TZ_OH_Annun_FFPL_PRESS"), [] { return IsFuelPumpLow(fuel_pumps.press_fwd_l); }},
    {NamedVar("TZ_OH_Annun_FAPL_PRESS"),
     [] { return IsFuelPumpLow(fuel_pumps.press_aft_l) && cockpit.apu_switch == 0; }},
    {NamedVar("TZ_OH_Annun_FFPR_PRESS"), [] { return IsFuelPumpLow(fuel_pumps.press_fwd_r); }},
    {NamedVar("TZ_OH_Annun_FAPR_PRESS"), [] { return IsFuelPumpLow(fuel_pumps.press_aft_r); }},
    {NamedVar("TZ_OH_Annun_FCPL_PRESS"),
     [] { return IsFuelPumpLow(fuel_pumps.press_ctr_l) && cockpit.fuelpump_l_center_button == 1; }},
    {NamedVar("TZ_OH_Annun_FCPR_PRESS"),
     [] { return IsFuelPumpLow(fuel_pumps.press_ctr_r) && cockpit.fuelpump_r_center_button == 1; }},
    // air
    {NamedVar("TZ_OH_Annun_LPAC_OFF"), [] { return PackIsOff(cockpit.pack_l_button); }},
    {NamedVar("TZ_OH_Annun_RPAC_OFF"), [] { return PackIsOff(cockpit.pack_r_button); }},
    {NamedVar("TZ_OH_Annun_TAL_FAULT"), [] { return IsOutWithPower(cockpit.trim_air_l_button); }},
    {NamedVar("TZ_OH_Annun_TAR_FAULT"), [] { return IsOutWithPower(cockpit.trim_air_r_button); }},
    {NamedVar("TZ_OH_Annun_CARGOT_OFF"), [] { return IsOutWithPower(cockpit.TZ_OH_FWDCARGO_AC_Button); }},
    {NamedVar("TZ_OH_Annun_BULK_OFF"), [] { return IsOutWithPower(cockpit.bulk_cargo_heat_button); }},
    {NamedVar("TZ_OH_Annun_ACVENT_ALTN"), [] { return IsOutOnBattery(cockpit.ventilation_button); }},
    {NamedVar("TZ_OH_Annun_OVFWD_MAN"), [] { return IsOutOnBattery(cockpit.fwd_outflow_valve_button); }},
    {NamedVar("TZ_OH_Annun_OVAFT_MAN"), [] { return IsOutOnBattery(cockpit.aft_outflow_valve_button); }},
    {NamedVar("TZ_OH_Annun_PLS_INOP"),
     [] { return HeatIsInoperative(cockpit.window_heat_primary_l_side_button); }},
    {NamedVar("TZ_OH_Annun_PLF_INOP"),
     [] { return HeatIsInoperative(cockpit.window_heat_primary_l_fwd_button); }},
    {NamedVar("TZ_OH_Annun_PRF_INOP"),
     [] { return HeatIsInoperative(cockpit.window_heat_primary_r_fwd_button); }},
    {NamedVar("TZ_OH_Annun_PRS_INOP"),
     [] { return HeatIsInoperative(cockpit.window_heat_primary_r_side_button); }},
    {NamedVar("TZ_OH_Annun_ECF_OVRD"), [] { return IsOutOnBattery(cockpit.equip_cooling_fwd_button); }},
    {NamedVar("TZ_OH_Annun_ECA_OVRD"), [] { return IsOutOnBattery(cockpit.equip_cooling_aft_button); }},
};

}  // namespace

void ShowOverheadLamps() {
    ShowLamps(kOverheadLamps);
}
