#pragma once

/// Reads the elevation of the ground below the aircraft.
void ReadTerrainBelow();
