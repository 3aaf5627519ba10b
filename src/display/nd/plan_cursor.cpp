#include "display/nd/plan_cursor.h"

#include <algorithm>
#include <cmath>

#include "base/angles.h"
#include "base/text.h"
#include "display/nd/header_text.h"
#include "paint/painter.h"

namespace {

// Degrees, minutes and tenths: "N4726.1", "W12218.5".
std::string AngleText(double angle, char positive, char negative, int degree_digits) {
    const int tenths = static_cast<int>(std::lround(std::fabs(angle) * 600));
    return Format("%c%0*d%02d.%d", angle < 0 ? negative : positive, degree_digits, tenths / 600,
                  tenths / 10 % 60, tenths % 10);
}
std::string LatitudeText(double lat) {
    return AngleText(lat, 'N', 'S', 2);
}
std::string LongitudeText(double lon) {
    return AngleText(lon, 'E', 'W', 3);
}

void DrawCross(Graphics& graphics, MapPoint at) {
    constexpr double kHalf = 5;
    Line(graphics, at.x - kHalf, at.y, at.x + kHalf, at.y, kWhite);
    Line(graphics, at.x, at.y - kHalf, at.x, at.y + kHalf, kWhite);
}

}  // namespace

CursorPoint PointUnderCursor(const NdFrame& frame) {
    constexpr double kMiddleOfHalf = 141, kHalfTheEarth = 10800;
    const NdSide& display = NdOf(frame.side);
    const MapPoint offset{display.nd_cursor_x - kMiddleOfHalf, display.nd_cursor_y - frame.view.centre_y};
    const double dist = std::min(std::hypot(offset.x, offset.y) / frame.view.scale, kHalfTheEarth);
    const double bearing = FoldBearing(std::atan2(offset.x, -offset.y) * kDegPerRad + frame.view.up);
    return {offset, ProjectPoint(frame.view.lat, frame.view.lon, bearing, dist)};
}

std::string CursorText(int side, const CursorPoint& point) {
    const NearItem item = ItemNear(side, point.at.lat, point.at.lon);
    if (!item.ident.empty()) return std::string(item.ident);
    return LatitudeText(point.at.lat) + LongitudeText(point.at.lon);
}

void DrawPlanCursor(Graphics& graphics, const NdFrame& frame) {
    const NdSide& display = NdOf(frame.side);
    if (display.nd_pick_pending != 1 || display.nd_pick_use != kPickCursor || display.nd_pick_taken != 1)
        return;
    const CursorPoint point = PointUnderCursor(frame);
    const NearItem item = ItemNear(frame.side, point.at.lat, point.at.lon);
    if (!item.ident.empty()) {
        constexpr int kWidth = 36, kHeight = 12, kAbove = 16;
        const MapPoint at = PointOnMap(frame.view, item.at.lat, item.at.lon);
        DrawCross(graphics, at);
        BlackBox(graphics, at.x - kWidth / 2.0, at.y - kAbove, kWidth, kHeight);
        CentredText(graphics, at.x, at.y - kAbove, kNdTextSize, kWhite, item.ident);
        return;
    }
    constexpr int kWidth = 62, kHeight = 22;
    // Beside the point, on the side where there is room.
    const double left = point.on_map.x > 0 ? point.on_map.x - 8 - kWidth : point.on_map.x + 8;
    const double top = point.on_map.y - kHeight / 2.0;
    DrawCross(graphics, point.on_map);
    BlackBox(graphics, left, top, kWidth, kHeight);
    constexpr float kCaptionSize = 6;
    Text(graphics, left, top + 2, kCaptionSize, kWhite, "LAT");
    Text(graphics, left, top + 13, kCaptionSize, kWhite, "LONG");
    Text(graphics, left + 17, top, kNdTextSize - 1, kWhite, LatitudeText(point.at.lat));
    Text(graphics, left + 17, top + 11, kNdTextSize - 1, kWhite, LongitudeText(point.at.lon));
}
