#pragma once

#include <string>
#include <vector>

#include "cdu/words/page.h"

// The two columns of DEPARTURES and ARRIVALS: each a list of names with headings, five rows a page.

struct ProcedureItem {
    std::string text;
    std::string label;  // over the row; empty = none
    bool selected = false;
    bool selectable = true;  // not of "-NONE-"
};

using ProcedureColumn = std::vector<ProcedureItem>;

constexpr int kProcedureRows = 5;

/// The pages that both columns fill together, at least one.
int ProcedurePageCount(const ProcedureColumn& left, const ProcedureColumn& right);

/// The place in a column, from 1, that a row of a page shows; 0 outside the column or on an item that can't
/// be selected.
int ItemAtRow(const ProcedureColumn& column, int page, int row);

/// Rows, marks, and the last line with "<INDEX" or "<ERASE" and "ROUTE>".
void DrawProcedureColumns(PageCall& call, const ProcedureColumn& left, const ProcedureColumn& right,
                          int page);

/// The keys of the last line.
void OnProcedureLastLine(PageCall& call);

/// Columns of text that a name fills; below 0 it stands at their left.
constexpr int kProcedureWidth = -6, kTransitionWidth = -5, kRunwayWidth = -3, kApproachWidth = 5;

/// A list under its heading, or one row that says that there is none.
void AddItems(ProcedureColumn& column, const std::vector<std::string>& names, int width, const char* label,
              const char* none, const std::string& selected);
