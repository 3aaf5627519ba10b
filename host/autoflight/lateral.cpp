#include "host/autoflight/lateral.h"

#include <algorithm>
#include <cmath>

#include "host/aircraft/air.h"
#include "host/aircraft/angles.h"
#include "host/world/world.h"

namespace host {
namespace {

constexpr double kMostBank = 25, kMostBankLnav = 28;
constexpr double kNoHeading = 999;  // of lnav_hdg
constexpr double kLnavCaptureNm = 2.5;
constexpr double kLnavEngageFt = 50;  // radio altitude
constexpr double kNeedleFull = 127;   // two dots

bool IsTrackSelected() {
    return NamedValue("TZ_MCP_HDG_TRK_Status") == 1;
}

bool IsTrueReference() {
    return NamedValue("TZ_OH_HDG_REF_Button") == 1;
}

bool HasRoute() {
    return NamedValue("lnav_hdg") != kNoHeading;
}

// Before guidance has spoken at all, its variables read 0, a side of the track too.
bool HasLnavHeading() {
    return HasRoute() && NamedValue("xtk_err_dir") != 0;
}

// A bank that turns the track by an error within a few seconds, the same at every speed.
double BankForError(double error, const FlightValues& now, double most) {
    constexpr double kTurnTime = 4;
    const double speed = std::max(now.tas / kKnotsPerMps, 40.0);
    const double turn_rate = error * kRad / kTurnTime;
    return std::clamp(std::atan(speed * turn_rate / kGravity) / kRad, -most, most);
}

bool IsLocalizerReceived() {
    constexpr double kLocalizerBit = 0x80, kCodesRange = 0x100;
    return std::fmod(TokenOf(46), kCodesRange) >= kLocalizerBit && TokenOf(49) > 0;
}

// Flies a beam: its course, bent towards the needle. A full needle asks for the widest cut.
double CourseToNeedle(double course, double needle) {
    constexpr double kWidestCut = 30, kGain = 2.0;
    const double deflection = std::clamp(needle / kNeedleFull, -1.0, 1.0);
    return FoldDegrees(course + std::clamp(deflection * kGain * 15, -kWidestCut, kWidestCut));
}

bool IsNeedleAlive(double needle) {
    return std::fabs(needle) < kNeedleFull * 0.9;
}

void EngageOrArmLnav(AutoflightLogic& logic, const FlightValues& now) {
    const bool near_leg = std::fabs(NamedValue("xtk_err_dist")) <= kLnavCaptureNm;
    if (near_leg && !now.on_ground && now.radio_altitude > kLnavEngageFt) {
        logic.lateral = kLnav;
        logic.lateral_armed = kLateralNone;
    } else {
        logic.lateral_armed = kLnav;
    }
}

void SelectDirection(AutoflightLogic& logic) {
    logic.lateral = IsTrackSelected() ? kTrackSelect : kHeadingSelect;
    logic.lateral_armed = kLateralNone;
}

void TakeRequest(AutoflightLogic& logic, const FlightValues& now) {
    const int request = PanelRequest("ap_lat_mode_clicked");
    const int last = logic.lnav_request;
    logic.lnav_request = request;
    switch (request) {
        case kLnav:
            if (!HasLnavHeading()) return;  // it waits until guidance has published the route
            if (logic.lateral != kLnav) EngageOrArmLnav(logic, now);
            break;
        case kHeadingSelect:
            SelectDirection(logic);
            break;
        case kHeadingHold:
            HoldDirection(logic, now);
            logic.lateral_armed = kLateralNone;
            break;
        case kLocalizer:
            logic.lateral_armed = kLocalizer;
            break;
        case kLateralNone:  // LNAV pressed once more takes its request back
            if (last == kLnav && logic.lateral_armed == kLnav) logic.lateral_armed = kLateralNone;
            if (last == kLnav && logic.lateral == kLnav) HoldDirection(logic, now);
            break;
        default:
            break;
    }
    // The request is taken; LNAV's stands as long as the mode is there, so that a second press clears it.
    const bool lnav_there = logic.lateral == kLnav || logic.lateral_armed == kLnav;
    const int left = lnav_there ? kLnav : kLateralNone;
    if (request != left) SetNamedValue("ap_lat_mode_clicked", left);
    logic.lnav_request = left;
}

void CaptureArmedMode(AutoflightLogic& logic, const FlightValues& now) {
    if (logic.lateral_armed == kLnav && HasLnavHeading()) EngageOrArmLnav(logic, now);
    if (logic.lateral_armed == kLocalizer && IsLocalizerReceived() && IsNeedleAlive(TokenOf(40))) {
        logic.lateral = kLocalizer;
        logic.lateral_armed = kLateralNone;
    }
    if (logic.lateral_armed == kFinalApproachCourse && IsNeedleAlive(NamedValue("tz_ian_fac_needle"))) {
        logic.lateral = kFinalApproachCourse;
        logic.lateral_armed = kLateralNone;
    }
}

// The route is gone.
void DropLnav(AutoflightLogic& logic, const FlightValues& now) {
    if (logic.lateral != kLnav && logic.lateral_armed != kLnav) return;
    if (logic.lateral == kLnav) HoldDirection(logic, now);
    if (logic.lateral_armed == kLnav) logic.lateral_armed = kLateralNone;
    SetNamedValue("ap_lat_mode_clicked", kLateralNone);
}

}  // namespace

void HoldDirection(AutoflightLogic& logic, const FlightValues& now) {
    // Wings are level about two seconds from now, and the aircraft turns meanwhile.
    constexpr double kRollOutTime = 1.5;
    const double speed = std::max(now.tas / kKnotsPerMps, 40.0);
    const double turned = kGravity * std::tan(now.bank * kRad) / speed / kRad * kRollOutTime;
    logic.lateral = IsTrackSelected() ? kTrackHold : kHeadingHold;
    logic.held_direction = FoldDegrees((IsTrackSelected() ? now.track : now.magnetic_heading) + turned);
}

void UpdateLateralMode(AutoflightLogic& logic, const FlightValues& now) {
    TakeRequest(logic, now);
    // Take-off thrust on the runway holds the runway's heading until another mode takes over in the air.
    if (now.on_ground && logic.throttle == kThrustReference && logic.lateral == kLateralNone) {
        logic.lateral = kLateralToGa;
        logic.held_direction = now.magnetic_heading;
    }
    CaptureArmedMode(logic, now);
    // Exactly on the track there is no side of it, which is no reason to let go.
    if (!HasRoute()) DropLnav(logic, now);
    if (logic.lateral == kLocalizer && now.on_ground) logic.lateral = kRollout;
    // The panel may turn its window from heading to track.
    if (logic.lateral == kHeadingSelect || logic.lateral == kTrackSelect)
        logic.lateral = IsTrackSelected() ? kTrackSelect : kHeadingSelect;
    if (logic.lateral == kAttitude && std::fabs(logic.held_bank) < 5) HoldDirection(logic, now);
}

double LateralBank(const AutoflightLogic& logic, const FlightValues& now) {
    switch (logic.lateral) {
        case kAttitude:
            return logic.held_bank;
        case kHeadingHold:
        case kLateralToGa:
            return BankForError(Difference(now.magnetic_heading, logic.held_direction), now, kMostBank);
        case kHeadingSelect:
            return BankForError(Difference(now.magnetic_heading, TokenOf(107)), now, kMostBank);
        case kTrackHold:
            return BankForError(Difference(now.track, logic.held_direction), now, kMostBank);
        case kTrackSelect:
            return BankForError(Difference(now.track, TokenOf(107)), now, kMostBank);
        case kLnav: {
            // The heading given is the bearing to a point on the leg: it is the track that must follow it.
            const double wanted = NamedValue("lnav_hdg") - (IsTrueReference() ? now.variation : 0);
            return BankForError(Difference(now.track, wanted), now, kMostBankLnav);
        }
        case kLocalizer:
            return BankForError(Difference(now.track, CourseToNeedle(TokenOf(550), TokenOf(40))), now,
                                kMostBank);
        case kFinalApproachCourse:
            return BankForError(Difference(now.track, CourseToNeedle(NamedValue("tz_dest_rwy_trk"),
                                                                     NamedValue("tz_ian_fac_needle"))),
                                now, kMostBank);
        default:
            return 0;
    }
}

double GroundSteering(const AutoflightLogic& logic, const FlightValues& now) {
    constexpr double kGain = 0.5, kMostRate = 4;
    double wanted = now.magnetic_heading;
    if (logic.lateral == kLateralToGa) wanted = logic.held_direction;
    if (logic.lateral == kRollout) wanted = CourseToNeedle(TokenOf(550), TokenOf(40));
    return std::clamp(Difference(now.magnetic_heading, wanted) * kGain, -kMostRate, kMostRate);
}

}  // namespace host
