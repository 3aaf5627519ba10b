#pragma once

#include <string>
#include <utility>
#include <vector>

#include "host/session.h"

// The module's inspection table with its results gathered.

namespace host {

using Results = std::vector<std::pair<std::string, std::string>>;

struct InspectionAnswer {
    bool good = false;
    Results results;
    std::string error;  // the module's own reason when it isn't good
};

/// Runs one function of the inspection table.
template <class Function, class... Arguments>
InspectionAnswer Ask(Function function, Arguments... arguments) {
    InspectionAnswer answer;
    if (function == nullptr) return {false, {}, "not available yet"};
    const ResultSink sink = [](void* context, const char* name, const char* value) {
        static_cast<Results*>(context)->emplace_back(name, value);
    };
    answer.good = function(arguments..., sink, &answer.results) != 0;
    if (!answer.good) answer.error = answer.results.empty() ? "failed" : answer.results.back().second;
    return answer;
}

/// A variable of the module by its path; empty for an unknown one.
std::string ReadVariable(const Session& session, const std::string& path);

/// Enters a filed route text; activates and executes what has been entered. False with the reason.
bool EnterRoute(const Session& session, const std::string& text, std::string& error);
bool ExecuteRoute(const Session& session, std::string& error);

}  // namespace host
