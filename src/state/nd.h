#pragma once

#include <array>
#include <span>

#include "state/variable.h"

/// What a pilot has chosen on a navigation display.
struct NdSide {
    int nd_mode = 3;     // one of those below
    int nd_menu = 0;     // the menu column is open
    int rng_knob = 6;    // 0 to 11, place in the range table
    double rng_nm = 40;  // range
    int nd_ctr = 0;      // centred layout
    int nd_vsd = 0;      // vertical situation display below the map
    // 0 off, 1 by the menu, 2 by the panel's button; weather and terrain exclude each other
    int nd_wxr = 0, nd_terr = 0, nd_tfc = 0;
    int nd_wxr_lamp = 0;  // the panel's weather button is on; range arcs show
    int nd_wpt = 0, nd_apt = 0, nd_sta = 0, nd_pos = 0, nd_data = 0;
    int nd_vor_l = 0, nd_vor_r = 0;
    double plan_lat = 0, plan_lon = 0;     // centre of PLAN, degrees; 0, 0 = unset
    int plan_step = 0;                     // leg at the centre of PLAN
    int nd_pick_pending = 0;               // the next press on the map is a point of it
    int nd_pick_use = 0;                   // what the point is for: one of those below
    int nd_pick_taken = 0;                 // the map has been pressed, at the cursor
    int nd_cursor_x = 0, nd_cursor_y = 0;  // from the half's upper left corner
    // how the map stood at the last tick
    double map_lat = 0, map_lon = 0;  // its centre, degrees
    double map_north = 0;             // true bearing of its top
    double px_per_nm = 0;
};

constexpr int kNdMap = 3, kNdPlan = 4;  // of nd_mode

/// Of nd_pick_use: the key that has been pressed in PLAN.
constexpr int kPickWaypoint = 0, kPickCursor = 1, kPickCentre = 2;

/// What both navigation displays remember from picture to picture.
struct NdMemory {
    int hdg_sel_timer = 0;       // ticks left since the selected heading or track has changed
    int ref_change_timer = 0;    // ticks left since the heading reference has changed
    double selected_before = 0;  // degrees, at the previous tick
    int true_before = 0;         // the reference was true
};

extern NdMemory nd_memory;
extern const std::span<const Variable> kNdMemoryVariables;

/// nd[0] is the captain's, nd[1] the first officer's: NdOf(side).
extern std::array<NdSide, 2> nd;
extern const std::span<const Variable> kNdVariables;

inline NdSide& NdOf(int side) {
    return nd[side == 2 ? 1 : 0];
}
