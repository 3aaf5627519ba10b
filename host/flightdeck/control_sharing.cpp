#include "host/flightdeck/control_sharing.h"

#include <string_view>

#include "host/flightdeck/commands.h"
#include "host/world/world.h"

namespace host {
namespace {

struct ThingRow {
    Thing thing;
    std::string_view told;
    // Levers, variables and areas of the mode control panel; of an area with a step, such as "hdg +10", its
    // first word.
    std::initializer_list<std::string_view> names;
    std::initializer_list<int> events;
};
const ThingRow kThings[] = {
    {kFlapLever, "flaps", {"flaps"}, {0x100a2}},
    {kGearLever, "gear", {"gear"}, {0x10022, 0x10220}},
    {kThrustLevers,
     "thrust",
     {"thrust", "thrust_left", "thrust_right", "atarm", "at", "clbcon", "at_armed_left", "at_armed_right"},
     {0x100a1}},
    {kSpeedbrakeLever, "speedbrake", {"speedbrake", "speedbrake_arm"}, {0x10205, 0x10214}},
    {kAutobrake, "autobrake", {"auto_brake_switch"}, {}},
    {kStick,
     "stick and autopilot",
     {"elevator", "aileron", "rudder", "trim", "apl", "apr", "bar up", "bar down", "TZ_MCP_L_AP_Button",
      "TZ_MCP_AP_DISENGAGE_Bar", "TZ_AP_DISENGAGE_Switch_Right"},
     {0x100e2, 0x100e3, 0x100e4, 0x1002c}},
    {kSpeedWindow, "speed", {"spd", "TZ_MCP_IAS_MACH_Button", "TZ_MCP_XFR_Speed_Button"}, {0x101f5}},
    {kHeadingWindow, "heading", {"hdg", "hdgsel", "hdghold", "lnav", "TZ_MCP_HDG_TRK_Status"}, {0x101fa}},
    {kAltitudeWindow,
     "altitude",
     {"alt", "althold", "vs", "vswheel", "flch", "vnav", "ALT_INTV_knob"},
     {0x1024c, 0x10166, 0x10167, 0x10145}},
    {kApproach, "approach", {"loc", "app", "VorLeftMode"}, {0x100ac}},
};

bool Touches(const ThingRow& row, const DeckCommand& command) {
    if (command.kind == DeckCommand::kKeyEvent) {
        for (const int event : row.events)
            if (command.value == event) return true;
        return false;
    }
    const std::string_view touched = command.kind == DeckCommand::kMouseArea ? command.text : command.name;
    for (const std::string_view name : row.names)
        if (touched == name || (touched.starts_with(name) && touched.substr(name.size()).starts_with(' ')))
            return true;
    return false;
}

}  // namespace

unsigned ThingsTouched(const DeckCommand& command) {
    unsigned things = 0;
    for (const ThingRow& row : kThings)
        if (Touches(row, command)) things |= row.thing;
    return things;
}

void ApplyUserCommand(Session& session, const DeckCommand& command) {
    if (!world.pilot_does.empty()) world.user_has |= ThingsTouched(command);
    ApplyDeckCommand(session, command);
}

void ApplyPilotCommand(Session& session, const DeckCommand& command) {
    if ((ThingsTouched(command) & world.user_has) == 0) ApplyDeckCommand(session, command);
}

std::string TellWhatUserHas() {
    if (world.user_has == kAllThings) return "control";
    std::string told;
    for (const ThingRow& row : kThings)
        if ((world.user_has & row.thing) != 0) told.append(told.empty() ? "" : ", ").append(row.told);
    return told;
}

}  // namespace host
