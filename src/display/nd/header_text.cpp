#include "display/nd/header_text.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>

#include "paint/painter.h"

void EnterTextFrame(Graphics& graphics, const NdFrame& frame) {
    constexpr double kMiddle = 235;
    GdipResetWorldTransform(graphics);
    GdipTranslateWorldTransform(graphics, frame.view.centre_x, kMiddle);
}

double AtSide(const NdFrame& frame, double x) {
    constexpr double kLeftSide = -85, kRightSide = 66, kHalf = 141;
    if (!frame.wide) return x;
    return x < kLeftSide ? x - kHalf : x > kRightSide ? x + kHalf : x;
}

void PrintText(Graphics& graphics, double x, double y, float size, Rgb colour, const char* format, ...) {
    char text[32];
    va_list values;
    va_start(values, format);
    const int length = std::vsnprintf(text, sizeof text, format, values);
    va_end(values);
    if (length > 0)
        Text(graphics, x, y, size, colour,
             {text, std::min(static_cast<std::size_t>(length), sizeof text - 1)});
}

void BlackBox(Graphics& graphics, double x, double y, int width, int height) {
    FilledBox(graphics, static_cast<int>(x), static_cast<int>(y), width, height, kBlack);
}
