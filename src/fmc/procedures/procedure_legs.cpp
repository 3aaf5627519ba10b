#include "fmc/procedures/procedure_legs.h"

#include "navdata/geodesy.h"
#include "navdata/leg_codes.h"
#include "navdata/magnetic_model.h"
#include "navdata/procedure_files.h"
#include "state/airports.h"
#include "state/leg_words.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/procedure_lists.h"

namespace {

constexpr int kMostDepartureLegs = 80;
constexpr int kMostTransitions = 50;
constexpr std::string_view kForAll = "---";

std::string_view TransitionOf(const ProcedureRecord& record) {
    const std::size_t point = record.name.find('.');
    return point == std::string::npos ? std::string_view() : std::string_view(record.name).substr(point + 1);
}

// The legs of a transition's own record are all flown with it, but for those of other runways.
bool IsFlown(const AirportData& airport, const ProcedureRecord& record, const ProcedureLeg& leg,
             std::string_view runway, std::string_view transition) {
    const std::string_view own = TransitionOf(record);
    if (!own.empty() && own != transition) return false;
    if (leg.applies_to == kForAll || ListNames(leg.applies_to, runway)) return true;
    std::string_view names = leg.applies_to;
    return own.empty() ? ListNames(names, transition) : !HasRunway(airport, NextListed(names));
}

bool IsOfTransition(const ProcedureRecord& record, const ProcedureLeg& leg, std::string_view transition) {
    return !TransitionOf(record).empty() || ListNames(leg.applies_to, transition);
}

// Legs of the records with a base name that `take` accepts; the count stops at `most`.
template <class Take>
void Collect(const GrowingList<ProcedureRecord>& records, int count, std::string_view base, int most,
             GrowingList<ProcedureLeg>& legs, int& leg_cnt, Take take) {
    for (int i = 1; i <= count; ++i) {
        const ProcedureRecord& record = records[i];
        if (record.base_name != base) continue;
        for (int leg = 1; leg <= record.leg_cnt && leg_cnt < most; ++leg)
            if (take(record, record.legs[leg])) legs[++leg_cnt] = record.legs[leg];
    }
}

// Coded legs were computed from what stands before them in the file, at first from the first runway of the
// list: for this runway other legs stand before them.
void RecomputeForRunway(GrowingList<ProcedureLeg>& legs, int count, const std::string& runway) {
    const AirportData& airport = airports.origin_airport;
    LegCodeInput input{.start = {},
                       .entry_course = 0,
                       .reference = {},
                       .elevation = static_cast<double>(airport.elevation_ft),
                       .variation = MagVarAt(airport.lat, airport.lon),
                       .climb_speed = perf.speeds.climb_ias > 0 ? perf.speeds.climb_ias : 250};
    if (!StartOfClimb(airport, runway, input.variation, input.start.lat, input.start.lon, input.entry_course))
        return;
    for (int i = 1; i <= count; ++i) {
        ProcedureLeg& leg = legs[i];
        LegCode code;
        input.reference = {leg.file_lat, leg.file_lon};
        input.altitude = leg.code_alt;
        LatLon end{leg.lat, leg.lon};
        if (!ParseLegCode(leg.code, code)) {
            const double bearing = GreatCircle(input.start.lat, input.start.lon, end.lat, end.lon).bearing;
            input.entry_course = bearing - input.variation;
        } else if (ComputeDepartureLeg(code, input, end) == 0) {
            leg.start_lat = input.start.lat;
            leg.start_lon = input.start.lon;
            leg.lat = end.lat;
            leg.lon = end.lon;
            input.entry_course = code.course;
        }
        input.start = end;
    }
}

bool IsApproachRole(std::string_view segment) {
    return segment.empty() || segment == kForAll || segment == "IAF*" || segment == kMissedPoint ||
           segment == kFinalFix;
}

bool IsSelectedApproach(const ProcedureRecord& record) {
    const ProcedureSelections& chosen = plan.mod.procedures;
    const bool of_runway =
        record.runways.empty() ||
        (!chosen.arr_appr_rwy.empty() && record.runways.find(chosen.arr_appr_rwy) != std::string::npos);
    return record.kind == chosen.arr_appr && of_runway;
}

}  // namespace

const char* SelectedDepartureRunway() {
    return plan.mod.ends.dep_runway.c_str();
}

void BuildDepartureLegs() {
    ProcedureLists& lists = procedure_lists;
    const ProcedureSelections& chosen = plan.mod.procedures;
    const std::string runway = SelectedDepartureRunway();
    const bool runway_known = runway != kNotSelected;
    const AirportData& origin = airports.origin_airport;
    lists.departure_leg_cnt = 0;
    if (chosen.dep_sid == kNotSelected) return;
    for (const bool of_transition : {false, true})
        Collect(origin.sids, origin.sid_cnt, chosen.dep_sid, kMostDepartureLegs, lists.DepartureLegs,
                lists.departure_leg_cnt, [&](const ProcedureRecord& record, const ProcedureLeg& leg) {
                    return TransitionOf(record).empty() != of_transition &&
                           IsFlown(origin, record, leg, runway, chosen.dep_trans);
                });
    if (runway_known) RecomputeForRunway(lists.DepartureLegs, lists.departure_leg_cnt, runway);
}

void BuildArrivalLegs() {
    ProcedureLists& lists = procedure_lists;
    const ProcedureSelections& chosen = plan.mod.procedures;
    const AirportData& dest = airports.dest_airport;
    lists.arrival_leg_cnt = 0;
    if (chosen.arr_star == kNotSelected) return;
    constexpr int kNoLimit = 100000;
    for (const bool of_transition : {true, false})
        Collect(dest.stars, dest.star_cnt, chosen.arr_star, kNoLimit, lists.ArrivalLegs,
                lists.arrival_leg_cnt, [&](const ProcedureRecord& record, const ProcedureLeg& leg) {
                    return IsOfTransition(record, leg, chosen.arr_trans) == of_transition &&
                           IsFlown(dest, record, leg, chosen.arr_appr_rwy, chosen.arr_trans);
                });
}

void BuildApproachLegs() {
    ProcedureLists& lists = procedure_lists;
    ProcedureSelections& chosen = plan.mod.procedures;
    const AirportData& dest = airports.dest_airport;
    lists.approach_leg_cnt = 0;
    lists.approach_via.clear();
    chosen.appr_type = "-";
    if (chosen.arr_appr == kNotSelected) return;
    for (int i = 1; i <= dest.approach_cnt; ++i) {
        const ProcedureRecord& record = dest.approaches[i];
        if (!IsSelectedApproach(record)) continue;
        for (int n = 1; n <= record.leg_cnt; ++n) {
            const ProcedureLeg& leg = record.legs[n];
            const bool of_transition = leg.segment == chosen.arr_appr_trans;
            if (of_transition || IsApproachRole(leg.segment) || leg.marker == "*")
                lists.ApproachLegs[++lists.approach_leg_cnt] = leg;
        }
    }
    if (lists.approach_leg_cnt == 0) return;
    lists.approach_via =
        chosen.arr_appr + (chosen.arr_appr_rwy == kNotSelected ? std::string() : chosen.arr_appr_rwy);
    chosen.appr_type = lists.approach_via.substr(0, 3);
}

void BuildApproachTransitions() {
    ProcedureLists& lists = procedure_lists;
    lists.approach_transition_cnt = 0;
    const AirportData& dest = airports.dest_airport;
    if (plan.mod.procedures.arr_appr == kNotSelected) return;
    for (int i = 1; i <= dest.approach_cnt; ++i) {
        const ProcedureRecord& record = dest.approaches[i];
        if (!IsSelectedApproach(record)) continue;
        for (int n = 1; n <= record.leg_cnt; ++n) {
            const std::string& name = record.legs[n].segment;
            bool known = IsApproachRole(name);
            for (int t = 1; t <= lists.approach_transition_cnt; ++t)
                known = known || lists.approach_transitions[t] == name;
            if (known || lists.approach_transition_cnt >= kMostTransitions) continue;
            lists.approach_transitions[++lists.approach_transition_cnt] = name;
        }
    }
}
