#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "navdata/geodesy.h"

/// The longest line of awys.txt when an airway is looked for; what goes beyond is a further line.
constexpr std::size_t kAirwayBound = 199;

// The world has airways of the same name: each run of lines in awys.txt that bear a name and stand together
// is one, counted from 1. All who look for an airway ask ChooseAirwayRun which of them is meant.

/// Where an airway is joined.
struct AirwayStart {
    std::string_view ident = {};       // empty = anywhere
    std::optional<LatLon> place = {};  // of that fix, or near it
};

/// The run that bears the fix where it is joined: first one that passes the place itself, then one that leads
/// to `towards` (the ident of a fix or the name of a further airway; empty = not known), then the one nearest
/// to the place, then the first. 0 = none bears the fix. A "#" before the name is taken off.
int ChooseAirwayRun(std::string_view name, const AirwayStart& start, std::string_view towards);

/// Collects the fixes of an airway into `nav.EntryCandidates`, in the file's order, at most 250: those of a
/// run, or with `run` 0 of the one that bears `from_ident`, the first where none does. Sets
/// `nav.entry_list_pos` to the place of `from_ident` among them (0 = not there) and `nav.entry_list_page` to
/// the page of 16 that shows it. Gives their number.
int LoadAirway(std::string_view name, std::string_view from_ident, int run = 0);

struct AirwayCrossing {
    int index = 0;    // on the first airway, the last fix that the second bears too; 0 = none
    int context = 0;  // on the first airway, the fix of the ident given; 0 = not on it
};

/// Where two airways meet, numbered from 1 on the run of the first that bears `context` and meets the second.
AirwayCrossing FindAirwayCrossing(std::string_view airway1, std::string_view airway2,
                                  std::string_view context);
