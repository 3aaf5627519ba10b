#include "display/formats/checklist.h"

#include <algorithm>

#include "checklist/checklist.h"
#include "checklist/lists.h"
#include "paint/fonts.h"
#include "paint/painter.h"
#include "paint/soft_key.h"
#include "state/cfg.h"
#include "state/checklist.h"
#include "state/displays.h"

namespace {

constexpr float kItemSize = 9, kTitleSize = 11;
constexpr int kOnlyLine = 3, kFirstLine = -2, kSecondLine = 8;
// The middle of a half, where the drawing's frame has its origin.
constexpr int kMiddleX = 141, kMiddleY = 235;

constexpr int kDone = 1, kOverridden = 2;

// In the middle of a row's frame: one line of text, or two.
void DrawLines(Graphics& graphics, double x, double y, Rgb colour, std::string_view text) {
    const std::size_t end = text.find('\n');
    if (end == std::string_view::npos) return Text(graphics, x, y + kOnlyLine, kItemSize, colour, text);
    Text(graphics, x, y + kFirstLine, kItemSize, colour, text.substr(0, end));
    Text(graphics, x, y + kSecondLine, kItemSize, colour, text.substr(end + 1));
}

void DrawArrowLeft(Graphics& graphics, int x, int y) {
    Line(graphics, x, y, x - 7, y + 4, kWhite);
    Line(graphics, x - 7, y + 4, x, y + 8, kWhite);
}

void DrawArrowRight(Graphics& graphics, int x, int y) {
    Line(graphics, x, y, x + 7, y + 4, kWhite);
    Line(graphics, x + 7, y + 4, x, y + 8, kWhite);
}

void DrawTitle(Graphics& graphics, std::string_view title) {
    constexpr int kY = -200;
    // The arrows stand about a short title and give way to a long one.
    const double half = TextWidth(FamilyOf(cfg.DuFont), title) * kTitleSize / 2;
    CentredText(graphics, 0, kY, kTitleSize, kWhite, title);
    DrawArrowLeft(graphics, std::min(-40, static_cast<int>(-half) - 5), kY + 2);
    DrawArrowRight(graphics, std::max(35, static_cast<int>(half) + 5), kY + 2);
}

void DrawMark(Graphics& graphics, int y, bool manual, int value) {
    constexpr int kX = -135, kSide = 15, kOverriddenSide = 17;
    if (value == kOverridden) {
        BoxOutline(graphics, kX - 1, y - 1, kOverriddenSide, kOverriddenSide, kCyan);
        return;
    }
    if (manual) BoxOutline(graphics, kX, y, kSide, kSide, kWhite);
    if (value != kDone) return;
    Line(graphics, kX + 3, y + 8, kX + 6, y + 12, kGreen, 2);
    Line(graphics, kX + 6, y + 12, kX + 12, y + 3, kGreen, 2);
}

void DrawItem(Graphics& graphics, const ChecklistItem& item, int y, int value) {
    DrawMark(graphics, y, item.holds == nullptr, value);
    const Rgb colour = value == kDone ? kGreen : value == kOverridden ? kCyan : kWhite;
    DrawLines(graphics, -110, y, colour, item.text);
}

void DrawCompletion(Graphics& graphics, int list) {
    const std::string_view text = CompletionOf(list);
    if (text.empty()) return;
    const bool overridden = text == kChecklistOverridden;
    const int x = overridden ? -45 : -54, y = overridden ? 99 : 95;
    constexpr int kWidth = 110, kHeight = 12;
    FilledBox(graphics, x, y, kWidth, kHeight, overridden ? kCyan : kGreen);
    CentredText(graphics, x + kWidth / 2.0, y + 1, kItemSize, kBlack, text);
}

void DrawList(Graphics& graphics, int list) {
    constexpr int kFirstY = -185, kStep = 30, kFrameX = -115, kFrameWidth = 240, kFrameHeight = 18;
    const NormalChecklist& rows = ChecklistOf(list);
    const auto& values = checklist.Items[static_cast<std::size_t>(list)];
    const int current = checklist.CurrentItem[static_cast<std::size_t>(list)];
    DrawTitle(graphics, rows.title);
    int y = kFirstY;
    for (std::size_t item = 1; item <= rows.items.size(); ++item, y += kStep) {
        DrawItem(graphics, rows.items[item - 1], y, values[item]);
        if (static_cast<int>(item) == current)
            BoxOutline(graphics, kFrameX, y, kFrameWidth, kFrameHeight, kWhite, 2);
    }
    DrawCompletion(graphics, list);
}

bool IsPressed(const ContentPlace& place, const Area& area) {
    return checklist.press_timer > 0 && checklist.press_unit == place.unit &&
           area.Has(checklist.press_x, checklist.press_y);
}

void DrawKey(Graphics& graphics, const ContentPlace& place, const SoftKeyBox& box, const Area& area,
             std::string_view text) {
    DrawSoftKey(graphics, box, text, {});
    if (IsPressed(place, area)) BoxOutline(graphics, box.x, box.y, box.width, box.height, kWhite, 2);
}

void DrawNormalMenu(Graphics& graphics, const ContentPlace& place) {
    constexpr int kKeyWidth = 135, kKeyHeight = 20;
    for (int list = 1; list <= kNormalLists; ++list) {
        const Area area = MenuKeyOf(list);
        DrawKey(graphics, place, {area.left - kMiddleX, area.top - kMiddleY, kKeyWidth, kKeyHeight}, area,
                ChecklistOf(list).title);
    }
}

// The keys of this page have no effect.
void DrawResets(Graphics& graphics) {
    DrawTitle(graphics, "RESETS");
    Text(graphics, -130, -170, kItemSize, kWhite, "AIRLINE DATABASE            REVISION");
    Text(graphics, -130, -155, kItemSize, kWhite, "BF10-0000-00A1              13 FEB 09");
    DrawSoftKey(graphics, {-130, -120, 120, 20}, "RESET NORMAL", {});
    Text(graphics, -126, -90, kItemSize, kGreyPen, "RESET NON-NORMAL");
    DrawSoftKey(graphics, {-130, -70, 120, 20}, "RESET ALL", {});
}

void DrawPage(Graphics& graphics, const ContentPlace& place) {
    if (IsChecklistShown()) DrawList(graphics, checklist.CurrentList);
    if (checklist.CurrentList == kNormalMenuList) DrawNormalMenu(graphics, place);
    if (checklist.CurrentList == kResetsList) DrawResets(graphics);
}

}  // namespace

void DrawChecklist(Graphics& graphics, const ContentPlace& place) {
    const TransformBlock block(graphics);
    GdipTranslateWorldTransform(graphics, place.half == 2 ? kMiddleX + kHalf : kMiddleX, kMiddleY);
    DrawPage(graphics, place);
    Text(graphics, 48, -227, kItemSize, kGreyPen, "NON-NORMAL MENU");
    for (const ChecklistKey& key : ChecklistKeys())
        if (key.stands()) DrawKey(graphics, place, key.box, key.area, key.text);
}

void TouchChecklist(const FormatTouch& at) {
    OnChecklistClick(at.x, at.y, at.unit);
}
