#include "fmc/procedures/select_procedures.h"

#include <algorithm>

#include "fmc/legs/route_state.h"
#include "fmc/procedures/end_airports.h"
#include "fmc/procedures/insert_procedures.h"
#include "fmc/procedures/procedure_legs.h"
#include "navdata/procedure_files.h"
#include "state/airports.h"
#include "state/leg_words.h"
#include "state/plan.h"
#include "state/procedure_lists.h"
#include "state/side.h"

namespace {

using Names = std::vector<std::string>;

// A name that is there already is mostly the last one.
void AddOnce(Names& names, std::string_view name) {
    if (!name.empty() && std::find(names.rbegin(), names.rend(), name) == names.rend())
        names.emplace_back(name);
}

Names BaseNames(const GrowingList<ProcedureRecord>& records, int count) {
    Names names;
    for (int i = 1; i <= count; ++i) AddOnce(names, records[i].base_name);
    return names;
}

template <class Visit>
void ForEachListed(std::string_view list, Visit visit) {
    for (std::string_view name = NextListed(list); !name.empty(); name = NextListed(list)) visit(name);
}

bool IsName(std::string_view text) {
    return !text.empty() && text.find_first_not_of('-') != std::string_view::npos;
}

// The transitions of a procedure: records of their own ("DEENA7.KADOM"), or legs of its own record that apply
// to a name that is no runway.
Names Transitions(const AirportData& airport, const GrowingList<ProcedureRecord>& records, int count,
                  const std::string& base) {
    Names names;
    for (int i = 1; i <= count; ++i) {
        const ProcedureRecord& record = records[i];
        if (record.base_name != base) continue;
        const std::size_t point = record.name.find('.');
        if (point != std::string::npos) {
            AddOnce(names, std::string_view(record.name).substr(point + 1));
            continue;
        }
        for (int leg = 1; leg <= record.leg_cnt; ++leg)
            ForEachListed(record.legs[leg].applies_to, [&](std::string_view part) {
                if (IsName(part) && !HasRunway(airport, part)) AddOnce(names, part);
            });
    }
    return names;
}

// The runways that a procedure's headings name, those of the airport.
Names RunwaysOfHeading(const AirportData& airport, const GrowingList<ProcedureRecord>& records, int count,
                       const std::string& base) {
    Names names;
    for (int i = 1; i <= count; ++i)
        if (records[i].base_name == base)
            ForEachListed(records[i].runways, [&](std::string_view part) {
                if (HasRunway(airport, part)) AddOnce(names, part);
            });
    return names;
}

// The runways that a procedure serves: those of its headings, and those that its legs name. Empty for one
// that serves all.
Names RunwaysOf(const AirportData& airport, const GrowingList<ProcedureRecord>& records, int count,
                const std::string& base) {
    Names names = RunwaysOfHeading(airport, records, count, base);
    for (int i = 1; i <= count; ++i) {
        const ProcedureRecord& record = records[i];
        if (record.base_name != base) continue;
        for (int leg = 1; leg <= record.leg_cnt; ++leg)
            ForEachListed(record.legs[leg].applies_to, [&](std::string_view part) {
                if (HasRunway(airport, part)) AddOnce(names, part);
            });
    }
    return names;
}

Names AllRunways(const AirportData& airport) {
    Names names;
    for (int i = 1; i <= airport.runway_cnt; ++i) names.push_back(airport.runways[i].ident);
    return names;
}

// The name at a place of a list that counts from 1; empty outside.
std::string At(const Names& names, int index) {
    return index >= 1 && index <= static_cast<int>(names.size()) ? names[static_cast<std::size_t>(index - 1)]
                                                                 : std::string();
}

void WriteDeparture() {
    BuildDepartureLegs();
    InsertDeparture();
}

void WriteArrival() {
    BuildArrivalLegs();
    InsertArrival();
}

void WriteApproach() {
    BuildApproachTransitions();
    BuildApproachLegs();
    InsertApproach();
}

// The second press on a name takes it back.
void Toggle(std::string& selection, const std::string& name) {
    selection = selection == name ? kNotSelected : name;
}

}  // namespace

std::vector<std::string> SidNames() {
    return BaseNames(airports.origin_airport.sids, airports.origin_airport.sid_cnt);
}

std::vector<std::string> DepartureRunways() {
    const AirportData& origin = airports.origin_airport;
    const std::string& sid = plan.mod.procedures.dep_sid;
    const Names named = RunwaysOfHeading(origin, origin.sids, origin.sid_cnt, sid);
    if (named.size() == 1) return named;  // whatever its legs name
    const Names served = RunwaysOf(origin, origin.sids, origin.sid_cnt, sid);
    return served.empty() ? AllRunways(origin) : served;
}

std::vector<std::string> DepartureTransitions() {
    const AirportData& origin = airports.origin_airport;
    return Transitions(origin, origin.sids, origin.sid_cnt, plan.mod.procedures.dep_sid);
}

std::vector<std::string> StarNames(const AirportData& airport) {
    return BaseNames(airport.stars, airport.star_cnt);
}

std::vector<std::string> ArrivalTransitions(const AirportData& airport) {
    return Transitions(airport, airport.stars, airport.star_cnt, plan.mod.procedures.arr_star);
}

std::vector<ApproachChoice> ApproachChoices(const AirportData& airport) {
    const Names served = RunwaysOf(airport, airport.stars, airport.star_cnt, plan.mod.procedures.arr_star);
    const bool filter =
        &airport == &airports.dest_airport && !served.empty() && plan.mod.procedures.arr_appr == kNotSelected;
    std::vector<ApproachChoice> choices;
    for (int i = 1; i <= airport.approach_cnt; ++i) {
        const ProcedureRecord& record = airport.approaches[i];
        const bool wanted = !filter || record.runways.empty() ||
                            std::find(served.begin(), served.end(), record.runways) != served.end();
        if (wanted) choices.push_back({record.kind, record.runways});
    }
    return choices;
}

std::vector<std::string> ArrivalRunways(const AirportData& airport) {
    return AllRunways(airport);
}

void SelectSid(int, int index, bool keep) {
    if (!keep) {
        const std::string name = At(SidNames(), index);
        if (name.empty()) return;
        Toggle(plan.mod.procedures.dep_sid, name);
        plan.mod.procedures.dep_trans = kNotSelected;
    }
    const Names runways = DepartureRunways();
    const bool chosen = plan.mod.procedures.dep_sid != kNotSelected;
    if (chosen && runways.size() == 1 && plan.mod.ends.dep_runway != runways[0])
        SelectOriginRunway(runways[0]);
    WriteDeparture();
}

void SelectDepartureRunway(int side, int index) {
    const std::string name = At(DepartureRunways(), index);
    if (name.empty() || SelectOriginRunway(name) == 0) return;
    if (plan.mod.procedures.dep_sid != kNotSelected)
        SelectSid(side, 0, true);
    else
        OpenModification();
}

void SelectDepartureTransition(int, int index) {
    const std::string name = At(DepartureTransitions(), index);
    if (name.empty()) return;
    Toggle(plan.mod.procedures.dep_trans, name);
    WriteDeparture();
}

void SelectArrival(int, int index, bool keep) {
    if (!keep) {
        const std::string name = At(StarNames(airports.dest_airport), index);
        if (name.empty()) return;
        Toggle(plan.mod.procedures.arr_star, name);
        plan.mod.procedures.arr_trans = kNotSelected;
    }
    WriteArrival();
}

void SelectArrivalTransition(int, int index) {
    const std::string name = At(ArrivalTransitions(airports.dest_airport), index);
    if (name.empty()) return;
    Toggle(plan.mod.procedures.arr_trans, name);
    WriteArrival();
}

void SelectApproach(int side, int index) {
    const std::vector<ApproachChoice> choices = ApproachChoices(airports.dest_airport);
    if (index < 1 || index > static_cast<int>(choices.size())) return;
    const ApproachChoice& choice = choices[static_cast<std::size_t>(index - 1)];
    ProcedureSelections& chosen = plan.mod.procedures;
    const bool again = chosen.arr_appr == choice.kind && chosen.arr_appr_rwy == choice.runway;
    chosen.arr_appr = again ? kNotSelected : choice.kind;
    chosen.arr_appr_rwy = again ? kNotSelected : choice.runway;
    chosen.arr_appr_trans = kNotSelected;
    chosen.fms_dest_rwy_pos = 0;
    if (!again) SelectDestinationRunway(choice.runway);
    if (chosen.arr_star != kNotSelected) SelectArrival(side, 0, true);
    WriteApproach();
}

void SelectArrivalRunway(int side, int index) {
    const std::string name = At(ArrivalRunways(airports.dest_airport), index);
    if (name.empty() || SelectDestinationRunway(name) == 0) return;
    plan.mod.procedures.arr_appr = plan.mod.procedures.arr_appr_trans = kNotSelected;
    if (plan.mod.procedures.arr_star != kNotSelected) SelectArrival(side, 0, true);
    WriteApproach();
}

void SelectApproachTransition(int, int index) {
    const ProcedureLists& lists = procedure_lists;
    if (index < 1 || index > lists.approach_transition_cnt) return;
    Toggle(plan.mod.procedures.arr_appr_trans, lists.approach_transitions[index]);
    WriteApproach();
}

namespace {

Names ApproachNames() {
    Names names;
    for (const ApproachChoice& choice : ApproachChoices(airports.dest_airport))
        names.push_back(choice.kind + choice.runway);
    return names;
}

// Calls `select` with the place of a name that isn't chosen yet; true when it is chosen then.
template <class Select>
bool SelectByName(const Names& names, std::string_view name, const std::string& chosen, Select select) {
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end()) return false;
    if (chosen != name) select(static_cast<int>(found - names.begin()) + 1);
    return true;
}

}  // namespace

bool SelectSidByName(std::string_view name) {
    return SelectByName(SidNames(), name, plan.mod.procedures.dep_sid,
                        [](int index) { SelectSid(kCaptain, index, false); });
}

bool SelectDepartureTransitionByName(std::string_view name) {
    return SelectByName(DepartureTransitions(), name, plan.mod.procedures.dep_trans,
                        [](int index) { SelectDepartureTransition(kCaptain, index); });
}

bool SelectStarByName(std::string_view name) {
    return SelectByName(StarNames(airports.dest_airport), name, plan.mod.procedures.arr_star,
                        [](int index) { SelectArrival(kCaptain, index, false); });
}

bool SelectArrivalTransitionByName(std::string_view name) {
    return SelectByName(ArrivalTransitions(airports.dest_airport), name, plan.mod.procedures.arr_trans,
                        [](int index) { SelectArrivalTransition(kCaptain, index); });
}

bool SelectApproachByName(std::string_view name) {
    const ProcedureSelections& chosen = plan.mod.procedures;
    return SelectByName(ApproachNames(), name, chosen.arr_appr + chosen.arr_appr_rwy,
                        [](int index) { SelectApproach(kCaptain, index); });
}

bool HasApproach(std::string_view name) {
    const Names names = ApproachNames();
    return std::find(names.begin(), names.end(), name) != names.end();
}

bool IsArrivalTransition(const std::string& star, std::string_view name) {
    const AirportData& dest = airports.dest_airport;
    const Names names = Transitions(dest, dest.stars, dest.star_cnt, star);
    return std::find(names.begin(), names.end(), name) != names.end();
}
