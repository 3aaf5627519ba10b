#pragma once

struct PageCall;

/// RTE: the ends of the route, then its rows of via and to.
void RtePage(PageCall& call);
