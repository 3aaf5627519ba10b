#pragma once

struct PageCall;

/// RTE HOLD: the figures of each hold, and the way out of the one that is flown.
void HoldPage(PageCall& call);
