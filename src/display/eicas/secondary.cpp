#include "display/eicas/secondary.h"

#include <algorithm>

#include "base/text.h"

namespace {

constexpr float kSecondaryText = 9, kNameSize = 7;

// What stands under the dials makes room for a fourth row of them.
void GiveRoomToDials(Graphics& graphics) {
    constexpr int kRoom = 34;
    if (HasThrustRatioDials()) GdipTranslateWorldTransform(graphics, 0, kRoom);
}

// Towards the middle between the two engines: the right one is the left one mirrored.
double Inwards(const EngineView& engine, double x) {
    return engine.right ? -x : x;
}

void DrawBoxed(Graphics& graphics, const EngineView& engine, double from, double y, int width,
               std::string_view text) {
    constexpr int kHeight = 12;
    const double left = engine.right ? -from - width : from;
    BoxOutline(graphics, static_cast<int>(left), static_cast<int>(y), width, kHeight, kWhite);
    EicasTextUpTo(graphics, left + width - 1, y + kHeight / 2.0, kSecondaryText, kWhite, text);
}

struct OilScale {
    double EngineReadings::*value;
    double full;
    int top, bottom;
};
constexpr OilScale kPressure{&EngineReadings::oil_press, 110, 10, 62};
constexpr OilScale kTemperature{&EngineReadings::oil_temp, 200, 72, 124};

void DrawOilScale(Graphics& graphics, const EngineView& engine, const OilScale& scale) {
    constexpr int kBar = 9, kTickEnd = 13;
    const double value = engine.readings.*scale.value;
    const double share = std::clamp(value / scale.full, 0.0, 1.0);
    const double y = scale.bottom - (scale.bottom - scale.top) * share;
    const double bar = Inwards(engine, kBar), tick = Inwards(engine, kTickEnd);
    Line(graphics, bar, scale.top, bar, scale.bottom, kWhite, 2);
    Line(graphics, bar, scale.top, tick, scale.top, kEicasRed, 2);
    Line(graphics, bar, scale.bottom - 4, tick, scale.bottom - 4, kAmber);
    Line(graphics, bar, scale.bottom, tick, scale.bottom, kEicasRed, 2);
    const double back = Inwards(engine, kBar + 8);
    FillOutline(graphics, BrushOf(kWhite), {At(bar, y), At(back, y - 4), At(back, y + 4)});
    DrawBoxed(graphics, engine, 17, scale.bottom - 14, 18, Format("%3.0f", value));
}

}  // namespace

void DrawSecondary(Graphics& graphics, const EngineView& engine) {
    const TransformBlock block(graphics);
    GiveRoomToDials(graphics);
    DrawOilScale(graphics, engine, kPressure);
    DrawOilScale(graphics, engine, kTemperature);
    DrawBoxed(graphics, engine, 10, 136, 15, Format("%3.0f", engine.readings.oil_qty));
    DrawBoxed(graphics, engine, 10, 156, 20, Format("%.1f", engine.readings.vib));
}

void DrawFuelFlow(Graphics& graphics, const EngineView& engine) {
    constexpr int kWidth = 30, kHeight = 15, kAcross = 65;
    const int x = engine.right ? 315 + kAcross : 315;
    const int y = HasThrustRatioDials() ? 249 : 196;
    BoxOutline(graphics, x, y, kWidth, kHeight, kWhite);
    EicasTextUpTo(graphics, x + kWidth - 1, y + kHeight / 2.0, kSecondaryText, kWhite,
                  Format("%3.1f", ThousandsOf(engine.readings.fuel_flow)));
}

void DrawSecondaryNames(Graphics& graphics) {
    constexpr double kBetween = 338;
    const auto name = [&](double y, std::string_view text) {
        TextAbout(graphics, kBetween, y, kNameSize, kCyanAlternate, text);
    };
    TextAbout(graphics, 362, HasThrustRatioDials() ? 256 : 203, kNameSize, kCyanAlternate, "FF");
    const TransformBlock block(graphics);
    GiveRoomToDials(graphics);
    name(270, "OIL");
    name(279, "PRESS");
    name(332, "OIL");
    name(341, "TEMP");
    name(362, "OIL QTY");
    name(382, "VIB");
}
