#pragma once

#include <string_view>

#include "efb/words/face.h"

// The tablets' pages by their ids, and how one leads to another.

constexpr int kTabletMainMenu = 1;
constexpr int kTabletTerminalCharts = 2;
constexpr int kTabletTakeoff = 7;
constexpr int kTabletLanding = 8;
constexpr int kTabletAirportSearch = 9;
constexpr int kTabletSend = 10;
constexpr int kTabletRouteEntry = 15;
constexpr int kTabletDispatch = 16;

/// Shows a page; an open list and a field that is being edited close.
void OpenTabletPage(int page);
/// The same as an action: the number is the page.
void OpenPageOfNumber(int side, int page);
/// Back to the page that opened the present one, as an action.
void ReturnToPage(int side, int number);
