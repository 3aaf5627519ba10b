#pragma once

#include <span>

// Everything on a CDU that can be pressed or can hold the keyboard cursor, by its item number: 1-6 and 9-14
// the line keys, 17-30 the soft keys.

struct SoftKey {
    int item;
    const char* upper;
    const char* lower;  // second line of the face, empty = none
    int x, y;           // the box, 33 by 22, in the half's frame
};

constexpr int kItemInitRef = 17, kItemRte = 18, kItemDepArr = 19, kItemAltn = 20, kItemVnav = 21;
constexpr int kItemExec = 22, kItemFix = 23, kItemLegs = 24, kItemHold = 25, kItemFmcComm = 26;
constexpr int kItemProg = 27, kItemNavRad = 28, kItemPrevPage = 29, kItemNextPage = 30;
constexpr int kSoftKeyWidth = 33, kSoftKeyHeight = 22;
constexpr int kRightHalf = 283;  // where the frame of a Display Unit\'s right half begins

std::span<const SoftKey> SoftKeys();

/// A press on a side's CDU, in the frame of its half. Soft keys act at once, a line key waits for its page,
/// the scratchpad takes the PC keyboard.
void OnCduTouch(int side, double x, double y);
/// The same on the CDU format of a Display Unit (1 to 5), in that unit's frame of 564 by 424.
void OnCduClick(double x, double y, int display_unit);

/// Presses an item as a click on it would; a number that is no item does nothing.
void OnCduKeyPress(int side, int item);

/// Presses a soft key as the keyboard's Enter does; a number that is none does nothing.
void EnterSoftKey(int side, int item);

/// CLR MSG: the newest message goes when the press is over. Nothing without a message.
void OnClearMessage(int side);

/// The scratchpad takes the PC keyboard from wherever it was, or gives it back.
void ToggleKeyboard(int side);

/// LEGS, to pick the leg of a hold.
void OpenHoldSelection(int side);
