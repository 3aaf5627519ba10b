#include "cdu/words/page.h"

#include <algorithm>

#include "base/text.h"
#include "fmc/legs/route_rows.h"
#include "fmc/legs/route_state.h"
#include "fmc/route/modification.h"
#include "frame/crew_messages.h"
#include "paint/painter.h"
#include "state/cfg.h"
#include "state/leg_words.h"
#include "state/plan.h"

namespace {

constexpr double kLeftLabelX = 40, kLeftDataX = 34, kRightX = 251;
constexpr double kLabelAdvance = 6, kDataAdvance = 7;
constexpr int kFirstLabelY = 35, kFirstDataY = 48, kRowStep = 28;
constexpr int kBoxWidth = 6;
constexpr Rgb kBorder{87, 75, 78};

constexpr std::size_t kFaceColumns = 31;

// Names come from files: what would run out of the face is cut.
std::string_view InFace(double x, std::string_view text, float size) {
    constexpr double kFaceEnd = 262, kNarrowestAdvance = 0.6;
    return text.substr(0,
                       static_cast<std::size_t>(std::max(0.0, (kFaceEnd - x) / (size * kNarrowestAdvance))));
}

double RightStart(std::string_view text, double advance) {
    return kRightX - static_cast<double>(text.size()) * advance;
}

}  // namespace

bool IsDelete(const PageCall& call) {
    return call.unit.ScratchMessage == kDeleteMessage;
}

const std::string& Entry(const PageCall& call) {
    return call.unit.ScratchPad;
}

void ClearEntry(PageCall& call) {
    call.unit.ScratchPad.clear();
    call.unit.ScratchMessage.clear();
}

void Refuse(PageCall& call, std::string_view title, int help_id) {
    PostCduMessage(title, kEntryError, help_id, call.side);
}

void RefuseDelete(PageCall& call) {
    Refuse(call, "INVALID DELETE", kHelpFixedList);
}

void CopyDown(PageCall& call, std::string_view text) {
    call.unit.ScratchPad = text;
}

int PagesFor(int rows, int rows_per_page) {
    return std::max(1, (rows + rows_per_page - 1) / rows_per_page);
}

void TurnPages(PageCall& call, int& index, int count) {
    if (call.unit.PrevPagePending == 1) index = index <= 1 ? count : index - 1;
    if (call.unit.NextPagePending == 1) index = index >= count ? 1 : index + 1;
    index = std::clamp(index, 1, count);
    call.unit.PrevPagePending = call.unit.NextPagePending = 0;
}

void GoToPage(int side, int page) {
    CduOf(side).fms_page = page;
}

void LegsChanged(PageCall& call) {
    RebuildRouteRows();
    OpenModification();
    ClearEntry(call);
}

bool TakeErase(PageCall& call) {
    if (call.line != kL6 || !IsRouteModified()) return false;
    EraseModification();
    ClearEntry(call);
    return true;
}

int LeftLine(int line) {
    return line >= kL1 && line <= kL6 ? line : 0;
}

int RightLine(int line) {
    return line >= kR1 && line <= kR6 ? line - kR1 + 1 : 0;
}

int LineRow(int line) {
    return LeftLine(line) + RightLine(line);
}

void MarkSelectable(PageCall& call, int line) {
    call.unit.line_selectable[static_cast<std::size_t>(line)] = 1;
}

void PageText(PageCall& call, double x, double y, std::string_view text, Rgb colour, float size) {
    if (!text.empty()) Text(call.graphics, x, y, size, colour, InFace(x, text, size));
}

void ColumnText(PageCall& call, double x, double y, std::string_view text, Rgb colour) {
    if (!text.empty())
        TextIn(call.graphics, "Courier New", x, y, kDataSize, colour, InFace(x, text, kDataSize));
}

float FittingSize(std::string_view text, double width, double height) {
    // of the display units' font, in sizes
    constexpr double kAdvance = 0.65, kLinePitch = 1.34;
    constexpr double kSmallestSize = 5;
    std::size_t columns = 1, column = 0, lines = 1;
    for (const char c : text) {
        column = c == '\n' ? 0 : column + 1;
        columns = std::max(columns, column);
        if (c == '\n') ++lines;
    }
    double size = std::min<double>(kLabelSize, width / (static_cast<double>(columns) * kAdvance));
    if (height > 0) size = std::min(size, height / (static_cast<double>(lines) * kLinePitch));
    return static_cast<float>(std::max(size, kSmallestSize));
}

void FittedText(PageCall& call, double x, double y, double right, std::string_view text) {
    PageText(call, x, y, text, kWhite, FittingSize(text, right - x));
}

void HighlightedText(PageCall& call, double x, double y, std::string_view text) {
    text = InFace(x, text, kDataSize);
    const int width = static_cast<int>(static_cast<double>(text.size()) * kDataAdvance) + 3;
    FilledBox(call.graphics, static_cast<int>(x), static_cast<int>(y), width, 12, kWhite);
    PageText(call, x, y, text, kBlack);
}

void Title(PageCall& call, double x, std::string_view text, Rgb colour) {
    PageText(call, x, 25, text, colour);
}

void RouteStatusMark(PageCall& call, double x) {
    if (IsRouteSettled()) PageText(call, x, 25, "ACT", kMagenta);
    if (IsRouteModified()) HighlightedText(call, x, 25, "MOD");
}

void PageCounter(PageCall& call, int index, int count) {
    PageText(call, 225, 25, Format("%2d/%-2d", index, count), kWhite, kLabelSize);
}

double LabelY(int row) {
    return kFirstLabelY + kRowStep * (row - 1);
}

double DataY(int row) {
    return kFirstDataY + kRowStep * (row - 1);
}

void LeftLabel(PageCall& call, int row, std::string_view text, Rgb colour) {
    PageText(call, kLeftLabelX, LabelY(row), text, colour, kLabelSize);
}

void LeftData(PageCall& call, int row, std::string_view text, Rgb colour, float size) {
    PageText(call, kLeftDataX, DataY(row), text, colour, size);
}

void RightLabel(PageCall& call, int row, std::string_view text, Rgb colour) {
    PageText(call, RightStart(text, kLabelAdvance), LabelY(row), text, colour, kLabelSize);
}

void RightData(PageCall& call, int row, std::string_view text, Rgb colour, float size) {
    text = text.substr(0, kFaceColumns);
    PageText(call, RightStart(text, kDataAdvance), DataY(row), text, colour, size);
}

void HighlightedLeft(PageCall& call, int row, std::string_view text) {
    HighlightedText(call, kLeftDataX, DataY(row), text);
}

void HighlightedRight(PageCall& call, int row, std::string_view text) {
    HighlightedText(call, RightStart(text, kDataAdvance), DataY(row), text);
}

void EntryBoxes(PageCall& call, double x, double y, int count) {
    for (int i = 0; i < count; ++i)
        BoxOutline(call.graphics, static_cast<int>(x) + i * (kBoxWidth + 1) + 1, static_cast<int>(y) + 1,
                   kBoxWidth - 1, 10, kWhite);
}

void LeftBoxes(PageCall& call, int row, int count) {
    EntryBoxes(call, kLeftDataX, DataY(row), count);
}

void RightBoxes(PageCall& call, int row, int count) {
    EntryBoxes(call, kRightX - count * (kBoxWidth + 1), DataY(row), count);
}

void EntryFrame(PageCall& call, int x, int y, int width) {
    BoxOutline(call.graphics, x, y, width, 14, kBorder);
}

void ErasePrompt(PageCall& call, std::string_view otherwise) {
    LeftData(call, 6, IsRouteModified() ? "<ERASE" : otherwise);
}

void DashLine(PageCall& call) {
    PageText(call, kLeftDataX, 173, "----------------------------------", kWhite, kLabelSize);
}
