#pragma once

#include <string>

#include "platform/host_operations.h"

// The host's operations under their own names. One table is in force, taken from ImportTable at ModuleInit;
// tests put a FakeHost's there. Without a table every read gives what an ignorant host would.

/// Puts the host's table into force; null takes it away.
void UseHost(const HostOperations* operations);

/// The table in force, never null: without a host it is one that knows nothing.
const HostOperations& Host();

inline double ReadToken(int token) {
    return Host().read_token(token);
}
inline double EvalCalc(const char* expression) {
    return Host().eval_calc_number(expression);
}
/// An expression's text of up to 1023 characters; empty for what the host doesn't know.
std::string EvalCalcText(const char* expression);
std::string ForegroundWindowClass();
/// The simulator's root folder and the user's application data folder, as the host names them.
std::string RootFolder();
/// Where the host keeps the navigation data; empty when that is their place under the root.
std::string NavdataFolder();
std::string AppDataFolder();
/// What stands for "Global\" in the names of shared objects; empty = there are none.
std::string SharedNameSpace();
inline void SendKeyEvent(int event, int value) {
    Host().send_key_event(event, value);
}
inline int FindNamedVar(const char* name) {
    return Host().find_named_var(name);
}
inline double GetNamedVar(int id) {
    return Host().get_named_var(id);
}
inline void SetNamedVar(int id, double value) {
    Host().set_named_var(id, value);
}
inline int IsWindowVisible(int ident) {
    return Host().is_window_visible(ident);
}
inline void ToggleWindow(int ident) {
    Host().toggle_window(ident);
}
inline double GroundElevation(double lat, double lon) {
    return Host().ground_elevation(lat, lon);
}
