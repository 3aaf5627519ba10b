#include "state/nd.h"

std::array<NdSide, 2> nd;
NdMemory nd_memory;

namespace {
constexpr Variable kNdRows[] = {
    {"capt_nd_mode", &nd[0].nd_mode},
    {"fo_nd_mode", &nd[1].nd_mode},
    {"capt_nd_menu", &nd[0].nd_menu},
    {"fo_nd_menu", &nd[1].nd_menu},
    {"du_capt_rng_knob", &nd[0].rng_knob},
    {"du_fo_rng_knob", &nd[1].rng_knob},
    {"du_capt_rng_nm", &nd[0].rng_nm},
    {"du_fo_rng_nm", &nd[1].rng_nm},
    {"capt_ctr_mode", &nd[0].nd_ctr},
    {"fo_ctr_mode", &nd[1].nd_ctr},
    {"capt.nd_ctr", &nd[0].nd_ctr},
    {"fo.nd_ctr", &nd[1].nd_ctr},
    {"capt.nd_vsd", &nd[0].nd_vsd},
    {"fo.nd_vsd", &nd[1].nd_vsd},
    {"capt.nd_wxr", &nd[0].nd_wxr},
    {"fo.nd_wxr", &nd[1].nd_wxr},
    {"capt.nd_terr", &nd[0].nd_terr},
    {"fo.nd_terr", &nd[1].nd_terr},
    {"capt.nd_tfc", &nd[0].nd_tfc},
    {"fo.nd_tfc", &nd[1].nd_tfc},
    {"capt.nd_wxr_lamp", &nd[0].nd_wxr_lamp},
    {"fo.nd_wxr_lamp", &nd[1].nd_wxr_lamp},
    {"capt.nd_wpt", &nd[0].nd_wpt},
    {"fo.nd_wpt", &nd[1].nd_wpt},
    {"capt.nd_apt", &nd[0].nd_apt},
    {"fo.nd_apt", &nd[1].nd_apt},
    {"capt.nd_sta", &nd[0].nd_sta},
    {"fo.nd_sta", &nd[1].nd_sta},
    {"capt.nd_pos", &nd[0].nd_pos},
    {"fo.nd_pos", &nd[1].nd_pos},
    {"capt.nd_data", &nd[0].nd_data},
    {"fo.nd_data", &nd[1].nd_data},
    {"capt.nd_vor_l", &nd[0].nd_vor_l},
    {"fo.nd_vor_l", &nd[1].nd_vor_l},
    {"capt.nd_vor_r", &nd[0].nd_vor_r},
    {"fo.nd_vor_r", &nd[1].nd_vor_r},
    {"capt.plan_lat", &nd[0].plan_lat},
    {"fo.plan_lat", &nd[1].plan_lat},
    {"capt.plan_lon", &nd[0].plan_lon},
    {"fo.plan_lon", &nd[1].plan_lon},
    {"capt.plan_step", &nd[0].plan_step},
    {"fo.plan_step", &nd[1].plan_step},
    {"capt.nd_pick_pending", &nd[0].nd_pick_pending},
    {"fo.nd_pick_pending", &nd[1].nd_pick_pending},
    {"capt.nd_pick_use", &nd[0].nd_pick_use},
    {"fo.nd_pick_use", &nd[1].nd_pick_use},
    {"capt.nd_pick_taken", &nd[0].nd_pick_taken},
    {"fo.nd_pick_taken", &nd[1].nd_pick_taken},
    {"capt.nd_cursor_x", &nd[0].nd_cursor_x},
    {"fo.nd_cursor_x", &nd[1].nd_cursor_x},
    {"capt.nd_cursor_y", &nd[0].nd_cursor_y},
    {"fo.nd_cursor_y", &nd[1].nd_cursor_y},
};
constexpr Variable kNdMemoryRows[] = {
    {"hdg_sel_timer", &nd_memory.hdg_sel_timer},
    {"ref_change_timer", &nd_memory.ref_change_timer},
    {"selected_before", &nd_memory.selected_before},
    {"true_before", &nd_memory.true_before},
};
}  // namespace

const std::span<const Variable> kNdVariables = kNdRows;
const std::span<const Variable> kNdMemoryVariables = kNdMemoryRows;
