#pragma once

#include <array>
#include <string>
#include <string_view>

/// The runways in use at an airport, as the simulator's air traffic has them: up to four names such as "09L".
/// The strings stay empty when the simulator's block can't be opened or knows nothing. May take 31 exchanges.
std::array<std::string, 4> QueryActiveRunways(std::string_view icao);
