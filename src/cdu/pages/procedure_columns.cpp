#include "cdu/pages/procedure_columns.h"

#include <algorithm>

#include "base/text.h"
#include "state/leg_words.h"
#include "state/plan.h"

namespace {

constexpr double kLeftMarkX = 110, kRightMarkX = 155;

const char* Mark() {
    return IsRouteSettled() ? "<ACT>" : "<SEL>";
}

const ProcedureItem* ItemOn(const ProcedureColumn& column, int page, int row) {
    const int place = (page - 1) * kProcedureRows + row;
    return place <= static_cast<int>(column.size()) ? &column[static_cast<std::size_t>(place - 1)] : nullptr;
}

}  // namespace

int ProcedurePageCount(const ProcedureColumn& left, const ProcedureColumn& right) {
    const int most = static_cast<int>(std::max(left.size(), right.size()));
    return PagesFor(most, kProcedureRows);
}

int ItemAtRow(const ProcedureColumn& column, int page, int row) {
    const ProcedureItem* item = ItemOn(column, page, row);
    return item != nullptr && item->selectable ? (page - 1) * kProcedureRows + row : 0;
}

void AddItems(ProcedureColumn& column, const std::vector<std::string>& names, int width, const char* label,
              const char* none, const std::string& selected) {
    if (names.empty()) column.push_back({none, label, false, false});
    for (const std::string& name : names)
        column.push_back({Format("%*s", width, name.c_str()), &name == &names.front() ? label : "",
                          name == selected, true});
}

void DrawProcedureColumns(PageCall& call, const ProcedureColumn& left, const ProcedureColumn& right,
                          int page) {
    PageText(call, 122, LabelY(1), "RTE 1", kCyan, kLabelSize);
    if (IsRouteActive()) PageText(call, 150, LabelY(1), "(ACT)", kCyan, kLabelSize);
    for (int row = 1; row <= kProcedureRows; ++row) {
        if (const ProcedureItem* item = ItemOn(left, page, row)) {
            LeftLabel(call, row, item->label);
            ColumnText(call, 34, DataY(row), item->text);
            if (item->selected) PageText(call, kLeftMarkX, DataY(row), Mark(), kWhite, kLabelSize);
            if (item->selectable) MarkSelectable(call, kL1 + row - 1);
        }
        if (const ProcedureItem* item = ItemOn(right, page, row)) {
            RightLabel(call, row, item->label);
            const double x = 251 - 7.0 * static_cast<double>(std::min<std::size_t>(item->text.size(), 13));
            ColumnText(call, x, DataY(row), item->text);
            if (item->selected) PageText(call, kRightMarkX, DataY(row), Mark(), kWhite, kLabelSize);
            if (item->selectable) MarkSelectable(call, kR1 + row - 1);
        }
    }
    DashLine(call);
    ErasePrompt(call, "<INDEX");
    RightData(call, 6, "ROUTE>");
    MarkSelectable(call, kL6);
    MarkSelectable(call, kR6);
}

void OnProcedureLastLine(PageCall& call) {
    if (call.line == kR6) return GoToPage(call.side, kPageRte);
    if (!TakeErase(call)) GoToPage(call.side, kPageDepArrIndex);
}
