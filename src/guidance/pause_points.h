#pragma once

// Where the crew wants to be back: the simulation pauses, or returns to its normal rate.

void ActAtTopOfDescent();
void ActNearDestination();
