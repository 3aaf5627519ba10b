#pragma once

#include "host/aircraft/aircraft.h"

namespace host {

/// Writes what the aircraft is and does to the simulator's tokens, expressions and model variables, in their
/// raw units. Values set by hand stay.
void FillTokens(const Aircraft& aircraft);

/// Takes the controls that the pilot's hardware and the panels set by token: thrust levers, flap handle, gear
/// handle, parking brake, the fuel of each engine.
void TakeControlsFromTokens(Aircraft& aircraft);

/// Takes the fuel, the payload and the position that the module has written to the simulator's data since the
/// last call.
/// False when it has written nothing.
bool TakeDataWrites(Aircraft& aircraft);

}  // namespace host
