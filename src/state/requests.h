#pragma once

#include <span>

#include "state/variable.h"

/// What the crew has pressed for an owner that takes it at its next step and sets it back to 0.
struct RequestState {
    int cancel_recall = 0;  // CANC/RCL of either side
    int warning_reset = 0;  // master warning and caution button of either side
    int uplink_accept = 0;  // ACPT, RJCT, CANC: the answer to a datalink message
    int uplink_reject = 0;
    int uplink_cancel = 0;
    int mcp_alt_push = 0;  // the altitude knob of the MCP has been pressed
};

extern RequestState requests;
extern const std::span<const Variable> kRequestVariables;
