#pragma once

struct PageCall;

/// TAKEOFF REF: the figures of the take-off, and what the tablet has sent of them.
void TakeoffRefPage(PageCall& call);
