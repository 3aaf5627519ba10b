#pragma once

#include <span>
#include <string_view>

#include "state/variable.h"

/// One group of variables: a plain aggregate with one instance, in a header of its own in this folder.
struct StateGroup {
    std::string_view name;
    void (*reset)();
    const std::span<const Variable>* variables;  // its rows stand beside the group's instance
    /// Who writes it: files of src/ without their endings, and folders, with a blank between. All others only
    /// read.
    std::string_view writers;
};

/// All groups, in the order of their names' first use in a service cycle. A new group is one row here.
std::span<const StateGroup> StateGroups();

/// Puts every group back to its start values: module unload and every test begin with it.
void ResetSystemState();
