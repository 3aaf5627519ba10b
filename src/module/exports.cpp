#include "module/linkage.h"

extern "C" {
__attribute__((visibility("default"))) ModuleImports ImportTable = {kHostOperationsVersion, nullptr};
__attribute__((visibility("default")))
ModuleLinkage Linkage = {kLinkageVersion, nullptr, nullptr, 0, nullptr, nullptr};
}
