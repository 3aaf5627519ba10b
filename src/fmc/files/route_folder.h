#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"

// Where stored flight plans lie: the setting FlightPlansFolder, a folder under the simulator's root or, when
// there is none of that name, one of the machine; without the setting \Velarion\TZ900\flightplans. Names are
// those of files in it, in any case; one that would leave it is refused.

/// What a host planner's file becomes before it is read. It lies in \Velarion\TZ900\flightplans always.
constexpr std::string_view kConvertedFile = "\\Velarion\\TZ900\\flightplans\\temp.rte";
constexpr std::string_view kConvertedName = "temp.rte";

constexpr std::size_t kMaxRouteFileBytes = std::size_t{64} << 20;

std::vector<FolderEntry> ListRouteFolder();
std::optional<FileBytes> ReadRouteFile(std::string_view name);
bool WriteRouteFile(std::string_view name, std::string_view text);
