#pragma once

#include "display/nd/map_view.h"

/// The route as a line: what is flown from the active leg on, with its turns, and a modification that waits.
/// With `corridor` a band of 1 nm to either side goes with the active route. Stands in the map's frame.
void DrawRouteLines(Graphics& graphics, const MapView& view, bool corridor);

/// The setting DrawDirectRteLines: straight lines from place to place.
void DrawDirectLines(Graphics& graphics, const MapView& view);

/// Whether the modification is drawn: a route entered or activated, or changes of the active one.
bool IsModificationDrawn();
