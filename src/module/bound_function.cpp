#include "module/bound_function.h"

#include <algorithm>
#include <vector>

#include "base/text_fields.h"
#include "fmc/legs/route_airway.h"
#include "state/nav.h"
#include "state/plan.h"

namespace {

template <class Number>
bool ParseWhole(std::string_view text, Number& number) {
    const auto [rest, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    return failure == std::errc{} && rest == text.data() + text.size();
}

int FindModIdent(std::string_view ident) {
    for (int i = 0; i <= plan.mod.leg_cnt; ++i)
        if (plan.mod.legs[i].ident == ident) return i;
    return -1;
}

// The name of an argument without its brackets.
std::string_view Bare(std::string_view name) {
    return name.starts_with('[') ? name.substr(1, name.size() - 2) : name;
}

std::vector<std::string_view> SplitWords(std::string_view line) {
    std::vector<std::string_view> words;
    for (std::string_view word = NextField(line); !word.empty(); word = NextField(line))
        words.push_back(word);
    return words;
}

}  // namespace

Problem ReadArgument(const Argument& argument, double& value) {
    constexpr double kLargest = 1e9;  // of any quantity that these functions take
    const bool good = ParseWhole(argument.text, value) && value >= -kLargest && value <= kLargest;
    return good ? "" : "a number";
}

Problem ReadArgument(const Argument& argument, int& value) {
    const std::string_view name = argument.name;
    const bool is_number = ParseWhole(argument.text, value);
    if (name == "SIDE") return is_number && value >= 1 && value <= 3 ? "" : "a side, 1 or 2";
    if (name == "CANDIDATE")
        return is_number && value >= 0 && value <= nav.entry_cnt ? "" : "the number of a candidate";
    if (name == "LEG_FIX") {
        if (!is_number) value = FindModIdent(argument.text);
        return value >= 0 ? "" : "a leg, by its number or ident";
    }
    if (name == "AIRWAY_FIX") {
        if (!is_number) value = FindFixOnAirway(argument.text);
        return "";
    }
    return is_number ? "" : "a number";
}

Problem ReadArgument(const Argument& argument, bool& value) {
    value = argument.text == "1";
    return value || argument.text == "0" ? "" : "0 or 1";
}

Problem ReadArgument(const Argument& argument, std::string_view& value) {
    value = argument.text;
    return "";
}

int CallBound(std::span<const BoundFunction> table, std::string_view line, const Results& results) {
    const std::vector<std::string_view> words = SplitWords(line);
    const std::string_view name = words.empty() ? std::string_view{} : words[0];
    const auto function = std::ranges::find(table, name, &BoundFunction::name);
    if (function == table.end()) {
        std::string known = "unknown function \"" + std::string(name) + "\"; known are";
        for (const BoundFunction& row : table) known.append(" ").append(row.name);
        return results.Fail(known);
    }
    const std::vector<std::string_view> names = SplitWords(function->usage);
    const auto least = static_cast<std::size_t>(
        std::ranges::count_if(names, [](std::string_view word) { return !word.starts_with('['); }));
    if (words.size() - 1 < least || words.size() - 1 > names.size())
        return results.Fail("wrong number of arguments, right is: " + std::string(name) + " " +
                            std::string(function->usage));
    std::vector<Argument> arguments;
    for (std::size_t i = 1; i < words.size(); ++i) arguments.push_back({Bare(names[i - 1]), words[i]});
    return function->call(name, arguments, results);
}
