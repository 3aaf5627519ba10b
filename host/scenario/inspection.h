#pragma once

#include <string>
#include <string_view>

#include "host/inspection.h"
#include "host/scenario/scenario.h"

// The module's inspection table, for commands: what it refuses is a wrong command.

namespace host {

/// Runs one function of the inspection table; throws CommandError with the module's own reason when it fails.
template <class Function, class... Arguments>
Results Inspect(Function function, Arguments... arguments) {
    InspectionAnswer answer = Ask(function, arguments...);
    if (!answer.good) throw CommandError{answer.error};
    return std::move(answer.results);
}

/// The module's table; throws CommandError before `start`.
const InspectionTable& InspectionOf(const Scenario& scenario);

/// A printed list of the module, its lines joined and each ended.
std::string PrintedList(const Scenario& scenario, std::string_view list, const std::string& argument);

/// The lines of `text` or `draws` for a screen; throws CommandError for a name that is no screen's.
std::string PrintedPicture(const Scenario& scenario, std::string_view list, const std::string& screen);

}  // namespace host
