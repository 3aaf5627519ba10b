#pragma once

#include <array>
#include <span>

#include "state/side.h"
#include "state/variable.h"

/// The last press on a format, until its owner has taken it.
struct FormatClick {
    int unit = 0;      // 1 to 5; 0 = none waits
    int half = 0;      // 1 left, 2 right
    int x = 0, y = 0;  // from the half's upper left corner
};

/// The routing of formats to the five Display Units: a display mode each, and what the select panels act on.
/// Changed on the host's thread only, by display/routing.
struct DisplayState {
    int du_capt_outb_mode = 1;
    int du_capt_inb_mode = 45;
    int du_fo_inb_mode = 31;
    int du_fo_outb_mode = 2;
    int du_lower_mode = 3;
    int dsp_capt_mode_button = 1;  // half that the select panel acts on: 1 left, 2 right
    int dsp_fo_mode_button = 2;
    int du_capt_inb_l_sys_page = 11, du_capt_inb_r_sys_page = 11;
    int du_fo_inb_l_sys_page = 11, du_fo_inb_r_sys_page = 11;
    int du_lower_l_sys_page = 11, du_lower_r_sys_page = 11;
    int eicas_eng_button = 0;
    int du_sel_pos = 0;  // -1, 0, 1: last acted position of the captain's selector
    int info_page = 1;   // 1 to 4
    int cb_view = 0;     // which list of circuit breakers is shown, 0 to 5
    int info_status = 0;
    std::array<int, 28> compose_busy = {};  // by gauge id: 1 = its picture is being composed
    int cockpit_2d_active = 0;              // the two-dimensional cockpit is shown, taken once a tick
    FormatClick comm_click, info_click;
    // start-up counters, seconds
    int du_lwr_startup_cnt = 0;     // to 60
    int du_cib_startup_cnt = 0;     // to 90
    int du_pfd_ah_startup_cnt = 0;  // to 10
};

extern DisplayState displays;
extern const std::span<const Variable> kDisplayVariables;

/// The display mode of a unit, 1 to 5.
inline int& DisplayModeOf(int unit) {
    int* const modes[] = {&displays.du_capt_outb_mode, &displays.du_capt_inb_mode, &displays.du_fo_inb_mode,
                          &displays.du_fo_outb_mode, &displays.du_lower_mode};
    return *modes[unit - 1];
}

/// The system page on a half (1 left, 2 right) of a unit. The outboard units show that of the inboard unit of
/// their side.
inline int& SystemPageOf(int unit, int half) {
    if (unit <= 2) return half == 1 ? displays.du_capt_inb_l_sys_page : displays.du_capt_inb_r_sys_page;
    if (unit <= 4) return half == 1 ? displays.du_fo_inb_l_sys_page : displays.du_fo_inb_r_sys_page;
    return half == 1 ? displays.du_lower_l_sys_page : displays.du_lower_r_sys_page;
}

/// Whose a half (1 left, 2 right) of a unit is: of the lower unit the captain has the left half.
inline int SideOf(int unit, int half) {
    const bool captains = unit <= 2 || (unit == 5 && half == 1);
    return captains ? kCaptain : kFirstOfficer;
}
