#include "host/autoflight/vnav.h"

#include <algorithm>
#include <cmath>

#include "host/autoflight/vertical.h"
#include "host/world/world.h"

namespace host {
namespace {

constexpr double kNoPath = 900;     // vnav_fpa from here on says that there is none
constexpr double kEngageFt = 400;   // radio altitude
constexpr double kMostSpeed = 2;    // vnav_spd below it is a Mach
constexpr double kNearLevel = 100;  // ft, the windows' step
constexpr double kFeetPerNmADegree = 100;

bool IsClimb() {
    constexpr double kNoRoute = 999;  // of lnav_hdg; behind the route's end nothing climbs by itself
    return NamedValue("vnav_fpa") >= kNoPath && NamedValue("lnav_hdg") != kNoRoute;
}

bool IsCruise() {
    return NamedValue("vnav_fpa") == 0;
}

bool IsDescent() {
    const double angle = NamedValue("vnav_fpa");
    return angle > 0 && angle < kNoPath;
}

// The level at which a climb ends for now: the profile's, or the window's when that comes before.
double ClimbLimit() {
    const double cross_at = NamedValue("fms_cross_at_elev");
    return cross_at > 0 ? std::min(cross_at, SelectedAltitude()) : SelectedAltitude();
}

double DescentLimit() {
    return std::max(NamedValue("fms_cross_at_elev"), SelectedAltitude());
}

// The last feet to the cruise altitude, and a step to a higher one.
bool IsCruiseClimb(const AutoflightLogic& logic) {
    if (!IsCruise()) return false;
    if (logic.vertical == kVnavSpeed) return true;
    return logic.vnav_level && ClimbLimit() > logic.held_altitude + kNearLevel;
}

void HoldLevel(AutoflightLogic& logic, double altitude) {
    logic.vertical = kVnavPath;
    logic.vnav_level = true;
    logic.held_altitude = altitude;
}

void EngageVnav(AutoflightLogic& logic, const FlightValues& now) {
    logic.speed_intervention = false;
    logic.window_speed = TokenOf(116);
    logic.slope_bias = 0;
    if (logic.vertical_armed == kVnavSpeed) logic.vertical_armed = kVerticalNone;
    if ((IsClimb() || IsCruise()) && ClimbLimit() > now.altitude + kNearLevel) {
        logic.vertical = kVnavSpeed;
        logic.vnav_level = false;
        return;
    }
    const double window = SelectedAltitude();
    HoldLevel(logic, std::fabs(window - now.altitude) < 3 * kNearLevel ? window : now.altitude);
}

void FollowClimb(AutoflightLogic& logic, const FlightValues& now) {
    const double limit = ClimbLimit();
    if (logic.vertical == kVnavPath) {
        if (!logic.vnav_level || limit > logic.held_altitude + kNearLevel) {
            logic.vertical = kVnavSpeed;
            logic.vnav_level = false;
        }
        return;
    }
    if (limit - now.altitude <= CaptureLead(now))
        HoldLevel(logic, std::max(limit, now.altitude - kNearLevel));
}

void FollowDescent(AutoflightLogic& logic, const FlightValues& now) {
    const double limit = DescentLimit();
    const bool below = limit < now.altitude - kNearLevel;
    if (logic.vertical == kVnavSpeed || (logic.vnav_level && limit < logic.held_altitude - kNearLevel)) {
        logic.vertical = kVnavPath;
        logic.vnav_level = !below;
        if (!below) logic.held_altitude = now.altitude;
    } else if (!logic.vnav_level && now.altitude - limit <= CaptureLead(now)) {
        HoldLevel(logic, std::min(limit, now.altitude + kNearLevel));
    }
}

// Where a descent on the path begins, the speed is taken down that the engines needn't keep up later.
void WatchDescent(AutoflightLogic& logic, const FlightValues& now) {
    if (!IsVnavDescending(logic)) logic.entry_ias = now.ias;
}

void WatchSpeedWindow(AutoflightLogic& logic) {
    const double window = TokenOf(116);
    if (window != logic.window_speed) logic.speed_intervention = true;
    logic.window_speed = window;
}

}  // namespace

bool IsVnav(int vertical) {
    return vertical == kVnavSpeed || vertical == kVnavPath;
}

bool IsVnavDescending(const AutoflightLogic& logic) {
    return logic.vertical == kVnavPath && !logic.vnav_level;
}

void RequestVnav(AutoflightLogic& logic, const FlightValues& now) {
    const bool has_route = NamedValue("tz_fpln_active") > 0 || NamedValue("xtk_err_dir") != 0;
    if (!has_route) return;
    // Pressed once more it takes the speed back from the window.
    if (IsVnav(logic.vertical))
        logic.speed_intervention = false;
    else if (now.on_ground || now.radio_altitude < kEngageFt)
        logic.vertical_armed = kVnavSpeed;
    else
        EngageVnav(logic, now);
}

void UpdateVnav(AutoflightLogic& logic, const FlightValues& now) {
    if (logic.vertical_armed == kVnavSpeed && !now.on_ground && now.radio_altitude >= kEngageFt)
        EngageVnav(logic, now);
    if (!IsVnav(logic.vertical)) {
        logic.speed_intervention = false;
        return;
    }
    WatchSpeedWindow(logic);
    WatchDescent(logic, now);
    if (IsClimb() || IsCruiseClimb(logic))
        FollowClimb(logic, now);
    else if (IsDescent())
        FollowDescent(logic, now);
    else if (!logic.vnav_level)
        HoldLevel(logic, std::fabs(SelectedAltitude() - now.altitude) < 3 * kNearLevel ? SelectedAltitude()
                                                                                       : now.altitude);
}

double VnavSpeedTarget(const AutoflightLogic& logic, const FlightValues& now) {
    const double target = NamedValue("vnav_spd");
    if (logic.took_off && now.radio_altitude < NamedValue("tz_accel_ht")) return 0;
    if (!(target > 0)) return 0;
    if (target >= kMostSpeed) return target;
    // A Mach that is held all the way down is more and more knots: the path is flown at idle, and thrust
    // comes only below the speed of its beginning.
    const double ias = IasOfMach(target, now);
    return IsVnavDescending(logic) ? std::min(ias, logic.entry_ias) : ias;
}

void ShowSpeedTarget(AutoflightLogic& logic, const FlightValues& now) {
    constexpr double kLowest = 100, kHighest = 399;
    if (!IsVnav(logic.vertical) || logic.speed_intervention) return;
    const double target = VnavSpeedTarget(logic, now);
    if (target <= 0) return;
    SetToken(116, std::clamp(std::round(target), kLowest, kHighest));
    logic.window_speed = logic.window_knots = TokenOf(116);
    if (const double mach = NamedValue("vnav_spd"); mach < kMostSpeed) SetToken(118, mach);
}

double VnavPathAngle(AutoflightLogic& logic, const FlightValues& now, double dt) {
    if (logic.vnav_level) return PathToLevel(logic.held_altitude, now);
    // The profile's own slope, and what closes in on it from where the aircraft is.
    constexpr double kTime = 15, kBiasTime = 40, kMostBias = 25, kSteepest = -6;  // s, s, ft/s, degrees
    const double above = std::clamp(NamedValue("vnav_vert_dev"), -800.0, 800.0);
    logic.slope_bias = std::clamp(logic.slope_bias - above / (kTime * kBiasTime) * dt, -kMostBias, kMostBias);
    const double slope = NamedValue("vnav_fpa") * kFeetPerNmADegree * now.ground_speed / 3600;  // ft/s
    const double climb = -slope - above / kTime + logic.slope_bias;
    return std::clamp(PathOfVerticalSpeed(climb * 60, now), kSteepest, 0.0);
}

}  // namespace host
