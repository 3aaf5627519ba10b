#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "paint/pixel_image.h"

// JPEG files, by TurboJPEG. What the file says of its density is read and written here, for that passes it
// over.

/// Nothing when the bytes aren't a JPEG file or are cut short.
std::optional<ImageHead> ReadJpegHead(std::string_view bytes);

/// Empty when nothing can be made of the file; a damaged one gives what can be read of it.
PixelImage DecodeJpeg(std::string_view bytes);

/// The image, on black where it is transparent, as a JPEG file's bytes; empty on failure.
std::string EncodeJpeg(const PixelImage& image, Density density = {});
