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
    double drift_deg = 0;  // positive: wind from the left
    double mgvar = 0;      // degrees, east positive, at the aircraft
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
    int local_hours = 0;
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
    // frame/snapshot.cpp's owner adds the rest of the token table here.
};

extern SimSnapshot sim;
extern const std::span<const Variable> kSimVariables;
