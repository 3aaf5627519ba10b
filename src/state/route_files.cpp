#include "state/route_files.h"

RouteFileState route_files;

namespace {
constexpr Variable kRouteFileRows[] = {
    {"RouteFiles", &route_files.RouteFiles},
    {"route_file_cnt", &route_files.route_file_cnt},
    {"route_files_listed", &route_files.route_files_listed},
};
}  // namespace

const std::span<const Variable> kRouteFileVariables = kRouteFileRows;
