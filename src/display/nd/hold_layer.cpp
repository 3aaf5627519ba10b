#include "display/nd/hold_layer.h"

#include <array>
#include <cmath>

#include "base/angles.h"
#include "display/nd/route_line.h"
#include "fmc/legs/holds.h"
#include "fmc/legs/path.h"
#include "paint/painter.h"
#include "state/leg_words.h"
#include "state/lnav.h"
#include "state/plan.h"
#include "state/sim.h"

namespace {

constexpr std::size_t kArcPoints = 24;

// The points of a racetrack in the frame of its inbound leg, which ends at the origin, going up: half a
// circle behind the fix, the outbound leg, half a circle, and the inbound leg.
std::array<PaintPoint, 2 * kArcPoints + 1> Racetrack(double length, double radius, bool right) {
    std::array<PaintPoint, 2 * kArcPoints + 1> points;
    const double side = right ? 1 : -1;
    for (std::size_t i = 0; i < kArcPoints; ++i) {
        const double angle = kPi * static_cast<double>(i) / (kArcPoints - 1);
        const double x = radius * (1 - std::cos(angle)) * side, y = radius * std::sin(angle);
        points[i] = {static_cast<float>(x), static_cast<float>(-y)};
        points[kArcPoints + i] = {static_cast<float>(2 * radius * side - x), static_cast<float>(length + y)};
    }
    points.back() = points.front();
    return points;
}

double HoldSpeed() {
    constexpr double kFlying = 100;
    return sim.ground_speed_kt > kFlying ? sim.ground_speed_kt : lnav.hold_speed;
}

void DrawHold(Graphics& graphics, const MapView& view, const HoldRecord& hold, const FlightPlanLeg& leg,
              bool is_flown_to, bool entered) {
    if (!IsPlace(leg) || !IsInReach(view, leg.lat, leg.lon)) return;
    const double length = hold.use_time == 1 ? lnav.hold_speed / 60.0 * hold.leg_time : hold.leg_dist;
    const double radius = TurnRadiusForSpeedAndAlt(HoldSpeed(), 0);
    const Rgb colour = is_flown_to ? kMagenta : IsOfMissedApproach(leg) ? kCyan : kWhite;
    constexpr float kWidth = 2;
    Pen pen = GdipCreatePen1(Scaled(colour), kWidth);
    if (!entered) GdipSetPenDashStyle(pen, 1);
    const MapPoint at = PointOnMap(view, leg.lat, leg.lon);
    const TransformBlock block(graphics);
    GdipTranslateWorldTransform(graphics, at.x, at.y);
    GdipRotateWorldTransform(graphics, hold.inbound_crs + hold.magvar - view.up);
    GdipDrawLines(graphics, pen, Racetrack(length * view.scale, radius * view.scale, hold.right_turn == 1));
}

}  // namespace

void DrawHolds(Graphics& graphics, const MapView& view) {
    const bool flying = IsRouteActive() && plan.active.stpos != kNoPlan;
    for (int i = 1; i <= HoldRecordCount(); ++i) {
        const HoldRecord& hold = std::as_const(plan.HoldList)[i];
        if (flying && hold.leg > 0) {
            const bool is_flown_to = hold.leg == plan.active.stpos;
            DrawHold(graphics, view, hold, FlightPlanLegAt(hold.leg), is_flown_to,
                     is_flown_to && lnav.holding == 1);
        } else if (hold.pending_leg > 0 && IsModificationDrawn()) {
            DrawHold(graphics, view, hold, std::as_const(plan.mod.legs)[hold.pending_leg], false, false);
        }
    }
}
