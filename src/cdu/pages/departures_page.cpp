#include "cdu/pages/departures_page.h"

#include <algorithm>

#include "base/text.h"
#include "cdu/pages/procedure_columns.h"
#include "fmc/procedures/select_procedures.h"
#include "state/plan.h"

namespace {

bool SidIsChosen() {
    return plan.mod.procedures.dep_sid != kNotSelected;
}

int PlaceOfChosenSid() {
    const std::vector<std::string> names = SidNames();
    return static_cast<int>(std::find(names.begin(), names.end(), plan.mod.procedures.dep_sid) -
                            names.begin()) +
           1;
}

// The chosen SID takes the place of the list, its transitions stand below it.
ProcedureColumn SidColumn() {
    ProcedureColumn column;
    if (!SidIsChosen()) {
        AddItems(column, SidNames(), kProcedureWidth, "SIDS", "- N O N E -", "");
        return column;
    }
    column.push_back(
        {Format("%*s", kProcedureWidth, plan.mod.procedures.dep_sid.c_str()), "SIDS", true, true});
    AddItems(column, DepartureTransitions(), kTransitionWidth, "TRANS", "-NONE-",
             plan.mod.procedures.dep_trans);
    return column;
}

ProcedureColumn RunwayColumn() {
    ProcedureColumn column;
    AddItems(column, DepartureRunways(), kRunwayWidth, "RUNWAYS", "-NONE-", plan.mod.ends.dep_runway);
    return column;
}

int PageCount(const ProcedureColumn& left, const ProcedureColumn& right) {
    constexpr int kMostPages = 8;
    return std::min(ProcedurePageCount(left, right), kMostPages);
}

void OnLine(PageCall& call, const ProcedureColumn& left, const ProcedureColumn& right, int page) {
    if (LineRow(call.line) == 6) return OnProcedureLastLine(call);
    if (const int item = LeftLine(call.line) > 0 ? ItemAtRow(left, page, LeftLine(call.line)) : 0; item > 0) {
        if (!SidIsChosen())
            SelectSid(call.side, item, false);
        else if (item == 1)
            SelectSid(call.side, PlaceOfChosenSid(), false);
        else
            SelectDepartureTransition(call.side, item - 1);
        ClearEntry(call);
    } else if (const int runway = RightLine(call.line) > 0 ? ItemAtRow(right, page, RightLine(call.line)) : 0;
               runway > 0) {
        SelectDepartureRunway(call.side, runway);
        ClearEntry(call);
    }
}

}  // namespace

void DeparturesPage(PageCall& call) {
    int& page = call.unit.dep_index;
    ProcedureColumn left = SidColumn(), right = RunwayColumn();
    TurnPages(call, page, PageCount(left, right));
    if (call.line > 0) {
        OnLine(call, left, right, page);
        left = SidColumn();
        right = RunwayColumn();
        page = std::min(page, PageCount(left, right));
    }
    Title(call, 85, Format("%4s DEPARTURES", plan.mod.ends.origin.c_str()));
    PageText(call, 225, 25, Format("%2d/%2d", page, PageCount(left, right)), kWhite, kLabelSize);
    DrawProcedureColumns(call, left, right, page);
}
