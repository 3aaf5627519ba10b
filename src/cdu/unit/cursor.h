#pragma once

// The keyboard cursor of the CDU that holds the PC keyboard.

constexpr int kCursorLeft = 1, kCursorUp = 2, kCursorRight = 3, kCursorDown = 4, kCursorEnter = 5;

/// Moves a side's cursor: among the lines that its page marked as selectable, and over the soft keys below.
void MoveCursor(int side, int command);

/// The next selectable line down, top to bottom, left column first; the line itself when it is the last.
int NextLineDown(int side, int line);
