#pragma once

#include <span>

#include "module/controls/control.h"

// The tables of controls, one for each poll set.

std::span<const Control> AlwaysPolledControls();
std::span<const Control> ForwardOverheadControls();
std::span<const Control> MiddleOverheadControls();
std::span<const Control> EngineOverheadControls();
std::span<const Control> AirControls();
std::span<const Control> TabletControls();
std::span<const Control> KeypadControls();
std::span<const Control> PedestalControls();
std::span<const Control> DisplayControls();
std::span<const Control> GlareshieldControls();
std::span<const Control> OtherControls();
std::span<const Control> SelectorControls();
