#include "host/aircraft/failures.h"

#include <algorithm>

#include "host/aircraft/aircraft.h"
#include "host/world/world.h"

namespace host {
namespace {

constexpr FailureRow kFailureRows[] = {
    {kEngineLeft, "engine_l", "Engine L", ""},
    {kEngineRight, "engine_r", "Engine R", ""},
    {kFireLeft, "fire_l", "Fire L", ""},
    {kFireRight, "fire_r", "Fire R", ""},
    {kFireApu, "fire_apu", "Fire APU", ""},
    {kLeakLeft, "leak_l", "Fuel leak L", ""},
    {kLeakRight, "leak_r", "Fuel leak R", ""},
    {kDecompression, "decompression", "Decompression", ""},
    {kDoorForwardCargo, "door_fwd_cargo", "Door fwd cargo", ""},
    {kDoorAftCargo, "door_aft_cargo", "Door aft cargo", ""},
    {kDoorEntry, "door_1l", "Door entry 1L", ""},
    {kAileronLeft, "aileron_l", "Aileron L", ""},
    {kElevatorRight, "elevator_r", "Elevator R", ""},
    {kSpoilerPair, "spoilers", "Spoilers 5, 10", ""},
    {kPumpLeftForward, "pump_l_fwd", "Fuel pump L fwd", "TZ_OH_LPUMP_FWD_Button"},
    {kPumpLeftAft, "pump_l_aft", "Fuel pump L aft", "TZ_OH_LPUMP_AFT_Button"},
    {kPumpRightForward, "pump_r_fwd", "Fuel pump R fwd", "TZ_OH_RPUMP_FWD_Button"},
    {kPumpRightAft, "pump_r_aft", "Fuel pump R aft", "TZ_OH_RPUMP_AFT_Button"},
    {kPumpCentreLeft, "pump_ctr_l", "Fuel pump ctr L", "TZ_OH_CNTRPUMP_L_Button"},
    {kPumpCentreRight, "pump_ctr_r", "Fuel pump ctr R", "TZ_OH_CNTRPUMP_R_Button"},
    {kGeneratorL1, "gen_l1", "Generator L1", "TZ_OH_GENCTL_L1_Button"},
    {kGeneratorL2, "gen_l2", "Generator L2", "TZ_OH_GENCTL_L2_Button"},
    {kGeneratorR1, "gen_r1", "Generator R1", "TZ_OH_GENCTL_R1_Button"},
    {kGeneratorR2, "gen_r2", "Generator R2", "TZ_OH_GENCTL_R2_Button"},
    {kHydraulicEngineLeft, "hyd_eng_l", "Hyd pump eng L", "TZ_OH_HYD_L_ENG_Button"},
    {kHydraulicEngineRight, "hyd_eng_r", "Hyd pump eng R", "TZ_OH_HYD_R_ENG_Button"},
    {kHydraulicC1, "hyd_c1", "Hyd pump C1", "TZ_OH_ELEC_C1_Switch"},
    {kHydraulicC2, "hyd_c2", "Hyd pump C2", "TZ_OH_ELEC_C2_Switch"},
    {kPackLeft, "pack_l", "Pack L", "TZ_OH_AC_LPACK_Button"},
    {kPackRight, "pack_r", "Pack R", "TZ_OH_AC_RPACK_Button"},
};
static_assert(std::size(kFailureRows) == kFailureCount);

}  // namespace

std::span<const FailureRow> FailureRows() {
    return kFailureRows;
}

const FailureRow* FindFailure(std::string_view name) {
    const auto row = std::ranges::find(kFailureRows, name, &FailureRow::name);
    return row == std::end(kFailureRows) ? nullptr : &*row;
}

void HoldTrippedSwitches(const Aircraft& aircraft) {
    if (aircraft.fails.none()) return;
    for (const FailureRow& row : kFailureRows)
        if (aircraft.fails[row.failure] && !row.trips.empty() && NamedValue(row.trips) != 0)
            SetNamedValue(row.trips, 0);
}

}  // namespace host
