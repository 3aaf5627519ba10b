#include "state/state_groups.h"

#include "state/airports.h"
#include "state/autoflight.h"
#include "state/cdu.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/displays.h"
#include "state/efb.h"
#include "state/electrical.h"
#include "state/flight_log.h"
#include "state/host_link.h"
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
#include "state/pause_points.h"
#include "state/perf.h"
#include "state/placement.h"
#include "state/plan.h"
#include "state/pos_init.h"
#include "state/procedure_lists.h"
#include "state/remote.h"
#include "state/requests.h"
#include "state/route_files.h"
#include "state/sim.h"
#include "state/sound.h"
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
    {"host_link", Reset<&host_link>, &kHostLinkVariables},
    {"cfg", Reset<&cfg>, &kCfgVariables},
    {"identity", Reset<&identity>, &kIdentityVariables},
    {"weights", Reset<&weights>, &kWeightVariables},
    {"irs", Reset<&irs>, &kIrsVariables},
    {"module_life", Reset<&module_life>, &kModuleLifeVariables},
    {"cockpit", Reset<&cockpit>, &kCockpitVariables},
    {"keyboard", Reset<&keyboard>, &kKeyboardVariables},
    {"placement", Reset<&placement>, &kPlacementVariables},
    {"pos_init", Reset<&pos_init>, &kPosInitVariables},
    {"time_base", Reset<&time_base>, &kTimeBaseVariables},
    {"sim", Reset<&sim>, &kSimVariables},
    {"nav_tables", Reset<&nav_tables>, &kNavTableVariables},
    {"nav", Reset<&nav>, &kNavVariables},
    {"traffic", Reset<&traffic>, &kTrafficVariables},
    {"nearest", Reset<&nearest>, &kNearestVariables},
    {"airports", Reset<&airports>, &kAirportVariables},
    {"plan", Reset<&plan>, &kPlanVariables},
    {"procedure_lists", Reset<&procedure_lists>, &kProcedureListVariables},
    {"winds", Reset<&winds>, &kWindsVariables},
    {"route_files", Reset<&route_files>, &kRouteFileVariables},
    {"perf", Reset<&perf>, &kPerfVariables},
    {"flight_log", Reset<&flight_log>, &kFlightLogVariables},
    {"vnav", Reset<&vnav>, &kVnavVariables},
    {"lnav", Reset<&lnav>, &kLnavVariables},
    {"pause_points", Reset<&pause_points>, &kPausePointVariables},
    {"autoflight", Reset<&autoflight>, &kAutoflightVariables},
    {"sound", Reset<&sound>, &kSoundVariables},
    {"cdu", Reset<&cdu>, &kCduVariables},
    {"route_pages", Reset<&route_pages>, &kRoutePageVariables},
    {"displays", Reset<&displays>, &kDisplayVariables},
    {"nd", Reset<&nd>, &kNdVariables},
    {"instruments", Reset<&instruments>, &kInstrumentVariables},
    {"efb", Reset<&efb>, &kEfbVariables},
    {"remote", Reset<&remote>, &kRemoteVariables},
    {"requests", Reset<&requests>, &kRequestVariables},
    {"electrical", Reset<&electrical>, &kElectricalVariables},
};

}  // namespace

std::span<const StateGroup> StateGroups() {
    return kGroups;
}

void ResetSystemState() {
    for (const StateGroup& group : kGroups) group.reset();
}
