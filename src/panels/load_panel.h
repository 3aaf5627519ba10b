#pragma once

#include <string_view>

constexpr int kLoadAtStart = 0, kCrewLoad = 1;

/// Takes a stored panel state: the route, the switches, and all else that the file tells. Without a name the
/// one saved last. The crew is told of success in either mode, of failure only of a load of its own. A panel
/// of another aircraft, where the configuration checks that, changes nothing.
void LoadPanelState(std::string_view name, int mode);

/// At start: the panel of the flight that the host has loaded, else the configured one.
void LoadPanelAtStart();
