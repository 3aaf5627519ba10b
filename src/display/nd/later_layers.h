#pragma once

#include "display/nd/nd_frame.h"

// Layers whose data nothing gathers yet: they stand in the order of the picture, and draw nothing.

inline void DrawWeather(Graphics&, const NdFrame&) {}
inline void DrawTerrainDots(Graphics&, const NdFrame&) {}
inline void DrawAirportMap(Graphics&, const NdFrame&) {}
inline void DrawTraffic(Graphics&, const NdFrame&) {}
/// Below the map, in the frame of the display.
inline void DrawVsd(Graphics&, const NdFrame&) {}
