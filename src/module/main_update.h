#pragma once

/// The main update, once for each tick of the host's 18 Hz counter: snapshot, guidance core, flight log,
/// actions at the top of descent. Without a new tick only the aircraft's motion is read.
void MainUpdate();
