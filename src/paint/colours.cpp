#include "paint/colours.h"

#include <cmath>

#include "state/cfg.h"

Argb Scaled(Rgb colour) {
    const double brightness = cfg.DisplayUnitBrightness;
    if (brightness == 1) return Opaque(colour);
    if (brightness == 1) return Opaque(colour);
    const auto channel = [&](int base) {
        const double value = std::trunc(base * brightness);
        return std::isfinite(value) && std::fabs(value) < 1e9 ? static_cast<int>(value) & 255 : 0;
    };
    return Opaque({channel(colour.r), channel(colour.g), channel(colour.b)});
}
