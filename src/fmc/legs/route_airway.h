#pragma once

#include <string_view>

// Airways in the route: the list of an airway's fixes from a fix of the route, and what is taken from it.

/// Fills AirwayFixList with the fixes of an airway ("#" before the name is taken off) that touches leg `fix`
/// of FlightPlanMod, and `awy_start_pos` with the place of that leg's fix on it. `awy_list_cnt` is 0 when the
/// airway is unknown or doesn't touch the fix. Where an airway of that name stands more than once in the
/// database, it is the one that leads from the fix to the end of `row`, if that row has one
/// (ChooseAirwayRun). `side` tells whose page it is.
void LoadAirway(std::string_view name, int row, int fix, int side);

/// The same for an end that is known: the ident of a fix, or a further airway. Empty = not known.
void LoadAirwayTowards(std::string_view name, int fix, std::string_view end);

/// The place of an ident on AirwayFixList, 0 when it isn't there.
int FindFixOnAirway(std::string_view ident);

/// Writes the fixes from the start fix (exclusive) to a place of AirwayFixList (inclusive) behind the start
/// leg of FlightPlanMod, in place of an open end of the airway. Where the next leg is the same fix, the two
/// become one. A place off the list, the start itself, or a start that no longer stands where it
/// stood, changes nothing.
void InsertAirwaySegment(int fix);

/// Opens a leg "THEN" at an index of FlightPlanMod: an airway whose end isn't yet known.
void InsertAirwayPlaceholder(int index, std::string_view airway);
