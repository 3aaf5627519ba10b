#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "paint/pixel_image.h"

// PNG files, by Cairo. What the file says of its density is read and written here, for Cairo passes it over.

/// Nothing when the bytes aren't a PNG file or are cut short.
std::optional<ImageHead> ReadPngHead(std::string_view bytes);

/// Empty when the file is damaged.
PixelImage DecodePng(std::string_view bytes);

/// The image as a PNG file's bytes; empty on failure.
std::string EncodePng(const PixelImage& image, Density density = {});
