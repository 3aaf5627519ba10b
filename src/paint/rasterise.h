#pragma once

#include <cstdint>

#include "paint/draw_list.h"
#include "paint/pixel_image.h"

/// Paints a list at a size in pixels; its logical frame fills the image. A size below 1 or above 8192 gives
/// an empty image. May be called from any thread.
PixelImage Rasterise(const DrawList& list, int width, int height);

/// The same onto a surface of width x height pixels without gaps, aligned as they are.
void RasteriseOnto(const DrawList& list, int width, int height, std::uint32_t* pixels);
