#include "cdu/unit/cursor.h"

#include <cstdlib>

#include "cdu/unit/items.h"
#include "cdu/words/page.h"

namespace {

struct Neighbours {
    int item;
    int left, up, right, down;
};

// 0 = into the lines: from 28 to the first, from 30 to the last of the right column.
constexpr Neighbours kSoftKeyNeighbours[] = {
    {17, 22, 0, 18, 23},  {18, 17, 24, 19, 24}, {19, 18, 25, 20, 25}, {20, 19, 26, 21, 26},
    {21, 20, 27, 22, 27}, {22, 21, 0, 17, 30},  {23, 27, 17, 24, 28}, {24, 23, 18, 25, 18},
    {25, 24, 19, 26, 19}, {26, 25, 20, 27, 20}, {27, 26, 21, 23, 21}, {28, 30, 23, 29, 0},
    {29, 28, 27, 30, 0},  {30, 29, 22, 28, 0},
};

bool IsSelectable(const CduState& unit, int line) {
    return line > 0 && line < static_cast<int>(unit.line_selectable.size()) &&
           unit.line_selectable[static_cast<std::size_t>(line)] != 0;
}

// The selectable lines in the order of the cursor, 0 when there is none past `line` that way.
int StepLine(const CduState& unit, int line, int step) {
    for (int next = line + step; next >= kL1 && next <= kR6; next += step)
        if (IsSelectable(unit, next)) return next;
    return 0;
}

// The line of the other column that is nearest to the row.
int Across(const CduState& unit, int line) {
    const int column = line >= kR1 ? kL1 : kR1;
    const int row = line >= kR1 ? line - kR1 : line - kL1;
    int best = 0;
    for (int candidate = column; candidate < column + 6; ++candidate)
        if (IsSelectable(unit, candidate) &&
            (best == 0 || std::abs(candidate - column - row) < std::abs(best - column - row)))
            best = candidate;
    return best > 0 ? best : line;
}

int FromLine(const CduState& unit, int line, int command) {
    if (command == kCursorLeft || command == kCursorRight) return Across(unit, line);
    const int next = StepLine(unit, line, command == kCursorDown ? 1 : -1);
    if (next > 0) return next;
    return command == kCursorDown ? kItemInitRef : kItemNavRad;
}

int FromSoftKey(const CduState& unit, const Neighbours& row, int command) {
    const int to = command == kCursorLeft    ? row.left
                   : command == kCursorUp    ? row.up
                   : command == kCursorRight ? row.right
                                             : row.down;
    if (to > 0) return to;
    const bool to_first = row.item == kItemNavRad;
    const int line = to_first ? StepLine(unit, 0, 1) : StepLine(unit, kR6 + 1, -1);
    return line > 0 ? line : row.item;
}

}  // namespace

void MoveCursor(int side, int command) {
    CduState& unit = CduOf(side);
    for (const Neighbours& row : kSoftKeyNeighbours)
        if (row.item == unit.ItemCursor) {
            unit.ItemCursor = FromSoftKey(unit, row, command);
            return;
        }
    unit.ItemCursor = FromLine(unit, unit.ItemCursor, command);
}

int NextLineDown(int side, int line) {
    const int next = StepLine(CduOf(side), line, 1);
    return next > 0 ? next : line;
}
