#include "display/nd/map_symbols.h"

#include <algorithm>
#include <cmath>

#include "base/angles.h"
#include "paint/painter.h"
#include "state/cfg.h"

namespace {

constexpr IntPoint kStar[] = {{0, 0}, {2, 6}, {8, 8}, {2, 10}, {0, 16}, {-2, 10}, {-8, 8}, {-2, 6}};
constexpr IntPoint kSlenderStar[] = {{0, 0},  {1, 3},  {3, 4},  {1, 5}, {0, 8},
                                     {-1, 5}, {-3, 4}, {-1, 3}, {0, 0}};
constexpr IntPoint kThreeCorners[] = {{0, -4}, {4, 3}, {-4, 3}};
constexpr IntPoint kFlag[] = {{-3, -4}, {3, -4}, {3, 1}, {0, 4}, {-3, 1}};
constexpr IntPoint kRoof[] = {{6, -4}, {10, -12}, {14, -4}};
constexpr IntPoint kGutter[] = {{6, 4}, {10, 12}, {14, 4}};

void DrawLargeStar(Graphics& graphics, const Pen& pen) {
    constexpr int kRays = 9;
    constexpr double kOuter = 10, kInner = 4;
    std::array<PaintPoint, 2 * kRays + 1> points;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double radius = i % 2 == 0 ? kOuter : kInner, angle = static_cast<double>(i) * kPi / kRays;
        points[i] = {static_cast<float>(std::sin(angle) * radius),
                     static_cast<float>(-std::cos(angle) * radius)};
    }
    GdipDrawLines(graphics, pen, points);
}

void DrawMark(Graphics& graphics, const Pen& pen, int mark) {
    if (mark == kMarkAbove) GdipDrawLinesI(graphics, pen, kRoof);
    if (mark == kMarkBelow) GdipDrawLinesI(graphics, pen, kGutter);
}

}  // namespace

void DrawMapSymbol(Graphics& graphics, MapPoint at, MapSymbol symbol, Rgb colour, int mark) {
    const TransformBlock block(graphics);
    GdipTranslateWorldTransform(graphics, at.x, at.y);
    const Pen pen = GdipCreatePen1(Opaque(colour), 1);
    const Brush brush = GdipCreateSolidFill(pen.colour);
    switch (symbol) {
        case MapSymbol::kWaypoint:
        case MapSymbol::kRouteWaypoint:
            return GdipDrawPolygonI(graphics, pen, kStar);
        case MapSymbol::kFix:
            return GdipDrawLinesI(graphics, pen, kSlenderStar);
        case MapSymbol::kTriangle:
            return GdipDrawPolygonI(graphics, pen, kThreeCorners);
        case MapSymbol::kLargeStar:
            return DrawLargeStar(graphics, pen);
        case MapSymbol::kPentagon:
            GdipFillPolygonI(graphics, brush, kFlag);
            break;
        case MapSymbol::kDisc:
            GdipFillEllipseI(graphics, brush, -4, -4, 8, 8);
            break;
        case MapSymbol::kSquare:
            GdipFillRectangleI(graphics, brush, -4, -4, 8, 8);
            break;
    }
    DrawMark(graphics, pen, mark);
}

void MapLabel(Graphics& graphics, double x, double y, Rgb colour, std::string_view text) {
    constexpr int kSize = 10, kSmallest = 5, kLargest = 18;
    const int size = std::clamp(kSize + std::clamp(cfg.NdFontSizeAdj, -kSize, kLargest), kSmallest, kLargest);
    Text(graphics, x, y, static_cast<float>(size), colour, text);
}
