#include "display/nd/nd_memory.h"

#include "display/nd/nd_frame.h"
#include "state/cockpit.h"
#include "state/nd.h"
#include "state/side.h"
#include "state/sim.h"

namespace {

constexpr int kMarkedTicks = 180;

void NoteHowMapStands(int side) {
    const MapView view = MakeNdFrame(side, 1, false).view;
    NdSide& display = NdOf(side);
    display.map_lat = view.lat;
    display.map_lon = view.lon;
    display.map_north = view.up;
    display.px_per_nm = view.scale;
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
    for (const int side : {kCaptain, kFirstOfficer}) NoteHowMapStands(side);
}
