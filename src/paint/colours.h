#pragma once

#include "paint/draw_list.h"

struct Rgb {
    int r, g, b;
    bool operator==(const Rgb&) const = default;
};

// The named base colours of the display units; each is scaled by the brightness when it is used.
constexpr Rgb kWhite{222, 230, 233};
constexpr Rgb kDimWhite{230, 222, 233};
constexpr Rgb kCyan{2, 167, 235};
constexpr Rgb kCyanAlternate{12, 206, 231};
constexpr Rgb kMagenta{255, 19, 213};
constexpr Rgb kPfdMagenta{201, 8, 233};
constexpr Rgb kGreen{0, 250, 0};
constexpr Rgb kMapGreen{91, 229, 167};
constexpr Rgb kAmber{233, 183, 62};
constexpr Rgb kRedAlternate{245, 31, 35};
constexpr Rgb kBlueGrey{107, 164, 214};
constexpr Rgb kGreyPen{112, 108, 123};
constexpr Rgb kDarkFill{57, 53, 67};
constexpr Rgb kBlack{0, 0, 0};

/// A base colour times DisplayUnitBrightness, each channel truncated and masked to 8 bits, alpha 255.
Argb Scaled(Rgb colour);

/// A colour as it stands.
constexpr Argb Opaque(Rgb colour) {
    return 0xff000000U | static_cast<Argb>(colour.r & 255) << 16 | static_cast<Argb>(colour.g & 255) << 8 |
           static_cast<Argb>(colour.b & 255);
}
