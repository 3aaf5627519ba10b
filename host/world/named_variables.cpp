#include "host/world/named_variables.h"

#include <cmath>

#include "host/world/world.h"

namespace host {
namespace {

int IdOf(std::string_view name) {
    const auto found = world.named_ids.find(name);
    return found == world.named_ids.end() ? -1 : found->second;
}

NamedVariable& VariableOf(std::string_view name) {
    int id = IdOf(name);
    if (id < 0) {
        id = static_cast<int>(world.named.size());
        world.named.push_back({std::string(name)});
        world.named_ids.emplace(name, id);
    }
    return world.named[static_cast<std::size_t>(id)];
}

NamedVariable* VariableById(int id) {
    if (id < 0 || id >= static_cast<int>(world.named.size())) return nullptr;
    NamedVariable& variable = world.named[static_cast<std::size_t>(id)];
    return variable.exists ? &variable : nullptr;
}

}  // namespace

double NamedValue(std::string_view name) {
    const int id = IdOf(name);
    return id < 0 ? 0 : world.named[static_cast<std::size_t>(id)].value;
}

bool NamedVariableExists(std::string_view name) {
    return VariableById(IdOf(name)) != nullptr;
}

void SetNamedValue(std::string_view name, double value) {
    NamedVariable& variable = VariableOf(name);
    variable.exists = variable.of_model = true;
    variable.value = value;
}

void SetModelValue(std::string_view name, double value) {
    NamedVariable& variable = VariableOf(name);
    variable.exists = variable.of_model = true;
    if (!variable.by_hand) variable.value = value;
}

void WriteByHand(std::string_view name, double value) {
    SetNamedValue(name, value);
    VariableOf(name).by_hand = true;
}

void CreateModelVariable(std::string_view name) {
    NamedVariable& variable = VariableOf(name);
    variable.exists = variable.of_model = true;
}

int FindNamedVar(const char* name) {
    const int id = IdOf(name);
    return VariableById(id) == nullptr ? -1 : id;
}

void RegisterNamedVar(const char* name) {
    NamedVariable& variable = VariableOf(name);
    if (!variable.exists) variable.value = 0;
    variable.exists = true;
}

void UnregisterNamedVar(const char* name) {
    const int id = IdOf(name);
    if (id < 0) return;
    NamedVariable& variable = world.named[static_cast<std::size_t>(id)];
    variable.exists = variable.of_model;
}

double GetNamedVar(int id) {
    const NamedVariable* variable = VariableById(id);
    return variable == nullptr ? 0 : variable->value;
}

void SetNamedVar(int id, double value) {
    NamedVariable* variable = VariableById(id);
    if (variable == nullptr) return;
    if (!std::isfinite(value)) world.never_a_number = variable->name;
    variable->value = value;
}

}  // namespace host
