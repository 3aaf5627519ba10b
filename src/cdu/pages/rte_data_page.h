#pragma once

struct PageCall;

/// RTE DATA: time, fuel and winds at the legs ahead.
void RteDataPage(PageCall& call);
