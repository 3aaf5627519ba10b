#pragma once

#include <string>
#include <string_view>

/// Runs one operation of the route model by its name, as a page would: "RemoveToRow 2". Arguments stand
/// behind the name, blanks between: numbers, a candidate by its number in EntryCandidates, a side by 1 or 2,
/// a flag by 0 or 1. `result` gets the operation's value, or stays empty where it has none.
/// 1 = run; 0 = not: `error` tells what is wrong with the line.
int RunRouteOperation(std::string_view line, std::string& result, std::string& error);
