#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/scenario/scenario.h"

namespace host {

/// NAME OP VALUE [TOL], as expect and run until take it.
struct Condition {
    enum Operator {
        kEqual,
        kNotEqual,
        kLess,
        kLessOrEqual,
        kGreater,
        kGreaterOrEqual,
        kNear,
        kContains,
        kLacks
    };
    Word name;
    Operator op;
    Word value;
    std::optional<double> number;  // of the value, where it is one
    double tolerance = 0;          // of kNear
};

/// Throws CommandError when the words make no condition.
Condition ParseCondition(const std::vector<Word>& words);

/// Compares; `have` takes the value found.
bool Holds(Scenario& scenario, const Condition& condition, std::string& have);

/// Prints the failed expectation and counts it.
void TellFailure(Scenario& scenario, const Condition& condition, const std::string& have);

}  // namespace host
