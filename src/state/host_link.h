#pragma once

#include <span>
#include <string>
#include <vector>

#include "state/variable.h"

/// What the module remembers of its link to the host.
struct HostLink {
    std::vector<int> named_var_ids;        // by row of the catalogue: the host's id, -1 = not found yet
    std::vector<signed char> lamps_shown;  // by row of the catalogue: 0 dark, 1 lit, -1 = not yet written
    int named_vars_registered = 0;
    int key_hook_added = 0;
    int sim_client_open = 0;
    int toga_rearmed = 0;       // the autothrottle was armed anew at the last TO/GA event
    std::string saved_flight;   // file name of the last flight save, until the panel states take it
    std::string loaded_flight;  // file name of the flight that was loaded
};

extern HostLink host_link;
extern const std::span<const Variable> kHostLinkVariables;
