#include "host/aircraft/switches.h"

#include "host/world/world.h"

namespace host {
namespace {

bool IsIn(const char* button) {
    return NamedValue(button) != 0;
}

bool HasOtherPower() {
    constexpr double kApuRuns = 95;  // percent
    const bool apu = NamedValue("tz_apu_rpm") >= kApuRuns &&
                     (IsIn("TZ_OH_APU_GEN_LEFT_Button") || IsIn("TZ_OH_APU_GEN_RIGHT_Button"));
    const bool ground = IsIn("ext_power_avail") &&
                        (IsIn("TZ_OH_FWDEXTPWR_LEFT_Button") || IsIn("TZ_OH_FWDEXTPWR_RIGHT_Button"));
    return apu || ground;
}

bool HasPressure() {
    constexpr double kEnough = 2000;  // psi
    bool told = false;
    for (const char* system : {"tz_hyd_press_l", "tz_hyd_press_c", "tz_hyd_press_r"}) {
        if (NamedValue(system) >= kEnough) return true;
        told = told || NamedVariableExists(system);
    }
    return !told;
}

}  // namespace

Switches ReadSwitches() {
    const auto handle = [](const char* name) { return static_cast<int>(NamedValue(name)); };
    return {
        .forward_pumps = {IsIn("TZ_OH_LPUMP_FWD_Button"), IsIn("TZ_OH_RPUMP_FWD_Button")},
        .aft_pumps = {IsIn("TZ_OH_LPUMP_AFT_Button"), IsIn("TZ_OH_RPUMP_AFT_Button")},
        .centre_pumps = {IsIn("TZ_OH_CNTRPUMP_L_Button"), IsIn("TZ_OH_CNTRPUMP_R_Button")},
        .crossfeed = IsIn("TZ_OH_FUEL_CROSSFEED_Button"),
        .balance = IsIn("TZ_OH_FUEL_BALANCE_Button"),
        .packs = {IsIn("TZ_OH_AC_LPACK_Button"), IsIn("TZ_OH_AC_RPACK_Button")},
        .outflow_auto = {IsIn("TZ_OH_OV_FWD_Button"), IsIn("TZ_OH_OV_AFT_Button")},
        .fire_handles = {handle("TZ_AFT_ENG1_FIRE_HNDL"), handle("TZ_AFT_ENG2_FIRE_HNDL"),
                         handle("TZ_OH_APU_FIRE_HNDL")},
        .other_power = HasOtherPower(),
        .hydraulics = HasPressure(),
    };
}

}  // namespace host
