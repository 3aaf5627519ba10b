#pragma once

#include <array>
#include <span>
#include <string>

#include "state/growing_list.h"
#include "state/variable.h"
#include "state/wind_level.h"

/// A station of the weather program that stands for a leg of the route.
struct WxStation {
    std::string ident, lat_text, lon_text;
    int leg = 0;                             // index in FlightPlanMod when it was chosen
    double leg_lat = 0, leg_lon = 0;         // where that leg is: edits move its index
    std::array<std::string, 9> levels = {};  // its winds as filed, kWxLevels
};

/// Winds from outside, on their way into the route, and the forecast of the descent. Filled by fmc/winds.
struct WindsState {
    GrowingList<WxStation> WxStations;  // from 1, made anew at each request
    int wx_station_cnt = 0;
    std::array<WindLevel, 4> DescentForecast = {};  // the whole descent's; fmc/winds
    int TransLvl = 0;                               // ft, 0 = the transition altitude
    int AntiIceAlt = 0;                             // ft, below which anti-ice is on in the descent; 0 = none
    int wind_uplink_timer = 0;    // s until what was requested has come; 0 = nothing is under way
    int wind_uplink_pending = 0;  // 1 = it waits for LOAD
    int wind_uplink_side = 1;     // who asked
    int activesky_loaded = 0;     // the weather program runs beside the simulator
    std::string ActiveSkyFolder;  // of its snapshots
};

extern WindsState winds;
extern const std::span<const Variable> kWindsVariables;
