#include "module/remote_input.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "cdu/unit/items.h"
#include "frame/named_variables.h"
#include "module/gauges/mouse_areas.h"
#include "module/gauges/mouse_gauges.h"
#include "platform/panel_gauges.h"
#include "state/cfg.h"
#include "state/remote.h"
#include "state/side.h"
#include "state/sound.h"

namespace {

constexpr int kCaptainCdu = 0, kFirstOfficerCdu = 1, kTablet = 2;
constexpr int kKey = 0, kTouch = 2;
constexpr int kLowerUnit = 5;

// Every code is a key of the cockpit, known by its named variable.
struct CduKey {
    int code;
    NamedVarRef captain, first_officer;
};

consteval CduKey Keypad(int code, std::string_view key) {
    const std::string name = std::string(key) + "_Button";
    return {code, NamedVar("TZ_FMC_L_" + name), NamedVar("TZ_FMC_R_" + name)};
}

// Codes in order from 1; 19 is no key.
consteval auto KeypadKeys() {
    constexpr std::string_view kFirst[] = {"CDU", "CHKL", "COMM", "INFO", "ND", "SYS"};
    constexpr std::string_view kDigits = "123456789", kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    constexpr std::string_view kLast[] = {"SP", "DEL", "SLASH", "CLR", "PRVPG", "NXTPG", "EXEC"};
    std::array<CduKey, 51> keys{};
    std::size_t next = 0;
    for (std::size_t i = 0; i < std::size(kFirst); ++i)
        keys[next++] = Keypad(1 + static_cast<int>(i), kFirst[i]);
    for (std::size_t i = 0; i < kDigits.size(); ++i)
        keys[next++] = Keypad(7 + static_cast<int>(i), kDigits.substr(i, 1));
    keys[next++] = Keypad(16, "DEC");
    keys[next++] = Keypad(17, "0");
    keys[next++] = Keypad(18, "NEGPOS");
    for (std::size_t i = 0; i < kLetters.size(); ++i)
        keys[next++] = Keypad(20 + static_cast<int>(i), kLetters.substr(i, 1));
    for (std::size_t i = 0; i < std::size(kLast); ++i)
        keys[next++] = Keypad(46 + static_cast<int>(i), kLast[i]);
    return keys;
}
constexpr auto kCduKeys = KeypadKeys();
static_assert(kCduKeys.back().code == 52);

struct TabletKey {
    int code;
    NamedVarRef key;
    bool silent = false;
    bool right = false;  // pressed with the right button of the mouse
};
constexpr bool kSilent = true, kRight = true;

constexpr TabletKey kTabletKeys[] = {
    {0x35, NamedVar("TZ_EFB_L_MENU_Button"), kSilent},
    {0x36, NamedVar("TZ_EFB_L_REDIRECT_Button")},
    {0x37, NamedVar("TZ_EFB_L_UP_Button"), kSilent},
    {0x38, NamedVar("TZ_EFB_L_DN_Button"), kSilent},
    {0x39, NamedVar("TZ_EFB_L_PGUP_Button")},
    {0x3a, NamedVar("TZ_EFB_L_PGDN_Button")},
    {0x3b, NamedVar("TZ_EFB_L_XFR_Button"), kSilent},
    {0x3c, NamedVar("TZ_EFB_L_PWR_Button"), false, kRight},
    {0x3d, NamedVar("TZ_EFB_L_DSPL_Button"), kSilent},
    {0x3e, NamedVar("TZ_EFB_L_L1_Button")},
    {0x3f, NamedVar("TZ_EFB_L_L2_Button")},
    {0x40, NamedVar("TZ_EFB_L_L3_Button")},
    {0x41, NamedVar("TZ_EFB_L_L4_Button")},
    {0x42, NamedVar("TZ_EFB_L_L5_Button")},
    {0x43, NamedVar("TZ_EFB_L_L6_Button")},
    {0x44, NamedVar("TZ_EFB_L_L7_Button")},
    {0x45, NamedVar("TZ_EFB_L_L8_Button")},
    {0x46, NamedVar("TZ_EFB_L_R1_Button")},
    {0x47, NamedVar("TZ_EFB_L_R2_Button")},
    {0x48, NamedVar("TZ_EFB_L_R3_Button")},
    {0x49, NamedVar("TZ_EFB_L_R4_Button")},
    {0x4a, NamedVar("TZ_EFB_L_R5_Button")},
    {0x4b, NamedVar("TZ_EFB_L_R6_Button")},
    {0x4c, NamedVar("TZ_EFB_L_R7_Button")},
    {0x4d, NamedVar("TZ_EFB_L_R8_Button")},
    {0x4e, NamedVar("TZ_EFB_L_ZOOMIN_Button")},
    {0x4f, NamedVar("TZ_EFB_L_ZOOMOUT_Button")},
    {0x50, NamedVar("TZ_EFB_L_UP_Button")},
    {0x51, NamedVar("TZ_EFB_L_DN_Button")},
    {0x52, NamedVar("TZ_EFB_L_LFT_Button")},
    {0x53, NamedVar("TZ_EFB_L_RGT_Button")},
};

void PressCduKey(int device, int code) {
    const auto* key = std::ranges::find(kCduKeys, code, &CduKey::code);
    if (key == kCduKeys.end()) return;
    ClickVariable(device == kCaptainCdu ? key->captain : key->first_officer, kMouseLeftSingle);
}

void PressTabletKey(int code) {
    const auto* key = std::ranges::find(kTabletKeys, code, &TabletKey::code);
    if (key == std::end(kTabletKeys)) return;
    const int cue = sound.event_cue;
    ClickVariable(key->key, key->right ? kMouseRightSingle : kMouseLeftSingle);
    if (key->silent) sound.event_cue = cue;
    remote.efb.due = 1;
}

// A peer's point in the frame of what it touches.
struct FramePoint {
    double x, y;
};
FramePoint InFrame(const RemoteEvent& at, const RemoteImage& image, double width, double height) {
    return {at.x * width / std::max(image.width, 1), at.y * height / std::max(image.height, 1)};
}

void Touch(const RemoteEvent& event) {
    const RemoteImage& image = event.device == kTablet ? remote.efb : remote.cdu;
    if (event.x <= 0 || event.y <= 0 || event.x >= image.width || event.y >= image.height) return;
    if (event.device == kTablet) {
        const FramePoint at = InFrame(event, image, kTabletWidth, kTabletHeight);
        OnEfbTouch(static_cast<int>(at.x), static_cast<int>(at.y), kCaptain);
        remote.efb.due = 1;
    } else {
        const FramePoint at = InFrame(event, image, 564, 424);
        OnCduClick(at.x, at.y, kLowerUnit);
    }
}

}  // namespace

void HandleRemoteEvent(const RemoteEvent& event) {
    if (event.device < kCaptainCdu || event.device > kTablet) return;
    if (event.kind == kKey && event.device == kTablet) PressTabletKey(event.code);
    if (event.kind == kKey && event.device != kTablet) PressCduKey(event.device, event.code);
    if (event.kind == kTouch) Touch(event);
    if (event.device != kTablet) remote.cdu.due = 1;
}

void PollRemoteInput() {
    RemoteEvent event;
    if (cfg.RemoteCdu == 1 && PollRemoteEvent(event)) HandleRemoteEvent(event);
}
