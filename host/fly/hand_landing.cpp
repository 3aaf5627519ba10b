#include "host/fly/hand_landing.h"
#include "host/aircraft/air.h"

#include <algorithm>
#include <cmath>

#include "host/aircraft/angles.h"
#include "host/flightdeck/control_sharing.h"
#include "host/fly/runway.h"
#include "host/world/world.h"

namespace host {
namespace {

constexpr int kAxisElevator = 0x100e2, kAxisAilerons = 0x100e3, kAxisRudder = 0x100e4;
constexpr double kFullAxis = 16383;

void MoveAxis(Session& session, int event, double share) {
    ApplyPilotCommand(session, {.kind = DeckCommand::kKeyEvent,
                                .value = static_cast<double>(event),
                                .x = std::round(std::clamp(share, -1.0, 1.0) * kFullAxis)});
}

double Height() {
    return flight.aircraft.altitude - flight.aircraft.ground_elevation;
}

// Down the slope to the runway, and round out where the sink has to ease.
double WantedPath(const RunwayPosition& here) {
    constexpr double kSlope = 3, kOverThreshold = 50, kCatchUp = 8;   // degrees, ft, s
    constexpr double kFlareTime = 4.5, kTouchDown = 2, kAhead = 1.3;  // s, ft/s, s
    const double fps = std::max(flight.aircraft.ground_speed, 60.0) * kFeetPerNm / 3600;
    const double sink = -flight.aircraft.vertical_speed / 60;
    const double above = Height() - kOverThreshold - here.before * kFeetPerNm * std::tan(kSlope * kRad);
    const double on_slope = fps * std::tan(kSlope * kRad) + std::clamp(above / kCatchUp, -8.0, 8.0);
    const double flare = std::max(Height() - sink * kAhead, 0.0) / kFlareTime + kTouchDown;
    return -std::atan(std::min(on_slope, flare) / fps) / kRad;
}

void FlyDown(Session& session, const RunwayEnd& runway, const RunwayPosition& here) {
    constexpr double kStickRate = 2, kMostBank = 30, kTime = 12, kMostCut = 8;
    MoveAxis(session, kAxisElevator, (WantedPath(here) - flight.aircraft.path) / kStickRate);
    const double fps = std::max(flight.aircraft.ground_speed, 60.0) * kFeetPerNm / 3600;
    const double cut = std::clamp(here.right * kFeetPerNm / kTime / fps / kRad, -kMostCut, kMostCut);
    const double turn = std::remainder(runway.course - cut - flight.aircraft.track, 360);
    MoveAxis(session, kAxisAilerons, std::clamp(turn * 1.5, -12.0, 12.0) / kMostBank);
}

void KeepToCentreLine(Session& session, const RunwayEnd& runway, const RunwayPosition& here) {
    constexpr double kTime = 6, kMostCut = 3, kGain = 0.4, kMostRate = 4;
    const double fps = std::max(flight.aircraft.ground_speed, 30.0) * kFeetPerNm / 3600;
    const double cut = std::clamp(here.right * kFeetPerNm / kTime / fps / kRad, -kMostCut, kMostCut);
    const double turn = std::remainder(runway.course - cut - TrueHeading(flight.aircraft), 360);
    MoveAxis(session, kAxisAilerons, 0);
    MoveAxis(session, kAxisElevator, 0);
    MoveAxis(session, kAxisRudder, turn * kGain / kMostRate);
}

}  // namespace

void StepHandLanding(HandLanding& landing, Session& session, const RunwayEnd& runway) {
    constexpr double kLetGo = 200, kRetard = 35;  // ft over the ground
    if (!landing.flies && Height() > kLetGo) return;
    if (!landing.flies) {
        landing.flies = true;
        ApplyPilotCommand(
            session,
            {.kind = DeckCommand::kNamedVariable, .name = "TZ_AP_DISENGAGE_Switch_Right", .value = 1});
    }
    if (!landing.retarded && Height() < kRetard) {
        landing.retarded = true;
        ApplyPilotCommand(session, {.kind = DeckCommand::kMouseArea, .name = "MCP", .text = "atarm"});
        ApplyPilotCommand(session, {.kind = DeckCommand::kKeyEvent, .value = kSetLevers, .x = 0});
    }
    const RunwayPosition here = PositionBefore(runway, Latitude(flight.aircraft), Longitude(flight.aircraft));
    if (flight.aircraft.on_ground)
        KeepToCentreLine(session, runway, here);
    else
        FlyDown(session, runway, here);
}

}  // namespace host
