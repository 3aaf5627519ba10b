#pragma once

#include <string_view>

#include "paint/colours.h"
#include "paint/graphics.h"
#include "state/cdu.h"
#include "state/side.h"

// The words in which CDU pages are written. A page is one function: it acts on the line key that is pending,
// then draws the whole face. Coordinates are those of one half, 282 by 424.

constexpr int kL1 = 1, kL2 = 2, kL3 = 3, kL4 = 4, kL5 = 5, kL6 = 6;
constexpr int kR1 = 9, kR2 = 10, kR3 = 11, kR4 = 12, kR5 = 13, kR6 = 14;

/// One call of a page.
struct PageCall {
    Graphics& graphics;
    int side;  // kCaptain or kFirstOfficer
    int line;  // the pending line key, kL1 to kL6, kR1 to kR6; 0 = none. Seen by one call only
    CduState& unit;
};

// --- what the crew has done

/// The DEL key waits for a line.
bool IsDelete(const PageCall& call);
/// The text on the scratchpad.
const std::string& Entry(const PageCall& call);
/// An entry has been taken: scratchpad and scratch message are empty.
void ClearEntry(PageCall& call);
/// An entry is refused: it stays on the scratchpad, and the crew is told why.
void Refuse(PageCall& call, std::string_view title, int help_id);
/// DELETE on a line that has nothing to delete.
void RefuseDelete(PageCall& call);
/// A value goes down to the scratchpad.
void CopyDown(PageCall& call, std::string_view text);
/// The pages that some rows fill, at least one.
int PagesFor(int rows, int rows_per_page);
/// Moves the index of a family of `count` pages by what PREV PAGE and NEXT PAGE ask, with wrap-around.
void TurnPages(PageCall& call, int& index, int count);
void GoToPage(int side, int page);
/// An entry has changed the legs of the working copy: the rows follow, and a modification is open.
void LegsChanged(PageCall& call);
/// <ERASE of the sixth line, the prompt while a modification waits for EXEC. True when one has been thrown
/// away.
bool TakeErase(PageCall& call);

/// The row, 1 to 6, of a line key of the left or right column, or of either; 0 for one of the other column,
/// and for a number that is no line key.
int LeftLine(int line);
int RightLine(int line);
int LineRow(int line);

// --- what the crew sees

/// A line key that does something: its box is bright, the cursor may rest on it.
void MarkSelectable(PageCall& call, int line);

constexpr float kLabelSize = 9, kSmallSize = 10, kDataSize = 11;

void PageText(PageCall& call, double x, double y, std::string_view text, Rgb colour = kWhite,
              float size = kDataSize);
/// In columns of seven units, whatever the font of the display units.
void ColumnText(PageCall& call, double x, double y, std::string_view text, Rgb colour = kWhite);
/// The size at which a text of one or more lines fills no more than `width`, and `height` where it is above
/// 0: that of a label where that fits.
float FittingSize(std::string_view text, double width, double height = 0);
/// One line, made to end before `right` by its size.
void FittedText(PageCall& call, double x, double y, double right, std::string_view text);
/// On the white box of a value that a modification holds.
void HighlightedText(PageCall& call, double x, double y, std::string_view text);

void Title(PageCall& call, double x, std::string_view text, Rgb colour = kWhite);
/// "ACT" or "MOD" before the title, by the state of the route.
void RouteStatusMark(PageCall& call, double x);
void PageCounter(PageCall& call, int index, int count);

double LabelY(int row);
double DataY(int row);
void LeftLabel(PageCall& call, int row, std::string_view text, Rgb colour = kCyan);
void LeftData(PageCall& call, int row, std::string_view text, Rgb colour = kWhite, float size = kDataSize);
void RightLabel(PageCall& call, int row, std::string_view text, Rgb colour = kCyan);
void RightData(PageCall& call, int row, std::string_view text, Rgb colour = kWhite, float size = kDataSize);
void HighlightedLeft(PageCall& call, int row, std::string_view text);
void HighlightedRight(PageCall& call, int row, std::string_view text);

/// A field that must be filled: a small box for each character.
void EntryBoxes(PageCall& call, double x, double y, int count);
void LeftBoxes(PageCall& call, int row, int count);
void RightBoxes(PageCall& call, int row, int count);
/// The frame behind a value that may be entered.
void EntryFrame(PageCall& call, int x, int y, int width);
/// "<ERASE" while a modification waits for EXEC, else another prompt, on the left of the sixth line.
void ErasePrompt(PageCall& call, std::string_view otherwise);
/// The line of dashes above the sixth line.
void DashLine(PageCall& call);
