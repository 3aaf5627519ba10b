#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "paint/draw_list.h"

// What the drawing operations are given: surface, paths, pens, brushes, fonts and formats, all plain values.

struct Matrix {  // x' = a x + c y + e, y' = b x + d y + f
    double a = 1, b = 0, c = 0, d = 1, e = 0, f = 0;
};

/// The surface of one frame: a world transform and a clip over the list that it records to.
struct Graphics {
    DrawList* list = nullptr;
    Matrix world = {};
    bool clipped = false;
    FigureRoom room = {};  // the list's, while the frame is drawn
};

struct LineArrowCap {
    float height, width;  // in pen widths
    bool filled;
};

/// A short list of numbers that a pen carries by value; what is beyond its room is dropped.
struct PenNumbers {
    std::array<float, 16> values = {};
    std::size_t count = 0;
    std::span<const float> All() const { return {values.data(), count}; }
};

struct Pen {
    Argb colour = 0xff000000;
    float width = 1;
    PenNumbers dashes = {};     // in pen widths, on and off in turn
    PenNumbers compound = {};   // pairs of edges across the pen, 0 left to 1 right
    LineArrowCap end_cap = {};  // a height of 0: none
};

enum class HatchStyle {
    kHorizontal = 0,
    kVertical = 1,
    kForwardDiagonal = 2,  // from the top left to the bottom right
    kBackwardDiagonal = 3,
    kCross = 4,
    kDiagonalCross = 5,
};

struct Brush {
    Argb colour = 0xff000000;
    bool hatched = false;
    HatchStyle hatch = HatchStyle::kHorizontal;
    Argb back = 0;  // between the hatch lines
};

struct Font {
    std::uint16_t family = 0;
    float size = 10;  // pixels of the em
};

enum class LineAlign { kNear, kCenter, kFar };

constexpr int kFormatRightToLeft = 0x1;
constexpr int kFormatNoWrap = 0x1000;
constexpr int kFormatNoClip = 0x4000;

struct StringFormat {
    int flags = 0;
    LineAlign line_align = LineAlign::kNear;
};

struct LayoutRect {
    float x, y, width, height;
};

struct IntPoint {
    int x, y;
};
