#include "display/synoptics/stat_page.h"

#include <algorithm>
#include <string>

#include "base/text.h"
#include "state/alerts.h"
#include "state/cockpit.h"
#include "state/electrical.h"
#include "state/hydraulics.h"

namespace {

constexpr int kLeft = 291;

void DrawHydraulicBlock(const SysPage& page) {
    struct System {
        int x;
        std::string_view name;
        double full;
        int HydraulicState::*pressure;
    };
    constexpr System kSystems[] = {
        {390, "L", kSideReservoir, &HydraulicState::tz_hyd_press_l},
        {450, "C", kCentreReservoir, &HydraulicState::tz_hyd_press_c},
        {510, "R", kSideReservoir, &HydraulicState::tz_hyd_press_r},
    };
    DrawSysBox(page, kLeft, 85, 264, 50, FlowState::kDead);
    DrawSysLabel(page, 325, 92, "HYDRAULIC");
    DrawSysLabel(page, 325, 110, "QTY");
    DrawSysLabel(page, 325, 124, "PRESS");
    for (const System& system : kSystems) {
        const int pressure = hydraulics.*system.pressure;
        DrawSysLabel(page, system.x, 96, system.name);
        DrawSysValue(page, system.x, 110, Format("%1.2f", ReservoirRatio(system.full, pressure)));
        DrawSysValue(page, system.x, 124, Format("%3.1f", static_cast<double>(pressure)));
    }
}

void DrawApuBlock(const SysPage& page) {
    constexpr double kTurning = 9.5;  // percent
    DrawSysBox(page, kLeft, 143, 264, 40, FlowState::kDead);
    DrawSysLabel(page, 305, 150, "APU");
    const bool known = cockpit.apu_switch != 0 || electrical.apu_rpm >= kTurning;
    const auto row = [&](double x, double y, std::string_view name, const std::string& value) {
        TextFrom(page.graphics, x, y, 8, kBlueGrey, name);
        if (known) TextUpTo(page.graphics, x + 100, y, 10, kWhite, value);
    };
    row(332, 152, "RPM", Format("%3.1f", electrical.apu_rpm));
    row(332, 163, "EGT", Format("%4.0f C", electrical.apu_egt));
    row(446, 152, "OIL PRESS", Format("%2.0f PSI", electrical.apu_oil_press));
    row(446, 163, "OIL TEMP", Format("%3.0f C", electrical.apu_oil_temp));
    row(446, 174, "OIL QTY", Format("%2.1f", electrical.apu_oil_qty));
}

void DrawOxygenAndCooling(const SysPage& page) {
    constexpr double kCrewOxygen = 1850, kCoolant = 0.99;  // psi; share of full
    DrawSysBox(page, kLeft, 189, 96, 28, FlowState::kDead);
    DrawSysLabel(page, 318, 196, "OXYGEN");
    DrawSysLabel(page, 325, 208, "CREW PRESS");
    DrawSysValue(page, 369, 208, Format("%4.0f", kCrewOxygen));
    DrawSysBox(page, 390, 189, 165, 28, FlowState::kDead);
    DrawSysLabel(page, 432, 196, "LIQUID COOLING");
    DrawSysLabel(page, 490, 196, "L");
    DrawSysLabel(page, 525, 196, "R");
    for (const double x : {490.0, 525.0}) DrawSysValue(page, x, 208, Format("%.2f", kCoolant));
}

void DrawStatusMessages(const SysPage& page) {
    constexpr int kTop = 226, kFirstY = 246, kStep = 11, kLines = 13;
    DrawSysBox(page, kLeft, kTop, 264, 170, FlowState::kDead);
    DrawSysLabel(page, 340, kTop + 7, "STATUS MESSAGES");
    const int count = std::min({alerts.memo_count, alerts.memo_list.size(), kLines});
    for (int index = 1; index <= count; ++index)
        TextFrom(page.graphics, kLeft + 10, kFirstY + kStep * (index - 1), 10, kWhite,
                 alerts.memo_list[index].text);
}

}  // namespace

void DrawStatPage(const SysPage& page) {
    DrawSysTitle(page, kPageMiddle, 73, "STATUS");
    DrawHydraulicBlock(page);
    DrawApuBlock(page);
    DrawOxygenAndCooling(page);
    DrawStatusMessages(page);
}
