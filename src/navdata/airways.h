#pragma once

#include <cstddef>
#include <string_view>

/// The longest line of awys.txt when an airway is looked for; what goes beyond is a further line.
constexpr std::size_t kAirwayBound = 199;

/// Collects the fixes of an airway into `nav.EntryCandidates`, in the file's order: those of the first lines
/// that bear its name and stand together, at most 250. A "#" before the name is taken off. Sets
/// `nav.entry_list_pos` to the place of `from_ident` among them (0 = not there) and `nav.entry_list_page` to
/// the page of 16 that shows it. Gives their number.
///
/// The world has namesakes: `run` 2 gives the fixes of the next lines of that name that stand together, and
/// so on; beyond the last of them the list is empty.
int LoadAirway(std::string_view name, std::string_view from_ident, int run = 1);

struct AirwayCrossing {
    int index = 0;    // on the first airway, the last fix that the second bears too; 0 = none
    int context = 0;  // on the first airway, the fix of the ident given; 0 = not on it
};

/// Where two airways meet, fixes compared by ident, numbered from 1.
AirwayCrossing FindAirwayCrossing(std::string_view airway1, std::string_view airway2,
                                  std::string_view context);
