#include "display/eicas/messages.h"

#include <algorithm>

#include "base/text.h"
#include "state/alerts.h"
#include "systems/alerting/message_lists.h"

namespace {

constexpr float kMessageText = 10;
constexpr int kFirstY = 1, kStep = 11, kLastY = 110;
constexpr int kOuterX = -5, kAdvisoryX = 2;

int DrawRecords(Graphics& graphics, AlertLevel level, int x, Rgb colour, int y) {
    const AlertList& list = ListOf(level);
    const int last = list.Count();
    for (int index = 1; index <= last; ++index) {
        if (level != AlertLevel::kWarning && list.At(index).cancelled != 0) continue;
        if (y <= kLastY) EicasText(graphics, x, y, kMessageText, colour, list.At(index).text);
        y += kStep;
    }
    return y;
}

void DrawMemos(Graphics& graphics, int y) {
    constexpr int kLines = 11, kFoot = 121;
    const AlertList& memos = ListOf(AlertLevel::kMemo);
    const int last = memos.Count();
    const int from_foot = (kLines - last) * kStep;
    if (last >= 1 && std::max(y, from_foot) < kFoot) y = std::max(y, from_foot);
    for (int index = 1; index <= last; ++index, y += kStep) {
        if (y > kLastY) continue;
        const std::string& text = memos.At(index).text;
        if (text == "COMM") GdipFillEllipseI(graphics, BrushOf(kWhite), -10, y + 2, 4, 4);
        EicasText(graphics, kOuterX, y, kMessageText, kWhite, text);
    }
}

}  // namespace

void DrawMessages(Graphics& graphics) {
    constexpr int kLinesOfAPage = 11, kBelow = 130;
    int y = kFirstY;
    y = DrawRecords(graphics, AlertLevel::kWarning, kOuterX, kEicasRed, y);
    y = DrawRecords(graphics, AlertLevel::kCaution, kOuterX, kAmber, y);
    y = DrawRecords(graphics, AlertLevel::kAdvisory, kAdvisoryX, kAmber, y);
    DrawMemos(graphics, y);
    if (alerts.warning_count + alerts.unseen_cautions + alerts.unseen_advisories > kLinesOfAPage)
        EicasText(graphics, 60, kBelow, kMessageText, kWhite, Format("PG %d", 1));
    // At 127, where the other half's would stand, it would be beyond the display's edge.
    if (alerts.recall_timer > 0) EicasText(graphics, 0, kBelow, kMessageText, kWhite, "RECALL");
}
