#include "display/synoptics/elec_page.h"

#include <span>

#include "base/text.h"
#include "state/cockpit.h"
#include "state/electrical.h"
#include "state/power_words.h"

namespace {

constexpr int kBusTop = 193;

bool FeedsAnyGenerator() {
    return electrical.gen_l1_pwr != 0 || electrical.gen_l2_pwr != 0 || electrical.gen_r1_pwr != 0 ||
           electrical.gen_r2_pwr != 0;
}

// A source's two sockets, L and R, and the lines that lead from them to the buses.
void DrawSockets(const SysPage& page, int x, int y, int width, int step, bool there) {
    for (const int side : {0, 1})
        DrawSysBox(page, x + side * step, y, width, 22, there ? FlowState::kLive : FlowState::kDead);
}

void DrawForwardExternal(const SysPage& page) {
    DrawSysLabel(page, 345, 102, "FWD EXT PWR");
    DrawSysLabel(page, 332, 112, "L");
    DrawSysLabel(page, 357, 112, "R");
    DrawSockets(page, 322, 117, 20, 25, electrical.fwd_ext_pwr_avail == 1);
    const bool feeds = electrical.ext_ac_pwr == 1 && !FeedsAnyGenerator() && electrical.apu_gen_pwr == 0;
    for (const int x : {332, 357}) {
        DrawFlow(page, {{x, feeds ? 117 : 140}, {x, feeds ? 191 : kBusTop}}, LiveIf(feeds));
        if (feeds) DrawFlowArrow(page, x, kBusTop, FlowState::kLive, true);
    }
}

void DrawStarter(const SysPage& page) {
    GdipDrawArcI(page.graphics, PenOf(kWhite), 428, 95, 14, 14, 90, 270);
    FillOutline(page.graphics, BrushOf(kWhite), {At(442, 106), At(438, 101), At(446, 101)});
}

void DrawApuGenerator(const SysPage& page) {
    DrawSysLabel(page, 424, 76, "APU GEN");
    DrawSysLabel(page, 412, 87, "L");
    DrawSysLabel(page, 436, 87, "R");
    const bool on = electrical.apu_gen_pwr == 1;
    DrawSockets(page, 402, 92, 20, 24, on);
    const bool feeds = on && electrical.running_gens < 2;
    for (const int x : {413, 437}) {
        DrawFlow(page, {{x, feeds ? 93 : 115}, {x, feeds ? 191 : kBusTop}}, LiveIf(feeds));
        if (feeds) DrawFlowArrow(page, x, kBusTop, FlowState::kLive, true);
    }
    if (electrical.apu_starting == 1) DrawStarter(page);
}

void DrawAftExternal(const SysPage& page) {
    DrawSysLabel(page, 503, 104, "AFT EXT PWR");
    DrawSysBox(page, 493, 118, 20, 22, FlowState::kDead);
    DrawFlow(page, {{502, 140}, {502, kBusTop}}, FlowState::kDead);
    DrawUser(page, 468, 156, 69, 24, FlowState::kDead, {"LARGE MOTOR", "POWER SYS"});
}

void DrawBuses(const SysPage& page) {
    struct Bus {
        int x;
        std::string_view name;
    };
    constexpr Bus kBuses[] = {
        {337, "L1 MAIN"}, {376, "L2 MAIN"}, {419, "R1 MAIN"}, {461, "R2 MAIN"}, {506, "GEN"}};
    const bool alive = AreAllBusesAlive();
    DrawSysBox(page, 318, 194, 212, 43, LiveIf(alive));
    const Rgb colour = alive ? kWhite : kAmber;
    for (const Bus& bus : kBuses) TextAbout(page.graphics, bus.x, 219, 8, colour, bus.name);
    for (const int x : {354, 398, 440, 482}) DrawFlowTick(page, x, 208, LiveIf(alive), alive);
}

struct Generator {
    int x;
    std::string_view name;
    int ElectricalState::*power;
    int CockpitState::*control;
    int CockpitState::*drive_disconnect;
};
constexpr Generator kGenerators[] = {
    {332, "L1", &ElectricalState::gen_l1_pwr, &CockpitState::gen_l1_button, &CockpitState::drive_disc_l1},
    {364, "L2", &ElectricalState::gen_l2_pwr, &CockpitState::gen_l2_button, &CockpitState::drive_disc_l2},
    {492, "R1", &ElectricalState::gen_r1_pwr, &CockpitState::gen_r1_button, &CockpitState::drive_disc_r1},
    {524, "R2", &ElectricalState::gen_r2_pwr, &CockpitState::gen_r2_button, &CockpitState::drive_disc_r2},
};

void DrawGenerator(const SysPage& page, const Generator& generator) {
    const bool live = electrical.*generator.power == 1;
    const bool fault = cockpit.*generator.drive_disconnect != 0;
    DrawFlow(page, {{generator.x, 241}, {generator.x, 256}}, LiveIf(live));
    DrawFlowTick(page, generator.x, 237, LiveIf(live), live);
    DrawUser(page, generator.x - 12, 256, 24, 18, LiveIf(live), {generator.name});
    DrawSysLabel(page, generator.x, 281, "CTRL");
    DrawSysValue(page, generator.x, 291, cockpit.*generator.control == 1 ? "ON" : "OFF",
                 cockpit.*generator.control == 1 ? kWhite : kAmber);
    if (fault)
        DrawSysValue(page, generator.x, 303, "DRIVE", kAmber);
    else
        DrawSysLabel(page, generator.x, 303, "DRIVE");
}

// The host tells nothing of currents: the batteries feed the standby bus when nothing else does, and are
// charged while they aren't full.
int MainBatteryAmps() {
    constexpr int kFeeding = -28, kCharging = 12;
    constexpr double kFullVolts = 31;
    if (IsOnBatteryAlone()) return kFeeding;
    return IsAcBusPowered() && electrical.batt_volts < kFullVolts ? kCharging : 0;
}

void DrawBattery(const SysPage& page, int x, std::string_view name, std::string_view volts, int amps) {
    DrawSysLabel(page, x, 334, name);
    DrawSysLabel(page, x - 15, 352, "VOLTS");
    DrawSysValue(page, x + 20, 352, volts);
    DrawSysLabel(page, x - 15, 367, "AMPS");
    DrawSysValue(page, x + 20, 367, Format("%d", amps));
}

constexpr std::string_view kShedRight[] = {"WINDOW HEAT",  "EXT LIGHTS", "COMM/NAV",
                                           "CABIN LIGHTS", "FUEL",       "MISC HEATERS"};
constexpr std::string_view kShedLeft[] = {"CABIN LOADS", "EXT LIGHTS", "MISC HEATERS"};

std::span<const std::string_view> ShedLoads() {
    const std::span<const std::string_view> right = kShedRight;
    switch (electrical.load_shed_level) {
        case 1:
            return right;
        case 2:
            return right.subspan(1);
        case 3:
            return kShedLeft;
        default:
            return {};
    }
}

void DrawLoadShed(const SysPage& page) {
    constexpr int kStep = 9;
    DrawSysBox(page, 386, 325, 76, 76, FlowState::kDead);
    DrawSysLabel(page, 424, 333, "LOAD SHED");
    int y = 344;
    for (const std::string_view load : ShedLoads()) {
        TextAbout(page.graphics, 424, y, 8, kAmber, load);
        y += kStep;
    }
    const int level = electrical.load_shed_level;
    if (level == 1 || level == 2) TextAbout(page.graphics, 424, y, 8, kAmber, "AIR");
}

}  // namespace

void DrawElecPage(const SysPage& page) {
    constexpr int kApuBatteryVolts = 28;
    DrawForwardExternal(page);
    DrawApuGenerator(page);
    DrawAftExternal(page);
    DrawBuses(page);
    for (const Generator& generator : kGenerators) DrawGenerator(page, generator);
    DrawBattery(page, 334, "MAIN BAT", Format("%.0f", electrical.batt_volts), MainBatteryAmps());
    DrawLoadShed(page);
    DrawBattery(page, 512, "APU BAT", Format("%d", kApuBatteryVolts), electrical.apu_starting == 1 ? -90 : 0);
}
