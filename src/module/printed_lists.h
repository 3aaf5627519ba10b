#pragma once

#include <string_view>

#include "module/results.h"

/// Prints one list, a line each: "legs" (active or mod), "rows", "candidates" (the entry to resolve),
/// "messages" (L or R). 1, or 0 with the reason.
int PrintList(std::string_view list, std::string_view argument, const Results& results);
