#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "state/variable.h"

/// A variable found by a path such as `stpos`, `FlightPlan[3].ident`, `FlightPlanMod[1].wind[0].dir`,
/// `capt.ScratchPad`. The address is good until the next change of the list that it lies in.
struct VariableRef {
    const ValueType* type;
    void* address;
};

/// Finds a variable by its path; one that stands once for each side is the captain's without `capt.` or
/// `fo.`. Nothing for an unknown name, a field that isn't there or an index outside.
std::optional<VariableRef> FindVariable(std::string_view path);

/// The name under which a variable without a path stands in the directory; empty for an address without one.
std::string_view NameOfVariable(const void* address);

/// The value as text, with as many digits as it takes to read it back; an integer without a point.
/// A record or a list gives an empty text.
std::string FormatValue(const VariableRef& variable);

/// Stores a text: numbers are taken whole, nothing else than a number is taken for one. False, and nothing
/// stored, for a text that does not fit, a record, a list or a read-only text.
bool StoreValue(const VariableRef& variable, std::string_view text);

/// A number with as many digits as it takes to read it back, an integer without a point.
std::string FormatNumber(double value);
