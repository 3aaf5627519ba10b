#pragma once

#include <array>
#include <charconv>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

#include "module/results.h"
#include "state/variable.h"

// Functions that are called from outside by their names, with words for arguments. What kind each argument is
// and which results there are follows from the function's own signature, so that a row is a name and its
// usage.

/// A word between the function's name and the end of the line: its name in the usage, and its text.
struct Argument {
    std::string_view name;
    std::string_view text;
};

/// Puts a word into a parameter; an empty text when it fits, else what would.
using Problem = std::string_view;
Problem ReadArgument(const Argument& argument, double& value);
Problem ReadArgument(const Argument& argument, int& value);
Problem ReadArgument(const Argument& argument, bool& value);
Problem ReadArgument(const Argument& argument, std::string_view& value);

struct BoundFunction {
    std::string_view name;
    /// Names of the arguments with a blank between; one in brackets may be left out. What a whole number
    /// stands for (SIDE, CANDIDATE, LEG_FIX, AIRWAY_FIX) is told by its name, and checked.
    std::string_view usage;
    std::size_t most;  // parameters
    int (*call)(std::string_view name, std::span<const Argument> arguments, const Results& results);
};

/// Adds a value under "result", a record by its fields.
template <class T>
void AddResult(const Results& results, const T& value) {
    if constexpr (std::is_arithmetic_v<T>) {
        results.Add("result", value);
    } else {
        for (const Field& field : Describe<T>::type.fields)
            results.Add(field.name, FormatValue({field.type, field.member(const_cast<T*>(&value))}));
    }
}

/// Reads the argument of a parameter; one that may be left out keeps its value. False, and the reason told,
/// for a word that doesn't fit.
template <class T>
bool ReadInto(std::string_view name, std::span<const Argument> arguments, std::size_t index, T& value,
              const Results& results) {
    if (index >= arguments.size()) return true;
    const Problem wanted = ReadArgument(arguments[index], value);
    if (wanted.empty()) return true;
    results.Fail(std::string(name) + ": \"" + std::string(arguments[index].text) + "\" isn't " +
                 std::string(wanted));
    return false;
}

template <class Function>
struct Signature;
template <class Result, class... Parameters>
struct Signature<Result (*)(Parameters...)> {
    using Values = std::tuple<std::remove_cvref_t<Parameters>...>;

    template <auto kFunction>
    static int Call(std::string_view name, std::span<const Argument> arguments, const Results& results) {
        return Call<kFunction>(name, arguments, results, std::index_sequence_for<Parameters...>());
    }

  private:
    template <auto kFunction, std::size_t... kIndex>
    static int Call([[maybe_unused]] std::string_view name,
                    [[maybe_unused]] std::span<const Argument> arguments, const Results& results,
                    std::index_sequence<kIndex...>) {
        [[maybe_unused]] Values values{};
        if (!(ReadInto(name, arguments, kIndex, std::get<kIndex>(values), results) && ...)) return 0;
        if constexpr (std::is_void_v<Result>)
            kFunction(std::get<kIndex>(values)...);
        else
            AddResult(results, kFunction(std::get<kIndex>(values)...));
        return 1;
    }
};

/// One row: Bind<MagVarAt>("MagVarAt", "LAT LON").
template <auto kFunction>
constexpr BoundFunction Bind(std::string_view name, std::string_view usage) {
    using S = Signature<std::decay_t<decltype(kFunction)>>;
    return {name, usage, std::tuple_size_v<typename S::Values>, S::template Call<kFunction>};
}

/// Calls the function of a table that the line's first word names. 1, or 0 with the reason among the results.
int CallBound(std::span<const BoundFunction> table, std::string_view line, const Results& results);

/// Every usage names as many arguments as its function takes.
constexpr bool UsagesFit(std::span<const BoundFunction> table) {
    for (const BoundFunction& function : table) {
        std::size_t words = function.usage.empty() ? 0 : 1;
        for (const char c : function.usage) words += c == ' ';
        if (words != function.most) return false;
    }
    return true;
}
