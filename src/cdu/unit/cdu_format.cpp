#include "cdu/unit/cdu_format.h"

#include "base/text.h"
#include "cdu/unit/cdu_service.h"
#include "cdu/unit/items.h"
#include "cdu/words/page.h"
#include "frame/crew_messages.h"
#include "paint/painter.h"
#include "state/leg_words.h"
#include "state/plan.h"
#include "state/sim.h"

namespace {

constexpr int kLeftKeyX = 10, kRightKeyX = 261, kLineKeyWidth = 16, kLineKeyHeight = 19;
constexpr Rgb kGreyBorder{131, 131, 131};
constexpr Rgb kDark{87, 75, 78};
constexpr Rgb kPressed{131, 131, 131};
constexpr Rgb kMessageRed{241, 0, 0};
constexpr Rgb kKeyboardFill{2, 52, 73};  // a dark cyan

constexpr const char* kMonths[] = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN",
                                   "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};

int LineKeyY(int row) {
    return 42 + 28 * (row - 1);
}

bool IsPressed(const CduState& unit, int item) {
    return unit.KeyPressTimer[static_cast<std::size_t>(item)] > 0;
}

void DrawClockLine(Graphics& graphics) {
    Text(graphics, 0, 5, kDataSize, kWhite,
         Format("%02d:%02d:%02d Z", sim.utc_hours, sim.utc_minutes, sim.utc_seconds));
    if (sim.month < 1 || sim.month > 12) return;
    Text(graphics, 210, 5, kDataSize, kWhite,
         Format("%02d %s %02d", sim.day, kMonths[sim.month - 1], sim.year % 100));
}

void DrawFace(Graphics& graphics) {
    FilledBox(graphics, 30, 22, 224, 180, kBlack);
    BoxOutline(graphics, 30, 22, 224, 180, kDark);
}

void DrawLineKey(Graphics& graphics, const CduState& unit, int line) {
    const bool left = LeftLine(line) > 0;
    const bool bright = unit.line_selectable[static_cast<std::size_t>(line)] != 0;
    const int x = left ? kLeftKeyX : kRightKeyX, y = LineKeyY(LineRow(line));
    const double middle = y + kLineKeyHeight / 2.0;
    if (IsPressed(unit, line)) FilledBox(graphics, x, y, kLineKeyWidth, kLineKeyHeight, kPressed);
    BoxOutline(graphics, x, y, kLineKeyWidth, kLineKeyHeight, bright ? kWhite : kDark);
    Line(graphics, left ? 26 : 254, middle, left ? 30 : 258, middle, bright ? kMapGreen : kCyan);
}

void DrawSoftKey(Graphics& graphics, const CduState& unit, const SoftKey& key) {
    FilledBox(graphics, key.x, key.y, kSoftKeyWidth, kSoftKeyHeight,
              IsPressed(unit, key.item) ? kPressed : kDark);
    BoxOutline(graphics, key.x, key.y, kSoftKeyWidth, kSoftKeyHeight, kGreyBorder);
    const bool two_lines = key.lower[0] != '\0';
    const auto draw = [&](const char* text, double y) {
        const double width = static_cast<double>(std::string_view(text).size()) * 5.8;
        Text(graphics, key.x + (kSoftKeyWidth - width) / 2 - 1.5, y, kLabelSize, kWhite, text);
    };
    draw(key.upper, key.y + (two_lines ? 0 : key.item == kItemExec ? 10 : 5));
    if (two_lines) draw(key.lower, key.y + 10);
}

// Lit while something waits for EXEC.
void DrawExecLamp(Graphics& graphics) {
    const bool lit = AwaitsExec();
    FilledBox(graphics, 249, 226, 28, 8, lit ? kMapGreen : kBlack);
}

void DrawScratchPad(Graphics& graphics, const CduState& unit) {
    FilledBox(graphics, 43, 205, 202, 16, unit.PcKeyboardActive == 1 ? kKeyboardFill : kBlack);
    BoxOutline(graphics, 43, 205, 202, 16, kDark);
    std::string_view text = unit.ScratchMessage.empty() ? unit.ScratchPad : unit.ScratchMessage;
    // Blanks and the PC keyboard go on past the keypad's 24 characters; the end is what is being typed.
    constexpr std::size_t kColumns = 27;
    if (text.size() > kColumns) text.remove_prefix(text.size() - kColumns);
    if (!text.empty()) Text(graphics, 45, 208, kDataSize, kWhite, text);
}

void DrawMessageWindow(Graphics& graphics, const CduState& unit) {
    if (unit.CduMessageCount == 0) return;
    const CduMessage& message = unit.CduMessages[unit.CduMessageCount];
    FilledBox(graphics, 35, 325, 210, 15, kCyan);
    FilledBox(graphics, 35, 340, 160, 65, kBlack);
    FilledBox(graphics, 195, 340, 50, 65, kCyan);
    BoxOutline(graphics, 35, 325, 210, 80, kGreyBorder);
    Text(graphics, 38, 326, kSmallSize, kBlack, message.title);
    const Rgb body = message.kind == kRedAdvisory     ? kMessageRed
                     : message.kind == kAmberAdvisory ? kAmber
                                                      : kWhite;
    Text(graphics, 37, 342, FittingSize(message.body, 155, 63), body, message.body);
    FilledBox(graphics, 204, 341, 37, 23, unit.ClearMessageTimer > 0 ? kPressed : kDark);
    BoxOutline(graphics, 204, 341, 37, 23, kGreyBorder);
    Text(graphics, 205, 345, kLabelSize - 2, kWhite, "CLR\nMSG");
    Text(graphics, 197, 368, kLabelSize - 1, kBlack, "TOTAL");
    Text(graphics, 214, 379, kLabelSize, kBlack, Format("%d", unit.CduMessageCount));
    Text(graphics, 195, 391, kLabelSize - 1, kBlack, "MESSAGES");
}

// A flag around the text of the line: nine segments from the key and back.
void OutlineLine(Graphics& graphics, int line) {
    const float y = static_cast<float>(LineKeyY(LineRow(line))), middle = y + 9.5f;
    const bool left = LeftLine(line) > 0;
    const float key = left ? 9 : 274, text = left ? 139 : 145, stub = left ? 27 : 257, turn = left ? 31 : 253;
    const PaintPoint points[] = {{key, y - 1},  {stub, y - 1}, {stub, middle - 3}, {turn, middle - 3},
                                 {turn, y - 1}, {text, y - 1}, {text, y + 20},     {key, y + 20},
                                 {key, y + 10}, {key, y - 1}};
    GdipDrawLines(graphics, GdipCreatePen1(Scaled(kMapGreen), 1), points);
}

void DrawCursor(Graphics& graphics, const CduState& unit) {
    if (unit.PcKeyboardActive == 0) return;
    for (const SoftKey& key : SoftKeys())
        if (key.item == unit.ItemCursor)
            BoxOutline(graphics, key.x, key.y, kSoftKeyWidth, kSoftKeyHeight, kMapGreen);
    if (LineRow(unit.ItemCursor) > 0) OutlineLine(graphics, unit.ItemCursor);
}

}  // namespace

void DrawCdu(Graphics& graphics, int half, int side) {
    const CduState& unit = CduOf(side);
    const TransformBlock block(graphics);
    if (half == 2) GdipTranslateWorldTransform(graphics, kRightHalf, 0);
    DrawFace(graphics);
    CallPage(graphics, side, 0);  // keys are for the host's thread
    for (int row = 0; row < 6; ++row) {
        DrawLineKey(graphics, unit, kL1 + row);
        DrawLineKey(graphics, unit, kR1 + row);
    }
    for (const SoftKey& key : SoftKeys()) DrawSoftKey(graphics, unit, key);
    DrawExecLamp(graphics);
    DrawScratchPad(graphics, unit);
    DrawClockLine(graphics);
    DrawMessageWindow(graphics, unit);
    DrawCursor(graphics, unit);
}
