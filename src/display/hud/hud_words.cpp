#include "display/hud/hud_words.h"

#include "base/text.h"
#include "display/hud/hud_view.h"
#include "display/nd/passage.h"
#include "display/pfd/approach_source.h"
#include "display/pfd/fma.h"
#include "state/flight_log.h"
#include "state/sim.h"

namespace {

constexpr float kSize = 9;

// Its middle at x.
void CentredWords(Graphics& graphics, double x, double y, std::string_view text) {
    constexpr double kHalfLine = 5;
    if (!text.empty()) HudTextAbout(graphics, x, y + kHalfLine, kSize, text);
}

}  // namespace

void DrawHudModes(Graphics& graphics) {
    constexpr double kActiveY = -203, kArmedY = -192, kBoxHeight = 9;
    for (const double x : {-33, 30}) HudLine(graphics, x, kActiveY, x, -188);
    for (const ModeColumn& column : kModeColumns) {
        const ModeTexts texts = column.texts();
        CentredWords(graphics, column.middle, kActiveY, texts.active);
        CentredWords(graphics, column.middle, kArmedY, texts.armed);
        if (autoflight.*column.timer > 0)
            HudBox(graphics, column.box_x, kActiveY, column.box_width, kBoxHeight);
    }
    if (autoflight.fd_pitch_bar_off == 1) HudLine(graphics, 40, -120, 70, -120);
    HudText(graphics, -12, -175, kSize + 1, StatusOfAutoflight(sim.fd_active != 0).text);
    HudText(graphics, -13, -128, kSize, Format("H%03.0f", Bounded(sim.mag_hdg, 0, 360)));
}

void DrawHudApproachSource(Graphics& graphics) {
    constexpr double kX = -170, kStep = 10;
    constexpr int kFinalPhase = 8;
    if (!IsPfdLit()) return;
    double y = -120;
    for (const std::string& line : ApproachSourceLines()) {
        HudText(graphics, kX, y, kSize, line);
        y += kStep;
    }
    if (BeaconName().empty() || flight_log.fplog_mode >= kFinalPhase) return;
    GdipDrawEllipseI(graphics, HudPen(), 117, -105, 18, 18);
    HudTextAbout(graphics, 126, -96, kSize, BeaconName());
}

// Stands at a corner of the picture, not about its middle.
void DrawHudWind(Graphics& graphics) {
    constexpr double kLowest = 100, kCalm = 1, kStanding = 5;
    constexpr double kArrowX = 100 * 480.0 / 564, kArrowY = 45 * 410.0 / 424;
    const bool aligning = TicksToAlign() > 0 && sim.ground_speed_kt < kStanding;
    if (aligning || !(sim.radio_alt_ft > kLowest && sim.wind_kt >= kCalm)) return;
    HudText(graphics, 80, 60, kSize, Format("%.0f", Bounded(sim.wind_kt, 0, 999)));
    const TransformBlock block(graphics);
    GdipTranslateWorldTransform(graphics, kArrowX, kArrowY);
    GdipRotateWorldTransform(graphics, sim.wind_dir + 180 - sim.true_hdg);
    DrawOutline(graphics, HudPen(), {At(0, -9), At(3, -6), At(-3, -6)});
    HudLine(graphics, 0, -6, 0, 6);
}
