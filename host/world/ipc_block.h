#pragma once

// The simulator's inter-process block, as far as the module asks it: the runways that the air traffic uses at
// an airport. It is there while the world knows any.

namespace host {

int IpcOpen();
void IpcWrite(int offset, const void* bytes, int size);
/// Waits for IpcProcess, which fills `bytes`.
void IpcRead(int offset, void* bytes, int size);
int IpcProcess();
void IpcClose();

}  // namespace host
