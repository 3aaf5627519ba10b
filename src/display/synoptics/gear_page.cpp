#include "display/synoptics/gear_page.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "state/sim.h"
#include "state/surfaces.h"

namespace {

constexpr int kWheelWidth = 26, kWheelHeight = 46;
constexpr double kNosePressure = 185.0, kMainPressure = 228.0;  // psi, of tyres that nothing measures

struct Wheel {
    int number, x, y;
    double SurfaceState::*temperature;
};
constexpr Wheel kWheels[] = {
    {1, 300, 210, &SurfaceState::Brake_Temp1}, {2, 350, 210, &SurfaceState::Brake_Temp2},
    {3, 470, 210, &SurfaceState::Brake_Temp3}, {4, 520, 210, &SurfaceState::Brake_Temp4},
    {5, 300, 300, &SurfaceState::Brake_Temp5}, {6, 350, 300, &SurfaceState::Brake_Temp6},
    {7, 470, 300, &SurfaceState::Brake_Temp7}, {8, 520, 300, &SurfaceState::Brake_Temp8},
};

void DrawTyre(const SysPage& page, int x, int y, double pressure) {
    DrawSysBox(page, x, y, kWheelWidth, kWheelHeight, FlowState::kPlain);
    TextAbout(page.graphics, x + kWheelWidth / 2.0, y + 10, 7, kWhite, Format("%2.1f", pressure));
}

void DrawWheel(const SysPage& page, const Wheel& wheel, double hottest) {
    const double temperature = surfaces.*wheel.temperature;
    const bool hot = temperature >= kHotBrake;
    const double middle = wheel.x + kWheelWidth / 2.0;
    DrawTyre(page, wheel.x, wheel.y, kMainPressure);
    DrawSysLabel(page, middle, wheel.y + 26, Format("%.0f", static_cast<double>(wheel.number)));
    // The hottest brake of those that are warm at all is filled.
    constexpr double kWarm = 3.0;
    const Rgb colour = hot ? kAmber : kWhite;
    const int box_y = wheel.y + kWheelHeight + 2;
    if (hot || (temperature >= kWarm && temperature >= hottest)) {
        FilledBox(page.graphics, wheel.x, box_y, kWheelWidth, 14, colour);
        TextAbout(page.graphics, middle, box_y + 7, 10, kBlack, Format("%1.1f", temperature));
    } else {
        BoxOutline(page.graphics, wheel.x, box_y, kWheelWidth, 14, colour);
        TextAbout(page.graphics, middle, box_y + 7, 10, colour, Format("%1.1f", temperature));
    }
}

// What the named variable of a gear's door shows isn't kept: a door is open while its gear moves.
void DrawGearDoor(const SysPage& page, int x, int y, double position) {
    constexpr double kUp = 1000, kDown = 16000;
    const bool moves = position >= kUp && position < kDown;
    DrawSysBox(page, x - 30, y, 60, 24, moves ? FlowState::kWarning : FlowState::kLive);
    DrawSysLabel(page, x, y + 7, "DOOR");
    TextAbout(page.graphics, x, y + 16, 9, moves ? kAmber : kGreen, moves ? "OPEN" : "CLOSED");
}

void DrawNose(const SysPage& page) {
    constexpr int kLeftWheel = 390, kRightWheel = 430, kY = 96;
    DrawTyre(page, kLeftWheel, kY, kNosePressure);
    DrawTyre(page, kRightWheel, kY, kNosePressure);
    DrawFlow(page, {{kLeftWheel + kWheelWidth, kY + 23}, {kRightWheel, kY + 23}}, FlowState::kDead);
    DrawGearDoor(page, kPageMiddle, 66, sim.gear_nose);
}

void DrawBogie(const SysPage& page, int middle, double position) {
    DrawGearDoor(page, middle, 178, position);
    DrawFlow(page, {{middle, 204}, {middle, 324}}, FlowState::kDead);
    for (const int y : {233, 323}) DrawFlow(page, {{middle - 12, y}, {middle + 12, y}}, FlowState::kDead);
}

}  // namespace

void DrawGearPage(const SysPage& page) {
    double hottest = 0;
    for (const Wheel& wheel : kWheels) hottest = std::max(hottest, surfaces.*wheel.temperature);
    DrawNose(page);
    DrawBogie(page, 338, sim.gear_left);
    DrawBogie(page, 508, sim.gear_right);
    for (const Wheel& wheel : kWheels) DrawWheel(page, wheel, hottest);
    DrawSysLabel(page, kPageMiddle, 233, "TIRE PRESS");
    DrawSysLabel(page, kPageMiddle, 265, "BRAKE TEMP");
    DrawSysValue(page, kPageMiddle, 278, Format("%2.0f", hottest), hottest >= kHotBrake ? kAmber : kWhite);
}
