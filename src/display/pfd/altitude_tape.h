#pragma once

#include "display/pfd/pfd_view.h"

// The altitude side: the tape with the landing altitude, bug, trend and pointer, and the readouts about it.

/// Offset of an altitude on the tape, down positive, kept within the tape.
double AltitudeOffset(double altitude);

void DrawAltitudeTape(const PfdView& view);
void DrawAltitudePointer(const PfdView& view);
/// Altitudes in metres, where the pilot wants them.
void DrawMetres(const PfdView& view);
void DrawSelectedAltitude(const PfdView& view);
