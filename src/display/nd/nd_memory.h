#pragma once

/// One step, on every tick: the changes that a navigation display marks for ten seconds, and once a second
/// the point around which the lists of what is near are kept.
void StepNdMemory();
