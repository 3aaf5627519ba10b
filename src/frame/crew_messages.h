#pragma once

#include <string_view>

#include "state/side.h"

// Kinds of CDU message: what the message window does with it.
constexpr int kAdvisory = 1;
constexpr int kRefusedOperation = 2;
constexpr int kFileStored = 3;
constexpr int kEntryError = 4;
constexpr int kAmberAdvisory = 99;
constexpr int kRedAdvisory = 100;

// Help ids: the row of the catalogue that gives the body. 0 looks the title up in the fixed list.
constexpr int kHelpFixedList = 0;
constexpr int kHelpFlightPlanSaved = 1;
constexpr int kHelpReserves = 2;
constexpr int kHelpCostIndex = 4;
constexpr int kHelpReferenceAirport = 5;
constexpr int kHelpAirportCode = 6;
constexpr int kHelpCompanyRoute = 7;
constexpr int kHelpNotAllowed = 8;
constexpr int kHelpRoute = 9;
constexpr int kHelpFix = 10;
constexpr int kHelpTakeoffCg = 11;
constexpr int kHelpNavdataDate = 12;
constexpr int kHelpRnp = 13;
constexpr int kHelpAltnInhibit = 15;
constexpr int kHelpFlightNumber = 16;
constexpr int kHelpAssumedTemperature = 17;
constexpr int kHelpTakeoffWeight = 18;
constexpr int kHelpGate = 19;
constexpr int kHelpCruiseAltitude = 20;
constexpr int kHelpIls = 21;
constexpr int kHelpTransitionLevel = 22;
constexpr int kHelpInertialOrigin = 23;
constexpr int kHelpTodBeforeToc = 24;
constexpr int kHelpDragRequired = 25;
constexpr int kHelpWindCorrection = 34;
constexpr int kHelpCruiseCg = 35;
constexpr int kHelpAccelerationHeight = 36;
constexpr int kHelpThrustReduction = 37;
constexpr int kHelpInertialPosition = 38;
constexpr int kHelpFuelWeight = 39;
constexpr int kHelpZeroFuelWeight = 40;
constexpr int kHelpOrigin = 41;
constexpr int kHelpDestination = 42;
constexpr int kHelpSpeed = 43;
constexpr int kHelpStepSize = 44;
constexpr int kHelpDragFuelFlow = 46;
constexpr int kHelpWindAltitude = 48;
constexpr int kHelpWeatherMissing = 50;
constexpr int kHelpAntiIce = 51;
constexpr int kHelpVref = 52;
constexpr int kHelpWindEntry = 53;
constexpr int kHelpFourWinds = 54;
constexpr int kHelpAltOat = 55;
constexpr int kHelpWindsLoaded = 56;
constexpr int kHelpWindsReady = 57;

constexpr std::string_view kDragRequired = "DRAG REQUIRED";  // its monitor knows it by its title

/// Tells the crew something on the CDU: pushes a message on the list of each addressed side (kCaptain,
/// kFirstOfficer, kBothSides). Nothing is posted for a help id without a row, for help 0 with a title that
/// the fixed list doesn't have, and for an advisory whose title the captain's list has already. Where the
/// catalogue's row has a title of its own, `title` goes into the body.
void PostCduMessage(std::string_view title, int kind, int help_id, int side);

/// A message of that title stands in the captain's list.
bool IsCduMessagePosted(std::string_view title);

/// Removes the first message with that title from each side's list.
void RemoveCduMessageByTitle(std::string_view title);

/// CLR MSG: removes the newest message of a side, and the same message (title, body, kind) from the other
/// side's list. "DRAG REQUIRED" goes from both lists by its title, and its monitor counts from now.
void ClearCduMessage(int side);
