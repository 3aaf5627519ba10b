#pragma once

#include <span>
#include <string>
#include <string_view>

#include "state/variable_directory.h"

// What a panel state file holds: one table that the writer and the reader share.

enum class PanelNumber { kWhole, kRound, kTenths, kHundredths, kDegrees, kText };

/// What a key is to the route that the file may hold.
enum class PanelKeyUse {
    kOwn,          // nothing: it counts whether there is a route or not
    kOfRoute,      // taken only with legs
    kLegOfRoute,   // the same, and it is the place of a leg
    kRunway,       // taken only where the airport has as many runways
    kOnlyWritten,  // for other programs
    kOnlyRead,
};

struct PanelKey {
    std::string_view section = {};  // a row with a section begins it, and is nothing else
    std::string_view name = {};
    PanelNumber style = PanelNumber::kWhole;
    PanelKeyUse use = PanelKeyUse::kOwn;
    void (*then)(double value) = nullptr;  // what a load does beyond storing the value
    std::string_view variable = {};        // where it bears another name in the directory
};

/// In the order in which they are written.
std::span<const PanelKey> PanelKeys();

/// The row of a key, letters in any case; null for one that isn't known, or isn't read.
const PanelKey* FindPanelKey(std::string_view name);

/// The value as the file has it.
std::string PanelText(const PanelKey& key);

/// Stores a value as the file has it; what is no number counts as 0, one beyond any sense too.
void StorePanelText(const PanelKey& key, std::string_view text);
