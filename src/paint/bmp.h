#pragma once

#include <optional>
#include <string_view>

#include "paint/pixel_image.h"

// BMP files, which no library at hand reads: every form that isn't run-length coded.

/// Nothing when the bytes aren't a BMP file of such a form or are cut short.
std::optional<ImageHead> ReadBmpHead(std::string_view bytes);

/// Empty where ReadBmpHead gives nothing. Alpha isn't read: such pictures are opaque.
PixelImage DecodeBmp(std::string_view bytes);
