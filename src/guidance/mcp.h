#pragma once

#include <string_view>

// The mode control panel: its buttons write requests that AutoflightLogic takes up, its knobs send the host's
// autopilot events.

/// Presses a button: "lnav vnav flch vs althold app loc hdgsel hdghold at clbcon apl apr atarm". False for
/// another name.
bool PressMcpButton(std::string_view button);

/// Turns a knob, "spd hdg alt vswheel", by detents: 1 is a small step, 10 a big one, negative down. False for
/// another name. What would leave the knob's limits stops at them.
bool TurnMcpKnob(std::string_view knob, int detents);

/// Moves the autopilot disengage bar down or back up.
void MoveDisengageBar(bool down);

/// Presses the altitude knob: before the top of climb and after the top of descent it takes the next altitude
/// constraint away; in cruise with VNAV engaged a higher MCP altitude becomes the cruise altitude.
void PushAltitudeKnob();

/// Changes the speed window over between knots and Mach.
void ChangeOverIasMach();

/// Puts the speed that VNAV flies into the speed window. Without one the window stays.
void TransferFmcSpeed();
