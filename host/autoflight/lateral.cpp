#include "host/autoflight/lateral.h"

#include <algorithm>
#include <cmath>

#include "host/aircraft/air.h"
#include "host/aircraft/angles.h"
#include "host/autoflight/approach.h"
#include "host/world/world.h"

namespace host {
namespace {

constexpr double kMostBank = 25, kMostBankLnav = 28;
constexpr double kNoHeading = 999;  // of lnav_hdg
constexpr double kLnavCaptureNm = 2.5;
constexpr double kLnavEngageFt = 50;  // radio altitude

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

void EngageOrArmLnav(AutoflightLogic& logic, const FlightValues& now) {
    const bool near_leg = std::fabs(NamedValue("xtk_err_dist")) <= kLnavCaptureNm;
    if (near_leg && !now.on_ground && now.radio_altitude > kLnavEngageFt) {
        logic.lateral = kLnav;
        logic.lateral_armed = kLateralNone;
    } else {
        logic.lateral_armed = kLnav;
    }
}

// A beam stays armed behind a heading: that is how a pilot is led to it.
void DisarmLnav(AutoflightLogic& logic) {
    if (logic.lateral_armed == kLnav) logic.lateral_armed = kLateralNone;
}

void TakeLateralRequest(AutoflightLogic& logic, const FlightValues& now) {
    const int request = PanelRequest("ap_lat_mode_clicked");
    const int last = logic.lnav_request;
    logic.lnav_request = request;
    switch (request) {
        case kLnav:
            if (!HasLnavHeading()) return;  // it waits until guidance has published the route
            if (logic.lateral != kLnav) EngageOrArmLnav(logic, now);
            break;
        case kHeadingSelect:
            logic.lateral = IsTrackSelected() ? kTrackSelect : kHeadingSelect;
            DisarmLnav(logic);
            break;
        case kHeadingHold:
            HoldDirection(logic, now);
            DisarmLnav(logic);
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

void CaptureLnav(AutoflightLogic& logic, const FlightValues& now) {
    if (logic.lateral_armed == kLnav && HasLnavHeading()) EngageOrArmLnav(logic, now);
}

// The route is gone.
void DropLnav(AutoflightLogic& logic, const FlightValues& now) {
    if (logic.lateral != kLnav && logic.lateral_armed != kLnav) return;
    if (logic.lateral == kLnav) HoldDirection(logic, now);
    if (logic.lateral_armed == kLnav) logic.lateral_armed = kLateralNone;
    ClearLnavRequest(logic);
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

void ClearLnavRequest(AutoflightLogic& logic) {
    logic.lnav_request = kLateralNone;
    SetNamedValue("ap_lat_mode_clicked", kLateralNone);
}

void GoAroundLaterally(AutoflightLogic& logic, const FlightValues& now) {
    logic.lateral = kLateralToGa;
    logic.lateral_armed = HasLnavHeading() ? kLnav : kLateralNone;
    logic.held_direction = now.on_ground ? now.magnetic_heading : now.track;
}

void UpdateLateralMode(AutoflightLogic& logic, const FlightValues& now) {
    TakeLateralRequest(logic, now);
    CaptureLnav(logic, now);
    // Exactly on the track there is no side of it, which is no reason to let go.
    if (!HasRoute()) DropLnav(logic, now);
    // The panel may turn its window from heading to track.
    if (logic.lateral == kHeadingSelect || logic.lateral == kTrackSelect)
        logic.lateral = IsTrackSelected() ? kTrackSelect : kHeadingSelect;
    if (logic.lateral == kAttitude && std::fabs(logic.held_bank) < 5) HoldDirection(logic, now);
}

double BankForTrack(const FlightValues& now, double wanted, double most) {
    return BankForError(Difference(now.track, wanted), now, most);
}

double LateralBank(AutoflightLogic& logic, const FlightValues& now, double dt) {
    const auto for_heading = [&](double wanted) {
        return BankForError(Difference(now.magnetic_heading, wanted), now, kMostBank);
    };
    switch (logic.lateral) {
        case kAttitude:
            return logic.held_bank;
        case kHeadingHold:
            return for_heading(logic.held_direction);
        case kLateralToGa:
            return BankForTrack(now, logic.held_direction, kMostBank);
        case kHeadingSelect:
            return for_heading(TokenOf(107));
        case kTrackHold:
            return BankForTrack(now, logic.held_direction, kMostBank);
        case kTrackSelect:
            return BankForTrack(now, TokenOf(107), kMostBank);
        case kLnav:
            // The heading given is the bearing to a point on the leg: it is the track that must follow it.
            return BankForTrack(now, NamedValue("lnav_hdg") - (IsTrueReference() ? now.variation : 0),
                                kMostBankLnav);
        case kLocalizer:
        case kFinalApproachCourse:
            return BeamBank(logic, now, dt);
        default:
            return 0;
    }
}

double GroundSteering(const AutoflightLogic& logic, const FlightValues& now) {
    constexpr double kGain = 0.5, kMostRate = 4;
    double wanted = now.magnetic_heading;
    if (logic.lateral == kLateralToGa) wanted = logic.held_direction;
    if (logic.lateral == kRollout) wanted = RolloutHeading(logic, now);
    return std::clamp(Difference(now.magnetic_heading, wanted) * kGain, -kMostRate, kMostRate);
}

}  // namespace host
