#pragma once

#include <span>
#include <string>
#include <string_view>

#include "paint/pixel_image.h"

/// A picture that can be drawn. A copy stands for the same pixels.
struct Image {
    std::string file = {};      // its name (image_store.h); empty = none
    int width = 0, height = 0;  // pixels; 0 = it can't be read, and isn't drawn
    Density density = {};
};

/// A form in which images can be saved.
struct ImageCodecInfo {
    std::string_view mime_type;
    std::string_view format;     // "PNG"
    std::string_view extension;  // "*.PNG"
};

/// A picture file (PNG, JPEG, BMP) under the root.
Image GdipLoadImageFromFile(std::string_view file);
/// A picture file's bytes.
Image GdipLoadImageFromStream(std::string_view stream);
Image GdipCloneImage(const Image& image);
/// The image is none from now on; clones and what has been drawn stay.
void GdipDisposeImage(Image& image);

/// How many encoders there are, and the bytes that their descriptions take.
void GdipGetImageEncodersSize(unsigned& count, unsigned& size);
/// Fills in the encoders' descriptions. False when the room isn't that of GdipGetImageEncodersSize.
bool GdipGetImageEncoders(std::span<ImageCodecInfo> encoders);
/// Puts the image's file behind a stream. False, and the stream is as it was, for an image that is none and
/// an encoder that isn't in the list.
bool GdipSaveImageToStream(const Image& image, std::string& stream, std::string_view mime_type);
