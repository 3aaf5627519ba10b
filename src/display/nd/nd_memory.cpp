#include "display/nd/nd_memory.h"

#include "state/cockpit.h"
#include "state/nd.h"
#include "state/sim.h"

namespace {

constexpr int kMarkedTicks = 180;

}  // namespace

void StepNdMemory() {
    NdMemory& memory = nd_memory;
    if (memory.hdg_sel_timer > 0) --memory.hdg_sel_timer;
    if (memory.ref_change_timer > 0) --memory.ref_change_timer;
    if (sim.ap_hdgbug != memory.selected_before) memory.hdg_sel_timer = kMarkedTicks;
    if (cockpit.TZ_OH_HDG_REF_Button != memory.true_before) memory.ref_change_timer = kMarkedTicks;
    memory.selected_before = sim.ap_hdgbug;
    memory.true_before = cockpit.TZ_OH_HDG_REF_Button;
}
