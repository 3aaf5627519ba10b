#pragma once

#include <span>
#include <string>

#include "state/growing_list.h"
#include "state/variable.h"

/// One row of a navigation table. Degrees north and east positive.
struct NavRecord {
    std::string ident = {};
    std::string name = {};
    double lat = 0, lon = 0;
    std::string type = {};      // "I" fix, "V" VOR, "N" NDB, "APT" airport, "O" coded latitude/longitude
    std::string freq = {};      // navaids: as in the file
    double longest_runway = 0;  // ft, airports
    std::string airway = {};    // records of an airway search
    std::string elevation_text = {};
};

/// What the navigation database answers. Filled by navdata/.
struct NavState {
    GrowingList<NavRecord> EntryCandidates;  // from 1, nearest first
    int entry_cnt = 0;
    int entry_bearing = 0, entry_bearing2 = 0;  // degrees, of the forms with bearings
    int entry_distance = 0;                     // nm, 0 = none
    int entry_list_pos = 0;   // place of from_ident among the fixes of the last LoadAirway, 0 = not there
    int entry_list_page = 0;  // the page of 16 fixes that shows it
    int navdata_out_of_date = 0;
    std::string airac_cycle_text;   // "AIRAC 2612"
    std::string airac_range_text;   // "JAN04FEB01/18"
    std::string airac_range_short;  // "04JAN - 01FEB"
    int nearest_refresh_due = 0;    // the proximity lists are refreshed at once
    int ilsfreq = 0;                // hundredths of a MHz, that a pilot has tuned by hand; 0 = parked
    int IlsCourse = 0;              // degrees, given with it
    NavRecord ref_nav_data;         // what REF NAV DATA shows; no ident = nothing
    // the selected approach on NAV 1, by guidance/approach_tuning
    int autotuned = 0;               // it has been sent; the radio is then not tuned to VORs
    int autotune_freq = 0;           // binary coded decimal, hundredths of a MHz
    int autotune_tries = 0;          // sent so often; 0 = the host has it, or never takes it
    std::string autotuned_approach;  // the approach that this is about
    std::string appr_navaid_ident;   // of the station received; empty = none yet
};

extern NavState nav;
extern const std::span<const Variable> kNavVariables;
