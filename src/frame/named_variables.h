#pragma once

#include <string_view>

#include "frame/named_variable_catalogue.h"

// The host's named variables by their place in the catalogue. The host's id is looked up once and kept while
// the variable exists; a name that the host doesn't know reads 0, a write to it does nothing, and it is
// looked up again at its next use.

/// A name of the catalogue: ReadNamedVar(NamedVar("lnav_hdg")). A name that isn't there doesn't compile.
struct NamedVarRef {
    int row;
    bool operator==(const NamedVarRef&) const = default;
};
constexpr NamedVarRef kNoVariable = {-1};

consteval NamedVarRef NamedVar(std::string_view name) {
    for (int row = 0; row < kNamedVariableCount; ++row)
        if (kNamedVariables[row].name == name) return {row};
    throw "not a name of the catalogue";
}

constexpr std::string_view NameOf(NamedVarRef variable) {
    return kNamedVariables[static_cast<std::size_t>(variable.row)].name;
}

/// What a control's or a lamp's variable shows; null for any other.
constexpr int* ShadowOf(NamedVarRef variable) {
    return kNamedVariables[static_cast<std::size_t>(variable.row)].shadow;
}

/// Registers the names that are the module's own, once; UnregisterNamedVars takes them away again. Both drop
/// the ids kept so far: a reload of the aircraft brings new ones.
void RegisterNamedVars();
void UnregisterNamedVars();

/// The host knows the name now.
bool NamedVarExists(NamedVarRef variable);

double ReadNamedVar(NamedVarRef variable);
/// The same, but false and the old value for a name that the host doesn't know.
bool ReadNamedVar(NamedVarRef variable, double& value);
void WriteNamedVar(NamedVarRef variable, double value);
