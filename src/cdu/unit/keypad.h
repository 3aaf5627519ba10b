#pragma once

#include <cstddef>
#include <string_view>

// The keypad of a CDU, one function a key: they act on the scratchpad at once, whatever page is shown. Side 1
// is the captain's, 2 the first officer's.

constexpr std::size_t kScratchPadLimit = 24;

/// A letter, a digit or the point: one more character, silently dropped at 24.
void OnCduKeyChar(int side, char character);
/// What another display has picked for the crew takes the place of the scratchpad's text, cut at 24.
void PutOnScratchpad(int side, std::string_view text);
/// SP: takes a waiting DELETE back with the scratchpad, else adds a blank, without the limit.
void OnSpace(int side);
void OnDelete(int side);
void OnSlash(int side);
/// +/-: "-", then turns the sign at the end of the scratchpad.
void OnPlusMinus(int side);
/// CLR: the scratch message goes, else the last character.
void OnClear(int side);
/// EXEC: puts what waits into force, with a new route the takeoff speeds and flaps too; nothing but the click
/// when nothing waits.
void OnExec(int side);
/// PREV PAGE and NEXT PAGE wait for a page that has a family.
void OnPreviousPage(int side);
void OnNextPage(int side);
