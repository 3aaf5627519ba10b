#pragma once

#include <string>

#include "paint/draw_list.h"

// The compact form of a picture that travels to the browser. All numbers are little endian:
//   float width, float height, varint count, then each primitive as a varint length and its bytes.
// A primitive is a kind byte and its fields; colours are 4 bytes; coordinates are zigzag varints in 1/32 of a
// unit, each point relative to the one before in its primitive. Two equal primitives have equal bytes, so a
// sender may leave out what the receiver has.
//
//   0 clear     colour
//   1 fill      colour, path
//   2 stroke    colour, width, byte of cap + 4 join + 16 when axes follow, axes, count of dashes, dashes,
//               path
//   3 text      colour, x, y, size, axes, family byte, varint length, UTF-8
//   4 image     x, y, width, height, rotation, varint length, file name
//   5 clip in   path
//   6 clip out  path
//   7 unclip
//
// Axes are a rotation (1/32 degree), a stretch and a skew (1/1024). A path is a byte (1 = winding), a varint
// count of verbs, a byte a verb (0 move, 1 line, 2 cubic, 3 close), and the points that the verbs take.

/// Appends the encoded picture to `bytes`.
void EncodeDrawList(const DrawList& list, std::string& bytes);
