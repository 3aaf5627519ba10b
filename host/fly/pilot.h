#pragma once

#include "host/session.h"

// The pilot of `tz900 fly`: sets the mode control panel as a crew would, from the climb to the end of the
// descent.

namespace host {

struct Pilot {
    enum Phase { kSettingUp, kClimb, kCruise, kDescent } phase = kSettingUp;
    double cruise_ft = 35000;
    double arrival_ft = 3000;  // above the destination
};

/// Acts once a second; `to_go_nm` is the distance to the destination.
void StepPilot(Pilot& pilot, Session& session, double to_go_nm);

}  // namespace host
