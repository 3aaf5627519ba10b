#include "state/lnav.h"

LnavState lnav;

namespace {
constexpr Variable kRows[] = {
    {"leg_len", &lnav.leg_len},
    {"leg_crs", &lnav.leg_crs},
    {"wpt_brg", &lnav.wpt_brg},
    {"wpt_dist", &lnav.wpt_dist},
    {"wpt_chg_dist", &lnav.wpt_chg_dist},
    {"turn_radius", &lnav.turn_radius},
    {"turn_angle", &lnav.turn_angle},
    {"turn_code", &lnav.turn_code},
    {"xtk", &lnav.xtk},
    {"xtk_side", &lnav.xtk_side},
    {"xtk_shown", &lnav.xtk_shown},
    {"xtk_side_shown", &lnav.xtk_side_shown},
    {"course_here", &lnav.course_here},
    {"fix_near", &lnav.fix_near},
    {"plan_finished", &lnav.plan_finished},
    {"lnav_engaged", &lnav.lnav_engaged},
    {"fms_hdg", &lnav.fms_hdg},
    {"true_reference", &lnav.true_reference},
    {"aim_lat", &lnav.aim_lat},
    {"aim_lon", &lnav.aim_lon},
    {"lookahead", &lnav.lookahead},
    {"force_sequence", &lnav.force_sequence},
    {"holding", &lnav.holding},
    {"hold_point", &lnav.hold_point},
    {"hold_prev_point", &lnav.hold_prev_point},
    {"hold_exit", &lnav.hold_exit},
    {"hold_speed", &lnav.hold_speed},
    {"hold_hdg", &lnav.hold_hdg},
    {"further_hold", &lnav.further_hold},
    {"hold_select_due", &lnav.hold_select_due},
    {"last_fix_lat", &lnav.last_fix_lat},
    {"last_fix_lon", &lnav.last_fix_lon},
    {"last_fix_alt", &lnav.last_fix_alt},
    {"lnav_init_mode", &lnav.lnav_init_mode},
    {"lnav_init_lat", &lnav.lnav_init_lat},
    {"lnav_init_lon", &lnav.lnav_init_lon},
    {"lnav_join_trk_lat", &lnav.lnav_join_trk_lat},
    {"lnav_join_trk_lon", &lnav.lnav_join_trk_lon},
    {"lnav_join_trk", &lnav.lnav_join_trk},
    {"report_due", &lnav.report_due},
    {"report_ident", &lnav.report_ident},
};
}  // namespace

const std::span<const Variable> kLnavVariables = kRows;
