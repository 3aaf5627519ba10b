#pragma once

#include <string_view>

#include "module/results.h"

// What scenarios call by name, a line each: the function and its arguments, blanks between.

/// A pure function: "GreatCircle 47 -122 45 -122". 1 with its results, or 0 with the reason.
int CallPureFunction(std::string_view line, const Results& results);

/// One operation of the route model on the working copy, as a page would: "RemoveToRow 2". 1, with its value
/// where it has one, or 0 with the reason.
int RunRouteOperation(std::string_view line, const Results& results);
