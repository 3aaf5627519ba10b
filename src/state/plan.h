#pragma once

#include <array>
#include <span>
#include <string>
#include <utility>

#include "state/growing_list.h"
#include "state/planned_speeds.h"
#include "state/variable.h"
#include "state/wind_level.h"

constexpr double kNone = -999;  // "none" in a double of a leg
constexpr int kNoPlan = 999;    // stpos without a flight plan

/// One waypoint of the flight plan; the same fields are a row of a route file. Degrees north and east
/// positive, feet, knots; an empty text is "none".
struct FlightPlanLeg {
    std::string ident;  // "DISCO", "THEN" and "VECTORS" are markers, not places
    double lat = 0, lon = 0;
    std::string type;  // "APT", "VOR", "NDB", "INT", "WPT"; "OAWY" on "THEN"; empty on "DISCO"
    std::string freq;
    std::string via;       // airway or procedure, "DIRECT", "HOLD", "MISSED APPR"
    std::string via_type;  // "SID", "STAR", "SIDSTAR", "APPR", "AWY", "HOLD", empty
    double alt = kNone;    // predicted altitude
    double alt_restr = kNone;
    double block_above = kNone, block_below = kNone;
    int restr_code = 0;  // what is constrained: 1 altitude, 2 speed, 3 both; 0 nothing
    int restr_type = 0;  // how: 0 at, 1 at or above, 2 at or below, 3 between
    double ias_restr = kNone;
    double mach_restr = kNone;
    double rad_int = -1;  // radial of an intercept, -1 = none
    int flyover = 0;
    int dep_turn = 0;     // turn demanded at this fix: 1 left, 2 right
    int hold_pos = 0;     // index into HoldList of the hold at this leg, 0 = none
    double step_alt = 0;  // 0 = none
    std::string vector;   // leg code of a coded leg, "Vector" for a heading leg
    double until_alt = 0;
    double from_hdg = 0;  // heading or course of a coded leg; heading of a "VECTORS" leg
    double anchor_lat = 0, anchor_lon = 0;
    double vector_lat = 0, vector_lon = 0;
    double vector_trk_lat = 0, vector_trk_lon = 0;
    std::string rwy;
    std::string appr_wpt_type;  // "MAP", "IAF", "FAF", "MAF", "RWY" or empty
    std::string ata;            // "HH:MM"
    int mod_flag = 0;           // above 0 = changed in the working copy
    std::array<WindLevel, 4> wind = {};
    double along_wind = 0;  // kt on the leg that starts here, tailwind positive
    int temp_alt = 0;
    double temp = 0;
};

/// One row of the RTE page.
struct RouteRow {
    std::string to, via, via_type;
};

struct ActiveLegRecord {
    std::string from;  // "DIRECT" while a direct-to is in force
    double from_lat = 0, from_lon = 0;
    std::string to;
    double to_lat = 0, to_lon = 0;
    double course = 0;
    int direct_flag = 0;
};

struct HoldPoint {
    double lat = 0, lon = 0;
    std::string name;
    double course = 0;
};

struct HoldRecord {
    std::string ident;
    int leg = 0;             // leg index in FlightPlan, 0 = not in force yet
    int pending_leg = 0;     // leg index in FlightPlanMod; 0 once promoted, that is where it is `leg`
    int right_turn = 1;      // 1 right, other left
    double leg_dist = 0;     // nm
    double leg_time = 1;     // minutes
    double inbound_crs = 0;  // degrees magnetic
    int use_time = 1;        // 1 = the length follows from the time
    int magvar = 0;          // degrees, east positive
    int magvar_pending = 0;  // above 0 while magvar must still be taken from the aircraft's position
    std::array<HoldPoint, 5> points = {};  // the fix, then "Xwind", "Dwind", "Base", "Final"
};

struct PositionReport {
    FlightPlanLeg leg;
    double altitude = 0;  // ft
    std::string time;     // "HHMMZ"
    double fuel = 0;      // in the unit of the display weight
};

constexpr const char* kNotSelected = "------";

/// The two ends of the route. Names read kNotSelected when there is none.
struct RouteEnds {
    std::string origin = kNotSelected, dest = kNotSelected;
    std::string dep_runway = kNotSelected;
    int fms_dep_rwy_pos = 0;    // place of the runway in the origin's list, 0 = none
    std::string company_route;  // the stored route that was loaded; empty = none
};

/// The selected procedures.
struct ProcedureSelections {
    std::string dep_sid = kNotSelected, dep_trans = kNotSelected;
    std::string arr_star = kNotSelected, arr_trans = kNotSelected;
    std::string arr_appr = kNotSelected, arr_appr_rwy = kNotSelected, arr_appr_trans = kNotSelected;
    std::string appr_type = "-";    // first three letters of the approach
    int fms_dest_rwy_pos = 0;       // place of the runway in the destination's list, 0 = none
    FlightPlanLeg shared_leg = {};  // the approach's first leg stands in its place; no ident = none
};

constexpr int kNoStepEntry = -99;

/// What the crew has typed on the performance pages for EXEC to apply; 0 = nothing, where nothing else is
/// told.
struct PerfEntries {
    PlannedSpeeds speeds;
    int ActiveStepSize = kNoStepEntry;  // ft, or a kind of step
    int ActiveCostIndex = -1;           // -1 = nothing, -2 = none in place of the one in force
    double cruise_alt = 0;              // ft
};

/// All that a modification may change. It stands twice: `active` is what is flown and what ERASE brings back,
/// `mod` is what the pages edit; EXEC makes `mod` the active one. The world knows the legs as FlightPlan and
/// FlightPlanMod.
struct RouteVersion {
    GrowingList<FlightPlanLeg> legs;  // index 0 the origin, leg_cnt the destination
    int leg_cnt = 0;                  // -1 in `mod`: a load that found no legs
    int stpos = kNoPlan;              // index of the TO leg
    int bod_pos = 0;                  // leg index that ends the present vertical segment
    ActiveLegRecord active_leg;
    RouteEnds ends;  // below state 3 the pages write both
    // Selections act at once: `mod` is what the whole system reads.
    ProcedureSelections procedures;
    SpeedSelections selected;
    PerfEntries entries;  // always empty in `active`
};

/// The route; only fmc/ and guidance/ change it.
struct PlanState {
    RouteVersion active, mod;
    std::string fms_fltno;        // flight number, at most 10 characters; empty = none
    GrowingList<RouteRow> Route;  // rows of the RTE page, from 1
    int route_cnt = 0;
    int pending_stpos = 0;  // the pending active leg, taken by EXEC when 1 or more
    // From 1: the holds of `mod` in the order of their legs, then those that `mod` has lost and that are
    // flown until EXEC. Where a hold stands, the legs of either version tell (`hold_pos`), and `leg` and
    // `pending_leg` repeat it; its figures act at once, for both.
    GrowingList<HoldRecord> HoldList;
    int hold_cnt = 0;         // of `mod`
    int lost_hold_cnt = 0;    // behind them
    int fms_fpln_active = 0;  // a RouteStatus
    GrowingList<PositionReport> PositionReports;
    int position_report_cnt = 0;
    int new_route = 0;            // first activation of a newly entered route
    int direct_to_pending = 0;    // EXEC starts a direct-to course
    int direct_abeam_check = 0;   // once after a direct-to or activation: the passed-abeam test at stpos 1
    int terrain_profile_due = 0;  // a new route's terrain profile is wanted
    // final approach, kept for the approach displays
    double final_appr_crs = 0;  // degrees magnetic
    std::string map_ident;
    double map_fix_lat = 0, map_fix_lon = 0;
    // the airway that a page or a route text is working on
    GrowingList<FlightPlanLeg> AirwayFixList;
    int awy_list_cnt = 0;
    int awy_start_pos = 0;  // place of the start fix on AirwayFixList, 0 = not on it
    std::string awy_name;
    int awy_start_leg = 0;      // its leg in FlightPlanMod
    double along_track_nm = 0;  // offset of an along-track entry, 0 = none
};

extern PlanState plan;
extern const std::span<const Variable> kPlanVariables;

/// A leg of the active plan, for reading: behind the end stands an empty one, and the list doesn't grow.
inline const FlightPlanLeg& FlightPlanLegAt(int index) {
    return std::as_const(plan.active.legs)[index];
}

/// The leg that is flown to; an empty one without a plan.
inline const FlightPlanLeg& ToLeg() {
    return FlightPlanLegAt(plan.active.stpos);
}
