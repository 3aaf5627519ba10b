#pragma once

/// The update cycle, about 18 times a second. `virtual_cockpit` tells which of the two copies of SERVER
/// calls: that of the virtual cockpit leaves polling and outputs to the other while the main panel is
/// visible.
void RunUpdateCycle(bool virtual_cockpit);
