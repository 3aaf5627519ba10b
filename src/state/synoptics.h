#pragma once

#include <span>

#include "state/variable.h"

/// The colour codes of the system pages' keys: 1 normal, 8 amber. Set once a second by systems/status_dots.
struct SynopticState {
    int door_status = 1;
    int fuel_status = 1;
    int elec_status = 1;
    int fctl_status = 1;
    int gear_status = 1;
    int hyd_status = 1;
};

extern SynopticState synoptics;
extern const std::span<const Variable> kSynopticVariables;
