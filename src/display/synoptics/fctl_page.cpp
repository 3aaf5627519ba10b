#include "display/synoptics/fctl_page.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "state/cfg.h"
#include "state/electrical.h"
#include "state/hydraulics.h"
#include "state/irs.h"
#include "state/sim.h"
#include "state/surfaces.h"

namespace {

constexpr int kEnoughPressure = 2000;  // psi, for a surface
constexpr double kFullTravel = 100;    // of a surface's variable; a spoiler's goes to 200

bool IsAlive(int HydraulicState::*pressure) {
    return hydraulics.*pressure >= kEnoughPressure;
}
bool IsAnyAlive() {
    return IsAlive(&HydraulicState::tz_hyd_press_l) || IsAlive(&HydraulicState::tz_hyd_press_c) ||
           IsAlive(&HydraulicState::tz_hyd_press_r);
}

struct Surface {
    std::string_view name;
    int x, y;
    double SurfaceState::*value;
};
constexpr int kScaleHeight = 52;
constexpr Surface kSurfaces[] = {
    {"L AIL", 300, 150, &SurfaceState::aileron_left},     {"L FLPRN", 344, 150, &SurfaceState::flaperon_left},
    {"R FLPRN", 502, 150, &SurfaceState::flaperon_right}, {"R AIL", 546, 150, &SurfaceState::aileron_right},
    {"L ELEV", 322, 250, &SurfaceState::elevator_left},   {"R ELEV", 524, 250, &SurfaceState::elevator_right},
};

Rgb SurfaceColour(double value) {
    return value == kFailedSurface || !IsAnyAlive() ? kAmber : kGreen;
}

void DrawSurface(const SysPage& page, const Surface& surface) {
    const double value = surfaces.*surface.value;
    const Rgb colour = SurfaceColour(value);
    const int middle = surface.y + kScaleHeight / 2;
    Line(page.graphics, surface.x, surface.y, surface.x, surface.y + kScaleHeight, kWhite);
    for (const int y : {surface.y, middle, surface.y + kScaleHeight})
        Line(page.graphics, surface.x - 4, y, surface.x, y, kWhite);
    if (value != kFailedSurface) {
        const double y = middle + std::clamp(value / kFullTravel, -1.0, 1.0) * kScaleHeight / 2;
        FillOutline(page.graphics, BrushOf(colour),
                    {At(surface.x + 1, y), At(surface.x + 9, y - 4), At(surface.x + 9, y + 4)});
    } else {
        Line(page.graphics, surface.x - 5, middle - 6, surface.x + 7, middle + 6, kAmber, 2);
        Line(page.graphics, surface.x - 5, middle + 6, surface.x + 7, middle - 6, kAmber, 2);
    }
    TextAbout(page.graphics, surface.x, surface.y + kScaleHeight + 8, 8,
              colour == kAmber ? kAmber : kBlueGrey, surface.name);
}

constexpr double SurfaceState::*const kSpoilers[] = {
    &SurfaceState::spoiler_1,  &SurfaceState::spoiler_2,  &SurfaceState::spoiler_3,
    &SurfaceState::spoiler_4,  &SurfaceState::spoiler_5,  &SurfaceState::spoiler_6,
    &SurfaceState::spoiler_7,  &SurfaceState::spoiler_8,  &SurfaceState::spoiler_9,
    &SurfaceState::spoiler_10, &SurfaceState::spoiler_11, &SurfaceState::spoiler_12,
    &SurfaceState::spoiler_13, &SurfaceState::spoiler_14};

void DrawSpoilers(const SysPage& page) {
    constexpr int kFoot = 128, kHeight = 30, kStep = 14, kFirst = 318, kGap = 28;
    constexpr double kFull = 200;
    DrawSysLabel(page, kPageMiddle, 90, "SPOILERS");
    for (int i = 0; i < 14; ++i) {
        const double value = surfaces.*kSpoilers[i];
        const int x = kFirst + i * kStep + (i >= 7 ? kGap : 0);
        const Rgb colour = SurfaceColour(value);
        BoxOutline(page.graphics, x - 5, kFoot - kHeight, 10, kHeight, colour == kAmber ? kAmber : kBlueGrey);
        if (value == kFailedSurface) continue;
        const double up = std::clamp(value / kFull, 0.0, 1.0) * kHeight;
        if (up > 0) FilledRectangle(page.graphics, BrushOf(colour), x - 5, kFoot - up, 10, up);
    }
}

// The host's model has no variable for the rudder: its trim is what is known of it.
void DrawRudder(const SysPage& page) {
    constexpr int kY = 330, kReach = 40;
    constexpr double kDeadZone = 0.005;
    const double trim = std::clamp(sim.rudder_trim, -1.0, 1.0);
    const Rgb colour = IsAnyAlive() ? kGreen : kAmber;
    Line(page.graphics, kPageMiddle - kReach, kY, kPageMiddle + kReach, kY, kWhite);
    for (const int x : {-kReach, 0, kReach})
        Line(page.graphics, kPageMiddle + x, kY, kPageMiddle + x, kY + 4, kWhite);
    const double x = kPageMiddle + trim * kReach;
    FillOutline(page.graphics, BrushOf(colour), {At(x, kY - 1), At(x - 4, kY - 8), At(x + 4, kY - 8)});
    TextAbout(page.graphics, kPageMiddle, kY + 11, 8, colour == kAmber ? kAmber : kBlueGrey, "RUDDER");
    DrawSysLabel(page, kPageMiddle, 358, "RUDDER TRIM");
    if (std::fabs(trim) > kDeadZone) DrawSysValue(page, kPageMiddle - 18, 370, trim < 0 ? "L" : "R");
    DrawSysValue(page, kPageMiddle + 4, 370, Format("%.1f", std::fabs(trim)));
}

void DrawStabilizer(const SysPage& page) {
    double y = 236;
    for (const std::string_view letter : {"S", "T", "A", "B"}) {
        DrawSysLabel(page, 398, y, letter);
        y += 10;
    }
    DrawSysBox(page, 408, 242, 40, 20, FlowState::kPlain);
    DrawSysValue(page, 428, 252, Format("%.2f", surfaces.elev_trim_ind));
}

void DrawSources(const SysPage& page) {
    struct System {
        std::string_view name;
        int HydraulicState::*pressure;
    };
    constexpr System kSystems[] = {{"L", &HydraulicState::tz_hyd_press_l},
                                   {"C", &HydraulicState::tz_hyd_press_c},
                                   {"R", &HydraulicState::tz_hyd_press_r}};
    DrawSysLabel(page, 326, 386, "HYDRAULICS");
    int x = 302;
    for (const System& system : kSystems) {
        DrawUser(page, x - 10, 394, 20, 18, IsAlive(system.pressure) ? FlowState::kLive : FlowState::kWarning,
                 {system.name});
        x += 24;
    }
    DrawSysLabel(page, 520, 386, "ELECTRICAL");
    DrawUser(page, 494, 394, 22, 18, electrical.gen_l2_pwr == 1 ? FlowState::kLive : FlowState::kWarning,
             {"L2"});
    DrawUser(page, 524, 394, 22, 18, electrical.gen_r2_pwr == 1 ? FlowState::kLive : FlowState::kWarning,
             {"R2"});
}

void DrawMode(const SysPage& page) {
    constexpr int kDirect = 4;
    const bool aligned = irs.irs_left == 1 || irs.irs_right == 1;
    const bool direct = cfg.PfcSwitch == kDirect, normal = !direct && aligned;
    DrawSysLabel(page, kPageMiddle, 390, "FLT CTRL MODE");
    DrawSysValue(page, kPageMiddle, 403,
                 direct    ? "DIRECT"
                 : aligned ? "NORMAL"
                           : "SECONDARY",
                 normal ? kGreen : kAmber);
}

}  // namespace

void DrawFctlPage(const SysPage& page) {
    DrawSysTitle(page, kPageMiddle, 68, "FLIGHT CONTROLS");
    DrawSpoilers(page);
    for (const Surface& surface : kSurfaces) DrawSurface(page, surface);
    DrawStabilizer(page);
    DrawRudder(page);
    DrawSources(page);
    DrawMode(page);
}
