#pragma once

// The keys of the multi-function keypad, for the CDU of a side (kCaptain, kFirstOfficer). They act on the
// scratchpad at once, whatever page stands.

/// Appends a character while the scratchpad has fewer than 24. A scratch message stays and hides it.
void OnCduKeyChar(int side, char character);

/// Appends a blank, beyond 24 too; takes a pending "DELETE" back together with the scratchpad.
void OnSpace(int side);

/// Arms the deletion of a line.
void OnDelete(int side);

void OnSlash(int side);

/// Appends "-", or changes a sign that stands last.
void OnPlusMinus(int side);

/// Takes the scratch message away, else the last character.
void OnClear(int side);

/// Executes what awaits execution.
void OnExec(int side);

/// Presses an item of the CDU's face: 1 to 6 and 9 to 14 are line keys, 17 to 30 soft keys. Other numbers do
/// nothing.
void OnCduKeyPress(int side, int item);
