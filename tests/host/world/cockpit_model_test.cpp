#include "host/world/cockpit_model.h"

#include <gtest/gtest.h>

#include "frame/named_variable_catalogue.h"
#include "host/world/world.h"

namespace {

// What the module expects of the aircraft's model is there, and nothing that it registers itself.
TEST(CockpitModel, BringsTheVariablesThatTheModuleOnlyLooksUp) {
    host::world = {};
    host::CreateCockpitModel();
    for (const NamedVariable& variable : kNamedVariables) {
        const std::string name(variable.name);
        const bool found = host::HostOperationsOf()->find_named_var(name.c_str()) >= 0;
        EXPECT_EQ(found, variable.owner == NamedVariable::kModel) << name;
    }
}

}  // namespace
