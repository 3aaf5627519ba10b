#include "host/flightdeck/values.h"

#include <algorithm>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <optional>

#include "host/flight.h"
#include "host/flightdeck/control_sharing.h"
#include "host/flightdeck/messages.h"
#include "host/inspection.h"
#include "host/scenario/words.h"
#include "host/version.h"
#include "host/world/world.h"

namespace host {
namespace {

using nlohmann::json;

// Ten digits: more than a page shows, and a value that jitters below them needn't be sent.
std::string ShortNumber(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.10g", value);
    return text;
}

std::optional<std::string> HostValue(std::string_view name) {
    const bool plays = world.played_rate >= 0;
    if (name == "rate") return ShortNumber(plays ? world.played_rate : world.sim_rate);
    if (name == "pilot") return world.pilot_does;
    if (name == "user_has") return TellWhatUserHas();
    if (name == "paused") return (plays ? world.played_rate == 0 : world.paused) ? "1" : "0";
    if (name == "clock") {
        char text[16];
        std::snprintf(text, sizeof text, "%02.0f:%02.0f:%02.0f", TokenOf(6), TokenOf(7), TokenOf(5));
        return text;
    }
    if (name.starts_with("fail:"))
        if (const FailureRow* row = FindFailure(name.substr(5)))
            return flight.aircraft.fails[row->failure] ? "1" : "0";
    if (name.starts_with("ground:"))
        if (const GroundRow* row = FindGroundService(name.substr(7)))
            return IsSet(flight.aircraft, *row) ? "1" : "0";
    return {};
}

std::optional<std::string> ValueOf(const Session& session, const std::string& name) {
    if (name.starts_with("lvar:")) {
        if (!NamedVariableExists(name.substr(5))) return {};
        return ShortNumber(NamedValue(name.substr(5)));
    }
    if (name.starts_with("host:")) return HostValue(name.substr(5));
    if (name.starts_with("token:")) {
        const std::optional<int> token = ParseInt(std::string_view(name).substr(6));
        if (!token) return {};
        return ShortNumber(TokenOf(*token));
    }
    if (name.starts_with("aircraft:")) {
        double value = 0;
        if (!AircraftValue(name.substr(9), value)) return {};
        return ShortNumber(value);
    }
    const InspectionAnswer answer = Ask(session.linkage->inspection->read_variable, name.c_str());
    if (!answer.good || answer.results.empty()) return {};
    constexpr std::size_t kLongest = 500;
    return answer.results.front().second.substr(0, kLongest);
}

}  // namespace

std::map<std::string, std::string> ReadValues(const Session& session, const std::set<std::string>& names) {
    std::map<std::string, std::string> values;
    for (const std::string& name : names)
        if (auto value = ValueOf(session, name)) values.emplace(name, std::move(*value));
    return values;
}

std::string DeckGreeting(const Session& session) {
    const InspectionTable& inspection = *session.linkage->inspection;
    json greeting{{"type", "hello"}, {"version", kVersion}};
    for (const auto& [family, file] : Ask(inspection.list_fonts).results) greeting["fonts"].push_back(family);
    constexpr double kHandleDown = 16384;
    for (const double degrees : FlapStops(flight.airframe))
        greeting["flaps"].push_back({degrees, HandleOfFlapAngle(flight.airframe, degrees) / kHandleDown});
    greeting["controls"] = json::object();
    for (const auto& [name, told] : Ask(inspection.list_controls).results) greeting["controls"][name] = told;
    greeting["variables"] = json::object();
    for (const auto& [name, type] : Ask(inspection.list_variables, "").results)
        greeting["variables"][name] = type;
    for (const FailureRow& row : FailureRows())
        greeting["failures"].push_back({row.name, row.told, row.group});
    for (const GroundRow& row : GroundRows())
        greeting["ground"].push_back({row.name, row.told, row.expression.empty() ? "Services" : "Doors"});
    std::vector<std::string> named;
    for (const NamedVariable& variable : world.named)
        if (variable.exists) named.push_back(variable.name);
    std::sort(named.begin(), named.end());
    greeting["named"] = named;
    return WriteMessage(greeting);
}

}  // namespace host
