#include "state/instruments.h"

InstrumentState instruments;

namespace {
constexpr Variable kInstrumentRows[] = {
    {"capt.fpv_on", &instruments.pfd[0].fpv_on},
    {"fo.fpv_on", &instruments.pfd[1].fpv_on},
    {"capt.mtrs_on", &instruments.pfd[0].mtrs_on},
    {"fo.mtrs_on", &instruments.pfd[1].mtrs_on},
    {"capt.baro_hpa", &instruments.pfd[0].baro_hpa},
    {"fo.baro_hpa", &instruments.pfd[1].baro_hpa},
    {"minimums_baro", &instruments.minimums_baro},
    {"minimums_value", &instruments.minimums_value},
    {"minimums_mode", &instruments.minimums_mode},
    {"hud_declutter", &instruments.hud_declutter},
    {"stby_brightness", &instruments.stby_brightness},
    {"stby_app_mode", &instruments.stby_app_mode},
    {"stby_baro_in", &instruments.stby_baro_in},
    {"dh_set", &instruments.dh_set},
    {"tz_altitude_alert", &instruments.altitude_alert},
    {"gpws_warning", &instruments.gpws_warning},
    {"ldg_alt_flag", &instruments.ldg_alt_flag},
    {"fd_pitch_smooth", &instruments.fd_pitch_smooth},
    {"baro_preset", &instruments.baro_preset},
    {"flap_detent", &instruments.flap_detent},
    {"flap_bug_phase", &instruments.flap_bug_phase},
    {"fmc_speed_active", &instruments.fmc_speed_active},
    {"vspeed_bugs_removed", &instruments.vspeed_bugs_removed},
    {"mach_box_timer", &instruments.mach_box_timer},
    {"fd_status_timer", &instruments.fd_status_timer},
    {"mach_shown", &instruments.mach_shown},
    {"fd_status_shown", &instruments.fd_status_shown},
    {"minimums_above", &instruments.minimums_above},
    {"pfd_on_ground", &instruments.pfd_on_ground},
    {"ra_2500_timer", &instruments.ra_2500_timer},
    {"minimums_cross_timer", &instruments.minimums_cross_timer},
    {"hud_above_2500", &instruments.hud_above_2500},
    {"hud_above_minimums", &instruments.hud_above_minimums},
};
}  // namespace

const std::span<const Variable> kInstrumentVariables = kInstrumentRows;
