#pragma once

// The aircraft's systems in their rates, called from the output step of every pre-update; in pause too.

/// Everything that counts in ticks.
void SystemsTick();

/// One of the three groups of a second: 1 power and the lamps of the overhead panel, 2 upkeep, 3 what the
/// flight's phase decides.
void SystemsSecond(int group);
