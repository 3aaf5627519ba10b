#pragma once

#include <span>

#include "state/variable.h"

/// What somebody wants of an owner that stands behind: it takes that at its next step and sets it back to 0.
struct RequestState {
    // pressed by the crew
    int uplink_accept = 0;  // ACPT, RJCT, CANC: the answer to a datalink message
    int uplink_reject = 0;
    int uplink_cancel = 0;
    // from another program
    int show_checklist = 0;  // the captain's inboard unit makes room for the checklist
    // from the route to the CDUs, whose pages show what has gone
    int leave_legs_view = 0;  // LEGS goes back to its normal view
    int forget_pick = 0;      // the row that SELECT DESIRED WPT picks for has gone
    int leave_hold_page = 0;  // the last hold has gone: HOLD gives way to LEGS
    int show_rte = 0;         // a side, whose CDU goes to RTE
    int vnav_phase = 0;       // CDUs on the page of the phase before (2 CRZ, 3 DES) go on to this one
};

extern RequestState requests;
extern const std::span<const Variable> kRequestVariables;
