#pragma once

struct PageCall;

/// DESCENT FORECAST: transition level, anti-ice altitude and the winds of the descent.
void DescentForecastPage(PageCall& call);
