#pragma once

#include "state/airports.h"

/// The true course of a runway: to the other threshold where that is known.
double TrueRunwayCourse(const RunwayData& runway);
