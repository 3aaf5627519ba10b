#pragma once

// The host's operations on named variables: the module knows them by ids, which stay theirs for the life of
// the world.

namespace host {

int FindNamedVar(const char* name);
/// Makes the name exist, at 0 when it didn't.
void RegisterNamedVar(const char* name);
/// The name goes, but for one that the model or another gauge has made.
void UnregisterNamedVar(const char* name);
double GetNamedVar(int id);
void SetNamedVar(int id, double value);

}  // namespace host
