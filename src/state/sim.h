#pragma once

#include <span>
#include <string>

#include "state/variable.h"

/// What the host's aircraft reads at this tick. Filled by frame/snapshot.cpp, in the order of the token
/// table; a value that isn't read (again) keeps its old value.
struct SimSnapshot {
    // position and motion
    double plane_lat = 0;        // degrees, north positive
    double plane_lon = 0;        // degrees, east positive
    double ind_alt_ft = 0;       // indicated altitude
    double radio_alt_ft = 0;     // above ground at the main gear
    double ias_kt = 0;           // smoothed indicated airspeed
    double tas_kt = 0;           // ground speed less the head component of the wind, an estimate
    double ground_speed_kt = 0;  // never negative
    double mach = 0;
    double vs_fpm = 0;
    double pitch_deg = 0;     // positive is nose down
    double bank_deg = 0;      // values within 0.035 read 0; positive is left wing down
    double mag_hdg = 0;       // degrees
    double prev_mag_hdg = 0;  // at the previous read
    double true_hdg = 0;
    double mag_track_deg = 0;
    double true_track_deg = 0;
    double drift_deg = 0;    // positive: wind from the right
    double mgvar = 0;        // degrees, east positive, at the aircraft
    double slip_value = 0;   // ball, -127 left to 127 right
    double pli_margin = 0;   // to the stall: 13000 at it, and 1000 more for each degree of incidence
    double barber_pole = 0;  // 128 times the highest speed, kt
    int on_ground = 0;
    // air
    double wind_kt = 0;
    double wind_dir = 0;      // degrees, where it comes from
    double wind_head_kt = 0;  // head component as the drift formula has it
    double wind_side_kt = 0;
    double oat_c = 0;
    double tat_c = 0;
    double baro_hpa = 0;
    double baro_in = 0;
    // clock
    double abs_time = 0;  // s, host
    int utc_hours = 0;
    int utc_minutes = 0;
    int utc_seconds = 0;
    int local_minutes = 0;
    int day_of_year = 0;
    int day = 0;
    int month = 0;
    int year = 0;
    int day_of_week = 0;
    double sim_rate = 1;
    int host_paused = 0;
    // weights
    double empty_weight = 0;    // lb
    double payload_weight = 0;  // lb, sum of the payload stations
    double fuel_lb_per_gal = 0;
    double left_fuel = 0;    // lb
    double right_fuel = 0;   // lb
    double centre_fuel = 0;  // lb
    double total_fuel = 0;   // lb
    // host autopilot and radios
    int ap_master = 0;
    int host_at_armed = 0;  // token 103
    double apalt = 0;       // ft, MCP altitude
    double ap_hdgbug = 0;
    double ap_spdbug = 0;  // kt
    double ap_machbug = 0;
    double ap_vsbug = 0;   // fpm
    double nav1_freq = 0;  // BCD digits + 10000
    double nav2_freq = 0;
    double nav1_radial = 0;  // degrees magnetic, to the station: its radial turned round
    double nav2_radial = 0;
    double nav1_deviation = 0;  // raw
    double nav2_deviation = 0;
    double loc_needle = 0;  // raw
    double gs_needle = 0;
    double nav1_dme = 0;  // raw
    double nav2_dme = 0;
    int nav1_is_loc = 0;
    int nav1_has_gs = 0;
    int nav2_is_loc = 0;
    int nav2_has_gs = 0;
    double nav1_signal = 0;  // above 0 = receiving
    double nav2_signal = 0;
    double nav1_course = 0;  // degrees, of the tuned facility
    double nav2_course = 0;
    std::string nav1_ident, nav2_ident;
    double adf1_freq = 0;  // kHz
    double adf1_signal = 0;
    std::string adf1_ident, adf2_ident;
    double adf2_freq = 0;
    double adf2_signal = 0;
    double adf2_radial = 0;
    int transponder_code = 0;  // four octal digits, as read
    double dh_host = 0;        // ft, decision height as the host has it
    int fd_active = 0;         // the host's flight director
    int marker_state = 0;      // beacon received: 1 outer, 2 middle, 3 inner
    // engines
    double n1_l = 0, n1_r = 0;  // percent
    double n2_l = 0, n2_r = 0;
    double corrected_n1_l = 0, corrected_n1_r = 0;
    double corrected_n2_l = 0, corrected_n2_r = 0;
    double egt_l = 0, egt_r = 0;                    // degrees C
    double thrust_lever_1 = 0, thrust_lever_2 = 0;  // -4096 to 16384, below 0 reverse
    int eng1_combustion = 0, eng2_combustion = 0;   // fuel selected
    int eng1_starter = 0, eng2_starter = 0;         // engaged
    int eng1_fire = 0, eng2_fire = 0;
    double config_warning_arm = 0;  // takeoff configuration warnings arm at 0
    // surfaces, gear, lights
    double flap_pos = 0;       // flap handle, 0 to 16384
    double flap_te_angle = 0;  // degrees
    double flap_le_angle = 0;
    double flap_angle = 0;  // sum of the two, as the alert rules take it
    double spoilers_armed = 0;
    double spoiler_l = 0, spoiler_r = 0;  // 0 to 16384
    double gear_handle = 0;
    double gear_nose = 0, gear_left = 0, gear_right = 0;  // 0 to 16384, 16000 and above is down
    double parking_brake = 0;                             // 0 released, 32000 and above set
    double rudder_trim = 0;                               // -1 to 1
    int strobe_light = 0, beacon_light = 0, taxi_light = 0;
    int nav_light = 0, logo_light = 0, wing_light = 0;
    int pitot_heat = 0;
    int host_battery = 0;
    double ice_test = 0;  // below 50 counts for anti-ice
    // doors, 1 open
    int door_1l = 0, door_2l = 0, door_3l = 0, door_4l = 0;
    int door_1r = 0, door_2r = 0, door_3r = 0, door_4r = 0;
    int door_fwd_cargo = 0, door_aft_cargo = 0, door_bulk_cargo = 0;
    int door_count = 0;  // open ones
    // speeds of the flight model
    double airspeed_smooth = 0;             // kt
    double host_tas_kt = 0;                 // kt, the host's own
    double accel_z = 0;                     // ft/s2, along the body
    double design_vs0 = 0, design_vs1 = 0;  // kt
    double v_s_kt = 0, v_a_kt = 0, v_mo_kt = 0;
    double low_speed_limit = 0;    // kt
    double vnav_spd_readback = 0;  // as AutoflightLogic sees it
    double cabin_alt = 0, cabin_dp = 0, cabin_rate = 0;
    double cabin_fwd_ofv = 0, cabin_aft_ofv = 0;
    double ground_elev_m = 0;  // terrain below the aircraft
    double free_address_gb = 0;
};

extern SimSnapshot sim;
extern const std::span<const Variable> kSimVariables;
