#pragma once

#include <span>

#include "platform/panel_gauges.h"

// What the mouse does on the gauges, and the bitmaps that the two-dimensional panels show.

// An area of a control bears the name of its variable; where the two buttons of the mouse differ, the right
// one goes up, opens a guard or brightens.
std::span<const MouseRectangle> OverheadAreas();
std::span<const MouseRectangle> DisplaySelectAreas(int side);
std::span<const MouseRectangle> KeypadAreas(int side);
std::span<const MouseRectangle> EngineStartAreas();
std::span<const MouseRectangle> WindowToggleAreas();
std::span<const MouseRectangle> GearAutobrakeAreas();
std::span<const MouseRectangle> DisplaySelectorAreas();
std::span<const MouseRectangle> ClockAreas();
std::span<const MouseRectangle> CancelRecallAreas();
std::span<const MouseRectangle> WeatherAreas();
std::span<const MouseRectangle> TrafficAreas();
std::span<const MouseRectangle> TerrainAreas();
/// The whole screen of a Display Unit, 1 to 5.
std::span<const MouseRectangle> DisplayUnitAreas(int unit);
/// A tablet's canvas, and beside it the keys of its bezel.
std::span<const MouseRectangle> TabletAreas(int side);

/// The service of OVERHEAD. Its elements are pictures of controls and lamps, shown and hidden by what they
/// stand for: one for each position above the lowest of each overhead control, in the order of the poll, then
/// one for each overhead lamp.
void ServeOverhead(GaugeInstance* instance, int32_t service_id);
