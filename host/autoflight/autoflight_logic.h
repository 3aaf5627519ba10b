#pragma once

// AutoflightLogic: autopilot and autothrottle. It reads named variables and tokens only, takes up what the
// mode control panel requests, reports its modes, and says how the aircraft is to be flown.

namespace host {

enum LateralMode {
    kLateralNone = 0,
    kAttitude = 1,
    kHeadingHold = 2,
    kHeadingSelect = 3,
    kTrackHold = 4,
    kTrackSelect = 5,
    kLnav = 6,
    kLocalizer = 7,
    kRollout = 8,
    kLateralToGa = 9,
    kFinalApproachCourse = 10
};

enum VerticalMode {
    kVerticalNone = 0,
    kAltitude = 1,
    kVerticalSpeed = 2,
    kFlightPathAngle = 3,
    kFlightLevelChange = 4,
    kVnavSpeed = 5,
    kVnavPath = 6,
    kGlideSlope = 10,
    kFlare = 11,
    kVerticalToGa = 12,
    kGlidePath = 13
};

enum ThrottleMode {
    kThrottleNone = 0,
    kSpeed = 2,
    kMach = 3,
    kIdle = 4,
    kThrustReference = 5,
    kThrottleHold = 8,
    kThrust = 9
};

/// All that the logic remembers; a fresh one is switched off.
struct AutoflightLogic {
    bool engaged = false;      // the autopilot flies
    int disconnect_ticks = 0;  // since the disconnect was asked for
    int lateral = kLateralNone, lateral_armed = kLateralNone;
    int vertical = kVerticalNone, vertical_armed = kVerticalNone;
    int throttle = kThrottleNone;
    int lnav_request = 0;       // the request variable as it stood: LNAV's stays while the mode does
    double held_direction = 0;  // degrees magnetic, of HDG HOLD and the modes that hold a heading or a track
    double held_bank = 0;       // degrees, of ATT
    double held_altitude = 0;   // ft
    double entry_path = 0;      // degrees, V/S and FPA begin from
    // commands that build up from tick to tick
    double bank_command = 0, path_command = 0, lever_command = 0;
    double smooth_ias = 0, ias_rate = 0;  // kt, kt/s; smooth_ias 0 = not yet read
};

/// How to fly, by what the modes have worked out. What isn't flown is left to the pilot.
struct AutoflightCommands {
    bool flies = false;
    double bank = 0, path = 0;  // degrees, right and up positive
    double steering = 0;        // degrees a second on the ground, right positive
    bool moves_levers = false;
    double thrust_lever = 0;  // 0 to 1
};

/// One step of `dt` seconds: takes requests, changes modes, reports them and gives the commands.
AutoflightCommands StepAutoflight(AutoflightLogic& logic, double dt);

}  // namespace host
