#pragma once

#include <string>

namespace host {

/// A value of the host's aircraft: lat lon alt hdg ias gs vs bank pitch fuel weight. False for another name.
bool AircraftValue(const std::string& name, double& value);

}  // namespace host
