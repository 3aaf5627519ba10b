#include "display/synoptics/hyd_page.h"

#include <array>
#include <span>

#include "base/text.h"
#include "display/synoptics/stat_page.h"
#include "state/alerts.h"
#include "state/cockpit.h"
#include "state/hydraulics.h"
#include "state/sim.h"

namespace {

constexpr int kUsersTop = 72, kUsersFoot = 94, kManifold = 190, kHydPumpY = 262, kReservoirTop = 318;
constexpr int kEnoughForUsers = 3000;  // psi

struct Source {
    std::string_view name;
    int x;
    int HydraulicState::*pump;
    int HydraulicState::*pressure;
    std::size_t overheat;  // its message
};

struct HydSystem {
    std::string_view name;
    int x;
    double full;
    int HydraulicState::*pressure;
    std::array<Source, 2> sources;
};
constexpr HydSystem kSystems[] = {
    {"L",
     332,
     kSideReservoir,
     &HydraulicState::tz_hyd_press_l,
     {{{"ENG", 312, &HydraulicState::eng_pump_l, &HydraulicState::press_eng_l, 126},
       {"ELEC", 352, &HydraulicState::elec_pump_l, &HydraulicState::press_elec_l, 124}}}},
    {"C",
     423,
     kCentreReservoir,
     &HydraulicState::tz_hyd_press_c,
     {{{"C1", 400, &HydraulicState::elec_pump_c1, &HydraulicState::press_c1, 122},
       {"C2", 446, &HydraulicState::elec_pump_c2, &HydraulicState::press_c2, 123}}}},
    {"R",
     514,
     kSideReservoir,
     &HydraulicState::tz_hyd_press_r,
     {{{"ELEC", 494, &HydraulicState::elec_pump_r, &HydraulicState::press_elec_r, 125},
       {"ENG", 534, &HydraulicState::eng_pump_r, &HydraulicState::press_eng_r, 127}}}},
};

bool Runs(const HydSystem& system) {
    return hydraulics.*system.sources[0].pump != 0 || hydraulics.*system.sources[1].pump != 0;
}

bool IsRatFeeding(const HydSystem& system) {
    return system.name == "C" && cockpit.rat_unlocked == 1 && sim.ias_kt >= 80;
}

bool HasPressure(const HydSystem& system) {
    return hydraulics.*system.pressure >= kEnoughForUsers && (Runs(system) || IsRatFeeding(system));
}

// With the ram air turbine out, its little flow is kept for the flight controls.
bool IsIsolationOpen() {
    return cockpit.rat_unlocked == 0;
}

struct User {
    int system;  // of kSystems
    int x, y, width;
    std::array<std::string_view, 2> words;
    bool behind_isolation = false;
};
constexpr User kUsers[] = {
    {0, 289, kUsersTop, 40, {"L REV"}},
    {0, 333, kUsersTop, 36, {"FLT", "CTRL"}},
    {1, 376, kUsersTop, 36, {"FLT", "CTRL"}},
    {1, 434, kUsersTop, 38, {"FLAPS"}, true},
    {1, 434, 100, 54, {"NOSE GEAR", "& STEERING"}, true},
    {1, 434, 128, 38, {"MAIN", "GEAR"}, true},
    {2, 477, kUsersTop, 36, {"FLT", "CTRL"}},
    {2, 517, kUsersTop, 40, {"R REV"}},
};

void DrawUsers(const SysPage& page) {
    for (const User& user : kUsers) {
        const bool fed = HasPressure(kSystems[user.system]) && (!user.behind_isolation || IsIsolationOpen());
        constexpr int kHeight = kUsersFoot - kUsersTop;
        if (user.words[1].empty())
            DrawUser(page, user.x, user.y, user.width, kHeight, LiveIf(fed), {user.words[0]});
        else
            DrawUser(page, user.x, user.y, user.width, kHeight, LiveIf(fed), {user.words[0], user.words[1]});
    }
}

void DrawSupply(const SysPage& page) {
    const FlowState left = LiveIf(HasPressure(kSystems[0])), right = LiveIf(HasPressure(kSystems[2]));
    DrawFlow(page, {{332, kManifold}, {332, 150}, {309, 150}, {309, kUsersFoot}}, left);
    DrawFlow(page, {{332, 150}, {351, 150}, {351, kUsersFoot}}, left);
    DrawFlow(page, {{514, kManifold}, {514, 160}, {495, 160}, {495, kUsersFoot}}, right);
    DrawFlow(page, {{514, 160}, {537, 160}, {537, kUsersFoot}}, right);
    const bool centre = HasPressure(kSystems[1]), isolated = centre && IsIsolationOpen();
    DrawFlow(page, {{423, kManifold}, {423, 164}, {394, 164}, {394, kUsersFoot}}, LiveIf(centre));
    DrawFlow(page, {{423, 164}, {423, 83}}, LiveIf(isolated));
    for (const int y : {83, 111, 139}) DrawFlow(page, {{423, y}, {434, y}}, LiveIf(isolated));
    DrawValve(page, 423, 150, IsIsolationOpen(), false, LiveIf(isolated));
    DrawSysLabel(page, 445, 157, "ISLN");
}

void DrawSource(const SysPage& page, const HydSystem& system, const Source& source) {
    const bool runs = hydraulics.*source.pump != 0;
    const bool presses = runs && hydraulics.*source.pressure >= kEnoughForUsers;
    const bool hot = alerts.posted[source.overheat] != 0;
    const FlowState state = hot ? FlowState::kWarning : LiveIf(presses);
    DrawFlow(page, {{source.x, kReservoirTop}, {source.x, kHydPumpY}}, LiveIf(runs));
    DrawFlow(page, {{source.x, kHydPumpY}, {source.x, 230}, {system.x, 230}}, LiveIf(presses));
    DrawPump(page, source.x, kHydPumpY, 18, 18, state);
    DrawLineLabel(page, source.x, 280, source.name);
    if (hot)
        TextAbout(page.graphics, source.x, 290, 8, kAmber, "OVHT");
    else if (runs && !presses)
        TextAbout(page.graphics, source.x, 290, 8, kAmber, "PRESS");
}

void DrawSystem(const SysPage& page, const HydSystem& system) {
    constexpr int kWidth = 64;
    const int pressure = hydraulics.*system.pressure;
    const bool low = pressure < kEnoughForUsers;
    for (const Source& source : system.sources) DrawSource(page, system, source);
    DrawFlow(page, {{system.x, 230}, {system.x, kManifold}}, LiveIf(HasPressure(system)));
    DrawSysBox(page, system.x - kWidth / 2, 190, kWidth, 28, low ? FlowState::kWarning : FlowState::kLive,
               true);
    DrawSysLabel(page, system.x, 197, "PRESS");
    DrawSysValue(page, system.x, 209, Format("%.2f", static_cast<double>(pressure)), low ? kAmber : kWhite);
    DrawSysBox(page, system.x - kWidth / 2, kReservoirTop, kWidth, 44, FlowState::kPlain);
    DrawSysTitle(page, system.x, kReservoirTop + 10, system.name);
    DrawSysLabel(page, system.x - 14, kReservoirTop + 30, "QTY");
    DrawSysValue(page, system.x + 14, kReservoirTop + 30,
                 Format("%1.2f", ReservoirRatio(system.full, pressure)));
}

void DrawRat(const SysPage& page) {
    const bool feeds = IsRatFeeding(kSystems[1]);
    DrawUser(page, 408, 372, 30, 16, feeds ? FlowState::kLive : FlowState::kDead, {"RAT"});
    if (feeds) DrawFlow(page, {{438, 380}, {464, 380}, {464, 230}, {423, 230}}, FlowState::kLive);
}

}  // namespace

void DrawHydPage(const SysPage& page) {
    DrawSysTitle(page, kPageMiddle, 61, "HYDRAULIC");
    DrawSupply(page);
    DrawUsers(page);
    for (const HydSystem& system : kSystems) DrawSystem(page, system);
    DrawRat(page);
}
