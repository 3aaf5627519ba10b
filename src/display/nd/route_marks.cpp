#include "display/nd/route_marks.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string_view>
#include <utility>

#include "base/angles.h"
#include "base/numbers.h"
#include "display/nd/map_symbols.h"
#include "display/nd/route_line.h"
#include "display/nd/runway_course.h"
#include "guidance/lnav.h"
#include "navdata/geodesy.h"
#include "paint/painter.h"
#include "state/airports.h"
#include "state/cfg.h"
#include "state/leg_words.h"
#include "state/lnav.h"
#include "state/plan.h"
#include "state/predictions.h"
#include "state/sim.h"
#include "state/vnav.h"

namespace {

constexpr float kDataSize = 8;
constexpr Rgb kYellow{255, 255, 0};

bool IsNamed(const FlightPlanLeg& leg) {
    if (!IsPlace(leg) || IsVectors(leg) || leg.ident == kDirectVia || leg.ident.starts_with("MAP"))
        return false;
    return !(IsMissedApproach(leg) && leg.ident.starts_with("RW"));
}

// Route distances from the aircraft, worked out only as far as a leg in view asks.
class DistanceAlong {
  public:
    explicit DistanceAlong(const RouteVersion& route)
        : route_(route), leg_(route.stpos), dist_(std::max(lnav.wpt_dist, 0.0)) {}
    double To(int leg) {
        while (leg_ < leg) {
            const int next = leg_ + 1;
            const FlightPlanLeg &a = route_.legs[leg_], &b = route_.legs[next];
            if (IsPlace(a) && IsPlace(b)) dist_ += GreatCircle(a.lat, a.lon, b.lat, b.lon).dist;
            leg_ = next;
        }
        return dist_;
    }

  private:
    const RouteVersion& route_;
    int leg_;
    double dist_;
};

double ConstraintAltitude(const FlightPlanLeg& leg) {
    if (HasWindow(leg)) return leg.block_above;
    return HasAltitudeRestr(leg) && leg.alt_restr > 0 ? leg.alt_restr : 0;
}

// Every leg in view has these, so that they are written without the printf family.
void DrawLegData(Graphics& graphics, MapPoint at, const FlightPlanLeg& leg, double dist) {
    constexpr double kLeastSpeed = 100, kMinutesOfDay = 24 * 60, kFarthest = 1e5;
    const double altitude = ConstraintAltitude(leg);
    const auto text = [&](double y, std::string_view data) {
        Text(graphics, at.x + 7, at.y + y, kDataSize, kWhite, data);
    };
    if (altitude > 0) {
        char digits[12];
        const char* end =
            std::to_chars(digits, digits + sizeof digits, WholeNumber(std::round(altitude))).ptr;
        text(11, {digits, static_cast<std::size_t>(end - digits)});
    }
    if (!(sim.ground_speed_kt > kLeastSpeed)) return;
    const double now = std::max(sim.utc_hours * 60 + sim.utc_minutes + sim.utc_seconds / 60.0, 0.0);
    const double to_go = std::min(dist / sim.ground_speed_kt * 60, kFarthest);
    const int minutes = static_cast<int>(std::fmod(now + to_go, kMinutesOfDay));
    const auto digit = [](int value) { return static_cast<char>('0' + value % 10); };
    const char time[] = {digit(minutes / 600), digit(minutes / 60), digit(minutes % 60 / 10),
                         digit(minutes % 60), 'Z'};
    text(altitude > 0 ? 19 : 12, {time, sizeof time});
}

void DrawLabelsOf(Graphics& graphics, const MapView& view, const RouteVersion& route, int first, int flown_to,
                  bool with_data) {
    constexpr double kRoomAbove = 25, kRoomLeft = 60;
    DistanceAlong along(route);
    const auto label = [&](int i) {
        const FlightPlanLeg& leg = route.legs[i];
        if (!IsInReach(view, leg.lat, leg.lon) || !IsNamed(leg)) return;
        const MapPoint at = PointOnMap(view, leg.lat, leg.lon);
        if (at.x < view.seen.left - kRoomLeft || at.x > view.seen.right + 8 ||
            at.y < view.seen.top - kRoomAbove || at.y > view.seen.bottom + 8)
            return;
        const Rgb colour = i == flown_to ? kMagenta : kWhite;
        DrawMapSymbol(graphics, {at.x, at.y - 8}, MapSymbol::kRouteWaypoint, colour);
        MapLabel(graphics, at.x + 7, at.y, colour, leg.ident);
        if (with_data && i > flown_to) DrawLegData(graphics, at, leg, along.To(i));
    };
    if (first > 0) label(0);
    for (int i = first; i <= route.leg_cnt; ++i) label(i);
}

void DrawCentreline(Graphics& graphics, const MapView& view, double lat, double lon, double outward,
                    std::string_view name) {
    if (!IsInReach(view, lat, lon)) return;
    constexpr double kTickEvery = 5, kTickHalf = 0.5, kMost = 100;  // nm
    const double length = std::clamp(cfg.ExtRwyCtrlineDist, 0.0, kMost);
    Pen dashed = GdipCreatePen1(Scaled(kWhite), 1);
    GdipSetPenDashStyle(dashed, 1);
    const auto at = [&](double dist, double beside) {
        LatLon p = ProjectPoint(lat, lon, outward, dist);
        if (beside != 0)
            p = ProjectPoint(p.lat, p.lon, FoldBearing(outward + (beside > 0 ? 90 : -90)), std::fabs(beside));
        return PointOnMap(view, p.lat, p.lon);
    };
    const MapPoint end = at(length, 0);
    DrawMapLine(graphics, dashed, view, at(0, 0), end);
    const Pen solid = GdipCreatePen1(Scaled(kWhite), 1);
    for (double dist = kTickEvery; dist <= length; dist += kTickEvery)
        DrawMapLine(graphics, solid, view, at(dist, -kTickHalf), at(dist, kTickHalf));
    if (cfg.ShowExtDestCtrlineRwyId == 1 && !name.empty()) MapLabel(graphics, end.x + 3, end.y, kWhite, name);
}

const RunwayData* RunwayOf(const AirportData& airport, int place) {
    return place >= 1 && place <= airport.runway_cnt ? &airport.runways[place] : nullptr;
}

void DrawRunwayEnd(Graphics& graphics, const MapView& view, double lat, double lon) {
    if (!IsInReach(view, lat, lon)) return;
    DrawCircle(graphics, GdipCreatePen1(Scaled(kWhite), 1), PointOnMap(view, lat, lon), 8);
}

void DrawVnavPoint(Graphics& graphics, const MapView& view, double lat, double lon, std::string_view label) {
    if ((lat == 0 && lon == 0) || !IsInReach(view, lat, lon)) return;
    const MapPoint at = PointOnMap(view, lat, lon);
    constexpr double kRoom = 30;
    if (!view.seen.Has(at, kRoom)) return;
    DrawCircle(graphics, GdipCreatePen1(Scaled(kGreen), 1), at, 6);
    MapLabel(graphics, at.x + 8, at.y - 7, kGreen, label);
}

// Where the heading that LNAV commands leads, when it isn't to the aiming point.
LatLon SteeredPoint() {
    constexpr double kAhead = 2, kSameCourse = 1;
    const double variation = lnav.true_reference == 1 ? 0 : sim.mgvar;
    const double heading = IsHoldPatternFlown() ? lnav.hold_hdg : lnav.fms_hdg;
    const double commanded = FoldBearing(heading + variation);
    const double to_aim = GreatCircle(sim.plane_lat, sim.plane_lon, lnav.aim_lat, lnav.aim_lon).bearing;
    if (BearingDifference(commanded, to_aim) <= kSameCourse) return {lnav.aim_lat, lnav.aim_lon};
    return ProjectPoint(sim.plane_lat, sim.plane_lon, commanded, kAhead);
}

}  // namespace

void DrawRouteLabels(Graphics& graphics, const NdFrame& frame) {
    const bool with_data = NdOf(frame.side).nd_data == 1;
    const RouteVersion& active = plan.active;
    if (IsRouteActive() && active.stpos >= 1 && active.stpos <= active.leg_cnt)
        DrawLabelsOf(graphics, frame.view, active, active.stpos, active.stpos, with_data);
    else if (IsModificationDrawn())
        DrawLabelsOf(graphics, frame.view, plan.mod, 0, kNoPlan, false);
    if (!IsRouteModified()) return;
    // Of a modification only what it has brought: the rest stands there already.
    for (int i = std::max(plan.mod.stpos, 1); i <= plan.mod.leg_cnt; ++i) {
        const FlightPlanLeg& leg = std::as_const(plan.mod.legs)[i];
        if (leg.mod_flag <= 0 || !IsNamed(leg) || !IsInReach(frame.view, leg.lat, leg.lon)) continue;
        const MapPoint at = PointOnMap(frame.view, leg.lat, leg.lon);
        DrawMapSymbol(graphics, {at.x, at.y - 8}, MapSymbol::kRouteWaypoint, kWhite);
        MapLabel(graphics, at.x + 7, at.y, kWhite, leg.ident);
    }
}

void DrawRunways(Graphics& graphics, const MapView& view) {
    if (plan.active.leg_cnt < 1 && plan.mod.leg_cnt < 1) return;
    const RunwayData* origin = RunwayOf(airports.origin_airport, plan.mod.ends.fms_dep_rwy_pos);
    const RunwayData* dest = RunwayOf(airports.dest_airport, plan.mod.procedures.fms_dest_rwy_pos);
    constexpr double kLargeMap = 80, kSmallMap = 40;
    if (view.range > kLargeMap) {
        if (origin != nullptr) DrawRunwayEnd(graphics, view, origin->lat, origin->lon);
        if (dest != nullptr) DrawRunwayEnd(graphics, view, dest->lat, dest->lon);
    }
    if (view.range < cfg.MinExtRwyRange || view.range > kSmallMap) return;
    if (dest != nullptr)
        DrawCentreline(graphics, view, dest->lat, dest->lon, FoldBearing(TrueRunwayCourse(*dest) + 180),
                       dest->ident);
    if (origin == nullptr) return;
    const bool has_end = origin->recip_lat != 0 || origin->recip_lon != 0;
    DrawCentreline(graphics, view, has_end ? origin->recip_lat : origin->lat,
                   has_end ? origin->recip_lon : origin->lon, TrueRunwayCourse(*origin), {});
}

void DrawVnavPoints(Graphics& graphics, const MapView& view) {
    if (plan.active.stpos == kNoPlan || !IsRouteActive()) return;
    if (vnav.toc == 0) DrawVnavPoint(graphics, view, vnav.toc_lat, vnav.toc_lon, "T/C");
    if (vnav.tod == 0) DrawVnavPoint(graphics, view, vnav.step_lat, vnav.step_lon, "S/C");
    if (vnav.tod == 0) DrawVnavPoint(graphics, view, vnav.tod_lat, vnav.tod_lon, "T/D");
}

void DrawAimingPoint(Graphics& graphics, const MapView& view) {
    if (plan.active.stpos == kNoPlan || cfg.DrawLnavAimingPoint != 1 || lnav.lnav_engaged != 1) return;
    const MapPoint aircraft = PointOnMap(view, sim.plane_lat, sim.plane_lon);
    const auto line_to = [&](double lat, double lon, Rgb colour) {
        const MapPoint to = PointOnMap(view, lat, lon);
        DrawMapLine(graphics, GdipCreatePen1(Scaled(colour), 1), view, aircraft, to);
        return to;
    };
    if (lnav.lnav_init_mode == 1) {
        const MapPoint join = line_to(lnav.lnav_join_trk_lat, lnav.lnav_join_trk_lon, kMapGreen);
        if (view.seen.Has(join, 10)) DrawCircle(graphics, GdipCreatePen1(Scaled(kYellow), 1), join, 10);
    }
    const LatLon aim = SteeredPoint();
    line_to(aim.lat, aim.lon, kYellow);
}
