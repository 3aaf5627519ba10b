#include "state/state_groups.h"

#include "state/air.h"
#include "state/airports.h"
#include "state/alerts.h"
#include "state/announcements.h"
#include "state/autoflight.h"
#include "state/cdu.h"
#include "state/cfg.h"
#include "state/checklist.h"
#include "state/cockpit.h"
#include "state/displays.h"
#include "state/efb.h"
#include "state/eicas.h"
#include "state/electrical.h"
#include "state/engines.h"
#include "state/fix_info.h"
#include "state/flight_log.h"
#include "state/fuel_pumps.h"
#include "state/host_link.h"
#include "state/hydraulics.h"
#include "state/identity.h"
#include "state/instruments.h"
#include "state/irs.h"
#include "state/keyboard.h"
#include "state/lnav.h"
#include "state/module_life.h"
#include "state/nav.h"
#include "state/nav_tables.h"
#include "state/nd.h"
#include "state/nearest.h"
#include "state/panel_files.h"
#include "state/pause_points.h"
#include "state/perf.h"
#include "state/placement.h"
#include "state/plan.h"
#include "state/pos_init.h"
#include "state/predictions.h"
#include "state/procedure_lists.h"
#include "state/remote.h"
#include "state/requests.h"
#include "state/route_files.h"
#include "state/sim.h"
#include "state/sound.h"
#include "state/surfaces.h"
#include "state/synoptics.h"
#include "state/tablet_performance.h"
#include "state/takeoff_approach.h"
#include "state/time_base.h"
#include "state/traffic.h"
#include "state/vnav.h"
#include "state/weights.h"
#include "state/winds.h"

namespace {

template <auto* kGroup>
void Reset() {
    *kGroup = {};
}

constexpr StateGroup kGroups[] = {
    {"host_link", Reset<&host_link>, &kHostLinkVariables, "frame/ panels/save_panel"},
    {"cfg", Reset<&cfg>, &kCfgVariables, "frame/ guidance/ systems/ cdu/pages/"},
    {"identity", Reset<&identity>, &kIdentityVariables, "frame/aircraft navdata/airport_file"},
    {"weights", Reset<&weights>, &kWeightVariables, "frame/"},
    {"irs", Reset<&irs>, &kIrsVariables, "systems/"},
    {"module_life", Reset<&module_life>, &kModuleLifeVariables, "module/"},
    {"cockpit", Reset<&cockpit>, &kCockpitVariables,
     "frame/ guidance/ systems/ display/routing/routing panels/panel_keys"},
    {"keyboard", Reset<&keyboard>, &kKeyboardVariables, "frame/keyboard_capture cdu/unit/"},
    {"placement", Reset<&placement>, &kPlacementVariables, ""},
    {"pos_init", Reset<&pos_init>, &kPosInitVariables, "cdu/pages/"},
    {"time_base", Reset<&time_base>, &kTimeBaseVariables,
     "frame/ fmc/performance/flight_log guidance/ display/routing/ module/controls/glareshield module/"},
    {"sim", Reset<&sim>, &kSimVariables, "frame/ surveillance/terrain guidance/"},
    {"nav_tables", Reset<&nav_tables>, &kNavTableVariables, "navdata/nav_tables"},
    {"nav", Reset<&nav>, &kNavVariables, "navdata/ guidance/approach_tuning cdu/pages/"},
    {"traffic", Reset<&traffic>, &kTrafficVariables, "surveillance/traffic"},
    {"nearest", Reset<&nearest>, &kNearestVariables,
     "frame/aircraft navdata/ fmc/performance/winds fmc/route/route_text cdu/pages/"},
    {"airports", Reset<&airports>, &kAirportVariables,
     "navdata/ fmc/procedures/select_procedures fmc/route/ fmc/files/loaded_route"},
    {"plan", Reset<&plan>, &kPlanVariables,
     "frame/configuration fmc/legs/ fmc/performance/ fmc/procedures/ fmc/route/ fmc/files/ guidance/ "
     "cdu/words/ cdu/pages/ module/lifecycle panels/load_panel"},
    {"procedure_lists", Reset<&procedure_lists>, &kProcedureListVariables,
     "fmc/procedures/ fmc/route/ fmc/files/loaded_route"},
    {"winds", Reset<&winds>, &kWindsVariables, "fmc/performance/winds cdu/pages/"},
    {"route_files", Reset<&route_files>, &kRouteFileVariables, "fmc/files/"},
    {"perf", Reset<&perf>, &kPerfVariables,
     "fmc/legs/route_state fmc/performance/ fmc/route/ fmc/files/ guidance/vnav_speed "
     "cdu/words/ cdu/pages/"},
    {"predictions", Reset<&predictions>, &kPredictionVariables, "fmc/performance/ fmc/route/"},
    {"takeoff_approach", Reset<&takeoff_approach>, &kTakeoffApproachVariables,
     "frame/aircraft fmc/performance/ systems/thrust_rating cdu/pages/ cdu/unit/keypad "
     "display/pfd/pfd_memory"},
    {"flight_log", Reset<&flight_log>, &kFlightLogVariables,
     "fmc/performance/flight_log fmc/route/execute_route fmc/files/loaded_route panels/load_panel"},
    {"vnav", Reset<&vnav>, &kVnavVariables, "frame/crew_messages fmc/performance/ fmc/route/ guidance/"},
    {"lnav", Reset<&lnav>, &kLnavVariables,
     "fmc/legs/holds fmc/route/ guidance/ cdu/pages/ cdu/unit/cdu_service"},
    {"pause_points", Reset<&pause_points>, &kPausePointVariables, "guidance/pause_points"},
    {"autoflight", Reset<&autoflight>, &kAutoflightVariables,
     "guidance/ systems/thrust_rating panels/panel_keys"},
    {"sound", Reset<&sound>, &kSoundVariables, "frame/ systems/ sound/ module/"},
    {"cdu", Reset<&cdu>, &kCduVariables, "frame/ cdu/words/ cdu/unit/ efb/pages/send_page"},
    {"route_pages", Reset<&route_pages>, &kRoutePageVariables, "cdu/words/views cdu/pages/ cdu/unit/items"},
    {"displays", Reset<&displays>, &kDisplayVariables,
     "systems/ display/routing/ display/synoptics/cb_page display/formats/ display/pictures/compose"},
    {"nd", Reset<&nd>, &kNdVariables,
     "frame/named_variable_catalogue cdu/pages/legs_page display/routing/nd_controls display/nd/nd_keys "
     "display/nd/nd_memory"},
    {"nd_memory", Reset<&nd_memory>, &kNdMemoryVariables, "display/nd/nd_memory"},
    {"fix_info", Reset<&fix_info>, &kFixInfoVariables, "cdu/pages/"},
    {"instruments", Reset<&instruments>, &kInstrumentVariables,
     "frame/named_variable_catalogue frame/model_values guidance/decision_height "
     "display/routing/instrument_controls display/synoptics/efis_dsp_page display/pfd/pfd_memory"},
    {"efb", Reset<&efb>, &kEfbVariables, "efb/"},
    {"tablet_performance", Reset<&tablet_performance>, &kTabletPerformanceVariables, "cdu/pages/ efb/"},
    {"remote", Reset<&remote>, &kRemoteVariables, "display/pictures/remote_bridge module/remote_input"},
    {"requests", Reset<&requests>, &kRequestVariables,
     "fmc/legs/holds fmc/route/modification fmc/files/ guidance/ cdu/words/views checklist/ "
     "display/routing/routing module/controls/"},
    {"electrical", Reset<&electrical>, &kElectricalVariables, "frame/named_variable_catalogue systems/"},
    {"engines", Reset<&engines>, &kEngineVariables, "frame/ systems/"},
    {"fuel_pumps", Reset<&fuel_pumps>, &kFuelPumpVariables, "systems/fuel_pumps"},
    {"hydraulics", Reset<&hydraulics>, &kHydraulicVariables, "systems/hydraulics"},
    {"surfaces", Reset<&surfaces>, &kSurfaceVariables, "systems/surfaces"},
    {"air", Reset<&air>, &kAirVariables, "systems/air_temperatures"},
    {"alerts", Reset<&alerts>, &kAlertVariables, "systems/alerting/"},
    {"eicas", Reset<&eicas>, &kEicasVariables, "display/eicas/engine_readings"},
    {"panel_files", Reset<&panel_files>, &kPanelFileVariables, "panels/"},
    {"announcements", Reset<&announcements>, &kAnnouncementVariables, "cdu/pages/"},
    {"checklist", Reset<&checklist>, &kChecklistVariables, "checklist/"},
    {"synoptics", Reset<&synoptics>, &kSynopticVariables, "systems/status_dots"},
};

}  // namespace

std::span<const StateGroup> StateGroups() {
    return kGroups;
}

void ResetSystemState() {
    for (const StateGroup& group : kGroups) group.reset();
}
