#pragma once

#include <span>

#include "platform/panel_gauges.h"

/// The mouse areas of the MCP gauge. A button has one of its own name ("lnav"); a knob has four, for a big or
/// a small step either way ("hdg -10", "hdg -1", "hdg +1", "hdg +10"); the disengage bar two.
std::span<const MouseRectangle> McpMouseAreas();
