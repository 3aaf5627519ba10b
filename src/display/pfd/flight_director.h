#pragma once

#include "display/pfd/pfd_view.h"

/// Whether a side shows the director's commands.
bool IsDirectorShown(int side);
/// Degrees by which the nose is to go down, up negative.
double DirectorPitchError();
/// Degrees by which the aircraft is to roll right, left negative; at most 25.
double DirectorRollError();

/// The commands as a pair of bars, or as a chevron for the aircraft symbol to fly into.
void DrawFlightDirector(const PfdView& view);
