#include <array>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>

#include "module/controls/panels.h"
#include "state/cockpit.h"
#include "state/efb.h"
#include "state/side.h"

namespace {

constexpr auto kAir = std::to_array<Control>({
    Latching(NamedVar("TZ_OH_FWDCARGO_AC_Button"), &cockpit.TZ_OH_FWDCARGO_AC_Button),
    Switch(NamedVar("TZ_OH_FWDCARGO_FLOW_Switch"), &cockpit.TZ_OH_FWDCARGO_FLOW_Switch, 0, 2),
    Latching(NamedVar("TZ_OH_Bulk_Button"), &cockpit.bulk_cargo_heat_button),
    Latching(NamedVar("TZ_OH_EQPCOOL_FWD_Button"), &cockpit.equip_cooling_fwd_button),
    Latching(NamedVar("TZ_OH_EQPCOOL_AFT_Button"), &cockpit.equip_cooling_aft_button),
    Latching(NamedVar("TZ_OH_RECIRC_UPP_Button"), &cockpit.recirc_fans_upper_button),
    Latching(NamedVar("TZ_OH_RECIRC_LOW_Button"), &cockpit.recirc_fans_lower_button),
    Switch(NamedVar("TZ_OH_FLTDK_Temp_Switch"), &cockpit.TZ_OH_FLTDK_Temp_Switch, 0, 6),
    Switch(NamedVar("TZ_OH_CABIN_Temp_Switch"), &cockpit.TZ_OH_CABIN_Temp_Switch, 0, 6),
    Latching(NamedVar("TZ_OH_AC_LPACK_Button"), &cockpit.pack_l_button),
    Latching(NamedVar("TZ_OH_AC_RPACK_Button"), &cockpit.pack_r_button),
    Latching(NamedVar("TZ_OH_TRIMAIR_L_Button"), &cockpit.trim_air_l_button),
    Latching(NamedVar("TZ_OH_TRIMAIR_R_Button"), &cockpit.trim_air_r_button),
    Guard(NamedVar("TZ_OH_VENT_Guard_Switch"), &cockpit.TZ_OH_VENT_Guard_Switch),
    UnderGuard(NamedVar("TZ_OH_AC_VENT_Button"), &cockpit.ventilation_button,
               &cockpit.TZ_OH_VENT_Guard_Switch),
    Latching(NamedVar("TZ_OH_OV_FWD_Button"), &cockpit.fwd_outflow_valve_button),
    Latching(NamedVar("TZ_OH_OV_AFT_Button"), &cockpit.aft_outflow_valve_button),
});

// By their EfbKey. The first officer's tablet has the first 22.
constexpr std::string_view kBezelKeys[] = {
    "L1",  "L2",       "L3", "L4", "L5",  "L6",  "L7",     "L8",      "R1",   "R2",
    "R3",  "R4",       "R5", "R6", "R7",  "R8",  "MENU",   "PGUP",    "PGDN", "PWR",
    "XFR", "REDIRECT", "UP", "DN", "LFT", "RGT", "ZOOMIN", "ZOOMOUT",
};
static_assert(std::size(kBezelKeys) == kEfbZoomOut && kBezelKeys[kEfbMenu - 1] == "MENU");

template <int kSide, int kKey>
void Press(int) {
    EfbOf(kSide).pending_key = kKey;
}

consteval NamedVarRef BezelVariable(int side, std::string_view key) {
    return NamedVar(std::string(side == kCaptain ? "TZ_EFB_L_" : "TZ_EFB_R_") + std::string(key) + "_Button");
}

template <int kSide, std::size_t... kIndex>
consteval auto Bezel(std::index_sequence<kIndex...>) {
    return std::array{Key(BezelVariable(kSide, kBezelKeys[kIndex]), Press<kSide, kIndex + 1>)...};
}

constexpr auto kControls = JoinTables(kAir, Bezel<kCaptain>(std::make_index_sequence<kEfbZoomOut>()),
                                      Bezel<kFirstOfficer>(std::make_index_sequence<kEfbRedirect>()));
static_assert(kControls.size() == 67);

}  // namespace

std::span<const Control> AirAndTabletControls() {
    return kControls;
}
