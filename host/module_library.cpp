#include "host/module_library.h"

#include <dlfcn.h>

#include <filesystem>

#include "host/world/world.h"

namespace host {

const ModuleLinkage* LoadModule(const std::string& file, void*& library, std::string& error) {
    library = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) {
        error = dlerror();
        return nullptr;
    }
    const auto* linkage = static_cast<const ModuleLinkage*>(dlsym(library, "Linkage"));
    auto* imports = static_cast<ModuleImports*>(dlsym(library, "ImportTable"));
    if (linkage == nullptr || imports == nullptr) {
        error = file + " exports no Linkage and ImportTable";
    } else if (linkage->version != kLinkageVersion || imports->version != kHostOperationsVersion) {
        error = file + " speaks another version of the boundary";
    } else {
        imports->host = HostOperationsOf();
        return linkage;
    }
    UnloadModule(library);
    library = nullptr;
    return nullptr;
}

void UnloadModule(void* library) {
    if (library != nullptr) dlclose(library);
}

std::string ModuleBesideProgram() {
    std::error_code failed;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", failed);
    return (failed ? std::filesystem::path("tz900.gau") : program.parent_path() / "tz900.gau").string();
}

}  // namespace host
