#include "host/autoflight/autoflight_logic.h"

#include <algorithm>
#include <cmath>

#include "host/autoflight/approach.h"
#include "host/autoflight/autothrottle.h"
#include "host/autoflight/flight_values.h"
#include "host/autoflight/lateral.h"
#include "host/autoflight/protection.h"
#include "host/autoflight/vertical.h"
#include "host/autoflight/vnav.h"
#include "host/world/world.h"

namespace host {
namespace {

constexpr int kDisconnect = 1, kWarningDisconnect = 2;  // of ap_master_disconnect

// The airspeed needle's own rate, smoothed over a second.
void MeasureSpeedRate(AutoflightLogic& logic, const FlightValues& now, double dt) {
    if (dt <= 0) return;
    if (logic.smooth_ias == 0) logic.smooth_ias = now.ias;
    constexpr double kSmoothing = 1.0;
    const double change = (now.ias - logic.smooth_ias) * std::min(dt / kSmoothing, 1.0);
    logic.smooth_ias += change;
    logic.ias_rate = change / dt;
}

void Engage(AutoflightLogic& logic, const FlightValues& now) {
    logic.engaged = true;
    logic.bank_command = now.bank;
    logic.path_command = now.path;
    if (logic.lateral == kLateralNone) {
        logic.held_bank = std::clamp(now.bank, -30.0, 30.0);
        if (std::fabs(now.bank) > 5)
            logic.lateral = kAttitude;
        else
            HoldDirection(logic, now);
    }
    if (logic.vertical == kVerticalNone) {
        logic.vertical = kVerticalSpeed;
        SetToken(120, std::round(now.vertical_speed / 100) * 100);
    }
}

void Disengage(AutoflightLogic& logic) {
    logic.engaged = false;
    logic.lateral = logic.lateral_armed = kLateralNone;
    logic.vertical = logic.vertical_armed = kVerticalNone;
}

void TakeAutopilotButton(AutoflightLogic& logic, const FlightValues& now) {
    if (NamedValue("TZ_MCP_L_AP_Button") == 0) return;
    SetNamedValue("TZ_MCP_L_AP_Button", 0);
    const bool bar_down = NamedValue("TZ_MCP_AP_DISENGAGE_Bar") == 1;
    if (!logic.engaged && !now.on_ground && !bar_down) Engage(logic, now);
}

// The switch on the wheel: the first press lets go, the next ends the warning.
void TakeWheelSwitch() {
    if (NamedValue("TZ_AP_DISENGAGE_Switch_Right") == 0) return;
    SetNamedValue("TZ_AP_DISENGAGE_Switch_Right", 0);
    SetNamedValue("ap_master_disconnect", kDisconnect);
}

// Take-off thrust on the runway holds the runway's heading until other modes take over in the air.
void BeginTakeoff(AutoflightLogic& logic, const FlightValues& now) {
    if (!now.on_ground || logic.throttle != kThrustReference) return;
    logic.took_off = true;
    if (logic.vertical == kVerticalNone) logic.vertical = kVerticalToGa;
    if (logic.lateral != kLateralNone) return;
    const int armed = logic.lateral_armed;
    GoAroundLaterally(logic, now);
    logic.lateral_armed = armed;
}

// The system looks at a disconnect before the autopilot lets go, and is told afterwards to warn of it.
void TakeDisconnect(AutoflightLogic& logic) {
    constexpr int kSeenByTheSystem = 2;
    if (NamedValue("ap_master_disconnect") != kDisconnect) {
        logic.disconnect_ticks = 0;
        return;
    }
    if (++logic.disconnect_ticks < kSeenByTheSystem) return;
    logic.disconnect_ticks = 0;
    SetNamedValue("ap_master_disconnect", logic.engaged ? kWarningDisconnect : 0);
    Disengage(logic);
}

// Where the flight director wants the nose, degrees up: what the path needs with the present incidence, and
// on the runway what the take-off begins with.
double DirectorPitch(const AutoflightLogic& logic, const FlightValues& now) {
    constexpr double kTakeoffPitch = 8;
    if (now.on_ground) return logic.vertical == kVerticalToGa ? kTakeoffPitch : 0;
    return logic.path_command + now.pitch - now.path;
}

void Report(const AutoflightLogic& logic) {
    const double engaged = logic.engaged ? 1 : 0;
    for (const char* name : {"ap_master_l", "tz_ap_master_l"}) SetNamedValue(name, engaged);
    SetNamedValue("ap_lat_mode", logic.lateral);
    SetNamedValue("ap_lat_mode_armed", logic.lateral_armed);
    SetNamedValue("ap_vert_mode", logic.vertical);
    SetNamedValue("ap_vert_mode_armed", logic.vertical_armed);
    SetNamedValue("at_mode", logic.throttle);
    SetNamedValue("ap_envelope_prot", logic.protects ? 1 : 0);
    SetNamedValue("tz_spd_intv_active", logic.speed_intervention ? 1 : 0);
    SetToken(106, engaged);
}

}  // namespace

AutoflightCommands StepAutoflight(AutoflightLogic& logic, double dt) {
    const FlightValues now = ReadFlightValues();
    if (logic.throttle == kThrottleNone) logic.lever_command = std::clamp(TokenOf(128) / 16384, 0.0, 1.0);
    MeasureSpeedRate(logic, now, dt);
    TakeAutopilotButton(logic, now);
    TakeWheelSwitch();
    TakeDisconnect(logic);
    FollowSpeedWindow(logic, now);
    UpdateLateralMode(logic, now);
    UpdateVerticalMode(logic, now);
    UpdateApproach(logic, now);
    UpdateThrottleMode(logic, now);
    BeginTakeoff(logic, now);
    if (!now.on_ground && now.radio_altitude > NamedValue("tz_accel_ht")) logic.took_off = false;

    constexpr double kBankRate = 7, kPathRate = 1.0;  // degrees a second
    logic.bank_command = Slew(logic.bank_command, LateralBank(logic, now, dt), kBankRate * dt);
    const double path = ProtectEnvelope(logic, now, VerticalPath(logic, now, dt), dt);
    logic.path_command = Slew(logic.path_command, path, kPathRate * dt);
    if (now.on_ground && logic.lateral == kRollout) logic.path_command = 0;
    logic.lever_command = ThrustLever(logic, now, dt);
    Report(logic);
    ReportThrustLimit(now);
    AutoflightCommands commands;
    // In the take-off the pilot's hands follow the flight director.
    commands.flies = logic.engaged || logic.vertical == kVerticalToGa || logic.took_off;
    commands.bank = logic.bank_command;
    commands.path = logic.path_command;
    commands.steering = GroundSteering(logic, now);
    commands.moves_levers = logic.throttle != kThrottleNone && logic.throttle != kThrottleHold;
    commands.thrust_lever = logic.lever_command;
    ShowSpeedTarget(logic, now);
    ReportAltitudeAlert(logic, now);
    SetNamedValue("TZ_FD_Bank", -logic.bank_command);
    SetNamedValue("TZ_FD_Pitch", -DirectorPitch(logic, now));
    return commands;
}

}  // namespace host
