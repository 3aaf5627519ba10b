#pragma once

#include <span>
#include <string>

#include "state/growing_list.h"
#include "state/procedures.h"
#include "state/variable.h"

/// The selected procedures, filtered to the legs that go into the route. Filled by fmc/procedure_legs.
struct ProcedureLists {
    GrowingList<ProcedureLeg> DepartureLegs, ArrivalLegs, ApproachLegs;  // from 1
    int departure_leg_cnt = 0, arrival_leg_cnt = 0, approach_leg_cnt = 0;
    std::string approach_via;                       // kind and runway of the approach, such as "ILS27R"
    GrowingList<std::string> approach_transitions;  // from 1, at most 50
    int approach_transition_cnt = 0;
};

extern ProcedureLists procedure_lists;
extern const std::span<const Variable> kProcedureListVariables;
