#include "fmc/route/route_operations.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <initializer_list>
#include <iterator>
#include <span>
#include <vector>

#include "base/text_fields.h"
#include "fmc/legs/edit_legs.h"
#include "fmc/legs/holds.h"
#include "fmc/legs/insert_fix.h"
#include "fmc/legs/route_airway.h"
#include "fmc/legs/route_rows.h"
#include "fmc/legs/route_state.h"
#include "fmc/route/execute_route.h"
#include "fmc/route/modification.h"
#include "state/nav.h"
#include "state/plan.h"

namespace {

// kFix is a leg of FlightPlanMod or a place of AirwayFixList by its number, or by its ident.
enum class Arg { kNone, kNumber, kFlag, kSide, kCandidate, kText, kLegFix, kAirwayFix };

struct Value {
    int number = 0;
    std::string_view text;
};
using Values = std::span<const Value>;

constexpr int kNoResult = -1;
constexpr std::size_t kMostArgs = 4;

struct Operation {
    std::string_view name;
    std::string_view usage;  // the arguments, for what is told
    std::array<Arg, kMostArgs> args;
    std::size_t optional;  // how many of the last arguments may be missing
    int (*run)(Values);
};

template <void (*kFunction)()>
int Run(Values) {
    kFunction();
    return kNoResult;
}

constexpr Operation kOperations[] = {
    {"AdvanceRouteState", "", {}, 0, Run<AdvanceRouteState>},
    {"ExecuteRoute", "", {}, 0, Run<ExecuteRoute>},
    {"EraseModification", "", {}, 0, Run<EraseModification>},
    {"RefreshLegsForModification", "", {}, 0, Run<RefreshLegsForModification>},
    {"RebuildRouteRows", "", {}, 0, Run<RebuildRouteRows>},
    {"NormalizeLegs", "", {}, 0, Run<NormalizeLegs>},
    {"ClearFlightPlan", "", {}, 0, Run<ClearFlightPlan>},
    {"ConnectLegs",
     "FROM TO SIDE",
     {Arg::kNumber, Arg::kNumber, Arg::kSide},
     1,
     [](Values v) {
         ConnectLegs(v[0].number, v[1].number, v[2].number);
         return kNoResult;
     }},
    {"RemoveViaRow", "ROW", {Arg::kNumber}, 0, [](Values v) { return RemoveViaRow(v[0].number); }},
    {"RemoveToRow", "ROW", {Arg::kNumber}, 0, [](Values v) { return RemoveToRow(v[0].number); }},
    {"FindRouteFix",
     "ROW WANT_VIA",
     {Arg::kNumber, Arg::kFlag},
     1,
     [](Values v) { return FindRouteFix(v[0].number, v[1].number == 1); }},
    {"InsertDirectRow",
     "CANDIDATE ROW",
     {Arg::kCandidate, Arg::kNumber},
     1,
     [](Values v) {
         InsertDirectRow(v[0].number, v[1].number);
         return kNoResult;
     }},
    {"DeleteLegWithDiscontinuity",
     "LEG RECONNECT SIDE",
     {Arg::kNumber, Arg::kFlag, Arg::kSide},
     2,
     [](Values v) {
         DeleteLegWithDiscontinuity(v[0].number, v[1].number == 1, v[2].number);
         return kNoResult;
     }},
    {"MarkHold",
     "LEG ACTIVE PREV_LEG",
     {Arg::kNumber, Arg::kFlag, Arg::kNumber},
     0,
     [](Values v) {
         MarkHold(v[0].number, v[1].number == 1, v[2].number);
         return kNoResult;
     }},
    {"RemoveHold",
     "LEG",
     {Arg::kNumber},
     0,
     [](Values v) {
         RemoveHold(v[0].number);
         return kNoResult;
     }},
    {"LoadAirway",
     "NAME ROW FIX SIDE",
     {Arg::kText, Arg::kNumber, Arg::kLegFix, Arg::kSide},
     1,
     [](Values v) {
         LoadAirway(v[0].text, v[1].number, v[2].number, v[3].number);
         return kNoResult;
     }},
    {"FindFixOnAirway", "IDENT", {Arg::kText}, 0, [](Values v) { return FindFixOnAirway(v[0].text); }},
    {"InsertAirwaySegment",
     "FIX",
     {Arg::kAirwayFix},
     0,
     [](Values v) {
         InsertAirwaySegment(v[0].number);
         return kNoResult;
     }},
    {"InsertAirwayPlaceholder",
     "INDEX AIRWAY",
     {Arg::kNumber, Arg::kText},
     0,
     [](Values v) {
         InsertAirwayPlaceholder(v[0].number, v[1].text);
         return kNoResult;
     }},
    {"InsertFixAt",
     "POSITION CANDIDATE REPLACE",
     {Arg::kNumber, Arg::kCandidate, Arg::kFlag},
     0,
     [](Values v) {
         InsertFixAt(v[0].number, v[1].number, v[2].number == 1);
         return kNoResult;
     }},
};

std::vector<std::string_view> SplitWords(std::string_view line) {
    std::vector<std::string_view> words;
    for (std::string_view word = NextField(line); !word.empty(); word = NextField(line))
        words.push_back(word);
    return words;
}

bool ParseNumber(std::string_view text, int& number) {
    const auto [rest, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    return failure == std::errc{} && rest == text.data() + text.size();
}

int FindLeg(std::string_view ident) {
    for (int i = 0; i <= plan.mod_cnt; ++i)
        if (plan.FlightPlanMod[i].ident == ident) return i;
    return -1;
}

// Reads one argument; an empty text when it is right, else what would be.
std::string_view ReadValue(Arg arg, std::string_view text, Value& value) {
    value.text = text;
    const bool is_number = ParseNumber(text, value.number);
    switch (arg) {
        case Arg::kText:
            return "";
        case Arg::kFlag:
            return is_number && (value.number == 0 || value.number == 1) ? "" : "0 or 1";
        case Arg::kSide:
            return is_number && value.number >= 1 && value.number <= 3 ? "" : "a side, 1 or 2";
        case Arg::kCandidate:
            return is_number && value.number >= 0 && value.number <= nav.entry_cnt
                       ? ""
                       : "the number of a candidate";
        case Arg::kLegFix:
            if (!is_number) value.number = FindLeg(text);
            return value.number >= 0 ? "" : "a leg, by its number or ident";
        case Arg::kAirwayFix:
            if (!is_number) value.number = FindFixOnAirway(text);
            return "";
        case Arg::kNumber:
        case Arg::kNone:
            break;
    }
    return is_number ? "" : "a number";
}

std::size_t CountArgs(const Operation& operation) {
    std::size_t count = 0;
    for (const Arg arg : operation.args) count += arg != Arg::kNone;
    return count;
}

std::string Join(std::initializer_list<std::string_view> parts) {
    std::string text;
    for (const std::string_view part : parts) text.append(part);
    return text;
}

}  // namespace

int RunRouteOperation(std::string_view line, std::string& result, std::string& error) {
    const std::vector<std::string_view> words = SplitWords(line);
    const std::string_view name = words.empty() ? std::string_view{} : words[0];
    const auto* operation = std::find_if(std::begin(kOperations), std::end(kOperations),
                                         [name](const Operation& known) { return known.name == name; });
    if (operation == std::end(kOperations)) {
        error = Join({"unknown operation \"", name, "\"; known are"});
        for (const Operation& known : kOperations) error.append(" ").append(known.name);
        return 0;
    }
    const std::size_t given = words.size() - 1, most = CountArgs(*operation);
    if (given > most || given + operation->optional < most) {
        error = Join({"wrong number of arguments, right is: ", name, " ", operation->usage});
        return 0;
    }
    std::array<Value, kMostArgs> values = {};
    for (std::size_t i = 0; i < given; ++i) {
        const std::string_view wanted = ReadValue(operation->args[i], words[i + 1], values[i]);
        if (wanted.empty()) continue;
        error = Join({name, ": \"", words[i + 1], "\" isn't ", wanted});
        return 0;
    }
    const int value = operation->run(values);
    result = value == kNoResult ? "" : std::to_string(value);
    return 1;
}
