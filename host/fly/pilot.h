#pragma once

#include <string>

#include "host/fly/hand_landing.h"
#include "host/fly/runway.h"
#include "host/session.h"

// The pilot of `tz900 fly`: moves handles and sets the mode control panel as a crew would, from the take-off
// roll to a stop on the runway.

namespace host {

struct Pilot {
    enum Phase { kSettingUp, kTakeoff, kClimb, kCruise, kDescent, kApproach, kGoAround, kRollout, kStopped };
    Phase phase = kSettingUp;
    double cruise_ft = 35000;
    RunwayEnd arrival;           // without a name: nobody lands
    bool route_lines_up = true;  // the route itself leads to the final approach
    double began = -1;           // second of the run; below 0 = not yet
    // what has been set
    double flaps = 0;              // degrees
    double speed = 0;              // kt, of the speed window
    double heading = -1;           // degrees, of the heading window while it steers
    bool intercepts = false;       // steers back to the route, for LNAV to take it up
    bool by_level_change = false;  // climbs and descends by FLCH, VNAV isn't there
    HandLanding by_hand;           // where no landing system leads to the ground
    bool centre_pumps = false;
    bool speedbrake = false, gear_up = false, approach_armed = false, window_reset = false;
};

/// What the route asks for from here on.
struct WayAhead {
    double to_lat = 0, to_lon = 0;  // of the fix flown to
    double to_go = 0;               // nm along the route to its end
    double to_limit = 0;            // nm to the next fix that limits the speed
    double fastest = 0;             // kt there; 0 = none does
};

/// Acts once a second.
void StepPilot(Pilot& pilot, Session& session, const WayAhead& way);

/// What he does, in a few words for the page: "climbing to 35000 ft".
std::string TellWhatPilotDoes(const Pilot& pilot);

constexpr double kTakeoffFlaps = 5;  // degrees

}  // namespace host
