#include "state/host_link.h"

HostLink host_link;

namespace {
constexpr Variable kHostLinkRows[] = {
    {"named_vars_registered", &host_link.named_vars_registered},
    {"key_hook_added", &host_link.key_hook_added},
    {"sim_client_open", &host_link.sim_client_open},
    {"toga_rearmed", &host_link.toga_rearmed},
    {"saved_flight", &host_link.saved_flight},
    {"loaded_flight", &host_link.loaded_flight},
};
}  // namespace

const std::span<const Variable> kHostLinkVariables = kHostLinkRows;
