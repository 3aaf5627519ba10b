#pragma once

#include <string_view>

#include "module/results.h"

/// Runs one pure function of the system by its line, "GreatCircle 47 -122 45 -122". 1, or 0 with the reason.
int CallPureFunction(std::string_view line, const Results& results);
