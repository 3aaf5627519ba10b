#pragma once

// The touch strip of a system page: the choice of the page that its half shows.

constexpr int kPageAir = 1, kPageCb = 2, kPageDoor = 3, kPageEfisDsp = 4, kPageElec = 5, kPageFctl = 6;
constexpr int kPageFuel = 7, kPageGear = 8, kPageHyd = 9, kPageMaint = 10, kPageStat = 11;

/// A press in the half's own frame, 282 wide, on the system page of a half (1 left, 2 right) of a unit. From
/// the pages CB and MAINT only STAT leads on.
void OnSystemStripClick(int x, int y, int unit, int half);
