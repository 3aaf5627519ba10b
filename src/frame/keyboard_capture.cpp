#include "frame/keyboard_capture.h"

#include <array>
#include <cstdint>

#include "platform/host.h"
#include "state/cdu.h"
#include "state/keyboard.h"

namespace {

using KeyState = std::array<std::uint8_t, 256>;

// Codes of the keyboard device, as IBM's set 1 scan codes with 0x80 added for the extended keys.
constexpr int kScanBackspace = 0x0e, kScanEnter = 0x1c, kScanNumEnter = 0x9c;
constexpr int kScanSpace = 0x39, kScanSlash = 0x35, kScanPeriod = 0x34;
constexpr int kScanLeft = 0xcb, kScanUp = 0xc8, kScanRight = 0xcd, kScanDown = 0xd0;
constexpr int kScanLeftShift = 0x2a, kScanRightShift = 0x36;
constexpr int kScanLeftCtrl = 0x1d, kScanRightCtrl = 0x9d, kScanLeftAlt = 0x38;
constexpr int kScanS = 0x1f, kScanG = 0x22, kScanZ = 0x2c;

struct CharacterKey {
    int scan;
    char character;
};
constexpr CharacterKey kCharacterKeys[] = {
    {0x1e, 'A'},       {0x30, 'B'},       {0x2e, 'C'},        {0x20, 'D'}, {0x12, 'E'}, {0x21, 'F'},
    {kScanG, 'G'},     {0x23, 'H'},       {0x17, 'I'},        {0x24, 'J'}, {0x25, 'K'}, {0x26, 'L'},
    {0x32, 'M'},       {0x31, 'N'},       {0x18, 'O'},        {0x19, 'P'}, {0x10, 'Q'}, {0x13, 'R'},
    {kScanS, 'S'},     {0x14, 'T'},       {0x16, 'U'},        {0x2f, 'V'}, {0x11, 'W'}, {0x2d, 'X'},
    {0x15, 'Y'},       {kScanZ, 'Z'},     {0x02, '1'},        {0x03, '2'}, {0x04, '3'}, {0x05, '4'},
    {0x06, '5'},       {0x07, '6'},       {0x08, '7'},        {0x09, '8'}, {0x0a, '9'}, {0x0b, '0'},
    {kScanSpace, ' '}, {kScanSlash, '/'}, {kScanPeriod, '.'},
};

struct CommandKey {
    int scan;
    int code;
};
constexpr CommandKey kCommandKeys[] = {
    {kScanLeft, 1}, {kScanUp, 2}, {kScanRight, 3}, {kScanDown, 4}, {kScanEnter, 5}, {kScanNumEnter, 5},
};

// By the step that failed; 0 is success.
constexpr const char* kOpenFailures[] = {"", "DirectInput failed", "CreateDevice failed",
                                         "SetDataFormat failed", "SetCooperativeLevel failed"};

bool IsDown(const KeyState& state, int scan) {
    return (state[static_cast<std::size_t>(scan)] & 0x80) != 0;
}

bool ModifierHeld(const KeyState& state) {
    for (const int scan : {kScanLeftShift, kScanRightShift, kScanLeftCtrl, kScanRightCtrl, kScanLeftAlt})
        if (IsDown(state, scan)) return true;
    return false;
}

CduState& CapturingUnit() {
    return keyboard.keyboard_capture_l == 1 ? cdu[0] : cdu[1];
}

void SwallowKeys(bool on) {
    if (on == (keyboard.keyboard_swallowing == 1)) return;
    keyboard.keyboard_swallowing = on ? 1 : 0;
    Host().swallow_keys(on ? 1 : 0);
}

void CloseDevice() {
    SwallowKeys(false);
    if (keyboard.keyboard_open == 1) Host().close_keyboard();
    keyboard.keyboard_open = 0;
}

// A device that can't be had is given up until the window or the capture changes.
void OpenDevice() {
    const int failed_step = Host().open_keyboard();
    if (failed_step > 0 && failed_step < static_cast<int>(std::size(kOpenFailures))) {
        CapturingUnit().ScratchMessage = kOpenFailures[failed_step];
        Host().close_keyboard();
    }
    keyboard.keyboard_open = failed_step == 0 ? 1 : -1;
}

bool ReadKeys(KeyState& state) {
    constexpr int kMaxTries = 20;  // the host may go on saying that input is lost
    int result = Host().read_keyboard(state.data());
    for (int tries = 0; result == -1 && tries < kMaxTries; ++tries)
        if (Host().acquire_keyboard() != -1) result = Host().read_keyboard(state.data());
    return result == 1;
}

void TakePresses(const KeyState& state) {
    const auto pressed = [&](int scan) { return IsDown(state, scan) && !IsDown(keyboard.key_state, scan); };
    std::string& scratchpad = CapturingUnit().ScratchPad;
    for (const CharacterKey& key : kCharacterKeys)
        if (pressed(key.scan)) scratchpad.push_back(key.character);
    if (pressed(kScanBackspace) && !scratchpad.empty()) scratchpad.pop_back();
    for (const CommandKey& key : kCommandKeys)
        if (pressed(key.scan)) keyboard.keyboard_code = key.code;
}

}  // namespace

void PollKeyboard() {
    const std::string window = ForegroundWindowClass();
    const bool window_changed = window != keyboard.window_class;
    keyboard.window_class = window;
    if (keyboard.keyboard_capture_l == 0 && keyboard.keyboard_capture_r == 0) {
        CloseDevice();
        return;
    }
    const bool of_simulator = window == "FS98MAIN" || window == "FS98FLOAT";
    if (of_simulator && (window_changed || keyboard.keyboard_open == 0)) {
        CloseDevice();
        OpenDevice();
    }
    if (keyboard.keyboard_open != 1 || keyboard.keyboard_busy == 1) return;
    keyboard.keyboard_busy = 1;
    KeyState state = {};
    if (ReadKeys(state)) {
        const bool modifier = ModifierHeld(state);
        if (!modifier) TakePresses(state);
        // With a modifier held the simulator's own shortcuts must still reach it.
        SwallowKeys(!modifier);
        keyboard.key_state = state;
    }
    keyboard.keyboard_busy = 0;
}

void ReleaseKeyboard() {
    CloseDevice();
    keyboard = {};
    for (CduState& unit : cdu) {
        unit.PcKeyboardActive = 0;
        unit.keyboard_commands = {};
    }
}
