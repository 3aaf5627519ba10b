#pragma once

/// One step, on every tick: the changes that a navigation display marks for ten seconds.
void StepNdMemory();
