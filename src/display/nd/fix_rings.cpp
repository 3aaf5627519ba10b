#include "display/nd/fix_rings.h"

#include <cmath>

#include "base/angles.h"
#include "display/nd/header_text.h"
#include "display/nd/map_symbols.h"
#include "navdata/geodesy.h"
#include "paint/painter.h"
#include "state/fix_info.h"
#include "state/sim.h"

namespace {

constexpr float kNumberSize = 8;

// The number stands on the ring at the first place, from the top on, that is inside the view.
void DrawRing(Graphics& graphics, const MapView& view, MapPoint middle, double nm) {
    const double radius = nm * view.scale;
    const MapBox& seen = view.seen;
    if (middle.x - radius > seen.right || middle.x + radius < seen.left || middle.y - radius > seen.bottom ||
        middle.y + radius < seen.top)
        return;
    DrawCircle(graphics, GdipCreatePen1(Scaled(kGreen), 1), middle, 2 * radius);
    constexpr double kInside = -15;
    for (int degrees = 0; degrees < 360; degrees += 15) {
        const double angle = degrees * kRadPerDeg;
        const MapPoint on{middle.x + std::sin(angle) * radius, middle.y - std::cos(angle) * radius};
        if (!seen.Has(on, kInside)) continue;
        return PrintText(graphics, on.x, on.y, kNumberSize, kGreen, "%03.1f", nm);
    }
}

void DrawRadial(Graphics& graphics, const MapView& view, const FixPage& fix, MapPoint middle, double bearing,
                double nm) {
    // Without a distance it goes on to beyond the view.
    const double length =
        nm > 0 ? nm : 4 * view.range + GreatCircle(view.lat, view.lon, fix.lat, fix.lon).dist;
    constexpr double kLongest = 3000;
    const LatLon end =
        ProjectPoint(fix.lat, fix.lon, FoldBearing(bearing + sim.mgvar), std::min(length, kLongest));
    MapPoint from = middle, to = PointOnMap(view, end.lat, end.lon);
    DrawMapLine(graphics, GdipCreatePen1(Scaled(kGreen), 1), view, from, to);
    constexpr double kNearEnd = 0.85;
    if (!ClipLine(view.seen, from, to)) return;
    const TransformBlock block(graphics);
    GdipTranslateWorldTransform(graphics, from.x + (to.x - from.x) * kNearEnd,
                                from.y + (to.y - from.y) * kNearEnd);
    GdipRotateWorldTransform(graphics, std::atan2(to.y - from.y, to.x - from.x) * kDegPerRad);
    PrintText(graphics, 0, 0, kNumberSize, kGreen, "%03.0f", bearing);
}

}  // namespace

void DrawFixRings(Graphics& graphics, const MapView& view) {
    for (const FixPage& fix : fix_info.FixPages) {
        if (fix.ident.empty()) continue;
        const MapPoint at = PointOnMap(view, fix.lat, fix.lon);
        constexpr double kRoom = 60;
        if (view.seen.Has(at, kRoom)) {
            DrawMapSymbol(graphics, {at.x, at.y - 4}, MapSymbol::kFix, kGreen);
            DrawCircle(graphics, GdipCreatePen1(Scaled(kGreen), 1), at, 16);
            MapLabel(graphics, at.x + 8, at.y + 2, kGreen, fix.ident);
        }
        for (const FixPage::Row& row : fix.rows) {
            if (row.dist > 0) DrawRing(graphics, view, at, row.dist);
            if (row.bearing > 0) DrawRadial(graphics, view, fix, at, row.bearing, row.dist);
        }
    }
}
