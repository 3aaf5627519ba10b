#include "module/pure_functions.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <vector>

#include "base/angles.h"
#include "fmc/legs/path.h"
#include "fmc/performance/predictions.h"
#include "navdata/airways.h"
#include "navdata/geodesy.h"
#include "navdata/magnetic_model.h"

namespace {

/// The words behind the function's name, and their numbers where they are numbers.
struct Arguments {
    std::vector<std::string> words;
    std::vector<double> numbers;
};

struct PureFunction {
    std::string_view name;
    int argument_count;
    bool numeric;  // all arguments are numbers
    void (*call)(const Arguments& arguments, const Results& results);
};

constexpr PureFunction kPureFunctions[] = {
    {"GreatCircle", 4, true,
     [](const Arguments& a, const Results& r) {
         const DistBearing result = GreatCircle(a.numbers[0], a.numbers[1], a.numbers[2], a.numbers[3]);
         r.Add("dist", result.dist);
         r.Add("bearing", result.bearing);
     }},
    {"ProjectPoint", 4, true,
     [](const Arguments& a, const Results& r) {
         const LatLon result = ProjectPoint(a.numbers[0], a.numbers[1], a.numbers[2], a.numbers[3]);
         r.Add("lat", result.lat);
         r.Add("lon", result.lon);
     }},
    {"IntersectBearings", 6, true,
     [](const Arguments& a, const Results& r) {
         LatLon at = {};
         const int result = IntersectBearings(a.numbers[0], a.numbers[1], a.numbers[2], a.numbers[3],
                                              a.numbers[4], a.numbers[5], at.lat, at.lon);
         r.Add("result", result);
         r.Add("lat", at.lat);
         r.Add("lon", at.lon);
     }},
    {"WindComponents", 3, true,
     [](const Arguments& a, const Results& r) {
         const WindParts wind = WindComponents(a.numbers[0], a.numbers[1], a.numbers[2]);
         r.Add("crosswind", wind.crosswind);
         r.Add("headwind", wind.headwind);
     }},
    {"FormatLatLon", 2, true,
     [](const Arguments& a, const Results& r) {
         r.Add("lat_text", FormatLatitude(a.numbers[0]));
         r.Add("lon_text", FormatLongitude(a.numbers[1]));
     }},
    {"ParseLatLonCompact", 2, false,
     [](const Arguments& a, const Results& r) {
         const LatLon at = ParseLatLonCompact(a.words[0], a.words[1]);
         r.Add("lat", at.lat);
         r.Add("lon", at.lon);
     }},
    {"ParseLatLonColons", 2, false,
     [](const Arguments& a, const Results& r) {
         const LatLon at = ParseLatLonColons(a.words[0], a.words[1]);
         r.Add("lat", at.lat);
         r.Add("lon", at.lon);
     }},
    {"MagVarAt", 2, true,
     [](const Arguments& a, const Results& r) { r.Add("result", MagVarAt(a.numbers[0], a.numbers[1])); }},
    {"AngleBetween", 2, true,
     [](const Arguments& a, const Results& r) { r.Add("result", AngleBetween(a.numbers[0], a.numbers[1])); }},
    {"TurnSide", 2, true,
     [](const Arguments& a, const Results& r) { r.Add("result", TurnSide(a.numbers[0], a.numbers[1])); }},
    {"TurnRadiusForSpeedAndAlt", 2, true,
     [](const Arguments& a, const Results& r) {
         r.Add("result", TurnRadiusForSpeedAndAlt(a.numbers[0], a.numbers[1]));
     }},
    {"WaypointChangeDistance", 2, true,
     [](const Arguments& a, const Results& r) {
         r.Add("result", WaypointChangeDistance(a.numbers[0], a.numbers[1]));
     }},
    {"FindAirwayCrossing", 3, false,
     [](const Arguments& a, const Results& r) {
         const AirwayCrossing crossing = FindAirwayCrossing(a.words[0], a.words[1], a.words[2]);
         r.Add("result", crossing.index);
         r.Add("context", crossing.context);
     }},
    {"ClimbRate", 2, true,
     [](const Arguments& a, const Results& r) {
         const ClimbPerformance climb = ClimbRate(a.numbers[0], a.numbers[1]);
         r.Add("result", climb.rate);
         r.Add("fuel_flow", climb.fuel_flow);
     }},
    {"IasToMach", 2, true,
     [](const Arguments& a, const Results& r) { r.Add("result", IasToMach(a.numbers[0], a.numbers[1])); }},
    {"PlanningTas", 2, true,
     [](const Arguments& a, const Results& r) { r.Add("result", PlanningTas(a.numbers[0], a.numbers[1])); }},
    {"EconClimbSpeed", 1, true,
     [](const Arguments& a, const Results& r) {
         r.Add("result", EconClimbSpeed(static_cast<int>(a.numbers[0])));
     }},
    {"EconCruiseMach", 2, true,
     [](const Arguments& a, const Results& r) {
         r.Add("result", EconCruiseMach(static_cast<int>(a.numbers[0]), a.numbers[1]));
     }},
    {"EconDescentSpeed", 1, true,
     [](const Arguments& a, const Results& r) {
         r.Add("result", EconDescentSpeed(static_cast<int>(a.numbers[0])));
     }},
    {"PerfFactor", 0, true, [](const Arguments&, const Results& r) { r.Add("result", PerfFactor()); }},
    {"MaxAltitude", 0, true, [](const Arguments&, const Results& r) { r.Add("result", MaxAltitude()); }},
};

std::vector<std::string> SplitWords(std::string_view line) {
    std::vector<std::string> words;
    while (true) {
        const std::size_t first = line.find_first_not_of(" \t");
        if (first == std::string_view::npos) return words;
        line.remove_prefix(first);
        const std::size_t end = std::min(line.find_first_of(" \t"), line.size());
        words.emplace_back(line.substr(0, end));
        line.remove_prefix(end);
    }
}

bool IsNumber(const std::string& word, double& number) {
    constexpr double kLargest = 1e9;  // of any quantity that these functions take
    const auto result = std::from_chars(word.data(), word.data() + word.size(), number);
    return result.ec == std::errc{} && result.ptr == word.data() + word.size() && number >= -kLargest &&
           number <= kLargest;
}

}  // namespace

int CallPureFunction(std::string_view line, const Results& results) {
    Arguments arguments;
    arguments.words = SplitWords(line);
    if (arguments.words.empty()) return results.Fail("a function's name is missing");
    const std::string name = arguments.words.front();
    arguments.words.erase(arguments.words.begin());
    const auto* function = std::ranges::find(kPureFunctions, name, &PureFunction::name);
    if (function == std::end(kPureFunctions)) return results.Fail("unknown function " + name);
    if (static_cast<int>(arguments.words.size()) != function->argument_count)
        return results.Fail(name + " takes " + std::to_string(function->argument_count) + " arguments");
    for (const std::string& word : arguments.words) {
        double number = 0;
        if (function->numeric && !IsNumber(word, number))
            return results.Fail(name + " takes numbers, \"" + word + "\" is none");
        arguments.numbers.push_back(number);
    }
    function->call(arguments, results);
    return 1;
}
