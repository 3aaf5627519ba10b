#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "paint/draw_list.h"

/// Pixels of a picture, rows from the top, premultiplied, alpha in the top byte.
struct PixelImage {
    int width = 0, height = 0;
    std::vector<std::uint32_t> pixels;
};

/// Paints a list at a size in pixels; its logical frame fills the image. A size below 1 or above 8192 gives
/// an empty image. May be called from any thread.
PixelImage Rasterise(const DrawList& list, int width, int height);

/// The same onto a surface of width x height pixels without gaps, aligned as they are.
void RasteriseOnto(const DrawList& list, int width, int height, std::uint32_t* pixels);

/// The image as a PNG file's bytes; empty on failure.
std::string EncodePng(const PixelImage& image);
