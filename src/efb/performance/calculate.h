#pragma once

/// Works out the take-off page: the analysis, then the speeds, V1 being at most VR. Marks it done and hides
/// the keyboard.
void CalculateTakeoff();

/// Works out the landing page.
void CalculateLanding();

constexpr int kBrakeSettings = 6;
/// "MAX MANUAL", "AUTO BRK 1" to "AUTO BRK 4", "MAX AUTO".
extern const char* const kBrakeNames[kBrakeSettings];

struct LandingConditions {
    double vref_add = 0;     // kt
    double head_wind = 0;    // kt, below 0 = from behind
    int flaps = 30;          // 20, 25, 30
    int anti_ice = 0;        // 0 off, 1 engines, 2 engines and wing
    int reversers_lost = 0;  // 0 none counted, 1 one inoperative, 2 all off
    bool wet = false;
    bool manual_spoiler = false;
};

/// The operational landing distance in feet with a brake setting, 0 to 5. The weight doesn't enter: VREF
/// holds it.
double ComputeLandingDistance(int brakes, const LandingConditions& at);

/// Wind along the runway and across it, kt: from ahead and from the right above 0.
struct RunwayWind {
    double head, cross;
};
RunwayWind WindOnRunway(double wind_dir, double wind_speed, double heading);

/// The flap setting of the take-off page that goes to the FMC: the analysis's where the field says "OPTIMUM".
int TakeoffFlapsChosen();
/// The fixed derate 0, 1 or 2 of the take-off page, and the rating's name, "TO" to "TO2".
int TakeoffReduction();
