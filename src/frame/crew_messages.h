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
constexpr int kHelpAirportCode = 6;
constexpr int kHelpNavdataDate = 12;
constexpr int kHelpTodBeforeToc = 24;
constexpr int kHelpDragRequired = 25;

/// Tells the crew something on the CDU: pushes a message on the list of each addressed side (kCaptain,
/// kFirstOfficer, kBothSides). Nothing is posted for a help id without a row, for help 0 with a title that
/// the fixed list doesn't have, and for an advisory whose title the captain's list has already. Where the
/// catalogue's row has a title of its own, `title` goes into the body.
void PostCduMessage(std::string_view title, int kind, int help_id, int side);

/// Removes the first message with that title from each side's list.
void RemoveCduMessageByTitle(std::string_view title);
