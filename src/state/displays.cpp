#include "state/displays.h"

template <>
struct Describe<FormatClick> {
    static constexpr Field fields[] = {FieldRow<&FormatClick::unit>("unit"),
                                       FieldRow<&FormatClick::half>("half"), FieldRow<&FormatClick::x>("x"),
                                       FieldRow<&FormatClick::y>("y")};
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

DisplayState displays;

namespace {
constexpr Variable kDisplayRows[] = {
    {"du_capt_outb_mode", &displays.du_capt_outb_mode},
    {"du_capt_inb_mode", &displays.du_capt_inb_mode},
    {"du_fo_inb_mode", &displays.du_fo_inb_mode},
    {"du_fo_outb_mode", &displays.du_fo_outb_mode},
    {"du_lower_mode", &displays.du_lower_mode},
    {"dsp_capt_mode_button", &displays.dsp_capt_mode_button},
    {"dsp_fo_mode_button", &displays.dsp_fo_mode_button},
    {"du_capt_inb_l_sys_page", &displays.du_capt_inb_l_sys_page},
    {"du_capt_inb_r_sys_page", &displays.du_capt_inb_r_sys_page},
    {"du_fo_inb_l_sys_page", &displays.du_fo_inb_l_sys_page},
    {"du_fo_inb_r_sys_page", &displays.du_fo_inb_r_sys_page},
    {"du_lower_l_sys_page", &displays.du_lower_l_sys_page},
    {"du_lower_r_sys_page", &displays.du_lower_r_sys_page},
    {"eicas_eng_button", &displays.eicas_eng_button},
    {"du_sel_pos", &displays.du_sel_pos},
    {"info_page", &displays.info_page},
    {"cb_view", &displays.cb_view},
    {"info_status", &displays.info_status},
    {"compose_busy", &displays.compose_busy},
    {"cockpit_2d_active", &displays.cockpit_2d_active},
    {"comm_click", &displays.comm_click},
    {"info_click", &displays.info_click},
    {"du_lwr_startup_cnt", &displays.du_lwr_startup_cnt},
    {"du_cib_startup_cnt", &displays.du_cib_startup_cnt},
    {"du_pfd_ah_startup_cnt", &displays.du_pfd_ah_startup_cnt},
};
}  // namespace

const std::span<const Variable> kDisplayVariables = kDisplayRows;
