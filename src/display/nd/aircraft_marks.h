#pragma once

#include "display/nd/nd_frame.h"

// What stands about the aircraft itself.

/// The scale on the aircraft's axis with its label, the weather radar's arcs, and the ring of close traffic.
void DrawRangeMarks(Graphics& graphics, const NdFrame& frame);

/// MAP: the aircraft, with its distance off the leg. PLAN: its outline where it is.
void DrawAircraft(Graphics& graphics, const NdFrame& frame);

/// Where the present bank leads in 30, 60 and 90 seconds; farther out from 20 nm of range on.
void DrawTrendVector(Graphics& graphics, double scale, double range);

/// Where a descent at the present vertical speed reaches the selected altitude.
void DrawAltitudeRangeArc(Graphics& graphics, double scale);

/// Beside the compass, near a pole: the heading in the polar grid.
void DrawTopBox(Graphics& graphics, const NdFrame& frame);
