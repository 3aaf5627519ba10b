#include "systems/electrical_lamps.h"

#include "frame/lamps.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/electrical.h"
#include "state/irs.h"
#include "state/power_words.h"
#include "state/sim.h"

namespace {

// At rest the drive has no oil pressure; turning, only a disconnected one.
bool DriveLamp(double n2, int drive_disc) {
    return n2 > 25 ? drive_disc == 1 : IsBatteryBusAlive();
}

bool ExternalPowerLamp() {
    return electrical.fwd_ext_pwr_avail == 1 && cockpit.fwd_ext_pwr_button == 0;
}

constexpr Lamp kElectricalLamps[] = {
    {NamedVar("TZ_OH_Annun_OFF_BATT"),
     [] { return cockpit.battery_button == 0 && IsPoweredBeyondBattery(); }},
    {NamedVar("TZ_OH_Annun_OFF_APUL"), [] { return cockpit.apu_gen_button == 0 && IsBatteryBusAlive(); }},
    {NamedVar("TZ_OH_Annun_OFF_APUR"), [] { return cockpit.apu_gen_button == 0 && IsBatteryBusAlive(); }},
    {NamedVar("TZ_OH_Annun_OFF_GCL1"), [] { return electrical.gen_l1_pwr == 0 && IsBatteryBusAlive(); }},
    {NamedVar("TZ_OH_Annun_OFF_GCL2"), [] { return electrical.gen_l2_pwr == 0 && IsBatteryBusAlive(); }},
    {NamedVar("TZ_OH_Annun_OFF_GCR1"), [] { return electrical.gen_r1_pwr == 0 && IsBatteryBusAlive(); }},
    {NamedVar("TZ_OH_Annun_OFF_GCR2"), [] { return electrical.gen_r2_pwr == 0 && IsBatteryBusAlive(); }},
    {NamedVar("TZ_OH_Annun_DRIVE_DDL1"), [] { return DriveLamp(sim.n2_l, cockpit.drive_disc_l1); }},
    {NamedVar("TZ_OH_Annun_DRIVE_DDL2"), [] { return DriveLamp(sim.n2_l, cockpit.drive_disc_l2); }},
    {NamedVar("TZ_OH_Annun_DRIVE_DDR1"), [] { return DriveLamp(sim.n2_r, cockpit.drive_disc_r1); }},
    {NamedVar("TZ_OH_Annun_DRIVE_DDR2"), [] { return DriveLamp(sim.n2_r, cockpit.drive_disc_r2); }},
    {NamedVar("TZ_OH_Annun_OFF_IFE"), [] { return electrical.ife_bus_on == 0 && IsBatteryBusAlive(); }},
    {NamedVar("TZ_OH_Annun_OFF_CAB"), [] { return electrical.cab_bus_on == 0 && IsBatteryBusAlive(); }},
    {NamedVar("TZ_OH_Annun_AVAIL_FXPL"), ExternalPowerLamp},
    {NamedVar("TZ_OH_Annun_AVAIL_FXPR"), ExternalPowerLamp},
    {NamedVar("TZ_OH_Annun_RAT_UNLKD"), [] { return cockpit.rat_unlocked == 1; }},
    {NamedVar("TZ_OH_Annun_RAT_PRESS"), [] { return cockpit.rat_unlocked == 1 && sim.ias_kt > 80; }},
    {NamedVar("TZ_OH_Annun_DISC_PFC"),
     [] { return cfg.PfcSwitch == kPfcDisconnected && IsBatteryBusAlive(); }},
    {NamedVar("TZ_OH_Annun_BAT_IRS"),
     [] { return IsOnBatteryAlone() && (irs.irs_left == 1 || irs.irs_right == 1); }},
};

}  // namespace

void ShowElectricalLamps() {
    ShowLamps(kElectricalLamps);
}
