#pragma once

struct PageCall;

/// ARRIVALS: STAR, approach and runway with their transitions.
void ArrivalsPage(PageCall& call);
