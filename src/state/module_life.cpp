#include "state/module_life.h"

ModuleLife module_life;

namespace {
constexpr Variable kModuleLifeRows[] = {
    {"gdi_started", &module_life.gdi_started},         {"navdata_read", &module_life.navdata_read},
    {"kill_pending", &module_life.kill_pending},       {"startup_done", &module_life.startup_done},
    {"outputs_running", &module_life.outputs_running},
};
}  // namespace

const std::span<const Variable> kModuleLifeVariables = kModuleLifeRows;
