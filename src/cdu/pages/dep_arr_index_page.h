#pragma once

struct PageCall;

/// DEP/ARR INDEX: from here to the departures and arrivals of both ends.
void DepArrIndexPage(PageCall& call);
