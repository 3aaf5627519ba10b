#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "paint/pixel_image.h"

// What stands behind the names of pictures: files under the root, and pictures that came as a stream of
// bytes. Drawn lists name a picture only. What has been read is kept, up to a bound. Any thread.

/// Size and density of a picture (PNG, JPEG, BMP); nothing when it can't be read or is larger than 16 million
/// pixels. Whether a file has changed or gone is looked up at each 18th call, since screens load their
/// pictures for every frame.
std::optional<ImageHead> ImageHeadOf(std::string_view name);

/// Its pixels, of the file as it was looked at last; null when it can't be decoded.
std::shared_ptr<const PixelImage> ImagePixelsOf(std::string_view name);

/// Keeps a stream's picture and gives its name, the same for the same bytes; empty when no picture can be
/// read from it. The least used ones go when 64 MB are full.
std::string KeepStreamImage(std::string_view bytes);

/// The bytes of a picture that came as a stream; nothing when it isn't kept any more.
std::optional<std::string> StreamImageBytes(std::string_view name);

/// Forgets every picture: the next host may have other files by the same names.
void DropImages();
