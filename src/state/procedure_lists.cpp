#include "state/procedure_lists.h"

#include "state/procedures_describe.h"

ProcedureLists procedure_lists;

namespace {
constexpr Variable kProcedureListRows[] = {
    {"DepartureLegs", &procedure_lists.DepartureLegs},
    {"departure_leg_cnt", &procedure_lists.departure_leg_cnt},
    {"ArrivalLegs", &procedure_lists.ArrivalLegs},
    {"arrival_leg_cnt", &procedure_lists.arrival_leg_cnt},
    {"ApproachLegs", &procedure_lists.ApproachLegs},
    {"approach_leg_cnt", &procedure_lists.approach_leg_cnt},
    {"approach_via", &procedure_lists.approach_via},
    {"approach_transitions", &procedure_lists.approach_transitions},
    {"approach_transition_cnt", &procedure_lists.approach_transition_cnt},
};
}  // namespace

const std::span<const Variable> kProcedureListVariables = kProcedureListRows;
