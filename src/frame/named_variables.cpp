#include "frame/named_variables.h"

#include "platform/host.h"
#include "state/host_link.h"

namespace {

int IdOf(NamedVarRef variable) {
    if (host_link.named_var_ids.empty()) host_link.named_var_ids.assign(kNamedVariableCount, -1);
    int& id = host_link.named_var_ids[static_cast<std::size_t>(variable.row)];
    if (id < 0) id = FindNamedVar(kNamedVariables[static_cast<std::size_t>(variable.row)].name.data());
    return id;
}

}  // namespace

void RegisterNamedVars() {
    if (host_link.named_vars_registered == 1) return;
    for (const NamedVariable& variable : kNamedVariables)
        if (variable.owner == NamedVariable::kModule) Host().register_named_var(variable.name.data());
    host_link.named_var_ids.clear();
    host_link.lamps_shown.clear();
    host_link.named_vars_registered = 1;
}

void UnregisterNamedVars() {
    if (host_link.named_vars_registered == 0) return;
    for (const NamedVariable& variable : kNamedVariables)
        if (variable.owner == NamedVariable::kModule) Host().unregister_named_var(variable.name.data());
    host_link.named_var_ids.clear();
    host_link.lamps_shown.clear();
    host_link.named_vars_registered = 0;
}

bool NamedVarExists(NamedVarRef variable) {
    return IdOf(variable) >= 0;
}

bool ReadNamedVar(NamedVarRef variable, double& value) {
    const int id = IdOf(variable);
    if (id < 0) return false;
    value = GetNamedVar(id);
    return true;
}

double ReadNamedVar(NamedVarRef variable) {
    double value = 0;
    ReadNamedVar(variable, value);
    return value;
}

void WriteNamedVar(NamedVarRef variable, double value) {
    const int id = IdOf(variable);
    if (id >= 0) SetNamedVar(id, value);
}
