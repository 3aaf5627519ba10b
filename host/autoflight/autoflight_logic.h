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

/// Limits of thrust, as tz_thrust_limit names them.
enum ThrustLimit {
    kLimitTakeoff = 0,
    kLimitGoAround = 1,
    kLimitContinuous = 2,
    kLimitClimb = 3,
    kLimitCruise = 4
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
    double held_altitude = 0;   // ft, of ALT and of a level VNAV PTH
    double held_path = 0;       // degrees, of FPA
    // commands that build up from tick to tick
    double bank_command = 0, path_command = 0, lever_command = 0;
    double smooth_ias = 0, ias_rate = 0;  // kt, kt/s; smooth_ias 0 = not yet read
    // what the needles keep asking for although they are centred: a course or a slope that is a little off
    double beam_bias = 0;   // ft/s aside, right positive
    double slope_bias = 0;  // ft/s up
    // VNAV
    bool vnav_level = false;  // PTH holds `held_altitude`
    bool speed_intervention = false;
    double entry_ias = 0;          // kt, with which the descent began
    double window_speed = 0;       // as it stood, to see that the pilot turns it
    bool mach_window = false;      // the speed window shows a Mach number
    double window_knots = 0;       // its knots as they stood, which the knob turns
    bool took_off = false;         // since the last take-off the acceleration height isn't reached
    double alerted_altitude = -1;  // the selected altitude that has been reached; below 0 none
    // autothrottle
    int phase_limit = -1;  // the ThrustLimit that the phase of flight has set last
    bool was_armed = false;
    bool protects = false;  // the envelope's edge bends what the modes want
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
