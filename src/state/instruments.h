#pragma once

#include <array>
#include <span>

#include "state/variable.h"

/// What a pilot has chosen on a primary flight display.
struct PfdSide {
    int fpv_on = 0;    // flight path vector
    int mtrs_on = 0;   // metric altitudes
    int baro_hpa = 0;  // barometric setting in hPa, else inches
};

/// The settings of the flight instruments outside the navigation displays.
struct InstrumentState {
    std::array<PfdSide, 2> pfd;  // captain, first officer
    int minimums_baro = 0;       // 1 by the barometric altitude, 0 by the radio altitude
    int minimums_value = 200;    // ft
    int minimums_mode = 0;       // 0 shown, 1 alerting, 2 hidden
    int dh_set = 0;              // the host's decision height has read 200
    int hud_declutter = 0;       // no tapes and no compass rose
    double stby_brightness = 1;  // 0 to 1
    int stby_app_mode = 0;       // 0, or 2 = approach
    int stby_baro_in = 0;        // 1 inches of mercury, else hPa
};

extern InstrumentState instruments;
extern const std::span<const Variable> kInstrumentVariables;
