#include "state/keyboard.h"

KeyboardState keyboard;

namespace {
constexpr Variable kKeyboardRows[] = {
    {"keyboard_capture_l", &keyboard.keyboard_capture_l},
    {"keyboard_capture_r", &keyboard.keyboard_capture_r},
    {"keyboard_code", &keyboard.keyboard_code},
    {"keyboard_open", &keyboard.keyboard_open},
    {"keyboard_busy", &keyboard.keyboard_busy},
    {"keyboard_swallowing", &keyboard.keyboard_swallowing},
    {"keyboard_window_class", &keyboard.window_class},
};
}  // namespace

const std::span<const Variable> kKeyboardVariables = kKeyboardRows;
