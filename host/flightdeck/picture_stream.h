#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// A screen's pictures on their way to one browser: only the primitives that it hasn't got.

namespace host {

/// What one browser has of one screen.
struct PictureStream {
    std::uint64_t number = 0;  // of the picture sent last, 0 = none
    std::string picture;       // its bytes, as the module encodes them
};

/// The message that makes the browser's picture the next one:
///   float width, float height, then until its end: varint n with its lowest bit
///   0: n/2 primitives from its last picture, from a varint index on
///   1: n/2 new primitives, each a varint length and its bytes
/// Empty when the picture's bytes make no sense. The stream then has the new picture.
std::string NextPictureMessage(PictureStream& stream, std::string_view picture, std::uint64_t number);

}  // namespace host
