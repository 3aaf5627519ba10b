#include "display/routing/routing.h"

#include <algorithm>
#include <span>
#include <utility>

#include "base/numbers.h"
#include "frame/controls.h"
#include "frame/named_variables.h"
#include "state/cockpit.h"
#include "state/displays.h"
#include "state/power_words.h"
#include "state/requests.h"
#include "state/side.h"
#include "state/time_base.h"

namespace {

using enum Content;

constexpr int kLeft = 1, kRight = 2;
constexpr int kFirstPfdLeft = 80, kLastPfdLeft = 87;    // PFD on the left
constexpr int kFirstPfdRight = 88, kLastPfdRight = 95;  // PFD on the right

bool IsBetween(int mode, int first, int last) {
    return mode >= first && mode <= last;
}

struct Halves {
    Content left, right;
    Content& Of(int half) { return half == kLeft ? left : right; }
    Content Other(int half) const { return half == kLeft ? right : left; }
};

std::optional<Halves> HalvesOf(int mode) {
    const auto contents = ContentsOf(mode);
    if (!contents) return {};
    return Halves{contents->left, contents->right};
}

bool Shows(int mode, int half, Content content) {
    auto halves = HalvesOf(mode);
    return halves && halves->Of(half) == content;
}

// Sets a mode to two contents if there is a code for them; true when the mode has changed.
bool SetHalves(int& mode, Halves halves) {
    const auto code = CodeOf(halves.left, halves.right);
    if (!code || *code == mode) return false;
    mode = *code;
    return true;
}

bool SetHalf(int& mode, int half, Content content) {
    auto halves = HalvesOf(mode);
    if (!halves) return false;
    halves->Of(half) = content;
    return SetHalves(mode, *halves);
}

// What an inboard unit becomes by a press: the rules that differ from just replacing the half.
Halves AfterPress(int side, int half, Halves now, Content pressed) {
    const bool captain = side == kCaptain;
    Halves next = now;
    next.Of(half) = pressed;
    if (now.Other(half) != pressed) return next;
    // The content already stands on the other half.
    if (pressed == kNd) return next;
    if (pressed == kSys) return half == kRight && now.right == kSys ? Halves{kSelect, kSys} : next;
    if (pressed == kCdu && captain && half == kRight) return {kSelect, kCdu};
    if (pressed == kCdu && captain && now.left == kNd) return {kCdu, kSelect};
    if (pressed == kCdu && !captain && half == kLeft) return {kCdu, kCdu};
    return now;
}

bool ChangeInboard(int side, Content pressed) {
    const bool captain = side == kCaptain;
    int& mode = captain ? displays.du_capt_inb_mode : displays.du_fo_inb_mode;
    const int half = captain ? displays.dsp_capt_mode_button : displays.dsp_fo_mode_button;
    if (mode == kModeFree) {
        int& outboard = captain ? displays.du_capt_outb_mode : displays.du_fo_outb_mode;
        return SetHalves(outboard, captain ? Halves{kPfd, pressed} : Halves{pressed, kPfd});
    }
    auto now = HalvesOf(mode);
    if (!now) return false;
    const bool with_pfd = now->left == kPfd || now->right == kPfd;
    if (with_pfd && !(captain && half == kRight && now->left == kPfd)) return false;
    if (now->Of(half) == kEicas || now->Of(half) == kPfd) return false;
    return SetHalves(mode, AfterPress(side, half, *now, pressed));
}

// A half of the lower unit that shows the same content makes room.
void ClearOnLower(int half, Content content) {
    if (Shows(displays.du_lower_mode, half, content)) SetHalf(displays.du_lower_mode, half, kSelect);
}

struct GiveWay {
    Content pressed;
    int from, to;
};

// How an inboard unit gives way to what its side has put on the lower unit.
constexpr GiveWay kCaptainGivesWay[] = {
    {kCdu, 6, 53},   {kCdu, 8, 55},   {kCdu, 10, 57},  {kCdu, 42, 48}, {kCdu, 58, 64}, {kChkl, 14, 53},
    {kChkl, 16, 55}, {kChkl, 18, 57}, {kChkl, 43, 48}, {kNd, 8, 9},    {kNd, 42, 50},  {kNd, 45, 53},
    {kNd, 47, 56},   {kNd, 48, 56},   {kNd, 55, 56},   {kNd, 49, 57},  {kNd, 63, 64},  {kSys, 65, 57},
};
constexpr GiveWay kFirstOfficerGivesWay[] = {
    {kCdu, 8, 55},   {kCdu, 10, 57},  {kCdu, 27, 32},  {kCdu, 42, 48},  {kCdu, 58, 64},
    {kChkl, 16, 55}, {kChkl, 18, 57}, {kChkl, 28, 32}, {kChkl, 43, 48}, {kChkl, 59, 64},
    {kNd, 8, 9},     {kNd, 31, 32},   {kNd, 42, 50},   {kNd, 47, 56},   {kNd, 48, 56},
    {kNd, 55, 56},   {kNd, 49, 57},   {kNd, 63, 64},   {kSys, 65, 57},
};

void ToggleCaptainInboard() {
    int& mode = displays.du_capt_inb_mode;
    if (!IsBetween(mode, 4, kLastPfdLeft)) return;
    const int before = mode;
    const bool to_nd = Shows(mode, kRight, kEicas);
    const bool from_nd = Shows(mode, kRight, kNd);
    if (!SetHalf(mode, kRight, to_nd ? kNd : kEicas)) return;
    displays.dsp_capt_mode_button = kLeft;
    const bool lower_next = (!to_nd && !from_nd) || before == 6 || before == 14 || before == 39;
    if (lower_next) {
        auto lower = HalvesOf(displays.du_lower_mode);
        if (lower && lower->left == kNd) SetHalves(displays.du_lower_mode, {kSelect, lower->right});
    }
}

void ToggleFirstOfficerInboard() {
    int& mode = displays.du_fo_inb_mode;
    const auto now = HalvesOf(mode);
    if (!IsBetween(mode, 4, kLastPfdRight) || !now || now->left == kPfd) return;
    const bool to_nd = now->left == kEicas;
    if (!SetHalves(mode, {to_nd ? kNd : kEicas, now->right})) return;
    displays.dsp_fo_mode_button = to_nd && now->right == kPfd ? kLeft
                                  : to_nd                     ? displays.dsp_fo_mode_button
                                                              : kRight;
    if (to_nd) ClearOnLower(kRight, kNd);
}

// Lights the lamp of the half that each panel acts on, in place of the other half's.
void ShowSelectLamps() {
    SetControl(&cockpit.TZ_MCP_L_MFD_L_GREEN, displays.dsp_capt_mode_button == kLeft ? 1 : 0);
    SetControl(&cockpit.TZ_MCP_L_MFD_R_GREEN, displays.dsp_capt_mode_button == kRight ? 1 : 0);
    SetControl(&cockpit.TZ_MCP_R_MFD_L_GREEN, displays.dsp_fo_mode_button == kLeft ? 1 : 0);
    SetControl(&cockpit.TZ_MCP_R_MFD_R_GREEN, displays.dsp_fo_mode_button == kRight ? 1 : 0);
}

}  // namespace

void PressInboardFormat(int side, Content content) {
    if (ChangeInboard(side, content)) ClearOnLower(side == kCaptain ? kLeft : kRight, content);
}

void PressLowerFormat(int side, Content content) {
    const bool captain = side == kCaptain;
    if (!SetHalf(displays.du_lower_mode, captain ? kLeft : kRight, content)) return;
    int& inboard = captain ? displays.du_capt_inb_mode : displays.du_fo_inb_mode;
    const std::span<const GiveWay> table = captain ? std::span<const GiveWay>(kCaptainGivesWay)
                                                   : std::span<const GiveWay>(kFirstOfficerGivesWay);
    const auto row = std::ranges::find_if(
        table, [&](const GiveWay& way) { return way.pressed == content && way.from == inboard; });
    if (row != table.end()) inboard = row->to;
}

void PressEicas() {
    time_base.tick_phase = 14;
    ToggleCaptainInboard();
    ToggleFirstOfficerInboard();
    if (IsBetween(displays.du_capt_outb_mode, kFirstPfdLeft, kLastPfdLeft))
        SetHalf(displays.du_capt_outb_mode, kRight,
                Shows(displays.du_capt_outb_mode, kRight, kEicas) ? kNd : kEicas);
    if (IsBetween(displays.du_fo_outb_mode, kFirstPfdRight, kLastPfdRight))
        SetHalf(displays.du_fo_outb_mode, kLeft,
                Shows(displays.du_fo_outb_mode, kLeft, kEicas) ? kNd : kEicas);
    ShowSelectLamps();
}

void PressEngine() {
    displays.eicas_eng_button = displays.eicas_eng_button == 0 ? 1 : 0;
}

void SelectHalf(int side, int half) {
    const bool captain = side == kCaptain;
    const int mode = captain ? displays.du_capt_inb_mode : displays.du_fo_inb_mode;
    const int inner = captain ? kRight : kLeft;  // where the engine displays may stand
    const bool dead = half == inner ? mode < kFirstPfdLeft && Shows(mode, inner, kEicas) : mode == kModeFree;
    if (!dead) (captain ? displays.dsp_capt_mode_button : displays.dsp_fo_mode_button) = half;
    ShowSelectLamps();
}

void MoveDisplaySelector(int position) {
    const int before = displays.du_sel_pos;
    if (position == before || position < -1 || position > 1) return;
    if (position * before < 0) {  // from end to end it passes the middle
        MoveDisplaySelector(0);
        return MoveDisplaySelector(position);
    }
    displays.du_sel_pos = position;
    int& inboard = displays.du_capt_inb_mode;
    int& outboard = displays.du_capt_outb_mode;
    switch (position) {
        case -1:
            SetHalves(outboard, {kPfd, Shows(inboard, kRight, kEicas) ? kEicas : kNd});
            displays.dsp_capt_mode_button = kRight;
            inboard = kModeFree;
            break;
        case 0: {
            const auto shown = HalvesOf(before == -1 ? outboard : inboard);
            if (shown && shown->left == kPfd && shown->right != kAux) SetHalves(inboard, {kNd, shown->right});
            outboard = 1;
            break;
        }
        case 1:
            if (const auto now = HalvesOf(inboard); now && IsBetween(inboard, 3, 65) && now->left != kEicas)
                SetHalves(inboard, {kPfd, now->right});
            outboard = kModeFree;
            break;
        default:
            break;
    }
}

void ShowRequestedChecklist() {
    struct Change {
        int from, to;
    };
    static constexpr Change kChanges[] = {{5, 13},  {6, 14},  {7, 15},  {8, 16},  {9, 17},
                                          {10, 18}, {34, 11}, {42, 11}, {50, 11}, {58, 11}};
    if (std::exchange(requests.show_checklist, 0) == 0) return;
    const auto row = std::ranges::find(kChanges, displays.du_capt_inb_mode, &Change::from);
    if (row != std::end(kChanges)) displays.du_capt_inb_mode = row->to;
}

void RepairInboardModes() {
    if (!IsPoweredBeyondBattery()) return;
    if (displays.du_capt_inb_mode == 83 && cockpit.TZ_MAIN_PFD_MFD_L_Switch < 1)
        displays.du_capt_inb_mode = 45;
    if (displays.du_fo_inb_mode == 88) displays.du_fo_inb_mode = 31;
}

void TakeDisplaySelector() {
    constexpr NamedVarRef kSelector = NamedVar("TZ_MAIN_PFD_MFD_L_Switch");
    const double shown = ReadNamedVar(kSelector);
    const int position = std::clamp(WholeNumber(shown), -1, 1);
    if (shown != position) WriteNamedVar(kSelector, position);
    if (position == displays.du_sel_pos) return;
    cockpit.TZ_MAIN_PFD_MFD_L_Switch = position;
    MoveDisplaySelector(position);
    ShowSelectLamps();
}
