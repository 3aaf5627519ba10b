#pragma once

namespace host {

/// Makes the named variables exist that the aircraft's cockpit model and its gauges bring along, at 0.
void CreateCockpitModel();

}  // namespace host
