#include "host/aircraft/failures.h"

#include <algorithm>

#include "host/aircraft/aircraft.h"
#include "host/world/world.h"

namespace host {
namespace {

constexpr FailureRow kFailureRows[] = {
    {kEngineLeft, "engine_l", "Engine L", "Engines and fire", ""},
    {kEngineRight, "engine_r", "Engine R", "Engines and fire", ""},
    {kFireLeft, "fire_l", "Fire L", "Engines and fire", ""},
    {kFireRight, "fire_r", "Fire R", "Engines and fire", ""},
    {kFireApu, "fire_apu", "Fire APU", "Engines and fire", ""},
    {kLeakLeft, "leak_l", "Leak L", "Fuel", ""},
    {kLeakRight, "leak_r", "Leak R", "Fuel", ""},
    {kDecompression, "decompression", "Cabin leak", "Air", ""},
    {kDoorForwardCargo, "door_fwd_cargo", "Fwd cargo", "Doors", ""},
    {kDoorAftCargo, "door_aft_cargo", "Aft cargo", "Doors", ""},
    {kDoorEntry, "door_1l", "Entry 1L", "Doors", ""},
    {kAileronLeft, "aileron_l", "Aileron L", "Surfaces", ""},
    {kElevatorRight, "elevator_r", "Elev R", "Surfaces", ""},
    {kSpoilerPair, "spoilers", "Spoilers 5, 10", "Surfaces", ""},
    {kPumpLeftForward, "pump_l_fwd", "L fwd pump", "Fuel", "TZ_OH_LPUMP_FWD_Button"},
    {kPumpLeftAft, "pump_l_aft", "L aft pump", "Fuel", "TZ_OH_LPUMP_AFT_Button"},
    {kPumpRightForward, "pump_r_fwd", "R fwd pump", "Fuel", "TZ_OH_RPUMP_FWD_Button"},
    {kPumpRightAft, "pump_r_aft", "R aft pump", "Fuel", "TZ_OH_RPUMP_AFT_Button"},
    {kPumpCentreLeft, "pump_ctr_l", "L ctr pump", "Fuel", "TZ_OH_CNTRPUMP_L_Button"},
    {kPumpCentreRight, "pump_ctr_r", "R ctr pump", "Fuel", "TZ_OH_CNTRPUMP_R_Button"},
    {kGeneratorL1, "gen_l1", "Gen L1", "Electrical", "TZ_OH_GENCTL_L1_Button"},
    {kGeneratorL2, "gen_l2", "Gen L2", "Electrical", "TZ_OH_GENCTL_L2_Button"},
    {kGeneratorR1, "gen_r1", "Gen R1", "Electrical", "TZ_OH_GENCTL_R1_Button"},
    {kGeneratorR2, "gen_r2", "Gen R2", "Electrical", "TZ_OH_GENCTL_R2_Button"},
    {kHydraulicEngineLeft, "hyd_eng_l", "L eng pump", "Hydraulics", "TZ_OH_HYD_L_ENG_Button"},
    {kHydraulicEngineRight, "hyd_eng_r", "R eng pump", "Hydraulics", "TZ_OH_HYD_R_ENG_Button"},
    {kHydraulicC1, "hyd_c1", "C1 pump", "Hydraulics", "TZ_OH_ELEC_C1_Switch"},
    {kHydraulicC2, "hyd_c2", "C2 pump", "Hydraulics", "TZ_OH_ELEC_C2_Switch"},
    {kPackLeft, "pack_l", "Pack L", "Air", "TZ_OH_AC_LPACK_Button"},
    {kPackRight, "pack_r", "Pack R", "Air", "TZ_OH_AC_RPACK_Button"},
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
