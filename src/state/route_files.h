#pragma once

#include <span>
#include <string>

#include "state/growing_list.h"
#include "state/variable.h"

/// The stored flight plans, filled by ListRouteFiles, and the host's own GPS route.
struct RouteFileState {
    GrowingList<std::string> RouteFiles;  // file names from 1, in the order of the folder
    int route_file_cnt = 0;
    int route_files_listed = 0;  // once in the module's life, before anybody asks
    const void* gps_route_data =
        nullptr;  // the host's block, bound at the first import; null = not published
};

extern RouteFileState route_files;
extern const std::span<const Variable> kRouteFileVariables;
