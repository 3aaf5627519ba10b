#pragma once

#include <string>

#include "module/linkage.h"

namespace host {

/// Loads the module's library, gives it the host's operations and finds its exports. Null with the reason in
/// `error` when there is no such module or its version is another. `library` is what UnloadModule takes.
const ModuleLinkage* LoadModule(const std::string& file, void*& library, std::string& error);

/// Gives the library back; it must have been taken down before.
void UnloadModule(void* library);

/// tz900.gau beside the running program.
std::string ModuleBesideProgram();

}  // namespace host
