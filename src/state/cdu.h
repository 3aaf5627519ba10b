#pragma once

#include <array>
#include <span>
#include <string>

#include "state/growing_list.h"
#include "state/variable.h"

/// Of fms_vnav_page.
constexpr int kVnavClbPage = 1, kVnavCrzPage = 2, kVnavDesPage = 3;

struct CduMessage {
    std::string title;
    std::string body;  // may hold line feeds
    int kind = 0;      // 1 advisory, 2 refused operation, 3 file stored, 4 entry error, 99 and 100 coloured
    int side = 0;
};

constexpr const char* kDeleteMessage = "DELETE";  // the scratch message of the DEL key
constexpr int kCduItems = 31;                     // item numbers 1 to 30; 0 = none

// Page ids, of fms_page; panel state files keep them.
constexpr int kPageFlightPlans = 1;
constexpr int kPagePerfInit = 3;
constexpr int kPageLegs = 6;
constexpr int kPageSelectWpt = 9;
constexpr int kPageDepartures = 10;
constexpr int kPageArrivals = 11;
constexpr int kPageApproachRef = 12;
constexpr int kPageVnav = 15;
constexpr int kPagePanels = 20;
constexpr int kPageRte = 22;
constexpr int kPageInitRefIndex = 23;
constexpr int kPageDepArrIndex = 24;
constexpr int kPageIdent = 25;
constexpr int kPagePosInit = 26;
constexpr int kPageTakeoffRef = 27;
constexpr int kPageRefNavData = 28;
constexpr int kPageProgress = 33;
constexpr int kPageFixInfo = 37;
constexpr int kPageHold = 39;
constexpr int kPageNavRadio = 49;
constexpr int kPageAltn = 51;
constexpr int kPageThrustLim = 52;
constexpr int kPageAltnDetail = 53;
constexpr int kPagePosReport = 54;
constexpr int kPageRteData = 55;
constexpr int kPageAnnouncements = 56;
constexpr int kPageDescentForecast = 57;
constexpr int kPageWind = 58;

/// One CDU. cdu[0] is the captain's, cdu[1] the first officer's: CduOf(side).
struct CduState {
    int fms_page = 0;
    int prev_fms_page = 0;  // where a page that settles something goes back to
    int fms_vnav_page = kVnavClbPage;
    std::string ScratchPad;      // at most 24 characters from the keypad
    std::string ScratchMessage;  // hides the scratchpad while not empty
    int ItemCursor = 0;          // item under the keyboard cursor, 0 = none
    int PendingLine = 0;         // line key waiting for the next page call: 1-6 left, 9-14 right
    int PrevPagePending = 0, NextPagePending = 0;   // until a page with a family takes them
    std::array<int, kCduItems> KeyPressTimer = {};  // ticks; above 0 the key is drawn pressed
    std::array<int, 15> line_selectable = {};       // line keys that had a function at the last page call
    int PcKeyboardActive = 0;                       // the scratchpad takes the PC keyboard
    std::array<int, 2> keyboard_commands = {};      // 1 left, 2 up, 3 right, 4 down, 5 enter; 0 = free
    GrowingList<CduMessage> CduMessages;            // from 1, CduMessageCount is the newest
    int CduMessageCount = 0;
    int ClearMessageTimer = 0;  // ticks; the newest message goes when it runs out
    // page within a family, from 1
    int rte_index = 1, legs_index = 1, rte_data_index = 1;
    int dep_index = 1, arr_index = 1, select_index = 1;
    int takeoff_index = 1, progress_index = 1, altn_index = 1, fix_index = 1;
    int flight_plans_index = 1, panels_index = 1;
    int pos_index = 1, hold_index = 1;
    int AltnDetail = 0;          // the alternate that is selected, 1 to 4; 0 = none
    int wind_leg = 0;            // leg of the wind page
    int arrivals_of_origin = 0;  // ARRIVALS shows those of the origin, for a return
};

// Of LegsView.
constexpr int kNormalView = 0, kDirectView = 1, kHoldView = 2;

/// What both CDUs share of the route pages.
struct RoutePages {
    int LegsView = kNormalView;
    int HoldSelectIndex = 0;    // leg picked in view 2, 0 = none
    int DirectSelectIndex = 0;  // leg picked in view 1, 0 = none
    int PendingSelectRow = 0;   // where a pick on SELECT DESIRED WPT goes in; 0 = the hold or direct-to path
    int hold_candidate = 0;     // the pick on SELECT DESIRED WPT that waits for "HOLD AT"
};

extern std::array<CduState, 2> cdu;
extern RoutePages route_pages;
extern const std::span<const Variable> kCduVariables;
extern const std::span<const Variable> kRoutePageVariables;

inline CduState& CduOf(int side) {
    return cdu[side == 2 ? 1 : 0];
}
