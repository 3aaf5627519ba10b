#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

// A picture as a list of plain primitives in the screen's logical frame. The drawing operations are lowered
// to it once, as they are recorded; the rasteriser, the browser and the text commands read it. It points to
// no live state.

using Argb = std::uint32_t;  // alpha in the top byte

struct PaintPoint {
    float x, y;
    bool operator==(const PaintPoint&) const = default;
};
/// A point of a figure, from whatever it was worked out in.
inline PaintPoint At(double x, double y) {
    return {static_cast<float>(x), static_cast<float>(y)};
}

enum class PathVerb : std::uint8_t { kMove, kLine, kCubic, kClose };  // take 1, 1, 3 and 0 points

/// A stretch of one of the list's flat arrays.
struct PaintRange {
    std::uint32_t first = 0, count = 0;
    bool operator==(const PaintRange&) const = default;
};

struct PaintPath {
    PaintRange verbs, points;
    bool winding = false;  // else even-odd
    bool operator==(const PaintPath&) const = default;
};

/// Fills the whole surface, alpha included.
struct ClearSurface {
    Argb colour;
    bool operator==(const ClearSurface&) const = default;
};

struct FillPath {
    PaintPath path;
    Argb colour;
    bool operator==(const FillPath&) const = default;
};

enum class LineCap : std::uint8_t { kFlat, kSquare, kRound };
enum class LineJoin : std::uint8_t { kMiter, kBevel, kRound };

/// Axes of their own, in which a pen or a text is drawn: a point there lies at (stretch x + skew y, y),
/// turned by `rotation`, in the list's frame.
struct LocalAxes {
    float rotation = 0;  // degrees, clockwise
    float stretch = 1;
    float skew = 0;
    bool operator==(const LocalAxes&) const = default;
};

struct StrokePath {
    PaintPath path;
    Argb colour;
    float width;             // in the pen's axes
    PaintRange dashes = {};  // lengths, on and off in turn; empty = solid
    LineCap cap = LineCap::kFlat;
    LineJoin join = LineJoin::kMiter;
    LocalAxes axes = {};  // of the pen, which uneven scales make an ellipse; the path is not in them
    bool operator==(const StrokePath&) const = default;
};

/// One line of text, its baseline beginning at x, y.
struct TextRun {
    float x, y;
    float size;            // pixels of the em
    LocalAxes axes;        // about its beginning
    std::uint16_t family;  // FontFamily
    Argb colour;
    PaintRange text;  // bytes of UTF-8
    bool operator==(const TextRun&) const = default;
};

struct DrawnImage {
    PaintRange file;  // bytes of its name under the root
    float x, y, width, height;
    float rotation;  // degrees, clockwise about x, y
    bool operator==(const DrawnImage&) const = default;
};

/// Clips add up until the next Unclip.
struct ClipIn {
    PaintPath path;
    bool operator==(const ClipIn&) const = default;
};
struct ClipOut {
    PaintPath path;
    bool operator==(const ClipOut&) const = default;
};
struct Unclip {
    bool operator==(const Unclip&) const = default;
};

using Primitive =
    std::variant<ClearSurface, FillPath, StrokePath, TextRun, DrawnImage, ClipIn, ClipOut, Unclip>;

/// A figure in the making, in the coordinates of whoever draws it.
struct GraphicsPath {
    std::vector<PathVerb> verbs = {};
    std::vector<PaintPoint> points = {};
    bool winding = false;
    bool open = false;  // the last figure takes further lines
};

/// Where figures are made; the storage stays from figure to figure and from picture to picture.
struct FigureRoom {
    GraphicsPath figure = {};  // being drawn
    GraphicsPath flat = {};    // the same, of lines only
    GraphicsPath drawn = {};   // what is drawn in its stead
    std::vector<PaintPoint> corners = {};
    std::vector<float> crossings = {};
    bool operator==(const FigureRoom&) const { return true; }  // it is no part of a picture
};

struct DrawList {
    float width = 0, height = 0;  // of the logical frame
    std::vector<Primitive> primitives;
    std::vector<PathVerb> verbs;
    std::vector<PaintPoint> points;
    std::vector<float> dashes;
    std::string text;
    FigureRoom room = {};

    bool operator==(const DrawList&) const = default;
};

/// Empties the list and keeps its storage, so that the next picture allocates nothing.
void ClearList(DrawList& list, float width, float height);

/// One line of the `draws` command for a primitive.
std::string DescribePrimitive(const DrawList& list, const Primitive& primitive);

/// One line of the `text` command: X Y SIZE FAMILY R,G,B "TEXT".
std::string DescribeText(const DrawList& list, const TextRun& run);
