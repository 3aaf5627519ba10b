#include "display/synoptics/air_page.h"

#include <string>

#include "base/text.h"
#include "state/air.h"
#include "state/cockpit.h"
#include "state/electrical.h"
#include "state/power_words.h"
#include "state/sim.h"

namespace {

bool IsShed() {
    return electrical.load_shed_level == 1 || electrical.load_shed_level == 2;
}
bool IsPackOn(int button) {
    return button == 1 && IsAcBusPowered() && !IsShed();
}

std::string Fahrenheit(int degrees) {
    return Format("%d", degrees);
}

void DrawZone(const SysPage& page, int x, int y, int width, std::string_view name, int target, int now) {
    constexpr int kHeight = 40;
    DrawSysBox(page, x, y, width, kHeight, FlowState::kPlain);
    const double middle = x + width / 2.0;
    DrawSysLabel(page, middle, y + 8, name);
    DrawSysValue(page, middle - width / 5.0, y + 26, Fahrenheit(now));
    TextAbout(page.graphics, middle + width / 5.0, y + 26, 9, kMagenta, Fahrenheit(target));
}

void DrawZones(const SysPage& page) {
    DrawSysLabel(page, 312, 72, "MASTER");
    DrawSysLabel(page, 312, 81, "TEMP");
    DrawSysValue(page, 340, 77, Fahrenheit(air.cabin_temp_target));
    DrawSysLabel(page, 400, 72, "CABIN");
    DrawSysLabel(page, 400, 81, "OCCUPANTS");
    DrawSysValue(page, 442, 77, "AUTO");
    DrawSysLabel(page, 500, 77, "FLT DECK");
    DrawSysValue(page, 533, 77, Fahrenheit(air.flt_deck_temp_target));
    DrawZone(page, 292, 92, 70, "FLIGHT DECK", air.flt_deck_temp_target, air.flt_deck_temp);
    DrawZone(page, 366, 92, 116, "PASSENGER CABIN", air.cabin_temp_target, air.cabin_temp);
    DrawZone(page, 292, 140, 64, "FWD CARGO", air.cargo_temp_target, air.fwd_cargo_temp);
    DrawZone(page, 360, 140, 64, "AFT CARGO", air.cargo_temp_target, air.aft_cargo_temp);
    DrawZone(page, 428, 140, 54, "BULK", air.cargo_temp_target, air.bulk_cargo_temp);
}

void DrawFan(const SysPage& page, int y, std::string_view name, bool on) {
    DrawSysLabel(page, 506, y, name);
    DrawPump(page, 534, y, 16, 16, LiveIf(on));
}

void DrawRecirculation(const SysPage& page) {
    DrawSysLabel(page, 521, 92, "RECIRC");
    DrawFan(page, 110, "UPPER", cockpit.recirc_fans_upper_button == 1 && IsAcBusPowered());
    DrawFan(page, 132, "LOWER", cockpit.recirc_fans_lower_button == 1 && IsAcBusPowered());
    if (IsShed()) TextAbout(page.graphics, 521, 156, 8, kAmber, "LOAD SHED");
}

void DrawPack(const SysPage& page, int x, std::string_view name, bool on) {
    DrawUser(page, x - 26, 318, 52, 22, on ? FlowState::kLive : FlowState::kWarning, {name});
    DrawUser(page, x - 36, 362, 72, 26, LiveIf(on), {"CABIN AIR", "COMPRESSOR"});
    DrawFlow(page, {{x, 362}, {x, 340}}, LiveIf(on));
    DrawFlow(page, {{x, 318}, {x, 236}}, LiveIf(on));
    DrawValve(page, x, 300, on, false, LiveIf(on));
}

void DrawTrimAir(const SysPage& page, int x, int heads_for, int button, bool pack, std::string_view zones) {
    const bool on = button == 1 && pack;
    DrawFlow(page, {{x, 350}, {heads_for, 350}, {heads_for, 236}}, LiveIf(on));
    DrawValve(page, heads_for, 276, button == 1, false, button == 1 ? LiveIf(on) : FlowState::kWarning);
    DrawUser(page, heads_for - 42, 248, 84, 14, LiveIf(on), {zones});
}

// The upper zones are fed around the cargo compartments.
void DrawSupply(const SysPage& page, bool on) {
    const FlowState flow = LiveIf(on);
    DrawFlow(page, {{308, 214}, {308, 197}, {286, 197}, {286, 112}, {292, 112}}, flow);
    DrawFlow(page, {{466, 214}, {466, 197}, {487, 197}, {487, 112}, {482, 112}}, flow);
    struct Cargo {
        int x;
        bool open;
    };
    for (const Cargo& cargo : {Cargo{324, cockpit.TZ_OH_FWDCARGO_AC_Button == 1}, Cargo{392, true},
                               Cargo{448, cockpit.bulk_cargo_heat_button == 1}}) {
        DrawFlow(page, {{cargo.x, 214}, {cargo.x, 180}}, LiveIf(on && cargo.open));
        DrawFlowArrow(page, cargo.x, 186, LiveIf(on && cargo.open), on && cargo.open);
    }
}

void DrawDistribution(const SysPage& page) {
    const bool left = IsPackOn(cockpit.pack_l_button), right = IsPackOn(cockpit.pack_r_button);
    DrawUser(page, 300, 214, 246, 22, LiveIf(left || right), {"AIR DISTRIBUTION"});
    DrawSupply(page, left || right);
    DrawSysLabel(page, 522, 204, "TRIM HEAT");
    DrawTrimAir(page, 322, 378, cockpit.trim_air_l_button, left, "FLTDECK + B + D");
    DrawTrimAir(page, 524, 468, cockpit.trim_air_r_button, right, "FLTDECK + A + C");
    DrawSysLabel(page, kPageMiddle, 292, "TRIM AIR");
    DrawPack(page, 322, "L PACK", left);
    DrawPack(page, 524, "R PACK", right);
}

}  // namespace

void DrawAirPage(const SysPage& page) {
    DrawZones(page);
    DrawRecirculation(page);
    DrawDistribution(page);
    DrawSysLabel(page, 384, 402, "CAB ALT");
    DrawSysValue(page, 420, 402, Format("%.0f", sim.cabin_alt));
    DrawSysLabel(page, 456, 402, "RATE");
    DrawSysValue(page, 486, 402, Format("%.0f", sim.cabin_rate));
}
