#include "host/fly/pilot.h"

#include "host/flightdeck/commands.h"
#include "host/world/world.h"

namespace host {
namespace {

// The autopilot's own events, as a hardware panel sends them.
constexpr int kSetAltitude = 0x1024c, kSetSpeed = 0x101f5;
constexpr double kMainAutopilotSeconds = 12;
constexpr double kFeetPerNm = 300;  // of the descent
constexpr int kClimbSpeed = 290, kCruiseSpeed = 275, kDescentSpeed = 280, kArrivalSpeed = 220;

void Set(Session& session, int event, double value) {
    ApplyDeckCommand(session,
                     {.kind = DeckCommand::kKeyEvent, .value = static_cast<double>(event), .x = value});
}

void Press(Session& session, const char* control) {
    ApplyDeckCommand(session, {.kind = DeckCommand::kMouseArea, .name = "MCP", .text = control});
}

// What a crew has set before the take-off, by the second of the run: the system polls its panels from the
// eighth on, and a guard must be open when its switch is moved.
struct Setting {
    int second;
    const char* variable;
    double value;
};
constexpr Setting kSettings[] = {
    {9, "TZ_OH_ECC_L_Guard_Switch", 1},  {9, "TZ_OH_ECC_R_Guard_Switch", 1},
    {9, "TZ_OH_VENT_Guard_Switch", 1},   {9, "TZ_OH_GENCTL_L1_Button", 1},
    {9, "TZ_OH_GENCTL_L2_Button", 1},    {9, "TZ_OH_GENCTL_R1_Button", 1},
    {9, "TZ_OH_GENCTL_R2_Button", 1},    {9, "TZ_OH_CAB_UTIL_Button", 1},
    {9, "TZ_OH_PASS_SEATS_Button", 1},   {9, "TZ_OH_IRS_LEFT_Switch", 1},
    {9, "TZ_OH_IRS_RIGHT_Switch", 1},    {9, "TZ_OH_HYD_L_ENG_Button", 1},
    {9, "TZ_OH_HYD_R_ENG_Button", 1},    {9, "TZ_OH_ELEC_L_Switch", 1},
    {9, "TZ_OH_ELEC_C1_Switch", 1},      {9, "TZ_OH_ELEC_C2_Switch", 1},
    {9, "TZ_OH_ELEC_R_Switch", 1},       {9, "TZ_OH_LPUMP_FWD_Button", 1},
    {9, "TZ_OH_LPUMP_AFT_Button", 1},    {9, "TZ_OH_RPUMP_FWD_Button", 1},
    {9, "TZ_OH_RPUMP_AFT_Button", 1},    {9, "TZ_OH_CNTRPUMP_L_Button", 1},
    {9, "TZ_OH_CNTRPUMP_R_Button", 1},   {9, "TZ_OH_ENG_L_START_Switch", 1},
    {9, "TZ_OH_ENG_R_START_Switch", 1},  {9, "TZ_OH_AC_LPACK_Button", 1},
    {9, "TZ_OH_AC_RPACK_Button", 1},     {9, "TZ_OH_TRIMAIR_L_Button", 1},
    {9, "TZ_OH_TRIMAIR_R_Button", 1},    {9, "TZ_OH_EQPCOOL_FWD_Button", 1},
    {9, "TZ_OH_EQPCOOL_AFT_Button", 1},  {9, "TZ_OH_OV_FWD_Button", 1},
    {9, "TZ_OH_OV_AFT_Button", 1},       {9, "TZ_OH_FWDCARGO_AC_Button", 1},
    {9, "TZ_OH_Bulk_Button", 1},         {9, "TZ_OH_WING_ANTICE_Switch", 1},
    {9, "TZ_OH_AI_L_ENG_Switch", 1},     {9, "TZ_OH_AI_R_ENG_Switch", 1},
    {9, "TZ_OH_PRMY_L_SIDE_Button", 1},  {9, "TZ_OH_PRMY_L_FWD_Button", 1},
    {9, "TZ_OH_PRMY_R_FWD_Button", 1},   {9, "TZ_OH_PRMY_R_SIDE_Button", 1},
    {9, "TZ_OH_WH_LFWD_Button", 1},      {9, "TZ_OH_WH_RFWD_Button", 1},
    {9, "TZ_OH_SEATB_SIGN_Switch", 1},   {9, "TZ_OH_FD_DOOR_Button", 1},
    {9, "TZ_OH_LT_BEACON_Button", 1},    {9, "TZ_OH_LT_NAV_Button", 1},
    {9, "TZ_OH_LT_LOGO_Button", 1},      {9, "TZ_OH_LT_STROBE_Switch", 1},
    {9, "TZ_MCP_L_FD_Switch", 1},        {9, "TZ_MCP_R_FD_Switch", 1},
    {10, "TZ_OH_ECC_L_Button", 1},       {10, "TZ_OH_ECC_R_Button", 1},
    {10, "TZ_OH_AC_VENT_Button", 1},     {11, "TZ_OH_ECC_L_Guard_Switch", 0},
    {11, "TZ_OH_ECC_R_Guard_Switch", 0}, {11, "TZ_OH_VENT_Guard_Switch", 0},
};

void SetSwitches(Session& session, int second) {
    for (const Setting& setting : kSettings)
        if (setting.second == second)
            ApplyDeckCommand(
                session,
                {.kind = DeckCommand::kNamedVariable, .name = setting.variable, .value = setting.value});
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
            SetSwitches(session, static_cast<int>(world.seconds));
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
