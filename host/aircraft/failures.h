#pragma once

#include <span>
#include <string_view>

// What can fail on the stand-in aircraft, for the failures panel and for scenarios alike.

namespace host {

struct Aircraft;

enum Failure {
    kEngineLeft,
    kEngineRight,
    kFireLeft,
    kFireRight,
    kFireApu,
    kLeakLeft,
    kLeakRight,
    kDecompression,
    kDoorForwardCargo,
    kDoorAftCargo,
    kDoorEntry,
    kAileronLeft,
    kElevatorRight,
    kSpoilerPair,
    kPumpLeftForward,
    kPumpLeftAft,
    kPumpRightForward,
    kPumpRightAft,
    kPumpCentreLeft,
    kPumpCentreRight,
    kGeneratorL1,
    kGeneratorL2,
    kGeneratorR1,
    kGeneratorR2,
    kHydraulicEngineLeft,
    kHydraulicEngineRight,
    kHydraulicC1,
    kHydraulicC2,
    kPackLeft,
    kPackRight,
    kFailureCount
};

struct FailureRow {
    Failure failure;
    std::string_view name, told, group;
    /// The switch that trips and doesn't hold while the failure lasts; empty for one that acts otherwise.
    std::string_view trips;
};
std::span<const FailureRow> FailureRows();
/// Null for a name that is none.
const FailureRow* FindFailure(std::string_view name);

/// The switches of what has failed stay tripped.
void HoldTrippedSwitches(const Aircraft& aircraft);

}  // namespace host
