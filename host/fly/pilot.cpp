#include "host/fly/pilot.h"

#include "host/flightdeck/commands.h"
#include "host/world/world.h"

namespace host {
namespace {

// The autopilot's own events, as a hardware panel sends them.
constexpr int kSetAltitude = 0x1024c, kSetSpeed = 0x101f5;
constexpr double kMainAutopilotSeconds = 12;  // the system polls its panels from the eighth second on
constexpr double kFeetPerNm = 300;            // of the descent
constexpr int kClimbSpeed = 290, kCruiseSpeed = 275, kDescentSpeed = 280, kArrivalSpeed = 220;

void Set(Session& session, int event, double value) {
    ApplyDeckCommand(session,
                     {.kind = DeckCommand::kKeyEvent, .value = static_cast<double>(event), .x = value});
}

void Press(Session& session, const char* control) {
    ApplyDeckCommand(session, {.kind = DeckCommand::kMouseArea, .name = "MCP", .text = control});
}

double AltitudeNow() {
    double altitude = 0;
    AircraftValue("alt", altitude);
    return altitude;
}

}  // namespace

void StepPilot(Pilot& pilot, Session& session, double to_go_nm) {
    const double altitude = AltitudeNow();
    switch (pilot.phase) {
        case Pilot::kSettingUp:
            if (world.seconds < kMainAutopilotSeconds) break;
            Set(session, kSetAltitude, pilot.cruise_ft);
            Set(session, kSetSpeed, kClimbSpeed);
            for (const char* control : {"atarm", "apl", "lnav", "flch"}) Press(session, control);
            pilot.phase = Pilot::kClimb;
            break;
        case Pilot::kClimb:
            if (to_go_nm < (altitude - pilot.arrival_ft) / kFeetPerNm)
                pilot.phase = Pilot::kCruise;  // a short hop
            if (altitude < pilot.cruise_ft - 200) break;
            Set(session, kSetSpeed, kCruiseSpeed);
            pilot.phase = Pilot::kCruise;
            break;
        case Pilot::kCruise:
            if (to_go_nm > (altitude - pilot.arrival_ft) / kFeetPerNm + 10) break;
            Set(session, kSetAltitude, pilot.arrival_ft);
            Set(session, kSetSpeed, kDescentSpeed);
            Press(session, "flch");
            pilot.phase = Pilot::kDescent;
            break;
        case Pilot::kDescent:
            if (altitude < 10000) Set(session, kSetSpeed, kArrivalSpeed);
            break;
    }
}

}  // namespace host
