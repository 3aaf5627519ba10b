#include "host/aircraft/model_systems.h"

#include <algorithm>
#include <cmath>

#include "host/aircraft/ground_services.h"
#include "host/world/world.h"

namespace host {
namespace {

constexpr double kFullSurface = 100, kFullSpoiler = 200, kFailed = -999;
constexpr const char* kSpoilers[] = {"TZ_spoiler_1",  "TZ_spoiler_2",  "TZ_spoiler_3",  "TZ_spoiler_4",
                                     "TZ_spoiler_5",  "TZ_spoiler_6",  "TZ_spoiler_7",  "TZ_spoiler_8",
                                     "TZ_spoiler_9",  "TZ_spoiler_10", "TZ_spoiler_11", "TZ_spoiler_12",
                                     "TZ_spoiler_13", "TZ_spoiler_14"};
constexpr const char* kBrakes[] = {"TZ_Brake_Temp1", "TZ_Brake_Temp2", "TZ_Brake_Temp3", "TZ_Brake_Temp4",
                                   "TZ_Brake_Temp5", "TZ_Brake_Temp6", "TZ_Brake_Temp7", "TZ_Brake_Temp8"};

bool IsTurnOf(int ticks) {
    return world.ticks % ticks == 0;
}

struct Deflections {
    double roll, pitch;  // of the full travel; right wing down, nose up
};

// The stick moves the surfaces on the ground, the roll and the bend of the path tell of them in the air.
Deflections DeflectionsOf(const Aircraft& aircraft) {
    constexpr double kStickBank = 30, kStickPath = 8;                   // degrees at full stick
    constexpr double kFullRollRate = 8, kFullBend = 6, kFullBank = 40;  // degrees a second, degrees
    if (!aircraft.switches.hydraulics) return {};
    const FlightControls& controls = aircraft.controls;
    const double roll =
        aircraft.on_ground ? controls.bank / kStickBank
                           : aircraft.bank_rate / kFullRollRate + (controls.bank - aircraft.bank) / kFullBank;
    const double pitch =
        aircraft.on_ground ? controls.path / kStickPath : (controls.path - aircraft.path) / kFullBend;
    return {std::clamp(roll, -1.0, 1.0), std::clamp(pitch, -1.0, 1.0)};
}

}  // namespace

// Trailing edge down positive.
void FillControlSurfaces(const Aircraft& aircraft) {
    constexpr double kFlaperonDroop = 50;
    const auto [roll, pitch] = DeflectionsOf(aircraft);
    const double aileron = roll * kFullSurface, elevator = -pitch * kFullSurface;
    const double droop = aircraft.flaps / kFullFlaps * kFlaperonDroop;
    SetModelValue("TZ_aileron_left", aircraft.fails[kAileronLeft] ? kFailed : aileron);
    SetModelValue("TZ_aileron_right", -aileron);
    SetModelValue("TZ_flaperon_left", std::min(droop + aileron / 2, kFullSurface));
    SetModelValue("TZ_flaperon_right", std::min(droop - aileron / 2, kFullSurface));
    SetModelValue("TZ_elevator_left", elevator);
    SetModelValue("TZ_elevator_right", aircraft.fails[kElevatorRight] ? kFailed : elevator);
    constexpr std::size_t kOnASide = std::size(kSpoilers) / 2, kFifth = 4;
    constexpr double kRollShare = 0.5, kRollFrom = 0.1;
    for (std::size_t i = 0; i < std::size(kSpoilers); ++i) {
        const double down = i < kOnASide ? -roll : roll;  // the wing that goes down
        const double for_roll = std::max(down - kRollFrom, 0.0) * kRollShare;
        const double up = std::min(aircraft.speedbrake + for_roll, 1.0) * kFullSpoiler;
        const bool failed = aircraft.fails[kSpoilerPair] && (i == kFifth || i == 2 * kOnASide - 1 - kFifth);
        SetModelValue(kSpoilers[i], failed ? kFailed : up);
    }
    // Its doors stand open while the gear is on its way.
    const double doors = aircraft.gear > 0 && aircraft.gear < 1 ? kFullSurface : 0;
    for (const char* door : {"TZ_L_gear_door", "TZ_C_gear_door", "TZ_R_gear_door"})
        SetModelValue(door, doors);
}

void FillModelSystems(const Aircraft& aircraft) {
    for (std::size_t i = 0; i < aircraft.wheel_brakes.size(); ++i)
        SetModelValue(kBrakes[i], std::round(aircraft.wheel_brakes[i].shown * 10) / 10);
    const Cabin& cabin = aircraft.cabin;
    SetModelValue("tz_cabin_alt", cabin.altitude);
    SetModelValue("tz_cabin_dp", cabin.pressure_difference);
    SetModelValue("tz_cabin_rate", cabin.rate);
    SetModelValue("tz_cabin_fwd_ofv", cabin.valves[0]);
    SetModelValue("tz_cabin_aft_ofv", cabin.valves[1]);
    SetModelValue("TZ_AFT_ENGBTL_1_Annun", aircraft.bottles.spent[0] ? 1 : 0);
    SetModelValue("TZ_AFT_ENGBTL_2_Annun", aircraft.bottles.spent[1] ? 1 : 0);
    SetModelValue("BOTTLE DISCH APU", aircraft.bottles.spent[2] ? 1 : 0);
    SetModelValue("FIRE APU", aircraft.fails[kFireApu] ? 1 : 0);
    FillDoors(aircraft);
}

void TakeSwitches(Aircraft& aircraft) {
    if (!IsTurnOf(kSurfaceTicks)) return;
    aircraft.switches = ReadSwitches();
    HoldTrippedSwitches(aircraft);
    if (!IsTurnOf(kSystemTicks)) return;
    constexpr double kLowest = -1500, kHighest = 14500;  // ft, of airports
    aircraft.landing_elevation = std::clamp(NamedValue("tz_dest_elev"), kLowest, kHighest);
    aircraft.door_open = IsADoorOpen();
}

}  // namespace host
