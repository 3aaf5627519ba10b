#pragma once

#include <gtest/gtest.h>

#include <span>
#include <string>

#include "support/fake_host.h"
#include "support/set_variables.h"

/// A lamp of the overhead ("TZ_OH_Annun_" goes before its name), the variables that differ from a state in
/// which it is dark, and whether it burns then.
struct LampCase {
    const char* lamp;
    const char* set;
    int lit;
};

/// Checks each case of a panel, and that the host is written to on a change only.
inline void CheckLamps(const char* dark, std::span<const LampCase> cases, void (*show)()) {
    for (const LampCase& row : cases) {
        FakeHost host;
        double& lamp = host.NamedVar(std::string("TZ_OH_Annun_") + row.lamp);
        SetVariables(dark);
        show();
        EXPECT_EQ(lamp, 0) << row.lamp;
        SetVariables(row.set);
        show();
        EXPECT_EQ(lamp, row.lit) << row.lamp << ": " << row.set;
        const int writes = host.calls["set_named_var"];
        show();
        EXPECT_EQ(host.calls["set_named_var"], writes);
    }
}
