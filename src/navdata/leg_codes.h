#pragma once

#include <string>
#include <string_view>

#include "navdata/geodesy.h"

// Coded legs: a leg without a fix of its own, such as "/RT/H300/IC270": turn right to heading 300 until
// intercepting course 270 of the fix. Loading turns each into a computed end point.

struct LegCode {
    int turn = 0;     // 0 none, 1 left, 2 right
    char letter = 0;  // 'T' track, 'H' heading, 'C' course
    int course = 0;   // degrees magnetic
    enum Until { kNothing, kIntercept, kDistance, kAltitude, kVectors } until = kNothing;
    double limit = 0;  // of kIntercept the inbound course (degrees magnetic), of kDistance nm
};

/// False for a text that is no code, also where only its end is none.
bool ParseLegCode(std::string_view text, LegCode& code);

/// The name under which a coded leg is shown: "(INTC)", "VECTORS", "(1200)" or "HD190".
std::string LegCodeIdent(const LegCode& code, std::string_view alt_token);

/// "1600023000B": two bounds of five digits.
bool IsAltitudeWindow(std::string_view alt_token);
/// The altitude of a token, ft; of a window its lower bound. 0 = none, or none that an aircraft could have.
int AltitudeOfToken(std::string_view alt_token);

/// What a coded leg is computed from.
struct LegCodeInput {
    LatLon start;                // where the leg begins
    double entry_course;         // degrees magnetic, on which the aircraft comes to it
    LatLon reference;            // the fix of the code's line
    double altitude = 0;         // ft, of the line
    double elevation = 0;        // ft, of the airport
    int variation = 0;           // degrees, east positive
    double climb_speed = 250;    // kt
    std::string_view role = {};  // of an approach's leg: "FAF", "MAF" ...
};

/// A heading with a turn, but for one of the missed approach: it follows a procedure turn, whose two legs
/// stand before it.
bool IsProcedureTurn(const LegCode& code, std::string_view role);

constexpr int kLegFails = -99;

/// The end of a coded leg: 0, or kLegFails and `end` unchanged. `start` moves where a turn begins the leg.
int ComputeDepartureLeg(const LegCode& code, LegCodeInput& input, LatLon& end);
/// The same rules.
int ComputeArrivalLeg(const LegCode& code, LegCodeInput& input, LatLon& end);
/// The same, with the gentler climb of a missed approach. Behind a procedure turn the turn has been flown.
int ComputeApproachLeg(const LegCode& code, LegCodeInput& input, LatLon& end);
