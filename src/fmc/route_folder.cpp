#include "fmc/route_folder.h"

#include "state/cfg.h"

namespace {

struct Folder {
    std::string name;
    FileRoot root;
};

Folder RouteFolder() {
    constexpr std::string_view kOwnFolder = "\\Velarion\\TZ900\\flightplans";
    const std::string& set = cfg.FlightPlansFolder;
    if (set.empty()) return {std::string(kOwnFolder), FileRoot::kSimulator};
    const bool of_machine = !FolderExists(set, FileRoot::kSimulator) && FolderExists(set, FileRoot::kMachine);
    return {set, of_machine ? FileRoot::kMachine : FileRoot::kSimulator};
}

std::string PathIn(const Folder& folder, std::string_view name) {
    return (folder.name + '\\').append(name);
}

}  // namespace

std::vector<FolderEntry> ListRouteFolder() {
    const Folder folder = RouteFolder();
    return ListFolder(folder.name, folder.root);
}

std::optional<FileBytes> ReadRouteFile(std::string_view name) {
    if (!IsPlainFileName(name)) return {};
    const Folder folder = RouteFolder();
    return ReadFile(PathIn(folder, name), folder.root, kMaxRouteFileBytes);
}

bool WriteRouteFile(std::string_view name, std::string_view text) {
    if (!IsPlainFileName(name)) return false;
    const Folder folder = RouteFolder();
    return WriteFile(PathIn(folder, name), text, folder.root);
}
