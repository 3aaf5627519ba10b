#pragma once

// This process and others of the machine.

namespace host {

/// From now on SIGINT, SIGTERM and SIGHUP only ask this process to end; a second one ends it at once. A
/// SIGHUP that is ignored, as under nohup, stays so.
void HoldEndSignals();

/// The signal that asks to end; 0 = none has come.
int EndSignal();

/// No process with this id is alive, so that what one has left may be removed.
bool IsProcessGone(int id);

}  // namespace host
