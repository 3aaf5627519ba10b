#pragma once

#include <string>

struct PageCall;

// Lines that several performance pages have.

/// CRZ ALT on the first line, on the left or on the right.
void CruiseAltitudeLine(PageCall& call, bool left);

/// An altitude (ft) typed for the cruise: in force at once, or with EXEC when a route is flown.
void StoreCruiseAltitude(double altitude);

/// A step size for EXEC in the states 3 and 4, before them in force at once.
void EnterStepSize(PageCall& call);
/// "ICAO", "RVSM" or feet, as the pages show it.
std::string StepSizeText();

/// The assumed temperature, and DELETE of it.
void EnterAssumedTemperature(PageCall& call);

/// What an entry changed bears on the profile of the route that is flown.
void RefreshProfile();

/// Above the sixth line: dashes, and whether the FMC has all that it needs for the flight.
void PreflightLine(PageCall& call);
/// The same on a page that has a label there.
void PreflightMark(PageCall& call);

/// A degree sign in the font of the display units.
constexpr const char* kDegree = "\xb0";
