#include "display/nd/route_line.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/angles.h"
#include "display/nd/runway_course.h"
#include "display/nd/turn_shape.h"
#include "fmc/legs/path.h"
#include "fmc/performance/leg_speed.h"
#include "navdata/geodesy.h"
#include "paint/colours.h"
#include "state/airports.h"
#include "state/leg_words.h"
#include "state/lnav.h"
#include "state/plan.h"
#include "state/sim.h"

namespace {

constexpr float kRouteWidth = 2;
constexpr int kNoLeg = -1;
constexpr double kAllOfIt = 1e9;  // units

// A place that the line passes.
struct Place {
    bool there = false;  // the line comes from here
    LatLon at = {};
    int leg = kNoLeg;
    // worked out when asked for first
    MapPoint on_map = {};
    double course_behind = 0;  // true, of the leg that begins here
    bool has_point = false, has_course = false;
};

Place PlaceOfLeg(const RouteVersion& route, int index) {
    const FlightPlanLeg& leg = route.legs[index];
    const bool there = index >= 0 && index <= route.leg_cnt && IsPlace(leg);
    Place place;
    place.there = there;
    place.at = {leg.lat, leg.lon};
    place.leg = index;
    return place;
}

bool IsSamePlace(LatLon a, LatLon b) {
    return a.lat == b.lat && a.lon == b.lon;
}

// A line of many corners under one pen.
class Polyline {
  public:
    Polyline(Graphics& graphics, const MapView& view) : graphics_(graphics), view_(view) {}
    void Use(const Pen& pen, const Pen* band) {
        if (pen_ != nullptr && pen.colour != pen_->colour) Finish();
        pen_ = &pen;
        band_ = band;
    }
    void Add(PaintPoint p) {
        if (count_ == points_.size()) {
            const PaintPoint last = points_[count_ - 1];
            Finish();
            points_[count_++] = last;
        }
        points_[count_++] = p;
    }
    // Straight from the last point, or where the leg begins; what is far away is cut off.
    void AddLeg(MapPoint from, MapPoint to) {
        constexpr double kFar = 15000;
        const MapBox near{-kFar, -kFar, kFar, kFar};
        const bool whole = near.Has(from) && near.Has(to);
        if (!whole) Finish();
        if (!whole && !ClipLine(near, from, to)) return;
        const PaintPoint start{static_cast<float>(from.x), static_cast<float>(from.y)};
        if (count_ == 0 || points_[count_ - 1] != start) Add(start);
        Add({static_cast<float>(to.x), static_cast<float>(to.y)});
        if (!whole) Finish();
    }
    void Finish() {
        const std::span<const PaintPoint> line{points_.data(), count_};
        if (count_ > 1 && pen_ != nullptr && IsSeen(line)) {
            if (band_ != nullptr) GdipDrawLines(graphics_, *band_, line);
            GdipDrawLines(graphics_, *pen_, line);
        }
        count_ = 0;
    }

  private:
    bool IsSeen(std::span<const PaintPoint> line) const {
        MapBox about{line[0].x, line[0].y, line[0].x, line[0].y};
        for (const PaintPoint& p : line)
            about = {std::min<double>(about.left, p.x), std::min<double>(about.top, p.y),
                     std::max<double>(about.right, p.x), std::max<double>(about.bottom, p.y)};
        const double room = band_ != nullptr ? band_->width : kRouteWidth;
        return about.left <= view_.seen.right + room && about.right >= view_.seen.left - room &&
               about.top <= view_.seen.bottom + room && about.bottom >= view_.seen.top - room;
    }
    Graphics& graphics_;
    const MapView& view_;
    const Pen* pen_ = nullptr;
    const Pen* band_ = nullptr;
    std::array<PaintPoint, 256> points_;
    std::size_t count_ = 0;
};

struct RoutePens {
    Pen line, missed;
    const Pen* band = nullptr;
};

// Draws one version of the route; `active` is the one that is flown.
class RouteDrawing {
  public:
    RouteDrawing(Graphics& graphics, const MapView& view, const RouteVersion& route, bool active)
        : line_(graphics, view), view_(view), route_(route), active_(active) {}

    void Draw(int first, Place from, const RoutePens& pens) {
        const bool missed_flown = first <= route_.leg_cnt && IsOfMissedApproach(route_.legs[first]);
        Place before = PlaceBeforeFrom(first, from), to;
        StartOfRoute(first, before, from);
        LatLon start = from.at;
        bool is_near = true;  // `before` and `from` are those of the leg
        for (int i = first; i <= route_.leg_cnt; ++i) {
            const FlightPlanLeg& leg = route_.legs[i];
            // Of a long route most legs are far away: they cost no more than this.
            const bool in_reach = IsLegInReach(view_, start.lat, start.lon, leg.lat, leg.lon);
            start = {leg.lat, leg.lon};
            if (!in_reach) {
                Interrupt();
                is_near = false;
                continue;
            }
            if (!is_near) {
                before = i - 1 > first ? StartAt(i - 2) : Place{};
                from = StartAt(i - 1);
                to = PlaceOfLeg(route_, i);
            } else {
                to = to.leg == i ? to : PlaceOfLeg(route_, i);
            }
            is_near = true;
            Place next = StartAt(i).there ? PlaceOfLeg(route_, i + 1) : Place{};
            if (to.there && from.there) {
                const bool missed = !missed_flown && IsBehindMissedPoint(i);
                line_.Use(missed ? pens.missed : pens.line, pens.band);
                DrawLeg(before, from, to, next);
            } else {
                Interrupt();
            }
            before = from;
            from = to;
            from.there = to.there && !IsVectors(leg);
            to = next;
        }
        line_.Finish();
    }

  private:
    // On the missed approach, or back to the airport from its end.
    bool IsBehindMissedPoint(int leg) const {
        return IsOfMissedApproach(route_.legs[leg]) || (leg > 0 && IsOfMissedApproach(route_.legs[leg - 1]));
    }

    void Interrupt() {
        line_.Finish();
        turn_drawn_at_ = kNoLeg;
    }

    // The place at which the leg behind this one begins; a heading leads to no fix.
    Place StartAt(int leg) const {
        Place place = PlaceOfLeg(route_, leg);
        place.there = place.there && !IsVectors(route_.legs[leg]);
        return place;
    }

    // The turn onto the first leg is still under way when its line begins where the leg before ended.
    Place PlaceBeforeFrom(int first, Place from) const {
        if (first < 2 || !from.there) return {};
        const Place passed = PlaceOfLeg(route_, first - 1);
        if (!passed.there || IsVectors(route_.legs[first - 1]) || !IsSamePlace(passed.at, from.at)) return {};
        return PlaceOfLeg(route_, first - 2);
    }

    // From the origin the line follows the runway before it turns to the first fix.
    void StartOfRoute(int first, Place& before, Place& from) {
        constexpr double kAlongRunway = 1.5, kFarFix = 4;
        if (first != 1 || !from.there || !IsSamePlace(from.at, {route_.legs[0].lat, route_.legs[0].lon}))
            return;
        const FlightPlanLeg& fix = route_.legs[1];
        const int runway = route_.ends.fms_dep_rwy_pos;
        if (runway < 1 || runway > airports.origin_airport.runway_cnt || !IsPlace(fix)) return;
        if (GreatCircle(from.at.lat, from.at.lon, fix.lat, fix.lon).dist < kFarFix) return;
        const double course = TrueRunwayCourse(std::as_const(airports.origin_airport.runways)[runway]);
        before = from;
        from.at = ProjectPoint(from.at.lat, from.at.lon, course, kAlongRunway);
        from.leg = kNoLeg;
        from.has_point = from.has_course = false;
        follows_runway_ = true;
    }

    MapPoint PointOf(Place& place) const {
        if (!place.has_point) place.on_map = PointOnMap(view_, place.at.lat, place.at.lon);
        place.has_point = true;
        return place.on_map;
    }

    static double CourseOf(Place& place, const Place& next) {
        if (!place.has_course)
            place.course_behind = GreatCircle(place.at.lat, place.at.lon, next.at.lat, next.at.lon).bearing;
        place.has_course = true;
        return place.course_behind;
    }

    void DrawLeg(Place& before, Place& from, Place& to, Place& after) {
        const MapPoint start = PointOf(from), end = PointOf(to);
        const double length = std::hypot(end.x - start.x, end.y - start.y);
        TurnShape first_turn;
        if (turn_drawn_at_ == from.leg && turn_drawn_at_ != kNoLeg)
            first_turn = last_turn_;
        else if (before.there)
            first_turn = Turn(before, from, to, kAllOfIt);
        if (IsBehind(from, first_turn)) first_turn = {};
        if (follows_runway_) AddStraight(PointOf(before), start, 0, first_turn.leaves);
        follows_runway_ = false;
        for (const PaintPoint& p : first_turn.All()) line_.Add(p);
        last_turn_ = {};
        if (after.there) last_turn_ = Turn(from, to, after, length - first_turn.joins);
        turn_drawn_at_ = to.leg;
        AddStraight(start, end, first_turn.joins, last_turn_.leaves);
    }

    void AddStraight(MapPoint from, MapPoint to, double cut_before, double cut_behind) {
        const double length = std::hypot(to.x - from.x, to.y - from.y);
        if (length <= cut_before + cut_behind) return;
        const MapPoint way{(to.x - from.x) / length, (to.y - from.y) / length};
        line_.AddLeg({from.x + way.x * cut_before, from.y + way.y * cut_before},
                     {to.x - way.x * cut_behind, to.y - way.y * cut_behind});
    }

    // The turn at `fix`, taking `room` units of the leg before at most.
    TurnShape Turn(Place& before, Place& fix, Place& after, double room) const {
        constexpr double kLargestTurn = 12;  // nm
        const double reach = view_.scale * kLargestTurn;
        if (reach < 2 || !view_.seen.Has(PointOf(fix), reach)) return {};
        const double speed = SpeedAt(fix);
        return ShapeTurn(PointOf(before), PointOf(fix), PointOf(after),
                         TurnFlownAt(before, fix, after, speed), speed, view_.scale, room);
    }

    bool IsFlyOver(const Place& fix) const { return fix.leg >= 0 && route_.legs[fix.leg].flyover == 1; }
    bool IsJustPassed(const Place& fix) const { return active_ && fix.leg >= 0 && fix.leg < route_.stpos; }

    // The turn onto the leg being flown has been flown: the leg stands as it is.
    bool IsBehind(const Place& fix, const TurnShape& turn) const {
        if (!IsJustPassed(fix)) return false;
        constexpr double kOnLeg = 0.2, kOnCourse = 5;  // nm, degrees
        const bool established =
            lnav.xtk < kOnLeg && BearingDifference(sim.true_track_deg, lnav.course_here) < kOnCourse;
        return established || (lnav.leg_len - lnav.wpt_dist) * view_.scale > turn.joins;
    }

    double SpeedAt(const Place& fix) const {
        constexpr double kTurnMattersNm = 15;
        const bool flown_to = active_ && fix.leg == route_.stpos && lnav.wpt_dist < kTurnMattersNm;
        return flown_to || IsJustPassed(fix) || fix.leg == kNoLeg ? sim.ground_speed_kt
                                                                  : PlannedGroundSpeed(route_, fix.leg);
    }

    FixTurn TurnFlownAt(Place& before, Place& fix, const Place& after, double speed) const {
        FixTurn turn = TurnAtFix(FoldCourse(CourseOf(before, fix) - sim.mgvar), CourseOf(fix, after), speed);
        if (IsFlyOver(fix)) turn.begins = FlyOverDistance(speed);
        // A sharp turn waits until its fix is this near.
        constexpr double kSharp = 120, kNearest = 5;
        if (turn.angle > kSharp) turn.begins = std::min(turn.begins, kNearest);
        if (IsJustPassed(fix) && lnav.passed_chg_dist > 0) turn.begins = lnav.passed_chg_dist;
        return turn;
    }

    Polyline line_;
    const MapView& view_;
    const RouteVersion& route_;
    bool active_;
    TurnShape last_turn_;
    int turn_drawn_at_ = kNoLeg;
    bool follows_runway_ = false;  // the line's first stretch is still to be drawn
};

Place StartOf(const ActiveLegRecord& leg) {
    const bool there = !leg.from.empty() && leg.from != kDiscoIdent && leg.from != kThenIdent;
    Place place;
    place.there = there;
    place.at = {leg.from_lat, leg.from_lon};
    return place;
}

// The band's two lines are the edges of a pen as wide as the corridor; both are parts of its width.
struct CorridorLine {
    double range;  // nm, up to which the row holds
    float thickness, dash;
};
constexpr CorridorLine kCorridorLines[] = {
    {0.5, 0.003125f, 0.00390625f}, {1, 0.00625f, 0.0078125f}, {2, 0.0125f, 0.015625f}, {5, 0.025f, 0.03125f},
    {10, 0.05f, 0.0625f},          {20, 0.1f, 0.125f},        {1e9, 0.2f, 0.25f},
};

Pen CorridorPen(const MapView& view) {
    constexpr double kNearRange = 40, kWidest = 2, kFarWidth = 11;  // nm, nm, units
    const double width = view.range <= kNearRange ? kWidest * view.scale : kFarWidth;
    const CorridorLine* row = std::ranges::find_if(
        kCorridorLines, [&](const CorridorLine& line) { return view.range <= line.range; });
    Pen pen = GdipCreatePen1(Scaled(kCyan), static_cast<float>(width));
    GdipSetPenCompoundArray(pen, std::array{0.0f, row->thickness, 1 - row->thickness, 1.0f});
    GdipSetPenDashArray(pen, std::array{row->dash, row->dash});
    return pen;
}

}  // namespace

bool IsModificationDrawn() {
    return plan.fms_fpln_active == kRouteEntered || AwaitsExec();
}

void DrawRouteLines(Graphics& graphics, const MapView& view, bool corridor) {
    const Pen magenta = GdipCreatePen1(Scaled(kMagenta), kRouteWidth);
    const Pen cyan = GdipCreatePen1(Scaled(kCyan), kRouteWidth);
    const RouteVersion& active = plan.active;
    if (IsRouteActive() && active.stpos != kNoPlan && active.stpos >= 1 && active.stpos <= active.leg_cnt) {
        const Pen band = CorridorPen(view);
        Place from = StartOf(active.active_leg);
        const Place passed = PlaceOfLeg(active, active.stpos - 1);
        if (passed.there && IsSamePlace(passed.at, from.at)) from.leg = passed.leg;
        RouteDrawing(graphics, view, active, true)
            .Draw(active.stpos, from, {magenta, cyan, corridor ? &band : nullptr});
    }
    const RouteVersion& mod = plan.mod;
    if (!IsModificationDrawn() || mod.leg_cnt < 1) return;
    Pen dashed = cyan;
    GdipSetPenDashStyle(dashed, 1);
    const bool in_flight = IsRouteModified() && mod.stpos >= 1 && mod.stpos <= mod.leg_cnt;
    const int first = in_flight ? mod.stpos : 1;
    const Place from = in_flight ? StartOf(mod.active_leg) : PlaceOfLeg(mod, 0);
    RouteDrawing(graphics, view, mod, false).Draw(first, from, {dashed, dashed});
}

void DrawDirectLines(Graphics& graphics, const MapView& view) {
    const RouteVersion& route = plan.active;
    if (!IsRouteActive() || route.stpos < 1 || route.stpos > route.leg_cnt) return;
    constexpr Rgb kYellow{255, 255, 0};
    Pen pen = GdipCreatePen1(Scaled(kYellow), 1);
    GdipSetPenDashStyle(pen, 1);
    Place from;
    for (int i = std::max(route.stpos - 2, 0); i <= route.leg_cnt; ++i) {
        Place to = PlaceOfLeg(route, i);
        if (i == route.stpos - 1) to = StartOf(route.active_leg);
        if (from.there && to.there && IsLegInReach(view, from.at.lat, from.at.lon, to.at.lat, to.at.lon))
            DrawMapLine(graphics, pen, view, PointOnMap(view, from.at.lat, from.at.lon),
                        PointOnMap(view, to.at.lat, to.at.lon));
        from = to;
    }
}
