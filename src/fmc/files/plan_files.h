#pragma once

#include <string_view>

constexpr int kNotConverted = -99;

/// Reads a file of the host's flight planner, in the older form of KEY=VALUE lines or in XML, and writes its
/// waypoints as the route file kConvertedFile (ident, position, type). Without a departure it has no rows.
/// 0, or kNotConverted when the file can't be read or the other not be written.
int ConvertPlanFile(std::string_view name);
