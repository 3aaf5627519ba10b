#include "display/eicas/messages.h"

#include <algorithm>

#include "base/text.h"
#include "state/alerts.h"

namespace {

constexpr float kMessageText = 10;
constexpr int kFirstY = 1, kStep = 11, kLastY = 110;
constexpr int kOuterX = -5, kAdvisoryX = 2;

int DrawRecords(Graphics& graphics, const GrowingList<AlertRecord>& list, int count, int x, Rgb colour,
                bool cancellable, int y) {
    for (int index = 1; index <= std::min(count, list.size()); ++index) {
        if (cancellable && list[index].cancelled != 0) continue;
        if (y <= kLastY) EicasText(graphics, x, y, kMessageText, colour, list[index].text);
        y += kStep;
    }
    return y;
}

void DrawMemos(Graphics& graphics, int y) {
    constexpr int kLines = 11, kFoot = 121;
    const int from_foot = (kLines - alerts.memo_count) * kStep;
    if (alerts.memo_count >= 1 && std::max(y, from_foot) < kFoot) y = std::max(y, from_foot);
    for (int index = 1; index <= std::min(alerts.memo_count, alerts.memo_list.size()); ++index, y += kStep) {
        if (y > kLastY) continue;
        const std::string& text = alerts.memo_list[index].text;
        if (text == "COMM") GdipFillEllipseI(graphics, BrushOf(kWhite), -10, y + 2, 4, 4);
        EicasText(graphics, kOuterX, y, kMessageText, kWhite, text);
    }
}

}  // namespace

void DrawMessages(Graphics& graphics) {
    constexpr int kLinesOfAPage = 11, kBelow = 130;
    int y = kFirstY;
    y = DrawRecords(graphics, alerts.warning_list, alerts.warning_count, kOuterX, kEicasRed, false, y);
    y = DrawRecords(graphics, alerts.caution_list, alerts.caution_count, kOuterX, kAmber, true, y);
    y = DrawRecords(graphics, alerts.advisory_list, alerts.advisory_count, kAdvisoryX, kAmber, true, y);
    DrawMemos(graphics, y);
    if (alerts.warning_count + alerts.unseen_cautions + alerts.unseen_advisories > kLinesOfAPage)
        EicasText(graphics, 60, kBelow, kMessageText, kWhite, Format("PG %d", 1));
    // At 127, where the other half's would stand, it would be beyond the display's edge.
    if (alerts.recall_timer > 0) EicasText(graphics, 0, kBelow, kMessageText, kWhite, "RECALL");
}
