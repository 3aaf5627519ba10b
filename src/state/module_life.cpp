#include "state/module_life.h"

ModuleLife module_life;

namespace {
constexpr Variable kRows[] = {
    {"gdi_started", &module_life.gdi_started},
    {"navdata_read", &module_life.navdata_read},
    {"kill_pending", &module_life.kill_pending},
    {"startup_done", &module_life.startup_done},
    {"outputs_running", &module_life.outputs_running},
    {"activesky_loaded", &module_life.activesky_loaded},
    {"ActiveSkyFolder", &module_life.ActiveSkyFolder},
    {"tcas_target_cnt", &module_life.tcas_target_cnt},
    {"tod_pause_done", &module_life.tod_pause_done},
    {"tod_rate_done", &module_life.tod_rate_done},
    {"dest_pause_done", &module_life.dest_pause_done},
    {"dest_rate_done", &module_life.dest_rate_done},
    {"dh_set", &module_life.dh_set},
    {"ai_runways", &module_life.ai_runways},
};
}  // namespace

const std::span<const Variable> kModuleLifeVariables = kRows;
