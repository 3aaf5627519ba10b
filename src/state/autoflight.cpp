#include "state/autoflight.h"

AutoflightState autoflight;

namespace {
constexpr Variable kAutoflightRows[] = {
    {"ap_master_l", &autoflight.ap_master_l},
    {"ap_master_r", &autoflight.ap_master_r},
    {"ap_lat_mode", &autoflight.ap_lat_mode},
    {"ap_lat_mode_armed", &autoflight.ap_lat_mode_armed},
    {"ap_vert_mode", &autoflight.ap_vert_mode},
    {"ap_vert_mode_armed", &autoflight.ap_vert_mode_armed},
    {"at_mode", &autoflight.at_mode},
    {"at_mode_armed", &autoflight.at_mode_armed},
    {"at_armed_left", &autoflight.at_armed_left},
    {"at_armed_right", &autoflight.at_armed_right},
    {"ap_envelope_prot", &autoflight.ap_envelope_prot},
    {"fac_approach", &autoflight.fac_approach},
    {"fac_lat_needle", &autoflight.fac_lat_needle},
    {"gp_needle", &autoflight.gp_needle},
    {"ian_approach", &autoflight.ian_approach},
    {"fd_roll_cmd", &autoflight.fd_roll_cmd},
    {"fd_pitch_cmd", &autoflight.fd_pitch_cmd},
    {"fd_pitch_bar_off", &autoflight.fd_pitch_bar_off},
    {"ap_master_disconnect", &autoflight.ap_master_disconnect},
    {"tz_spd_intv_active", &autoflight.spd_intv_active},
    {"tz_thrust_limit", &autoflight.thrust_limit},
    {"ThrustMode", &autoflight.thrust_limit},
    {"ap_disc_warning", &autoflight.ap_disc_warning},
    {"ap_disc_latch", &autoflight.ap_disc_latch},
    {"ap_status_timer", &autoflight.ap_status_timer},
    {"fma_roll_timer", &autoflight.fma_roll_timer},
    {"fma_pitch_timer", &autoflight.fma_pitch_timer},
    {"fma_at_timer", &autoflight.fma_at_timer},
    {"spd_mean", &autoflight.spd_mean},
    {"spd_lookahead", &autoflight.spd_lookahead},
    {"spd_trend", &autoflight.spd_trend},
    {"speed_trend_kt", &autoflight.spd_trend},
    {"ap_disc_lamp", &autoflight.ap_disc_lamp},
    {"spd_ring", &autoflight.spd_ring},
};
}  // namespace

const std::span<const Variable> kAutoflightVariables = kAutoflightRows;
