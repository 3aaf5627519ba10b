#include "state/synoptics.h"

SynopticState synoptics;

namespace {
constexpr Variable kSynopticRows[] = {
    {"door_status", &synoptics.door_status}, {"fuel_status", &synoptics.fuel_status},
    {"elec_status", &synoptics.elec_status}, {"fctl_status", &synoptics.fctl_status},
    {"gear_status", &synoptics.gear_status}, {"hyd_status", &synoptics.hyd_status},
};
}  // namespace

const std::span<const Variable> kSynopticVariables = kSynopticRows;
