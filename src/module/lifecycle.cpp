#include "module/lifecycle.h"

#include <string_view>

#include "efb/performance/takeoff_analysis.h"
#include "fmc/files/route_files.h"
#include "fmc/performance/winds.h"
#include "frame/aircraft.h"
#include "frame/configuration.h"
#include "frame/key_hook.h"
#include "frame/keyboard_capture.h"
#include "frame/named_variables.h"
#include "frame/sim_client.h"
#include "module/controls/control_table.h"
#include "module/service_cycle.h"
#include "navdata/nav_tables.h"
#include "paint/image_store.h"
#include "panels/panel_folder.h"
#include "platform/host.h"
#include "platform/resident_libraries.h"
#include "platform/state_lock.h"
#include "state/cfg.h"
#include "state/host_link.h"
#include "state/identity.h"
#include "state/module_life.h"
#include "state/plan.h"
#include "state/route_files.h"
#include "state/sound.h"
#include "state/state_groups.h"
#include "state/time_base.h"
#include "surveillance/traffic.h"

namespace {

constexpr int kTimerPeriodMs = 1;
constexpr int kReservedLegs = 150;
constexpr int kReservedRows = 60;

void ReserveContainers() {
    plan.active.legs.reserve(kReservedLegs);
    plan.mod.legs.reserve(kReservedLegs);
    plan.AirwayFixList.reserve(kReservedLegs);
    plan.Route.reserve(kReservedRows);
}

// Whatever a teardown has taken away comes back here.
void EnsureRegistered() {
    AddKeyEventHook();
    const bool variables_are_new = host_link.named_vars_registered == 0;
    RegisterNamedVars();
    // New variables read 0: without this the poll would take each for a press of its control.
    if (variables_are_new && module_life.startup_done == 1) WriteControlVariables();
    module_life.gdi_started = 1;
}

void Teardown() {
    module_life.kill_pending = 0;
    RemoveKeyEventHook();
    UnregisterNamedVars();
    module_life.gdi_started = 0;
    ReleaseKeyboard();
}

void PreInitialize() {
    BindTraffic();
    EnsureRegistered();
    if (cfg.config_read == 0) {
        ReadConfig();
        LoadAircraft();
        LoadPerformanceTable(identity.aircraft_model);
    }
    if (module_life.navdata_read == 0) {
        LoadNavTables();
        CheckNavdataDates();
        module_life.navdata_read = 1;
    }
    if (route_files.route_files_listed == 0) ListRouteFiles();
    ListPanels();
}

void ConnectToWindow() {
    if (cfg.simver == 0) DetectHost();
    if (module_life.kill_pending == 1) Teardown();
    EnsureRegistered();
    ReadAircraftTitle();
    if (identity.aircraft_identified == 0) ScanAircraftCfg();
}

}  // namespace

void ModuleInit() {
    const StateLock lock;
    ResetSystemState();
    KeepGraphicsLibraries();
    Host().set_timer_period(kTimerPeriodMs);
    time_base.startup_msg_ticks = 0;
    sound.dsound_ok = Host().open_sound_device();
    FindWeatherProgram();
    OpenSimClient();
    ReserveContainers();
}

void ModuleDeinit() {
    const StateLock lock;
    Host().set_timer_period(0);
    CloseSimClient();
    Teardown();  // a host that unloads without a disconnect
    if (sound.dsound_ok == 1) Host().close_sound_device();
    DropImages();
    ResetSystemState();
}

void ServerCallback(GaugeInstance* instance, int32_t service_id) {
    const StateLock lock;
    switch (service_id) {
        case kServicePreInstall:
            module_life.gdi_started = 1;
            break;
        case kServicePostInstall:
        case kServicePostInitialize:
            EnsureRegistered();
            break;
        case kServicePreInitialize:
            PreInitialize();
            break;
        case kServicePreUpdate: {
            const char* parameters = instance != nullptr ? instance->parameters : nullptr;
            RunUpdateCycle(parameters != nullptr && std::string_view(parameters) == "VC");
            break;
        }
        case kServicePreKill:
            module_life.kill_pending = 1;
            break;
        case kServiceConnectToWindow:
            ConnectToWindow();
            break;
        case kServiceDisconnect:
            Teardown();
            break;
        default:
            break;
    }
}
