#include "host/autoflight/approach.h"
#include "host/aircraft/air.h"

#include <algorithm>
#include <cmath>

#include "host/aircraft/angles.h"
#include "host/autoflight/lateral.h"
#include "host/autoflight/vertical.h"
#include "host/world/world.h"

namespace host {
namespace {

constexpr double kFpsPerKnot = kFeetPerNm / 3600;
constexpr double kNeedleFull = 127;          // two dots
constexpr double kSlopeTangent = 0.0524078;  // of 3 degrees

/// A beam or a final course as the needles show it.
struct Beam {
    double course;  // degrees magnetic
    double right;   // ft that it lies to the right
    bool is_alive;
};

/// How far it is to the threshold, ft: by the distance shown, else by the height on the slope.
double ToThreshold(double shown_nm, const FlightValues& now) {
    if (shown_nm > 0) return shown_nm * kFeetPerNm;
    return std::max(now.radio_altitude, 0.0) / kSlopeTangent;
}

bool IsReceived() {
    constexpr double kLocalizerBit = 0x80, kCodesRange = 0x100;
    return std::fmod(TokenOf(46), kCodesRange) >= kLocalizerBit && TokenOf(49) > 0;
}

// A localizer's full needle is 350 ft at the threshold, whatever the runway's length, and widens from an
// antenna some two miles behind it.
Beam Localizer(const FlightValues& now) {
    constexpr double kFullAtThreshold = 350, kAntennaBehind = 12000;
    const double needle = TokenOf(40) / kNeedleFull;
    const double widening = 1 + ToThreshold(TokenOf(45), now) / kAntennaBehind;
    return {TokenOf(550), needle * kFullAtThreshold * widening, IsReceived() && std::fabs(needle) < 0.9};
}

double ToRunway() {
    return NamedValue("tz_dest_rwy_nm") * kFeetPerNm;
}

// The final that leads to the runway on its course, by where the runway lies; the needle is full at three
// tenths of a mile.
constexpr double kFinalFull = 0.3 * kFeetPerNm;

Beam FinalCourse() {
    constexpr double kAhead = 60;  // degrees
    const double course = NamedValue("tz_dest_rwy_fac");
    const double aside = Difference(course, NamedValue("tz_dest_rwy_trk"));
    const double right = ToRunway() * std::sin(aside * kRad);
    return {course, right, std::fabs(aside) < kAhead && std::fabs(right) < 0.9 * kFinalFull};
}

Beam BeamOf(int mode, const FlightValues& now) {
    return mode == kFinalApproachCourse ? FinalCourse() : Localizer(now);
}

// Closes in on a beam in proportion to what is missing, at most at the widest cut.
double CourseToBeam(const Beam& beam, double bias, double speed_fps, double time, double widest) {
    const double aside = (beam.right / time + bias) / std::max(speed_fps, 60.0);
    return FoldDegrees(beam.course + std::clamp(aside / kRad, -widest, widest));
}

/// Height above the slope, ft, and whether it is near enough to be taken: from above as far as it can be
/// caught up with, from below where no climb is needed.
struct Slope {
    double above;
    bool is_near;
};

bool IsNear(double needle) {
    return needle > -0.12 && needle < 0.45;
}

Slope GlideSlope(const FlightValues& now) {
    constexpr double kFullDegrees = 0.7;
    constexpr int kGlideSlopeBit = 0x40;
    const double needle = TokenOf(41) / kNeedleFull;
    const bool received = IsReceived() && (static_cast<int>(TokenOf(46)) & kGlideSlopeBit) != 0;
    return {needle * kFullDegrees * kRad * ToThreshold(TokenOf(45), now), received && IsNear(needle)};
}

constexpr double kPathFull = 400;  // ft off the path

Slope GlidePath(const FlightValues& now) {
    constexpr double kOverThreshold = 50;  // ft
    const double path = NamedValue("tz_dest_elev") + kOverThreshold + ToRunway() * kSlopeTangent;
    const double above = now.altitude - path;
    return {above, IsNear(above / kPathFull)};
}

// What the displays show of it.
void ReportFinal(const FlightValues& now) {
    const bool is_flown = NamedValue("tz_fmc_ian_appr") == 1;
    const auto needle = [is_flown](double off, double full) {
        return is_flown ? std::clamp(off / full, -1.0, 1.0) * kNeedleFull : 0;
    };
    SetNamedValue("tz_ian_fac_needle", needle(FinalCourse().right, kFinalFull));
    SetNamedValue("tz_ian_gp_needle", needle(GlidePath(now).above, kPathFull));
}

Slope SlopeOf(int mode, const FlightValues& now) {
    return mode == kGlidePath ? GlidePath(now) : GlideSlope(now);
}

bool IsOnBeam(int lateral) {
    return lateral == kLocalizer || lateral == kFinalApproachCourse;
}

bool IsOnSlope(int vertical) {
    return vertical == kGlideSlope || vertical == kGlidePath;
}

void CaptureBeam(AutoflightLogic& logic, const FlightValues& now) {
    if (!IsOnBeam(logic.lateral_armed) || now.on_ground) return;
    constexpr double kMostCut = 100;
    const Beam beam = BeamOf(logic.lateral_armed, now);
    if (!beam.is_alive || std::fabs(Difference(now.track, beam.course)) > kMostCut) return;
    logic.lateral = logic.lateral_armed;
    logic.lateral_armed = kLateralNone;
    logic.beam_bias = 0;
    ClearLnavRequest(logic);
}

void CaptureSlope(AutoflightLogic& logic, const FlightValues& now) {
    if (!IsOnSlope(logic.vertical_armed) || !IsOnBeam(logic.lateral)) return;
    if (!SlopeOf(logic.vertical_armed, now).is_near) return;
    logic.vertical = logic.vertical_armed;
    logic.vertical_armed = kVerticalNone;
    logic.slope_bias = 0;
}

// The round-out begins where its sink is that of the slope: higher on a faster approach.
bool IsFlareDue(const FlightValues& now) {
    constexpr double kLowest = 30, kHighest = 75;
    if (now.radio_altitude > kHighest) return false;
    return now.radio_altitude < kLowest || FlarePath(now) > now.path;
}

// A beam that falls silent on the way is followed no longer.
void DropLostBeam(AutoflightLogic& logic, const FlightValues& now) {
    if (logic.lateral != kLocalizer || IsReceived() || now.on_ground) return;
    HoldDirection(logic, now);
    if (!IsOnSlope(logic.vertical)) return;
    logic.vertical = kVerticalSpeed;
    SetToken(120, std::round(now.vertical_speed / 100) * 100);
}

void LandByItself(AutoflightLogic& logic, const FlightValues& now) {
    constexpr double kArmBelow = 1500;  // ft radio altitude
    if (logic.lateral == kLocalizer && logic.vertical == kGlideSlope && now.radio_altitude < kArmBelow) {
        logic.lateral_armed = kRollout;
        logic.vertical_armed = kFlare;
    }
    if (logic.vertical_armed == kFlare && IsFlareDue(now)) {
        logic.vertical = kFlare;
        logic.vertical_armed = kVerticalNone;
    }
    if (!now.on_ground) return;
    if (logic.lateral == kLocalizer) {
        logic.lateral = kRollout;
        logic.lateral_armed = kLateralNone;
    }
    if (logic.vertical == kFlare) logic.vertical = kVerticalNone;
}

}  // namespace

void UpdateApproach(AutoflightLogic& logic, const FlightValues& now) {
    ReportFinal(now);
    DropLostBeam(logic, now);
    CaptureBeam(logic, now);
    CaptureSlope(logic, now);
    LandByItself(logic, now);
}

double BeamBank(AutoflightLogic& logic, const FlightValues& now, double dt) {
    constexpr double kTime = 14, kWidest = 30, kMostBank = 25;
    constexpr double kBiasTime = 40, kSteady = 250, kMostBias = 30;
    const Beam beam = BeamOf(logic.lateral, now);
    if (std::fabs(beam.right) < kSteady)
        logic.beam_bias =
            std::clamp(logic.beam_bias + beam.right / (kTime * kBiasTime) * dt, -kMostBias, kMostBias);
    const double wanted = CourseToBeam(beam, logic.beam_bias, now.ground_speed * kFpsPerKnot, kTime, kWidest);
    return BankForTrack(now, wanted, kMostBank);
}

double SlopePath(AutoflightLogic& logic, const FlightValues& now, double dt) {
    constexpr double kTime = 8, kBiasTime = 30, kMostBias = 8;
    constexpr double kSteepest = -6, kFrozenBelow = 100;  // degrees; ft, where the needle jumps at every foot
    if (now.radio_altitude < kFrozenBelow) return logic.path_command;
    const double above = SlopeOf(logic.vertical, now).above;
    logic.slope_bias = std::clamp(logic.slope_bias - above / (kTime * kBiasTime) * dt, -kMostBias, kMostBias);
    const double climb = -now.ground_speed * kFpsPerKnot * kSlopeTangent - above / kTime + logic.slope_bias;
    return std::clamp(PathOfVerticalSpeed(climb * 60, now), kSteepest, 3.0);
}

double FlarePath(const FlightValues& now) {
    constexpr double kTime = 4.5, kTouchDown = 2.0, kAircraftLag = 1.6;  // s, ft/s, s
    const double height = std::max(now.radio_altitude, 0.0);
    const double wanted = -height / kTime - kTouchDown;
    const double easing = -now.vertical_speed / 60 / kTime * kAircraftLag;
    return PathOfVerticalSpeed(std::min(wanted + easing, -0.5) * 60, now);
}

double RolloutHeading(const AutoflightLogic& logic, const FlightValues& now) {
    constexpr double kTime = 5, kWidest = 4;
    return CourseToBeam(Localizer(now), logic.beam_bias, now.ground_speed * kFpsPerKnot, kTime, kWidest);
}

}  // namespace host
