#pragma once

#include <array>
#include <span>
#include <string>

#include "state/variable.h"

/// Bezel keys of a tablet by number.
enum EfbKey {
    kEfbNoKey,
    kEfbL1,
    kEfbL2,
    kEfbL3,
    kEfbL4,
    kEfbL5,
    kEfbL6,
    kEfbL7,
    kEfbL8,
    kEfbR1,
    kEfbR2,
    kEfbR3,
    kEfbR4,
    kEfbR5,
    kEfbR6,
    kEfbR7,
    kEfbR8,
    kEfbMenu,
    kEfbPageUp,
    kEfbPageDown,
    kEfbPower,
    kEfbTransfer,
    kEfbRedirect,
    kEfbUp,  // from here on the captain's alone
    kEfbDown,
    kEfbLeft,
    kEfbRight,
    kEfbZoomIn,
    kEfbZoomOut,
};

struct EfbSide {
    int pending_key = 0;               // EfbKey that its page has not yet taken
    int EfbMouseX = 0, EfbMouseY = 0;  // last touch, in the 340 by 448 canvas
    int touch_ticks = 0;               // for which what was touched is still framed
    int power_key = 1;                 // switched on
    int EfbPower = 0;                  // switched on, and AC power is there
    int startup_ticks = 0;             // for which the screen is still blank
    int keyboard_layer = 0;            // of the soft keyboard: capitals, small letters, symbols
};

/// The two tablets; all but what a side presses is common to both.
struct EfbState {
    int EfbPage = 1;
    int EfbPrevPage = 0;  // where the search and send pages go back to
    int EfbKeyboardShown = 0;
    std::string EfbScratch;      // what is being typed
    int EfbEditField = 0;        // the field of the page that takes it, 0 = none
    int EfbOpenList = 0;         // 0 = none
    std::string EfbSearchIdent;  // airports that begin so are listed; empty = all
    int EfbSearchPage = 1;
    int EfbSendTo = 0;            // line of the send page, 0 = none chosen
    double EfbBrightness = 1;     // 0 to 1
    std::string efb_thr_ref;      // take-off rating worked out: "TO", "TO1", "TO2"; empty = none
    std::array<EfbSide, 2> side;  // captain, first officer
};

extern EfbState efb;
extern const std::span<const Variable> kEfbVariables;

inline EfbSide& EfbOf(int side) {
    return efb.side[side == 2 ? 1 : 0];
}
