#include "display/nd/nd_memory.h"

#include "display/nd/nd_frame.h"
#include "display/routing/nd_controls.h"
#include "state/cockpit.h"
#include "state/nd.h"
#include "state/nearest.h"
#include "state/side.h"
#include "state/sim.h"
#include "state/time_base.h"

namespace {

constexpr int kMarkedTicks = 180;

// The lists of what is near go with a map that is moved away from the aircraft; the captain's before the
// first officer's.
void LeadNearLists() {
    nearest.map_centre_set = 0;
    for (const int side : {kCaptain, kFirstOfficer}) {
        if (NdOf(side).nd_mode != kNdPlan) continue;
        const MapView view = MakeNdFrame(side, 1, false).view;
        nearest.map_centre_set = 1;
        nearest.map_centre_lat = view.lat;
        nearest.map_centre_lon = view.lon;
        return;
    }
}

}  // namespace

void StepNdMemory() {
    NdMemory& memory = nd_memory;
    if (memory.hdg_sel_timer > 0) --memory.hdg_sel_timer;
    if (memory.ref_change_timer > 0) --memory.ref_change_timer;
    if (sim.ap_hdgbug != memory.selected_before) memory.hdg_sel_timer = kMarkedTicks;
    if (cockpit.TZ_OH_HDG_REF_Button != memory.true_before) memory.ref_change_timer = kMarkedTicks;
    memory.selected_before = sim.ap_hdgbug;
    memory.true_before = cockpit.TZ_OH_HDG_REF_Button;
    if (time_base.tick_phase == 0) LeadNearLists();
}
