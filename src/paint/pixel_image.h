#pragma once

#include <cstdint>
#include <vector>

/// Pixels of a picture, rows from the top, premultiplied, alpha in the top byte.
struct PixelImage {
    int width = 0, height = 0;
    std::vector<std::uint32_t> pixels;
};

/// Dots per inch of a picture file. One that tells nothing has the density of the screens, a dot a unit.
constexpr double kScreenDensity = 96;
constexpr double kMetresPerInch = 0.0254;  // some files tell dots per metre
struct Density {
    double x = kScreenDensity, y = kScreenDensity;
};

/// What a picture file says of itself before its pixels.
struct ImageHead {
    int width = 0, height = 0;  // pixels
    Density density = {};
};
