#include "display/hud/hud_flight_path.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "display/hud/hud_attitude.h"
#include "display/hud/hud_view.h"
#include "display/pfd/attitude.h"
#include "display/pfd/flight_director.h"
#include "fmc/performance/predictions.h"
#include "navdata/from_aircraft.h"
#include "state/airports.h"
#include "state/autoflight.h"
#include "state/cockpit.h"
#include "state/flight_log.h"
#include "state/instruments.h"
#include "state/sim.h"
#include "state/traffic.h"

namespace {

constexpr double kMoving = 20;      // kt ground speed
constexpr double kCueHeight = 200;  // ft, above which speed error and acceleration are shown

// The symbol's place; in degrees below the middle of the attitude what `Below` makes units of.
struct FlightPath {
    double units;  // of a degree
    double climb;  // degrees
    double x, y;
    double Below(double up) const { return (-up - Bounded(sim.pitch_deg, -180, 180)) * units; }
};

FlightPath PresentPath() {
    constexpr double kSteepest = 90;
    FlightPath path{HudUnitsPerDegree(), 0, 0, 0};
    if (sim.ground_speed_kt > kMoving) {
        path.climb = Bounded(ClimbAngle(), -kSteepest, kSteepest);
        path.x = TrackOffset() * path.units;
    }
    path.y = path.Below(path.climb);
    return path;
}

void DrawSymbol(Graphics& graphics, const FlightPath& path) {
    constexpr double kOnGround = 4;
    if (!(sim.radio_alt_ft > kOnGround)) return;
    {
        const TransformBlock block(graphics);
        GdipTranslateWorldTransform(graphics, path.x, path.y);
        GdipDrawEllipseI(graphics, HudPen(), -8, -2, 16, 16);
    }
    for (const int side : {-1, 1}) {
        HudLine(graphics, path.x + side * 14, path.y + 14, path.x + side * 24, path.y + 14);
        HudLine(graphics, path.x + side * 8, path.y + 11, path.x + side * 14, path.y + 14);
    }
}

void DrawSpeedError(Graphics& graphics, const FlightPath& path) {
    constexpr double kLeast = 1, kMost = 50, kMostTrend = 100;
    if (!(sim.radio_alt_ft > kCueHeight)) return;
    const double wing = path.y + 14;
    const double difference = sim.ias_kt - sim.ap_spdbug;
    const double error = std::fabs(difference) < kLeast ? 0 : Bounded(difference, -kMost, kMost);
    HudBox(graphics, path.x - 25, wing - error, 5, error);
    const double tip = wing - Bounded(autoflight.spd_trend - sim.ias_kt, -kMostTrend, kMostTrend);
    for (const int side : {-1, 1}) HudLine(graphics, path.x - 30, tip, path.x - 35, tip + side * 3);
}

void DrawAdvisory(Graphics& graphics, const FlightPath& path) {
    if (traffic.tcas_ra_level <= 0 || traffic.tcas_pitch_max == kNoPitchLimit) return;
    const double left = path.x - 8, right = left + 80;
    const double top = path.Below(Bounded(traffic.tcas_pitch_max, -90, 90)) - 14;
    HudBox(graphics, left, top, 80, 40);
    HudLine(graphics, left, top, left - 20, top - 60);
    HudLine(graphics, right, top, right + 20, top - 60);
}

void DrawPitchLimitLine(Graphics& graphics, const FlightPath& path) {
    constexpr double kStall = 13000, kPerDegree = 1000, kShownBelow = 5, kHalf = 30, kSquare = 5;
    const double margin = (sim.pli_margin - kStall) / kPerDegree;
    if (!(margin <= kShownBelow)) return;
    const double y = path.Below(Bounded(margin, -90, 90) + path.climb);
    HudLine(graphics, path.x - kHalf, y, path.x + kHalf, y);
    for (const double x : {path.x - kHalf - kSquare, path.x + kHalf})
        HudBox(graphics, x, y - kSquare / 2, kSquare, kSquare);
}

// The cue stands where the symbol is to go.
void DrawCue(Graphics& graphics, const FlightPath& path) {
    constexpr double kLowest = 50, kTrackPerRoll = 0.2, kMostStep = 40;
    const bool on = cockpit.capt_fd_switch == 1 || cockpit.fo_fd_switch == 1;
    if (sim.fd_active == 0 || !on || !(sim.radio_alt_ft > kLowest)) return;
    const double smooth = instruments.fd_pitch_smooth;
    const double step = Bounded(DirectorPitchError() - smooth, -kMostStep, kMostStep);
    const TransformBlock block(graphics);
    GdipTranslateWorldTransform(graphics, path.x + DirectorRollError() * kTrackPerRoll * path.units,
                                path.Below(path.climb - (smooth + step)));
    GdipDrawEllipseI(graphics, HudPen(), -5, 1, 10, 10);
}

bool IsOnApproach() {
    constexpr double kLowest = 60, kNear = 10, kOffCourse = 50;
    const RunwayData* runway = DestinationRunway();
    if (runway == nullptr || !(sim.radio_alt_ft > kLowest)) return false;
    const auto way = FromAircraft(runway->lat, runway->lon);
    const double magnetic = way.bearing + sim.mag_hdg - sim.true_hdg;
    return way.dist < kNear && std::fabs(std::remainder(magnetic - runway->course, 360)) <= kOffCourse;
}

void DrawApproachLine(Graphics& graphics, const FlightPath& path) {
    constexpr double kDegrees = -3.4;
    constexpr float kDashes[] = {4, 5, 4, 5}, kSize = 8;
    if (!IsOnApproach()) return;
    const double y = path.Below(kDegrees);
    Pen pen = HudPen();
    GdipSetPenDashArray(pen, kDashes);
    GdipDrawLine(graphics, pen, path.x - 120, y, path.x + 80, y);
    for (const double x : {path.x - 150, path.x + 80}) HudTextFrom(graphics, x, y - 4, kSize, "-3.00");
}

bool IsRadioAltitudeBoxed() {
    constexpr double kSinking = -100;
    const InstrumentState& i = instruments;
    if (i.minimums_cross_timer > 0 && flight_log.fplog_mode >= 1) return false;
    return sim.vs_fpm < kSinking && (i.ra_2500_timer > 0 || sim.radio_alt_ft < i.minimums_value);
}

}  // namespace

void DrawHudFlightPath(Graphics& graphics) {
    if (!(sim.ground_speed_kt > kMoving)) return;
    const FlightPath path = PresentPath();
    for (const auto draw :
         {DrawSymbol, DrawSpeedError, DrawAdvisory, DrawPitchLimitLine, DrawCue, DrawApproachLine})
        draw(graphics, path);
}

void DrawHudRadioAltitude(Graphics& graphics) {
    constexpr double kHighest = 2500;
    constexpr float kSize = 12;
    if (!(sim.radio_alt_ft < kHighest)) return;
    const FlightPath path = PresentPath();
    const double x = path.x - 20, y = path.y + 30;
    HudText(graphics, x, y, kSize, Format("%4.0f", Bounded(sim.radio_alt_ft, -999, kHighest)));
    if (IsRadioAltitudeBoxed()) HudBox(graphics, x, y, 40, 15);
}
