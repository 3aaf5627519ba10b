#include "host/scenario/conditions.h"

#include <cmath>

#include "host/scenario/commands.h"

namespace host {
namespace {

struct OperatorName {
    std::string_view text;
    Condition::Operator op;
};

constexpr OperatorName kOperators[] = {
    {"==", Condition::kEqual},       {"!=", Condition::kNotEqual},       {"<", Condition::kLess},
    {"<=", Condition::kLessOrEqual}, {">", Condition::kGreater},         {">=", Condition::kGreaterOrEqual},
    {"~", Condition::kNear},         {"contains", Condition::kContains}, {"lacks", Condition::kLacks},
};

std::string_view TextOf(Condition::Operator op) {
    for (const OperatorName& row : kOperators)
        if (row.op == op) return row.text;
    return "";
}

bool OrderHolds(Condition::Operator op, double have, double wanted, double tolerance) {
    switch (op) {
        case Condition::kLess:
            return have < wanted;
        case Condition::kLessOrEqual:
            return have <= wanted;
        case Condition::kGreater:
            return have > wanted;
        case Condition::kGreaterOrEqual:
            return have >= wanted;
        case Condition::kNear:
            return std::fabs(have - wanted) <= tolerance;
        default:
            return false;
    }
}

}  // namespace

Condition ParseCondition(const std::vector<Word>& words) {
    if (words.size() < 3 || words.size() > 4)
        throw CommandError{"a condition is NAME OP VALUE, with ~ a tolerance too"};
    Condition condition{words[0], Condition::kEqual, words[2], ParseNumber(words[2].text)};
    bool known = false;
    for (const OperatorName& row : kOperators) {
        if (row.text != words[1].text) continue;
        condition.op = row.op;
        known = true;
    }
    if (!known)
        throw CommandError{"\"" + words[1].text + "\" is no operator; == != < <= > >= ~ contains lacks"};
    const bool orders = condition.op >= Condition::kLess && condition.op <= Condition::kNear;
    if (orders && !condition.number)
        throw CommandError{"\"" + words[2].text + "\" is no number, and " + words[1].text +
                           " compares numbers"};
    if ((condition.op == Condition::kNear) != (words.size() == 4))
        throw CommandError{"`~` takes a value and a tolerance, no other operator does"};
    if (words.size() == 4) condition.tolerance = NumberWord(words[3], "a tolerance");
    return condition;
}

bool Holds(Scenario& scenario, const Condition& condition, std::string& have) {
    have = ValueOfName(scenario, condition.name);
    if (condition.op == Condition::kContains) return have.find(condition.value.text) != std::string::npos;
    if (condition.op == Condition::kLacks) return have.find(condition.value.text) == std::string::npos;
    const std::optional<double> number = ParseNumber(have);
    if (condition.op == Condition::kEqual || condition.op == Condition::kNotEqual) {
        const bool same =
            number && condition.number ? *number == *condition.number : have == condition.value.text;
        return same == (condition.op == Condition::kEqual);
    }
    return number && OrderHolds(condition.op, *number, *condition.number, condition.tolerance);
}

void TellFailure(Scenario& scenario, const Condition& condition, const std::string& have) {
    ++scenario.failed_expectations;
    scenario.out << scenario.file << ':' << scenario.line << ": expected " << condition.name.raw << ' '
                 << TextOf(condition.op) << ' ' << condition.value.raw;
    if (condition.op == Condition::kNear) scenario.out << ' ' << NumberText(condition.tolerance);
    scenario.out << ", have " << have << '\n';
}

}  // namespace host
