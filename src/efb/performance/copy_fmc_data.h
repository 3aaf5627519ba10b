#pragma once

/// Takes the FMC's airports, runways, take-off flaps, weight and centre of gravity into both performance
/// pages; what the FMC hasn't got stays as it is.
void CopyFmcData(int side, int number);
