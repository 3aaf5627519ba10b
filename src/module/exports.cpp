#include "module/gauge_table.h"
#include "module/inspection.h"
#include "module/lifecycle.h"
#include "module/linkage.h"
#include "platform/host.h"

namespace {
void InitModule();
void DeinitModule();
}  // namespace

extern "C" {
__attribute__((visibility("default"))) ModuleImports ImportTable = {kHostOperationsVersion, nullptr};
__attribute__((visibility("default")))
ModuleLinkage Linkage = {kLinkageVersion, InitModule,   DeinitModule, static_cast<int32_t>(Gauges().size()),
                         Gauges().data(), &Inspection()};
}

namespace {

void InitModule() {
    UseHost(ImportTable.host);
    ModuleInit();
}

void DeinitModule() {
    ModuleDeinit();
    UseHost(nullptr);
}

}  // namespace
