#include "fmc/legs/route_airway.h"

#include <string>
#include <utility>

#include "fmc/legs/leg_list.h"
#include "fmc/legs/leg_type.h"
#include "fmc/legs/route_rows.h"
#include "navdata/airways.h"
#include "navdata/geodesy.h"
#include "state/leg_words.h"
#include "state/nav.h"

namespace {

constexpr double kSamePlace = 1;  // nm; the files of one cycle round their positions alike

bool IsNear(double lat1, double lon1, double lat2, double lon2) {
    return GreatCircle(lat1, lon1, lat2, lon2).dist < kSamePlace;
}

}  // namespace

void LoadAirway(std::string_view name, int row, int fix, int) {
    LoadAirwayTowards(name, fix, row >= 1 && row <= plan.route_cnt ? plan.Route[row].to : std::string());
}

void LoadAirwayTowards(std::string_view name, int fix, std::string_view end) {
    plan.awy_list_cnt = plan.awy_start_pos = plan.awy_start_leg = 0;
    plan.awy_name.clear();
    if (name.starts_with('#')) name.remove_prefix(1);
    if (fix < 0 || fix > plan.mod.leg_cnt || !IsPlace(plan.mod.legs[fix])) return;
    const FlightPlanLeg& start = plan.mod.legs[fix];
    const int run = ChooseAirwayRun(name, {start.ident, LatLon{start.lat, start.lon}}, end);
    if (run == 0) return;
    plan.awy_list_cnt = LoadAirway(name, start.ident, run);
    plan.awy_start_pos = nav.entry_list_pos;
    plan.awy_start_leg = fix;
    plan.awy_name = name;
    for (int i = 1; i <= plan.awy_list_cnt; ++i) {
        const NavRecord& record = nav.EntryCandidates[i];
        FlightPlanLeg& leg = plan.AirwayFixList[i];
        leg = {};
        leg.ident = record.ident;
        leg.lat = record.lat;
        leg.lon = record.lon;
        leg.via = name;
        leg.via_type = kAirwayViaType;
        leg.mod_flag = 1;
        LookUpLegType(leg);
    }
}

int FindFixOnAirway(std::string_view ident) {
    for (int i = 1; i <= plan.awy_list_cnt; ++i)
        if (plan.AirwayFixList[i].ident == ident) return i;
    return 0;
}

void InsertAirwaySegment(int fix) {
    const int start = plan.awy_start_pos;
    if (fix < 1 || fix > plan.awy_list_cnt || fix == start || start == 0) return;
    GrowingList<FlightPlanLeg>& legs = plan.mod.legs;
    // ERASE or a new route may have put another fix there since the list was made.
    if (plan.awy_start_leg > plan.mod.leg_cnt ||
        legs[plan.awy_start_leg].ident != plan.AirwayFixList[start].ident)
        return;
    int position = plan.awy_start_leg + 1;
    if (position <= plan.mod.leg_cnt && IsThen(legs[position])) RemoveModLegs(position, 1);
    const int step = fix > start ? 1 : -1;
    for (int i = start + step; i != fix + step; i += step) {
        FlightPlanLeg leg = plan.AirwayFixList[i];
        OpenModLeg(position++) = std::move(leg);
    }
    const FlightPlanLeg& end = legs[position - 1];
    if (position < plan.mod.leg_cnt && legs[position].ident == end.ident &&
        IsNear(legs[position].lat, legs[position].lon, end.lat, end.lon))
        RemoveModLegs(position, 1);
    RebuildRouteRows();
}

void InsertAirwayPlaceholder(int index, std::string_view airway) {
    EnsureEnds();
    if (index < 1 || index > plan.mod.leg_cnt) return;
    FlightPlanLeg& leg = OpenModLeg(index);
    leg.ident = kThenIdent;
    leg.type = "OAWY";
    leg.via = airway;
    leg.via_type = kAirwayViaType;
    RebuildRouteRows();
}
