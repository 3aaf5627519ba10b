#include "display/eicas/gear_and_flaps.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "state/sim.h"
#include "systems/flap_detents.h"

namespace {

constexpr float kFlapText = 8;
// The flap tape.
constexpr int kTapeX = 110, kTapeY = 58, kTapeWidth = 12, kTapeHeight = 60;

bool AreAllGears(bool (*is_there)(double position)) {
    return is_there(sim.gear_nose) && is_there(sim.gear_left) && is_there(sim.gear_right);
}
bool IsUp(double position) {
    return position < 1000;
}
bool IsDownAndLocked(double position) {
    return position >= 16000;
}

// The place of a setting on the tape, whose detents stand at equal distances.
double TapePlaceOf(double degrees) {
    const auto detents = FlapDetents();
    const double step = 1.0 / static_cast<double>(detents.size() - 1);
    for (std::size_t i = 1; i < detents.size(); ++i) {
        const double from = detents[i - 1].flaps, to = detents[i].flaps;
        if (degrees <= to)
            return (static_cast<double>(i - 1) + std::clamp((degrees - from) / (to - from), 0.0, 1.0)) * step;
    }
    return 1;
}

double TapeY(double degrees) {
    return kTapeY + kTapeHeight * TapePlaceOf(degrees);
}

}  // namespace

void DrawGear(Graphics& graphics) {
    constexpr int kX = 109, kY = -57, kWidth = 31, kHeight = 15;
    const bool up = AreAllGears(IsUp) && sim.gear_handle == 0, down = AreAllGears(IsDownAndLocked);
    if (down) FilledBox(graphics, kX, kY, kWidth, kHeight, kGreen);
    const Rgb colour = down ? kBlack : up ? kWhite : kAmber;
    BoxOutline(graphics, kX, kY, kWidth, kHeight, down ? kGreen : colour);
    const double middle = kX + kWidth / 2.0;
    TextAbout(graphics, middle, up || down ? kY + 4 : kY + kHeight / 2.0, kFlapText - 1, colour, "GEAR");
    if (up || down) TextAbout(graphics, middle, kY + 11, kFlapText - 1, colour, up ? "UP" : "DOWN");
}

void DrawFlaps(Graphics& graphics) {
    const double actual = sim.flap_te_angle;
    const int wanted = FlapDetent();
    const bool moving = std::fabs(actual - wanted) > 0.5;
    FilledBox(graphics, kTapeX, kTapeY, kTapeWidth, kTapeHeight, kBlack);
    FilledRectangle(graphics, BrushOf(kWhite), kTapeX, kTapeY, kTapeWidth, TapeY(actual) - kTapeY);
    BoxOutline(graphics, kTapeX, kTapeY, kTapeWidth, kTapeHeight, kWhite);
    for (const FlapDetentRow& detent : FlapDetents())
        Line(graphics, kTapeX, TapeY(detent.flaps), kTapeX + kTapeWidth, TapeY(detent.flaps), kGreyPen);
    const Rgb colour = moving ? kMagenta : kGreen;
    const double y = TapeY(wanted);
    Line(graphics, kTapeX - 2, y, kTapeX + kTapeWidth + 2, y, colour, 2);
    TextFrom(graphics, kTapeX + kTapeWidth + 4, y, kFlapText, colour,
             wanted == 0 ? "UP" : Format("%d", wanted));
    constexpr int kTitleX = 104;
    constexpr std::string_view kTitle = "FLAPS";
    double title_y = 98;
    for (const char& letter : kTitle) {
        TextAbout(graphics, kTitleX, title_y, kFlapText, kCyanAlternate, {&letter, 1});
        title_y += 35 / 3.0;
    }
    if (eicas.load_relief == 1) EicasText(graphics, 143, 10, kFlapText, kAmber, "LOAD");
}
