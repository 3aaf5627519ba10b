#pragma once

#include "display/synoptics/sys_words.h"

void DrawStatPage(const SysPage& page);

/// What a hydraulic reservoir holds, as a ratio: pressure has drawn some of it into the lines.
constexpr double ReservoirRatio(double full, int pressure) {
    return full - pressure * 0.00001;
}
constexpr double kSideReservoir = 1.02, kCentreReservoir = 1.01;
