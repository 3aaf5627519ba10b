#pragma once

struct PageCall;

/// PERF INIT: weights, cruise altitude and cost index.
void PerfInitPage(PageCall& call);
