#include "cdu/pages/arrivals_page.h"

#include <algorithm>

#include "base/text.h"
#include "cdu/pages/procedure_columns.h"
#include "fmc/procedures/select_procedures.h"
#include "fmc/route/endpoints.h"
#include "state/airports.h"
#include "state/plan.h"
#include "state/procedure_lists.h"

namespace {

const AirportData& ShownAirport(const PageCall& call) {
    return call.unit.arrivals_of_origin == 1 ? airports.origin_airport : airports.dest_airport;
}

bool OfDestination(const PageCall& call) {
    return call.unit.arrivals_of_origin == 0;
}

bool StarIsChosen(const PageCall& call) {
    return OfDestination(call) && plan.mod.procedures.arr_star != kNotSelected;
}

bool ApproachIsChosen(const PageCall& call) {
    return OfDestination(call) && plan.mod.procedures.arr_appr != kNotSelected;
}

std::string NameOf(const ApproachChoice& choice) {
    return choice.kind + choice.runway;
}

ProcedureColumn StarColumn(const PageCall& call) {
    ProcedureColumn column;
    if (!StarIsChosen(call)) {
        AddItems(column, StarNames(ShownAirport(call)), kProcedureWidth, "STARS", "- NONE -", "");
        return column;
    }
    column.push_back(
        {Format("%*s", kProcedureWidth, plan.mod.procedures.arr_star.c_str()), "STARS", true, true});
    AddItems(column, ArrivalTransitions(ShownAirport(call)), kTransitionWidth, "TRANS", "-NONE-",
             plan.mod.procedures.arr_trans);
    return column;
}

std::vector<std::string> ApproachNames(const AirportData& airport) {
    std::vector<std::string> names;
    for (const ApproachChoice& choice : ApproachChoices(airport)) names.push_back(NameOf(choice));
    return names;
}

ProcedureColumn ApproachColumn(const PageCall& call) {
    ProcedureColumn column;
    const ProcedureSelections& chosen = plan.mod.procedures;
    if (ApproachIsChosen(call)) {
        const std::string runway = chosen.arr_appr_rwy == kNotSelected ? std::string() : chosen.arr_appr_rwy;
        column.push_back({chosen.arr_appr + runway, "APPROACHES", true, true});
        std::vector<std::string> transitions;
        for (int i = 1; i <= procedure_lists.approach_transition_cnt; ++i)
            transitions.push_back(procedure_lists.approach_transitions[i]);
        AddItems(column, transitions, kTransitionWidth, "TRANS", "-NONE-", chosen.arr_appr_trans);
        return column;
    }
    AddItems(column, ApproachNames(ShownAirport(call)), kApproachWidth, "APPROACHES", "-NONE-", "");
    AddItems(column, ArrivalRunways(ShownAirport(call)), kRunwayWidth, "RUNWAYS", "-NONE -",
             chosen.arr_appr_rwy);
    return column;
}

template <class Names>
int PlaceOf(const Names& names, const std::string& name) {
    return static_cast<int>(std::find(names.begin(), names.end(), name) - names.begin()) + 1;
}

// The chosen approach's own place in the list; it isn't filtered while one is chosen.
int PlaceOfChosenApproach() {
    const std::vector<ApproachChoice> choices = ApproachChoices(airports.dest_airport);
    const auto found = std::find_if(choices.begin(), choices.end(), [](const ApproachChoice& choice) {
        return choice.kind == plan.mod.procedures.arr_appr &&
               choice.runway == plan.mod.procedures.arr_appr_rwy;
    });
    return static_cast<int>(found - choices.begin()) + 1;
}

// A selection on the origin's arrivals is a return: the origin becomes the destination.
bool TakeOriginAsDestination(PageCall& call) {
    if (OfDestination(call)) return true;
    if (EnterDestination(airports.origin_airport.ident) == 0) return false;
    call.unit.arrivals_of_origin = 0;
    return true;
}

void OnStarItem(PageCall& call, int item) {
    const bool chosen = StarIsChosen(call);
    if (!TakeOriginAsDestination(call)) return;
    ClearEntry(call);
    if (!chosen)
        SelectArrival(call.side, item, false);
    else if (item == 1)
        SelectArrival(call.side, PlaceOf(StarNames(airports.dest_airport), plan.mod.procedures.arr_star),
                      false);
    else
        SelectArrivalTransition(call.side, item - 1);
}

void OnApproachItem(PageCall& call, int item) {
    const bool chosen = ApproachIsChosen(call);
    if (!TakeOriginAsDestination(call)) return;
    ClearEntry(call);
    const int approaches = static_cast<int>(ApproachChoices(airports.dest_airport).size());
    const int approach_rows = std::max(1, approaches);
    if (!chosen) {
        if (item <= approach_rows)
            SelectApproach(call.side, item);
        else
            SelectArrivalRunway(call.side, item - approach_rows);
        call.unit.arr_index = 1;
    } else if (item == 1) {
        SelectApproach(call.side, PlaceOfChosenApproach());
        call.unit.arr_index = 1;
    } else {
        SelectApproachTransition(call.side, item - 1);
    }
}

void OnLine(PageCall& call, const ProcedureColumn& left, const ProcedureColumn& right, int page) {
    if (LineRow(call.line) == 6) return OnProcedureLastLine(call);
    if (const int row = LeftLine(call.line); row > 0) {
        if (const int item = ItemAtRow(left, page, row); item > 0) OnStarItem(call, item);
    } else if (const int item = ItemAtRow(right, page, RightLine(call.line)); item > 0) {
        OnApproachItem(call, item);
    }
}

}  // namespace

void ArrivalsPage(PageCall& call) {
    int& page = call.unit.arr_index;
    ProcedureColumn left = StarColumn(call), right = ApproachColumn(call);
    TurnPages(call, page, ProcedurePageCount(left, right));
    if (call.line > 0) {
        OnLine(call, left, right, page);
        left = StarColumn(call);
        right = ApproachColumn(call);
        page = std::min(page, ProcedurePageCount(left, right));
    }
    Title(call, 80, Format("   %s ARRIVALS", ShownAirport(call).ident.c_str()));
    PageCounter(call, page, ProcedurePageCount(left, right));
    DrawProcedureColumns(call, left, right, page);
}
