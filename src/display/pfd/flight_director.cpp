#include "display/pfd/flight_director.h"

#include <cmath>

#include "state/autoflight.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/instruments.h"
#include "state/sim.h"

namespace {

void DrawChevron(Graphics& graphics, double y) {
    const TransformBlock block(graphics);
    GdipRotateWorldTransform(graphics, DirectorRollError());
    GdipTranslateWorldTransform(graphics, 0, y);
    const Brush fill = BrushOf(kPfdMagenta);
    const Pen pen = PenOf(kPfdMagenta);
    for (const int side : {-1, 1}) {
        const auto wing = {At(0, 0), At(side * 50, 10), At(side * 45, 15)};
        const auto tip = {At(side * 50, 10), At(side * 50, 15), At(side * 45, 15)};
        for (const auto& wedge : {wing, tip}) {
            FillOutline(graphics, fill, wedge);
            DrawOutline(graphics, pen, wedge);
        }
    }
}

void DrawBars(Graphics& graphics, double y) {
    constexpr double kUnitsPerRollDegree = 2.4, kHalf = 45;
    const Pen pen = PenOf(kPfdMagenta, 2);
    const double x = DirectorRollError() * kUnitsPerRollDegree;
    GdipDrawLine(graphics, pen, x, -kHalf, x, kHalf);
    if (autoflight.fd_pitch_bar_off != 1) GdipDrawLine(graphics, pen, -kHalf, y, kHalf, y);
}

}  // namespace

bool IsDirectorShown(int side) {
    const int on = side == kCaptain ? cockpit.capt_fd_switch : cockpit.fo_fd_switch;
    return IsPfdLit() && on == 1 && sim.fd_active != 0;
}

double DirectorPitchError() {
    return std::remainder(autoflight.fd_pitch_cmd - sim.pitch_deg, 360);
}

double DirectorRollError() {
    constexpr double kMost = 25;
    return -Bounded(std::remainder(autoflight.fd_roll_cmd - sim.bank_deg, 360), -kMost, kMost);
}

void DrawFlightDirector(const PfdView& view) {
    if (!IsDirectorShown(view.side)) return;
    const double y = instruments.fd_pitch_smooth * kUnitsPerDegree;
    if (cfg.FlightDirectorDualCue == 1)
        DrawBars(view.graphics, y);
    else
        DrawChevron(view.graphics, autoflight.fd_pitch_bar_off == 1 ? 0 : y);
}
