#pragma once

/// The thrust ratio (percent) that belongs to an N1 (percent): a fit of second order.
double EicasTpr(double n1);

/// Once a tick: what the engine display shows of the engines, and once a second what drifts slowly.
void StepEicasReadings();
