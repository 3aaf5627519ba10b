#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>

#include "state/variable.h"

/// The PC keyboard while a CDU scratchpad takes it.
struct KeyboardState {
    int keyboard_capture_l = 0;  // the captain's scratchpad takes the keyboard
    int keyboard_capture_r = 0;  // the first officer's does
    int keyboard_code = 0;       // 1 left, 2 up, 3 right, 4 down, 5 enter; 0 = none. Until the CDU takes it
    int keyboard_open = 0;       // the device: 1 open, 0 closed, -1 given up
    int keyboard_busy = 0;
    int keyboard_swallowing = 0;
    std::string window_class;                      // the foreground window's, at the last poll
    std::array<std::uint8_t, 256> key_state = {};  // at the last poll; the top bit is "down"
};

extern KeyboardState keyboard;
extern const std::span<const Variable> kKeyboardVariables;
