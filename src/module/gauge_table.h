#pragma once

#include <span>

#include "platform/panel_gauges.h"

/// The 41 gauges of the module, in the order that panels know.
std::span<const GaugeHeader> Gauges();
