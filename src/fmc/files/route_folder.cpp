#include "fmc/files/route_folder.h"

#include "state/cfg.h"

namespace {

ConfiguredFolder RouteFolder() {
    constexpr std::string_view kOwnFolder = "\\Velarion\\TZ900\\flightplans";
    const std::string& set = cfg.FlightPlansFolder;
    if (set.empty()) return {std::string(kOwnFolder), FileRoot::kSimulator};
    return FindConfiguredFolder(set);
}

}  // namespace

std::vector<FolderEntry> ListRouteFolder() {
    const ConfiguredFolder folder = RouteFolder();
    return ListFolder(folder.name, folder.root);
}

std::optional<FileBytes> ReadRouteFile(std::string_view name) {
    if (!IsPlainFileName(name)) return {};
    const ConfiguredFolder folder = RouteFolder();
    return ReadFile(folder.File(name), folder.root, kMaxRouteFileBytes);
}

bool WriteRouteFile(std::string_view name, std::string_view text) {
    if (!IsPlainFileName(name)) return false;
    const ConfiguredFolder folder = RouteFolder();
    return WriteFile(folder.File(name), text, folder.root);
}
