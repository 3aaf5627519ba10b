#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/scenario/scenario.h"

// The module's inspection table with its results gathered.

namespace host {

using Results = std::vector<std::pair<std::string, std::string>>;

/// Runs one function of the inspection table; throws CommandError with the module's own reason when it fails.
template <class Function, class... Arguments>
Results Inspect(Function function, Arguments... arguments) {
    Results results;
    const ResultSink sink = [](void* context, const char* name, const char* value) {
        static_cast<Results*>(context)->emplace_back(name, value);
    };
    if (function == nullptr) throw CommandError{"not available yet"};
    if (function(arguments..., sink, &results) != 0) return results;
    throw CommandError{results.empty() ? "failed" : results.back().second};
}

/// The module's table; throws CommandError before `start`.
const InspectionTable& InspectionOf(const Scenario& scenario);

/// A printed list of the module, its lines joined and each ended.
std::string PrintedList(const Scenario& scenario, std::string_view list, const std::string& argument);

}  // namespace host
