#include "host/fly/pilot.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "host/aircraft/angles.h"
#include "host/flightdeck/control_sharing.h"
#include "host/fly/flight_log.h"
#include "host/inspection.h"
#include "host/world/world.h"

namespace host {
namespace {

// The autopilot's own events, as a hardware panel sends them, and those of the levers.
constexpr int kSetAltitude = 0x1024c, kSetSpeed = 0x101f5, kSetHeading = 0x101fa;
constexpr int kArmSpoilers = 0x10214, kSetSpoilers = 0x10205, kToGa = 0x10145;
constexpr int kTuneNav1 = 0x100ac;
constexpr double kReverse = -4096;

// Modes as the autopilot reports them.
constexpr int kModeLnav = 6, kModeVnavSpeed = 5, kModeVnavPath = 6, kModeLocalizer = 7, kModeFinalCourse = 10,
              kModeGlideSlope = 10, kModeFlare = 11, kModeGlidePath = 13;

constexpr double kSetUpSeconds = 3, kTakeoffSeconds = 20;  // of the pilot's work
constexpr double kDescentFeetPerNm = 225;                  // of the descent, where nobody plans it

void Set(Session& session, int event, double value) {
    ApplyPilotCommand(session,
                      {.kind = DeckCommand::kKeyEvent, .value = static_cast<double>(event), .x = value});
}

void Press(Session& session, const char* control) {
    ApplyPilotCommand(session, {.kind = DeckCommand::kMouseArea, .name = "MCP", .text = control});
}

void MoveLever(Session& session, const char* lever, double value) {
    ApplyPilotCommand(session, {.kind = DeckCommand::kLever, .name = lever, .value = value});
}

void SetVariable(Session& session, const char* name, double value) {
    ApplyPilotCommand(session, {.kind = DeckCommand::kNamedVariable, .name = name, .value = value});
}

double Number(const Session& session, const char* name) {
    return std::atof(ReadVariable(session, name).c_str());
}

// What a crew has set before the take-off, by the second of its work: a guard must be open when its switch is
// moved, and a selector goes a step at a time.
struct Setting {
    int second;
    const char* variable;
    double value;
};
constexpr Setting kSettings[] = {
    {0, "TZ_OH_ECC_L_Guard_Switch", 1}, {0, "TZ_OH_ECC_R_Guard_Switch", 1},
    {0, "TZ_OH_VENT_Guard_Switch", 1},  {0, "TZ_OH_GENCTL_L1_Button", 1},
    {0, "TZ_OH_GENCTL_L2_Button", 1},   {0, "TZ_OH_GENCTL_R1_Button", 1},
    {0, "TZ_OH_GENCTL_R2_Button", 1},   {0, "TZ_OH_CAB_UTIL_Button", 1},
    {0, "TZ_OH_PASS_SEATS_Button", 1},  {0, "TZ_OH_IRS_LEFT_Switch", 1},
    {0, "TZ_OH_IRS_RIGHT_Switch", 1},   {0, "TZ_OH_HYD_L_ENG_Button", 1},
    {0, "TZ_OH_HYD_R_ENG_Button", 1},   {0, "TZ_OH_ELEC_L_Switch", 1},
    {0, "TZ_OH_ELEC_C1_Switch", 1},     {0, "TZ_OH_ELEC_C2_Switch", 1},
    {0, "TZ_OH_ELEC_R_Switch", 1},      {0, "TZ_OH_LPUMP_FWD_Button", 1},
    {0, "TZ_OH_LPUMP_AFT_Button", 1},   {0, "TZ_OH_RPUMP_FWD_Button", 1},
    {0, "TZ_OH_RPUMP_AFT_Button", 1},   {0, "TZ_OH_APU_GEN_LEFT_Button", 1},
    {0, "TZ_AFT_FD_DOOR_Switch", 1},    {0, "TZ_AFT_Transponder_Knob", 4},
    {1, "TZ_AFT_Transponder_Knob", 4},  {2, "TZ_AFT_Transponder_Knob", 4},
    {3, "TZ_AFT_Transponder_Knob", 4},  {0, "TZ_OH_ENG_L_START_Switch", 1},
    {0, "TZ_OH_ENG_R_START_Switch", 1}, {0, "TZ_OH_AC_LPACK_Button", 1},
    {0, "TZ_OH_AC_RPACK_Button", 1},    {0, "TZ_OH_TRIMAIR_L_Button", 1},
    {0, "TZ_OH_TRIMAIR_R_Button", 1},   {0, "TZ_OH_EQPCOOL_FWD_Button", 1},
    {0, "TZ_OH_EQPCOOL_AFT_Button", 1}, {0, "TZ_OH_OV_FWD_Button", 1},
    {0, "TZ_OH_OV_AFT_Button", 1},      {0, "TZ_OH_FWDCARGO_AC_Button", 1},
    {0, "TZ_OH_Bulk_Button", 1},        {0, "TZ_OH_WING_ANTICE_Switch", 1},
    {0, "TZ_OH_AI_L_ENG_Switch", 1},    {0, "TZ_OH_AI_R_ENG_Switch", 1},
    {0, "TZ_OH_PRMY_L_SIDE_Button", 1}, {0, "TZ_OH_PRMY_L_FWD_Button", 1},
    {0, "TZ_OH_PRMY_R_FWD_Button", 1},  {0, "TZ_OH_PRMY_R_SIDE_Button", 1},
    {0, "TZ_OH_WH_LFWD_Button", 1},     {0, "TZ_OH_WH_RFWD_Button", 1},
    {0, "TZ_OH_SEATB_SIGN_Switch", 1},  {0, "TZ_OH_FD_DOOR_Button", 1},
    {0, "TZ_OH_LT_BEACON_Button", 1},   {0, "TZ_OH_LT_NAV_Button", 1},
    {0, "TZ_OH_LT_LOGO_Button", 1},     {0, "TZ_OH_LT_STROBE_Switch", 1},
    {0, "TZ_MCP_L_FD_Switch", 1},       {0, "TZ_MCP_R_FD_Switch", 1},
    {1, "TZ_OH_ECC_L_Button", 1},       {1, "TZ_OH_ECC_R_Button", 1},
    {1, "TZ_OH_AC_VENT_Button", 1},     {2, "TZ_OH_ECC_L_Guard_Switch", 0},
    {2, "TZ_OH_ECC_R_Guard_Switch", 0}, {2, "TZ_OH_VENT_Guard_Switch", 0},
    {2, "auto_brake_switch", -1},
};

void SetSwitches(Session& session, int second) {
    for (const Setting& setting : kSettings)
        if (setting.second == second)
            ApplyPilotCommand(
                session,
                {.kind = DeckCommand::kNamedVariable, .name = setting.variable, .value = setting.value});
}

const Aircraft& Flown() {
    return flight.aircraft;
}

// The pumps of the centre tank run from the start when it holds enough, and stop when it is nearly empty.
void WatchCentreTank(Pilot& pilot, Session& session) {
    constexpr double kWorthPumping = 16000, kNearlyEmpty = 5000;  // lb
    const double fuel = Flown().fuel_lb[kCentreTank];
    const bool pumps =
        pilot.phase == Pilot::kSettingUp ? fuel > kWorthPumping : pilot.centre_pumps && fuel > kNearlyEmpty;
    if (pumps == pilot.centre_pumps) return;
    pilot.centre_pumps = pumps;
    for (const char* pump : {"TZ_OH_CNTRPUMP_L_Button", "TZ_OH_CNTRPUMP_R_Button"})
        SetVariable(session, pump, pumps ? 1 : 0);
}

int VerticalMode() {
    return static_cast<int>(NamedValue("ap_vert_mode"));
}

bool IsVnavEngaged() {
    return VerticalMode() == kModeVnavSpeed || VerticalMode() == kModeVnavPath;
}

bool IsOnFinal() {
    const int mode = static_cast<int>(NamedValue("ap_lat_mode"));
    return mode == kModeLocalizer || mode == kModeFinalCourse;
}

bool IsOnSlope() {
    return VerticalMode() == kModeGlideSlope || VerticalMode() == kModeGlidePath ||
           VerticalMode() == kModeFlare;
}

double HeightOverField() {
    return Flown().altitude - Flown().ground_elevation;
}

void SelectSpeed(Pilot& pilot, Session& session, double speed) {
    speed = std::round(speed);
    if (speed == pilot.speed) return;
    pilot.speed = speed;
    Set(session, kSetSpeed, speed);
}

void SelectFlaps(Pilot& pilot, Session& session, double degrees) {
    if (degrees == pilot.flaps) return;
    pilot.flaps = degrees;
    MoveLever(session, "flaps", HandleOfFlapAngle(Flown().airframe, degrees) / 16384);
}

/// Speed (kt) for manoeuvring at an angle of the flaps.
double ManoeuvreSpeed(double flaps) {
    constexpr double kClean = 1.47, kWithFlaps = 1.35;
    return StallSpeedAt(Flown(), flaps) * (flaps == 0 ? kClean : kWithFlaps);
}

double LandingSpeed() {
    return StallSpeedAt(Flown(), kFullFlaps) * 1.3 + 5;
}

// Speed by height where no profile gives one.
double PlainSpeed(double fast) {
    constexpr double kSlowBelow = 10000, kSlow = 245;
    return Flown().altitude < kSlowBelow ? kSlow : fast;
}

void SetUp(Pilot& pilot, Session& session) {
    if (pilot.began < 0) pilot.began = world.seconds;
    SetSwitches(session, static_cast<int>(world.seconds - pilot.began));
    if (world.seconds - pilot.began < kSetUpSeconds) return;
    SelectFlaps(pilot, session, kTakeoffFlaps);
    Set(session, kSetAltitude, pilot.cruise_ft);
    SelectSpeed(pilot, session, StallSpeedAt(Flown(), kTakeoffFlaps) * 1.2);
    for (const char* control : {"atarm", "lnav", "vnav"}) Press(session, control);
    pilot.phase = Pilot::kTakeoff;
}

void TakeOff(Pilot& pilot, Session& session) {
    constexpr double kGearUp = 50, kAutopilot = 500, kVnavThere = 1500;
    if (Flown().on_ground) {
        if (NamedValue("at_mode") == 0 && world.seconds - pilot.began > kTakeoffSeconds)
            Press(session, "clbcon");
        return;
    }
    if (!pilot.gear_up && HeightOverField() > kGearUp) {
        pilot.gear_up = true;
        MoveLever(session, "gear", 0);
    }
    if (NamedValue("ap_master_l") == 0 && HeightOverField() > kAutopilot) Press(session, "apl");
    if (HeightOverField() < kVnavThere) return;
    pilot.phase = Pilot::kClimb;
    pilot.by_level_change = !IsVnavEngaged();
    if (pilot.by_level_change) Press(session, "flch");
}

void RetractFlaps(Pilot& pilot, Session& session) {
    if (pilot.flaps > 1 && Flown().ias > ManoeuvreSpeed(1)) SelectFlaps(pilot, session, 1);
    if (pilot.flaps == 1 && Flown().ias > ManoeuvreSpeed(0)) SelectFlaps(pilot, session, 0);
}

double PlatformAltitude(const Pilot& pilot) {
    constexpr double kOverField = 2000;
    return std::round((pilot.arrival.elevation + kOverField) / 100) * 100;
}

double DistanceToLevel(double altitude) {
    return (Flown().altitude - altitude) / kDescentFeetPerNm;
}

void Climb(Pilot& pilot, Session& session, double to_go_nm) {
    RetractFlaps(pilot, session);
    if (pilot.by_level_change) SelectSpeed(pilot, session, PlainSpeed(300));
    const bool short_hop = to_go_nm < DistanceToLevel(PlatformAltitude(pilot)) + 15;
    if (Flown().altitude > pilot.cruise_ft - 200 || short_hop) pilot.phase = Pilot::kCruise;
}

// The window goes down before the top of descent, which the aircraft then passes by itself.
void Cruise(Pilot& pilot, Session& session, double to_go_nm) {
    constexpr double kBeforeDescent = 12, kSteepFeetPerNm = 400;
    if (pilot.by_level_change) SelectSpeed(pilot, session, 280);
    const bool planned = !pilot.by_level_change && Number(session, "dist_to_tod") > 0;
    const bool passed = Number(session, "tod") == 1;
    const bool plainly_due = to_go_nm < DistanceToLevel(PlatformAltitude(pilot)) + 8;
    const bool soon = planned ? Number(session, "dist_to_tod") < kBeforeDescent : plainly_due;
    if (!pilot.window_reset && (soon || passed || plainly_due)) {
        pilot.window_reset = true;
        Set(session, kSetAltitude, PlatformAltitude(pilot));
    }
    const bool late =
        (!planned || passed) && to_go_nm < (Flown().altitude - PlatformAltitude(pilot)) / kSteepFeetPerNm;
    const bool descends = Flown().vertical_speed < -300;
    if (passed && descends) pilot.phase = Pilot::kDescent;
    if (descends || !pilot.window_reset || !(pilot.by_level_change ? plainly_due : late)) return;
    pilot.by_level_change = true;
    Press(session, "flch");
    pilot.phase = Pilot::kDescent;
}

double TargetNow(const Pilot& pilot) {
    const double profile = NamedValue("vnav_spd");
    const bool by_profile = IsVnavEngaged() && NamedValue("tz_spd_intv_active") == 0;
    if (!by_profile || profile <= 0) return pilot.speed;
    return profile < 2 ? Flown().ias * profile / std::max(Flown().mach, 0.1) : profile;
}

// Out when the aircraft is too fast, or so high that it would come to the glide slope from above.
void WorkSpeedbrake(Pilot& pilot, Session& session, double to_go_nm) {
    constexpr double kOut = 12, kIn = 4, kHandle = 9000, kSlope = 300, kTurns = 3, kMuchTooHigh = 300;
    const double over = Flown().ias - TargetNow(pilot);
    const double above =
        Flown().altitude - pilot.arrival.elevation - kSlope * std::max(to_go_nm - kTurns, 0.0);
    const bool too_fast = over > (pilot.speedbrake ? kIn : kOut);
    const bool too_high = above > (pilot.speedbrake ? 0 : kMuchTooHigh);
    const bool wanted = pilot.flaps < 20 && Flown().vertical_speed < -200 && (too_fast || too_high);
    if (wanted == pilot.speedbrake) return;
    pilot.speedbrake = wanted;
    Set(session, kSetSpoilers, wanted ? kHandle : 0);
}

void TuneLandingSystem(const Pilot& pilot, Session& session) {
    const int hundredths = static_cast<int>(std::round(std::atof(pilot.arrival.ils_frequency.c_str()) * 100));
    int bcd = 0;
    for (int digits = hundredths % 10000, shift = 0; digits > 0; digits /= 10, shift += 4)
        bcd |= digits % 10 << shift;
    if (hundredths == 0 || static_cast<int>(TokenOf(24)) == bcd) return;
    constexpr const char* kByHand = "2";  // a radio that the system leaves alone
    ApplyPilotCommand(session, {.kind = DeckCommand::kStateVariable, .name = "VorLeftMode", .text = kByHand});
    Set(session, kTuneNav1, bcd);
}

// With the window turned over to track, so that the wind doesn't matter.
void Steer(Pilot& pilot, Session& session, double true_track) {
    const double heading = std::round(FoldDegrees(true_track - TokenOf(82)));
    if (pilot.heading < 0) {
        SetVariable(session, "TZ_MCP_HDG_TRK_Status", 1);
        Press(session, "hdgsel");
    }
    if (heading != pilot.heading) Set(session, kSetHeading, heading);
    pilot.heading = heading;
}

/// Where a pilot who is led to the final by headings has to go first: beside the extended centre line,
/// farther out the higher the aircraft still is.
struct Gate {
    double ahead, across;  // nm to it along the landing course, and to the right
    double miles;          // by way of it to the threshold
    bool is_low;           // the aircraft is down to the height of the intercept
};

Gate GateOf(const Pilot& pilot, const RunwayPosition& here) {
    constexpr double kGate = 16, kAside = 4;
    const double too_high = std::max(Flown().altitude - PlatformAltitude(pilot) - 300, 0.0);
    const double out = kGate + too_high / kDescentFeetPerNm;
    const double side = here.right < 0 ? -kAside : kAside;
    Gate gate{here.before - out, side - here.right, 0, too_high == 0};
    gate.miles = std::hypot(gate.ahead, gate.across) + std::hypot(out, kAside);
    return gate;
}

// Leads to the gate, then across the centre line at an angle until the localizer is captured.
void SteerToFinal(Pilot& pilot, Session& session, const RunwayPosition& here) {
    constexpr double kCut = 40, kNearGate = 2, kJoinNm = 10;
    if (IsOnFinal()) return;
    const Gate gate = GateOf(pilot, here);
    const bool at_gate = std::hypot(gate.ahead, gate.across) < kNearGate;
    const double joins_at = here.before - std::fabs(here.right) / std::tan(kCut * kRad);
    const bool beside = joins_at > kJoinNm && joins_at < 2 * kJoinNm && gate.is_low;
    if (!pilot.approach_armed && !at_gate && !beside)
        return Steer(pilot, session, pilot.arrival.course + std::atan2(gate.across, gate.ahead) / kRad);
    Steer(pilot, session, pilot.arrival.course + (here.right < 0 ? kCut : -kCut));
    if (!pilot.approach_armed) Press(session, "app");
    pilot.approach_armed = true;
}

void Descend(Pilot& pilot, Session& session, double to_go_nm) {
    constexpr double kApproachNm = 35, kVectorsNm = 40;
    if (pilot.by_level_change) SelectSpeed(pilot, session, PlainSpeed(290));
    WorkSpeedbrake(pilot, session, to_go_nm);
    if (pilot.arrival.name.empty()) return;
    if (to_go_nm > (pilot.route_lines_up ? kApproachNm : kVectorsNm)) return;
    if (!pilot.route_lines_up) {
        pilot.by_level_change = true;
        Press(session, "flch");
    }
    pilot.phase = Pilot::kApproach;
}

// The speed to slow down to for a fix ahead, in time; a great one while none is near.
double LimitAhead(const WayAhead& way) {
    constexpr double kNone = 999, kKnotsPerNm = 10, kEarly = 1;  // nm
    const double slowing = (Flown().ias - way.fastest) / kKnotsPerNm + kEarly;
    return way.fastest > 0 && way.to_limit < slowing ? way.fastest : kNone;
}

// The first flaps that let the aircraft fly so slowly, and those for landing.
double FlapsForSpeed(double speed) {
    for (const double flaps : {0.0, 1.0, 5.0, 15.0, 20.0})
        if (ManoeuvreSpeed(flaps) <= speed) return flaps;
    return kFullFlaps;
}

// Slows down and lets out flaps and gear by the distance to the threshold and for a fix that limits the
// speed.
void Configure(Pilot& pilot, Session& session, double miles, const WayAhead& way) {
    struct Step {
        double miles, flaps;
    };
    constexpr Step kSteps[] = {{25, 0}, {19, 1}, {14, 5}, {9, 15}, {7.5, 20}, {6, 30}};
    const double limit = LimitAhead(way);
    const double for_limit = std::min(FlapsForSpeed(limit), 20.0);
    double flaps = for_limit > 0 ? for_limit : -1;
    for (const Step& step : kSteps)
        if (miles < step.miles) flaps = std::max(flaps, step.flaps);
    constexpr double kFarOut = 240;
    if (flaps < 0)
        return SelectSpeed(pilot, session,
                           std::min(pilot.flaps > 0 ? ManoeuvreSpeed(pilot.flaps) + 5 : kFarOut, limit));
    // No flaps faster than they bear.
    flaps = std::max(flaps, pilot.flaps);
    if (flaps > pilot.flaps && Flown().ias < ManoeuvreSpeed(pilot.flaps) + 20)
        SelectFlaps(pilot, session, flaps);
    const double speed = pilot.flaps == kFullFlaps ? LandingSpeed() : ManoeuvreSpeed(pilot.flaps) + 5;
    SelectSpeed(pilot, session, std::min(speed, std::max(limit, ManoeuvreSpeed(pilot.flaps))));
    if (flaps >= 15 && pilot.gear_up) {
        pilot.gear_up = false;
        MoveLever(session, "gear", 1);
        Set(session, kArmSpoilers, 1);
        constexpr double kAutobrake3 = 4;
        SetVariable(session, "auto_brake_switch", kAutobrake3);
    }
}

// Past the point where the slope had to be taken: around again, led to the final by headings.
void GoAround(Pilot& pilot, Session& session) {
    constexpr double kFlaps = 20;
    Set(session, kToGa, 0);
    pilot.flaps = 0;
    SelectFlaps(pilot, session, kFlaps);
    SelectSpeed(pilot, session, ManoeuvreSpeed(kFlaps));
    MoveLever(session, "gear", 0);
    Set(session, kSetSpoilers, 0);
    pilot.gear_up = true;
    pilot.speedbrake = pilot.approach_armed = pilot.route_lines_up = false;
    pilot.heading = -1;
    pilot.by_level_change = true;
    pilot.phase = Pilot::kGoAround;
}

void ClimbAway(Pilot& pilot, Session& session) {
    constexpr double kTurnAbove = 1500;
    if (HeightOverField() < kTurnAbove && Flown().altitude < PlatformAltitude(pilot) - 200) return;
    Press(session, "flch");
    pilot.phase = Pilot::kApproach;
}

void Approach(Pilot& pilot, Session& session, const WayAhead& way) {
    constexpr double kArmNm = 22, kMostCut = 75, kLastTurnNm = 2, kNoTurnsBelow = 600;
    const RunwayPosition here = PositionBefore(pilot.arrival, Latitude(Flown()), Longitude(Flown()));
    const bool on_final = IsOnFinal();
    const double straight = std::hypot(here.before, here.right);
    const double miles = on_final || pilot.approach_armed ? straight
                         : pilot.route_lines_up           ? way.to_go
                                                          : GateOf(pilot, here).miles;
    TuneLandingSystem(pilot, session);
    if (HeightOverField() > kNoTurnsBelow) {
        Configure(pilot, session, miles, way);
        WorkSpeedbrake(pilot, session, miles);
    }
    // A route that turns in too late would lead past the beam: the rest is flown by headings.
    constexpr double kLateNm = 13, kAsideNm = 0.5;
    if (pilot.approach_armed && straight < kLateNm && std::fabs(here.right) > kAsideNm)
        pilot.route_lines_up = false;
    if (!pilot.route_lines_up) SteerToFinal(pilot, session, here);
    const double cut = std::fabs(std::remainder(Flown().track - pilot.arrival.course, 360));
    // Near the beam's line, with no more than the last turn ahead.
    const bool on_last_leg = way.to_go < straight + kLastTurnNm;
    const bool is_led = TokenOf(49) > 0 || pilot.arrival.ils_frequency.empty();
    const bool can_arm = is_led && on_last_leg && here.before > 0 && straight < kArmNm && cut < kMostCut;
    if (pilot.route_lines_up && !pilot.approach_armed && can_arm) {
        Press(session, "app");
        pilot.approach_armed = true;
    }
    constexpr double kLastPoint = 2.5;
    const bool by_hand = pilot.arrival.ils_frequency.empty() && (IsOnSlope() || pilot.by_hand.flies);
    if (by_hand) StepHandLanding(pilot.by_hand, session, pilot.arrival);
    const bool on_slope = IsOnSlope() || pilot.by_hand.flies;
    const bool missed = pilot.approach_armed && here.before < kLastPoint && !on_slope;
    if (Flown().on_ground)
        pilot.phase = Pilot::kRollout;
    else if (missed)
        GoAround(pilot, session);
}

void RollOut(Pilot& pilot, Session& session) {
    constexpr double kReverseAbove = 65, kStopped = 1;
    if (pilot.by_hand.flies) StepHandLanding(pilot.by_hand, session, pilot.arrival);
    const bool reverse = Flown().ground_speed > kReverseAbove;
    if (NamedValue("at_mode") == 0 && (TokenOf(128) < 0) != reverse)
        Set(session, kSetLevers, reverse ? kReverse : 0);
    if (Flown().ground_speed < kStopped) pilot.phase = Pilot::kStopped;
}

// What users work, he sees as it stands.
void SeeWhatUsersDid(Pilot& pilot, unsigned things) {
    if ((things & kFlapLever) != 0) pilot.flaps = FlapAngleOfHandle(Flown().airframe, TokenOf(328));
    if ((things & kGearLever) != 0) pilot.gear_up = TokenOf(331) == 0;
    if ((things & kSpeedbrakeLever) != 0) pilot.speedbrake = TokenOf(325) > 0;
    if ((things & kSpeedWindow) != 0) pilot.speed = 0;
    if ((things & kHeadingWindow) != 0) pilot.heading = -1;
    if ((things & kApproach) != 0) pilot.approach_armed = IsOnFinal() || NamedValue("ap_lat_mode_armed") != 0;
}

// Has the aircraft flown on by itself as the phase of flight wants it. What is left before the climb and near
// the ground he does as it comes up.
void TakeBack(Pilot& pilot, Session& session, unsigned things) {
    constexpr double kAutopilot = 500;
    if (Flown().on_ground || pilot.phase < Pilot::kClimb || HeightOverField() < kAutopilot) return;
    if ((things & kThrustLevers) != 0 && NamedValue("at_armed_left") == 0) Press(session, "atarm");
    if ((things & kStick) != 0 && NamedValue("ap_master_l") == 0) Press(session, "apl");
    if (pilot.approach_armed || IsOnFinal()) return;
    if ((things & (kStick | kHeadingWindow)) != 0 && NamedValue("ap_lat_mode") != kModeLnav)
        pilot.intercepts = true;
    if ((things & (kStick | kAltitudeWindow)) == 0) return;
    Set(session, kSetAltitude, pilot.window_reset ? PlatformAltitude(pilot) : pilot.cruise_ft);
    if (!IsVnavEngaged()) Press(session, pilot.by_level_change ? "flch" : "vnav");
}

// Far beside the route LNAV only arms: he steers for the fix ahead until it has the aircraft.
void Intercept(Pilot& pilot, Session& session, const WayAhead& way) {
    const bool is_his = (world.user_has & (kStick | kHeadingWindow)) == 0;
    const bool is_there = NamedValue("ap_lat_mode") == kModeLnav || pilot.phase >= Pilot::kApproach;
    if (!is_his || is_there) {
        pilot.intercepts = false;
        pilot.heading = -1;
        return;
    }
    if (NamedValue("ap_lat_mode_armed") == 0) Press(session, "lnav");
    if (NamedValue("ap_lat_mode") == kModeLnav) return;
    const double lat = AircraftNumber("lat"), lon = AircraftNumber("lon");
    const double east = std::remainder(way.to_lon - lon, 360) * std::cos((lat + way.to_lat) / 2 * kRad);
    Steer(pilot, session, std::atan2(east, way.to_lat - lat) / kRad);
}

}  // namespace

void StepPilot(Pilot& pilot, Session& session, const WayAhead& way) {
    const unsigned given_back = std::exchange(world.given_back, 0);
    SeeWhatUsersDid(pilot, given_back | world.user_has);
    if (given_back != 0) TakeBack(pilot, session, given_back);
    if (pilot.intercepts) Intercept(pilot, session, way);
    WatchCentreTank(pilot, session);
    switch (pilot.phase) {
        case Pilot::kSettingUp:
            return SetUp(pilot, session);
        case Pilot::kTakeoff:
            return TakeOff(pilot, session);
        case Pilot::kClimb:
            return Climb(pilot, session, way.to_go);
        case Pilot::kCruise:
            return Cruise(pilot, session, way.to_go);
        case Pilot::kDescent:
            return Descend(pilot, session, way.to_go);
        case Pilot::kApproach:
            return Approach(pilot, session, way);
        case Pilot::kGoAround:
            return ClimbAway(pilot, session);
        case Pilot::kRollout:
            return RollOut(pilot, session);
        case Pilot::kStopped:
            return;
    }
}

std::string TellWhatPilotDoes(const Pilot& pilot) {
    switch (pilot.phase) {
        case Pilot::kSettingUp:
            return "setting up";
        case Pilot::kTakeoff:
            return "taking off";
        case Pilot::kClimb:
            return "climbing to " + std::to_string(std::lround(pilot.cruise_ft)) + " ft";
        case Pilot::kCruise:
            return "cruising";
        case Pilot::kDescent:
            return "descending";
        case Pilot::kApproach:
            return "approaching " + pilot.arrival.name;
        case Pilot::kGoAround:
            return "going around";
        case Pilot::kRollout:
            return "rolling out";
        case Pilot::kStopped:
            return "arrived";
    }
    return {};
}

}  // namespace host
