#pragma once

struct PageCall;

/// THRUST LIM: take-off ratings below the acceleration height, climb ratings above it.
void ThrustLimPage(PageCall& call);
