#include "state/vnav.h"

VnavState vnav;

namespace {
constexpr Variable kVnavRows[] = {
    {"vnav_engaged", &vnav.vnav_engaged},
    {"toc", &vnav.toc},
    {"tod", &vnav.tod},
    {"init_tod", &vnav.init_tod},
    {"toc_lat", &vnav.toc_lat},
    {"toc_lon", &vnav.toc_lon},
    {"toc_stpos", &vnav.toc_stpos},
    {"tod_lat", &vnav.tod_lat},
    {"tod_lon", &vnav.tod_lon},
    {"tod_stpos", &vnav.tod_stpos},
    {"cross_at_elev", &vnav.cross_at_elev},
    {"cross_at_lat", &vnav.cross_at_lat},
    {"cross_at_lon", &vnav.cross_at_lon},
    {"cross_at_nm", &vnav.cross_at_nm},
    {"dist_from_tod_to_bod", &vnav.dist_from_tod_to_bod},
    {"dist_from_bod", &vnav.dist_from_bod},
    {"last_tod_pos", &vnav.last_tod_pos},
    {"last_tod_elev", &vnav.last_tod_elev},
    {"vnav_vert_dev", &vnav.vnav_vert_dev},
    {"vnav_ias", &vnav.vnav_ias},
    {"vnav_mach", &vnav.vnav_mach},
    {"vnav_spd_mode", &vnav.vnav_spd_mode},
    {"vnav_spd_pending", &vnav.vnav_spd_pending},
    {"tod_shortcut", &vnav.tod_shortcut},
    {"clb_next_restr_alt", &vnav.clb_next_restr_alt},
    {"des_next_restr_alt", &vnav.des_next_restr_alt},
    {"step_due", &vnav.step_due},
    {"drag_msg_changed_at", &vnav.drag_msg_changed_at},
    {"dist_past_tod", &vnav.dist_past_tod},
    {"desc_grad_alt", &vnav.desc_grad_alt},
    {"vnav_lset_code", &vnav.vnav_lset_code},
    {"level_off_dist", &vnav.level_off_dist},
    {"required_vs", &vnav.required_vs},
    {"clb_limit_active", &vnav.clb_limit_active},
    {"spd_limit_done", &vnav.spd_limit_done},
    {"leg_speed_taken", &vnav.leg_speed_taken},
    {"reset_mcp_told", &vnav.reset_mcp_told},
    {"descent_cnt", &vnav.descent_cnt},
    {"tod_from_dest", &vnav.tod_from_dest},
    {"step_lat", &vnav.step_lat},
    {"step_lon", &vnav.step_lon},
    {"dist_to_step", &vnav.dist_to_step},
    {"step_noted_alt", &vnav.step_noted_alt},
    {"step_climb_timer", &vnav.step_climb_timer},
};
}  // namespace

const std::span<const Variable> kVnavVariables = kVnavRows;
