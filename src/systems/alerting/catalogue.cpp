#include "systems/alerting/catalogue.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

#include "frame/engine_fuel.h"
#include "frame/named_variables.h"
#include "frame/tokens.h"
#include "state/alerts.h"
#include "state/autoflight.h"
#include "state/cdu.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/electrical.h"
#include "state/engines.h"
#include "state/fuel_pumps.h"
#include "state/hydraulics.h"
#include "state/identity.h"
#include "state/instruments.h"
#include "state/irs.h"
#include "state/leg_words.h"
#include "state/power_words.h"
#include "state/sim.h"
#include "state/surfaces.h"
#include "state/vnav.h"
#include "systems/wheels.h"

namespace {

constexpr double kGearDown = 16000;
constexpr double kSpoilerUp = 1000;
constexpr double kLandingHandle = 11702;  // of the flap handle
constexpr double kLeverOpen = 1000;
constexpr int kHydraulicLow = 4000;                    // psi
constexpr int kMainPumpLow = 18, kCentrePumpLow = 28;  // of the pressure ramps
constexpr double kFuelLow = 3800;                      // lb, of a main tank
constexpr double kTooLittleToCool = 1500;              // lb in the tank that cools a hydraulic pump
constexpr double kCentreLowGround = 13600, kCentreLowAir = 4800, kCentreFull = 16000;  // lb
constexpr double kEngineRuns = 50;                                                     // percent N2
constexpr int kAntiIceOn = 2;

bool Stands(int id) {
    return alerts.posted[static_cast<std::size_t>(id)] != 0;
}

// A lamp or a flag that the aircraft's model shows; another value than 0 and 1 is neither.
bool IsLit(NamedVarRef variable) {
    return ReadNamedVar(variable) == 1;
}
bool IsDark(NamedVarRef variable) {
    return ReadNamedVar(variable) == 0;
}

bool IsOnGround() {
    return sim.on_ground == 1;
}
bool IsInAir() {
    return sim.on_ground == 0;
}
// The ends of a band belong to it.
bool IsWithin(double value, double low, double high) {
    return value >= low && value <= high;
}
bool IsOutside(double value, double low, double high) {
    return value < low || value > high;
}

// --- take-off and landing configuration

bool IsThrustSet() {
    return (sim.n1_l > 60 || sim.n1_r > 60) && sim.config_warning_arm == 0;
}
bool IsThrustReduced() {
    return !(sim.n1_l > 60) && !(sim.n1_r > 60);
}
bool IsParkingBrakeSet() {
    return sim.parking_brake >= kParkingBrakeSet;
}
bool IsShortestModel() {
    return identity.aircraft_model == "900-8";
}
bool AreSpoilersUp() {
    return sim.spoiler_l > kSpoilerUp && sim.spoiler_r > kSpoilerUp;
}

// --- doors

bool AreEntryDoorsClosed() {
    return sim.door_1l == 0 && sim.door_2l == 0 && sim.door_3l == 0 && sim.door_4l == 0 && sim.door_1r == 0 &&
           sim.door_2r == 0 && sim.door_3r == 0 && sim.door_4r == 0;
}
bool IsCargoDoorTold(int door) {
    return door == 1 && !Stands(80);
}
bool IsEntryDoorTold(int door) {
    return sim.door_count < 2 && !Stands(80) && door == 1;
}
bool IsDoorDone(int door) {
    return door == 0 || Stands(80);
}
bool AreSlidesArmable() {
    return AreEntryDoorsClosed() && IsOnGround() && (sim.n1_l < 75 || sim.n1_r < 75);
}
bool AreSlidesDone() {
    return !AreEntryDoorsClosed() || IsInAir() || sim.n1_l > 75 || sim.n1_r > 75;
}

// --- electrical

bool AreBusesDead() {
    return !AreAllBusesAlive();
}
bool AreBusesFed() {
    return IsAcBusPowered() && AreAllBusesAlive();
}

// --- engines and fuel

bool IsShutDownL() {
    return cockpit.eng1_thrott == kFuelCutOff;
}
bool IsShutDownR() {
    return cockpit.eng2_thrott == kFuelCutOff;
}
bool IsToldShutDownL() {
    return Stands(26) || Stands(27);
}
bool IsToldShutDownR() {
    return Stands(26) || Stands(28);
}
bool IsCrossfeedOn() {
    return cockpit.fuelpump_crosfeed_button == 1;
}
bool IsCentrePumpOnL() {
    return cockpit.fuelpump_l_center_button == 1;
}
bool IsCentrePumpOnR() {
    return cockpit.fuelpump_r_center_button == 1;
}
double CentreFuelLimit() {
    return IsOnGround() ? kCentreLowGround : kCentreLowAir;
}
bool IsMainPressed(int forward, int aft, int above) {
    return forward > above || aft > above;
}
bool AreMainPumpsLow(int forward, int aft) {
    return forward < kMainPumpLow && aft < kMainPumpLow;
}

// --- hydraulics and flight controls

bool IsLow(int pressure) {
    return pressure < kHydraulicLow;
}
bool IsHigh(int pressure) {
    return pressure > kHydraulicLow;
}
bool IsLowL() {
    return IsLow(hydraulics.tz_hyd_press_l);
}
bool IsLowC() {
    return IsLow(hydraulics.tz_hyd_press_c);
}
bool IsLowR() {
    return IsLow(hydraulics.tz_hyd_press_r);
}
bool IsHighL() {
    return IsHigh(hydraulics.tz_hyd_press_l);
}
bool IsHighC() {
    return IsHigh(hydraulics.tz_hyd_press_c);
}
bool IsHighR() {
    return IsHigh(hydraulics.tz_hyd_press_r);
}
bool IsCentreLowInAir() {
    return IsInAir() && IsLowC();
}
bool AreFlapsServed() {
    return cfg.PfcSwitch == kPfcNormal && (IsOnGround() || IsHighC());
}
bool IsPumpHot(int runs, double fuel) {
    return runs == 1 && fuel < kTooLittleToCool;
}
bool IsPumpCool(int runs, double fuel) {
    return runs != 1 || fuel > kTooLittleToCool;
}

// --- inertial reference

bool IsAnyAligned() {
    return irs.irs_left == 1 || irs.irs_right == 1;
}
bool IsNoneAligned() {
    return !IsAnyAligned();
}

// --- windows and ice

int WindowHeatsOff() {
    return (cockpit.window_heat_primary_l_fwd_button == 0) + (cockpit.window_heat_primary_r_fwd_button == 0) +
           (cockpit.window_heat_primary_l_side_button == 0) +
           (cockpit.window_heat_primary_r_side_button == 0);
}
bool IsWindowTold(int button) {
    return (IsInAir() || WindowHeatsOff() < 2) && !Stands(65) && button == 0;
}
bool IsWindowDone(int button) {
    return Stands(65) || button == 1;
}
bool IsAntiIceOn() {
    return cockpit.TZ_OH_AI_L_ENG_Switch == kAntiIceOn || cockpit.TZ_OH_AI_R_ENG_Switch == kAntiIceOn ||
           cockpit.TZ_OH_WING_ANTICE_Switch == kAntiIceOn;
}

// --- brakes

constexpr double SurfaceState::*kBrakes[] = {&SurfaceState::Brake_Temp1, &SurfaceState::Brake_Temp2,
                                             &SurfaceState::Brake_Temp3, &SurfaceState::Brake_Temp4,
                                             &SurfaceState::Brake_Temp5, &SurfaceState::Brake_Temp6,
                                             &SurfaceState::Brake_Temp7, &SurfaceState::Brake_Temp8};

bool IsABrakeHot() {
    return std::ranges::any_of(kBrakes, [](auto brake) { return surfaces.*brake > kHotBrake; });
}
bool AreBrakesCool() {
    return std::ranges::all_of(kBrakes, [](auto brake) { return surfaces.*brake < kHotBrake; });
}

// --- the flight management computer's messages

// Advisories and refusals, and the two colours of the wind uplink.
bool IsForEicas(const CduMessage& message) {
    return message.kind == 1 || message.kind == 2 || message.kind == 99 || message.kind == 100;
}
bool IsFmcMessageWaiting() {
    for (const CduState& unit : cdu)
        for (int i = std::min(unit.CduMessageCount, unit.CduMessages.size()); i >= 1; --i)
            if (IsForEicas(unit.CduMessages[i])) return true;
    return false;
}

using enum AlertLevel;

constexpr AlertRow kCatalogue[] = {
    {1, "OVERSPEED", kWarning, [] { return sim.airspeed_smooth > sim.v_mo_kt; },
     [] { return !(sim.ias_kt > sim.v_mo_kt); }},
    {2, "CONFIG DOORS", kWarning, [] { return IsOnGround() && IsThrustSet() && sim.door_count > 0; },
     [] { return IsInAir() || IsThrustReduced() || sim.door_count == 0; }},
    {3, "CONFIG RUDDER", kWarning,
     [] { return IsOutside(sim.rudder_trim, -0.005, 0.005) && IsOnGround() && IsThrustSet(); },
     [] { return IsWithin(sim.rudder_trim, -0.005, 0.005) || IsThrustReduced() || IsInAir(); }},
    {4, "CONFIG FLAPS", kWarning,
     [] {
         return IsOnGround() && sim.thrust_lever_1 > 0 && sim.thrust_lever_2 != 0 &&
                IsOutside(sim.flap_angle, 18.5, IsShortestModel() ? 50.5 : 54.0) && IsThrustSet();
     },
     [] {
         return IsInAir() || IsWithin(sim.flap_angle, 19.5, IsShortestModel() ? 49.5 : 52.0) ||
                IsThrustReduced();
     }},
    {5, "CONFIG PARKING BRAKE", kWarning, [] { return IsOnGround() && IsParkingBrakeSet() && IsThrustSet(); },
     [] { return IsInAir() || !IsParkingBrakeSet() || IsThrustReduced(); }},
    {6, "CONFIG SPOILERS", kWarning,
     [] { return IsOnGround() && sim.ias_kt < 80 && IsThrustSet() && AreSpoilersUp(); },
     [] {
         return IsInAir() || IsThrustReduced() ||
                (sim.spoiler_l == 0 && sim.spoiler_r == 0 && sim.spoilers_armed == 0);
     }},
    {7, "CONFIG STABILIZER", kWarning,
     [] { return IsOnGround() && IsOutside(surfaces.elev_trim_ind, 3.0, 9.0) && IsThrustSet(); },
     [] { return IsInAir() || IsWithin(surfaces.elev_trim_ind, 3.0, 9.0) || IsThrustReduced(); }},
    {8, "CONFIG GEAR", kWarning,
     [] {
         return alerts.gear_config_armed == 2 && sim.flap_angle >= 49.5 &&
                (sim.gear_nose < kGearDown || sim.gear_left < kGearDown || sim.gear_right < kGearDown);
     },
     [] {
         return (sim.gear_nose > kGearDown && sim.gear_left > kGearDown && sim.gear_right > kGearDown) ||
                sim.flap_angle < 49.5;
     }},
    {9, "AUTOPILOT DISC", kWarning, [] { return autoflight.ap_disc_warning == 1; },
     [] { return autoflight.ap_disc_warning == 0; }},
    {10, "FIRE ENG L", kWarning, [] { return sim.eng1_fire != 0; }, [] { return sim.eng1_fire == 0; }},
    {11, "FIRE ENG R", kWarning, [] { return sim.eng2_fire != 0; }, [] { return sim.eng2_fire == 0; }},
    {12, "FIRE APU", kWarning, [] { return std::fabs(ReadNamedVar(NamedVar("FIRE APU"))) > 0; },
     [] { return IsDark(NamedVar("FIRE APU")); }},
    {13, "CABIN ALTITUDE", kWarning, [] { return sim.cabin_alt >= 10000 && sim.radio_alt_ft > 5000; },
     [] { return sim.cabin_alt < 10000 || sim.radio_alt_ft < 5000; }},
    {14, "FIRE TEST IN PROG", kWarning, [] { return engines.fire_test_timer > 0; },
     [] { return engines.fire_test_timer == 0; }},
    {15, "FIRE TEST PASS", kWarning, [] { return engines.fire_pass_timer > 0; },
     [] { return engines.fire_pass_timer == 0; }},

    {20, "CABIN ALTITUDE AUTO", kCaution,
     [] { return cockpit.fwd_outflow_valve_button == 0 && cockpit.aft_outflow_valve_button == 0; },
     [] { return cockpit.fwd_outflow_valve_button == 1 || cockpit.aft_outflow_valve_button == 1; }},
    {21, "PACK L + R", kCaution, [] { return cockpit.pack_l_button == 0 && cockpit.pack_r_button == 0; },
     [] { return cockpit.pack_l_button == 1 || cockpit.pack_r_button == 1; }},
    {45, "DOOR AFT CARGO", kCaution, [] { return IsCargoDoorTold(sim.door_aft_cargo); },
     [] { return IsDoorDone(sim.door_aft_cargo); }},
    {44, "DOOR FWD CARGO", kCaution, [] { return IsCargoDoorTold(sim.door_fwd_cargo); },
     [] { return IsDoorDone(sim.door_fwd_cargo); }},
    {22, "ELEC AC BUS L1", kCaution, AreBusesDead, AreBusesFed},
    {23, "ELEC AC BUS L2", kCaution, AreBusesDead, AreBusesFed},
    {24, "ELEC AC BUS R1", kCaution, AreBusesDead, AreBusesFed},
    {25, "ELEC AC BUS R2", kCaution, AreBusesDead, AreBusesFed},
    {26, "ENG SHUTDOWN", kCaution, [] { return IsShutDownL() && IsShutDownR(); },
     [] { return !IsShutDownL() || !IsShutDownR(); }},
    {27, "ENG SHUTDOWN L", kCaution, [] { return !Stands(26) && IsShutDownL() && !IsShutDownR(); },
     [] { return !IsShutDownL() || Stands(26); }},
    {28, "ENG SHUTDOWN R", kCaution, [] { return !Stands(26) && IsShutDownR() && !IsShutDownL(); },
     [] { return !IsShutDownR() || Stands(26); }},
    {29, "FUEL QTY LOW", kCaution, [] { return sim.left_fuel < kFuelLow || sim.right_fuel < kFuelLow; },
     [] { return sim.left_fuel >= kFuelLow && sim.right_fuel >= kFuelLow; }},
    {30, "FUEL PRESS ENG L", kCaution,
     [] {
         return !Stands(103) && AreMainPumpsLow(fuel_pumps.press_fwd_l, fuel_pumps.press_aft_l) &&
                fuel_pumps.press_ctr_l < kCentrePumpLow && !IsCrossfeedOn();
     },
     [] {
         return IsMainPressed(fuel_pumps.press_fwd_l, fuel_pumps.press_aft_l, 17) ||
                fuel_pumps.press_ctr_l > 28 ||
                (IsCrossfeedOn() && IsMainPressed(fuel_pumps.press_fwd_r, fuel_pumps.press_aft_r, 17)) ||
                Stands(103);
     }},
    {31, "FUEL PRESS ENG R", kCaution,
     [] {
         return !Stands(103) && AreMainPumpsLow(fuel_pumps.press_fwd_r, fuel_pumps.press_aft_r) &&
                fuel_pumps.press_ctr_r < kCentrePumpLow && !IsCrossfeedOn();
     },
     [] {
         return IsMainPressed(fuel_pumps.press_fwd_r, fuel_pumps.press_aft_r, 17) ||
                fuel_pumps.press_ctr_r > 27 ||
                (IsCrossfeedOn() && IsMainPressed(fuel_pumps.press_fwd_l, fuel_pumps.press_aft_l, 17)) ||
                Stands(103);
     }},
    {32, "PRI FLIGHT COMPUTERS", kCaution,
     [] { return cfg.PfcSwitch == kPfcDisconnected || IsNoneAligned(); },
     [] { return cfg.PfcSwitch != kPfcDisconnected && IsAnyAligned(); }},
    {33, "FLIGHT CONTROLS", kCaution, [] { return IsInAir() && (IsLowL() || IsLowC() || IsLowR()); },
     [] { return IsOnGround() || (IsHighL() && IsHighC() && IsHighR()); }},
    {34, "FLIGHT CONTROL MODE", kCaution, IsNoneAligned, IsAnyAligned},
    {35, "SPEEDBRAKES EXTENDED", kCaution,
     [] {
         return sim.spoilers_armed == 0 && AreSpoilersUp() && IsWithin(sim.radio_alt_ft, 15, 800) &&
                (sim.flap_pos >= kLandingHandle || sim.thrust_lever_1 > kLeverOpen ||
                 sim.thrust_lever_2 > kLeverOpen);
     },
     [] {
         return (sim.spoiler_l < kSpoilerUp && sim.spoiler_r < kSpoilerUp) || sim.spoilers_armed == 1 ||
                IsOutside(sim.radio_alt_ft, 15, 800) ||
                (sim.flap_pos < kLandingHandle && sim.thrust_lever_1 < kLeverOpen &&
                 sim.thrust_lever_2 < kLeverOpen);
     }},
    {36, "HYD PRESS SYS L", kCaution, [] { return IsLowL() && !Stands(39) && !Stands(41) && !Stands(40); },
     [] { return Stands(39) || Stands(41) || Stands(40) || IsHighL(); }},
    {37, "HYD PRESS SYS C", kCaution, [] { return IsLowC() && !Stands(39) && !Stands(42) && !Stands(40); },
     [] { return Stands(39) || Stands(42) || Stands(40) || IsHighC(); }},
    {38, "HYD PRESS SYS R", kCaution, [] { return IsLowR() && !Stands(41) && !Stands(42) && !Stands(40); },
     [] { return Stands(41) || Stands(42) || Stands(40) || IsHighR(); }},
    {40, "HYD PRESS SYS L+C+R", kCaution, [] { return Stands(39) && IsLowL() && IsLowC() && IsLowR(); },
     [] { return IsHighL() || IsHighC() || IsHighR(); }},
    {39, "HYD PRESS SYS L+C", kCaution, [] { return IsLowL() && IsLowC() && !Stands(40); },
     [] { return Stands(40) || IsHighL() || IsHighC(); }},
    {41, "HYD PRESS SYS L+R", kCaution, [] { return IsLowL() && IsLowR() && !Stands(40); },
     [] { return Stands(40) || IsHighL() || IsHighR(); }},
    {42, "HYD PRESS SYS C+R", kCaution, [] { return IsLowC() && IsLowR() && !Stands(40); },
     [] { return Stands(40) || IsHighC() || IsHighR(); }},
    {43, "NAV INERTIAL SYS", kCaution, IsNoneAligned, IsAnyAligned},
    {46, "AIRSPEED LOW", kCaution, [] { return sim.radio_alt_ft >= 400 && sim.ias_kt < sim.low_speed_limit; },
     [] { return sim.radio_alt_ft < 400 || sim.ias_kt > sim.low_speed_limit + 5; }},
    {47, "TERRAIN", kCaution, [] { return alerts.terrain_state == 3; },
     [] { return alerts.terrain_state != 3; }},
    {48, "AUTOPILOT", kCaution, [] { return autoflight.ap_envelope_prot == 1; },
     [] { return autoflight.ap_envelope_prot == 0; }},
    {49, "ALTITUDE ALERT", kCaution, [] { return instruments.altitude_alert > 0; },
     [] { return instruments.altitude_alert == 0; }},
    {50, "ICING ENG", kCaution,  // by the left selector alone
     [] { return IsWithin(sim.oat_c, -22, 2) && cockpit.TZ_OH_AI_L_ENG_Switch == 0; },
     [] { return IsOutside(sim.oat_c, -22, 2) || cockpit.TZ_OH_AI_L_ENG_Switch != 0; }},
    {51, "AUTOTHROTTLE DISC", kCaution, [] { return IsLit(NamedVar("at_disc")); },
     [] { return IsDark(NamedVar("at_disc")); }},

    {61, "EQUIP COOLING AFT", kAdvisory, [] { return cockpit.equip_cooling_aft_button == 0; },
     [] { return cockpit.equip_cooling_aft_button == 1; }},
    {62, "EQUIP COOLING FWD", kAdvisory, [] { return cockpit.equip_cooling_fwd_button == 0; },
     [] { return cockpit.equip_cooling_fwd_button == 1; }},
    {63, "OUTFLOW VALVE AFT", kAdvisory, [] { return cockpit.aft_outflow_valve_button == 0; },
     [] { return cockpit.aft_outflow_valve_button == 1; }},
    {64, "OUTFLOW VALVE FWD", kAdvisory, [] { return cockpit.fwd_outflow_valve_button == 0; },
     [] { return cockpit.fwd_outflow_valve_button == 1; }},
    {65, "WINDOW HEAT", kAdvisory, [] { return IsOnGround() && WindowHeatsOff() >= 2; },
     [] { return IsInAir() || WindowHeatsOff() < 2; }},
    {66, "WINDOW HEAT L FWD", kAdvisory,
     [] { return IsWindowTold(cockpit.window_heat_primary_l_fwd_button); },
     [] { return IsWindowDone(cockpit.window_heat_primary_l_fwd_button); }},
    {67, "WINDOW HEAT R FWD", kAdvisory,
     [] { return IsWindowTold(cockpit.window_heat_primary_r_fwd_button); },
     [] { return IsWindowDone(cockpit.window_heat_primary_r_fwd_button); }},
    {68, "WINDOW HEAT L SIDE", kAdvisory,
     [] { return IsWindowTold(cockpit.window_heat_primary_l_side_button); },
     [] { return IsWindowDone(cockpit.window_heat_primary_l_side_button); }},
    {69, "WINDOW HEAT R SIDE", kAdvisory,
     [] { return IsWindowTold(cockpit.window_heat_primary_r_side_button); },
     [] { return IsWindowDone(cockpit.window_heat_primary_r_side_button); }},
    {70, "WING ANTI-ICE OFF", kAdvisory, [] { return cockpit.TZ_OH_WING_ANTICE_Switch == 0; },
     [] { return cockpit.TZ_OH_WING_ANTICE_Switch == 1; }},
    {71, "PACK L", kAdvisory, [] { return !Stands(21) && cockpit.pack_l_button == 0; },
     [] { return Stands(21) || cockpit.pack_l_button == 1; }},
    {72, "PACK R", kAdvisory, [] { return !Stands(21) && cockpit.pack_r_button == 0; },
     [] { return Stands(21) || cockpit.pack_r_button == 1; }},
    {98, "DOOR BULK CARGO", kAdvisory, [] { return IsCargoDoorTold(sim.door_bulk_cargo); },
     [] { return IsDoorDone(sim.door_bulk_cargo); }},
    {73, "RECIRC FAN UPR OFF", kAdvisory, [] { return cockpit.recirc_fans_upper_button == 0; },
     [] { return cockpit.recirc_fans_upper_button == 1; }},
    {74, "RECIRC FAN LWR OFF", kAdvisory, [] { return cockpit.recirc_fans_lower_button == 0; },
     [] { return cockpit.recirc_fans_lower_button == 1; }},
    {75, "TRIM AIR L", kAdvisory, [] { return cockpit.trim_air_l_button == 0; },
     [] { return cockpit.trim_air_l_button == 1; }},
    {76, "TRIM AIR R", kAdvisory, [] { return cockpit.trim_air_r_button == 0; },
     [] { return cockpit.trim_air_r_button == 1; }},
    {77, "VENTILATION ALTN", kAdvisory, [] { return cockpit.ventilation_button == 0; },
     [] { return cockpit.ventilation_button == 1; }},
    {78, "ENG EEC MODE L", kAdvisory, [] { return cockpit.TZ_OH_ECC_L_Button == 0; },
     [] { return cockpit.TZ_OH_ECC_L_Button == 1; }},
    {79, "ENG EEC MODE R", kAdvisory, [] { return cockpit.TZ_OH_ECC_R_Button == 0; },
     [] { return cockpit.TZ_OH_ECC_R_Button == 1; }},
    {80, "DOORS", kAdvisory, [] { return sim.door_count >= 2; }, [] { return sim.door_count < 2; }},
    {81, "DOOR ENTRY 1L", kAdvisory, [] { return IsEntryDoorTold(sim.door_1l); },
     [] { return IsDoorDone(sim.door_1l); }},
    {82, "DOOR ENTRY 2L", kAdvisory, [] { return IsEntryDoorTold(sim.door_2l); },
     [] { return IsDoorDone(sim.door_2l); }},
    {83, "DOOR ENTRY 3L", kAdvisory, [] { return IsEntryDoorTold(sim.door_3l); },
     [] { return IsDoorDone(sim.door_3l); }},
    {84, "DOOR ENTRY 4L", kAdvisory, [] { return IsEntryDoorTold(sim.door_4l); },
     [] { return IsDoorDone(sim.door_4l); }},
    {85, "DOOR ENTRY 1R", kAdvisory, [] { return IsEntryDoorTold(sim.door_1r); },
     [] { return IsDoorDone(sim.door_1r); }},
    {86, "DOOR ENTRY 2R", kAdvisory, [] { return IsEntryDoorTold(sim.door_2r); },
     [] { return IsDoorDone(sim.door_2r); }},
    {87, "DOOR ENTRY 3R", kAdvisory, [] { return IsEntryDoorTold(sim.door_3r); },
     [] { return IsDoorDone(sim.door_3r); }},
    {88, "DOOR ENTRY 4R", kAdvisory, [] { return IsEntryDoorTold(sim.door_4r); },
     [] { return IsDoorDone(sim.door_4r); }},
    {90, "ELEC BATTERY OFF", kAdvisory, [] { return cockpit.battery_button == 0; },
     [] { return cockpit.battery_button == 1; }},
    {91, "ELEC GEN OFF L1", kAdvisory,
     [] { return !IsToldShutDownL() && IsLit(NamedVar("TZ_OH_Annun_OFF_GCL1")); },
     [] { return IsToldShutDownL() || IsDark(NamedVar("TZ_OH_Annun_OFF_GCL1")); }},
    {92, "ELEC GEN OFF L2", kAdvisory,
     [] { return !IsToldShutDownL() && IsLit(NamedVar("TZ_OH_Annun_OFF_GCL2")); },
     [] { return IsToldShutDownL() || IsDark(NamedVar("TZ_OH_Annun_OFF_GCL2")); }},
    {93, "ELEC GEN OFF R1", kAdvisory,
     [] { return !IsToldShutDownR() && IsLit(NamedVar("TZ_OH_Annun_OFF_GCR1")); },
     [] { return IsToldShutDownR() || IsDark(NamedVar("TZ_OH_Annun_OFF_GCR1")); }},
    {94, "ELEC GEN OFF R2", kAdvisory,
     [] { return !IsToldShutDownR() && IsLit(NamedVar("TZ_OH_Annun_OFF_GCR2")); },
     [] { return IsToldShutDownR() || IsDark(NamedVar("TZ_OH_Annun_OFF_GCR2")); }},
    {95, "MAIN BATTERY LOW", kAdvisory, [] { return electrical.batt_volts < 28.0; },
     [] { return electrical.batt_volts > 28.0; }},
    {96, "ELEC CABIN/UTIL OFF", kAdvisory, [] { return cockpit.cabin_util_button == 0; },
     [] { return cockpit.cabin_util_button == 1; }},
    {97, "ELEC IFE/SEATS OFF", kAdvisory, [] { return cockpit.ife_pass_seats_button == 0; },
     [] { return cockpit.ife_pass_seats_button == 1; }},
    {99, "FUEL IMBALANCE", kAdvisory, [] { return std::fabs(sim.left_fuel - sim.right_fuel) > 1300; },
     [] { return std::fabs(sim.left_fuel - sim.right_fuel) < 200; }},
    {100, "FUEL BALANCE SYS", kAdvisory,
     [] {
         return cockpit.fuel_balance_button == 1 &&
                (fuel_pumps.press_ctr_l >= 30 || fuel_pumps.press_ctr_r >= 30 ||
                 (IsOnGround() && (sim.n2_l > kEngineRuns || sim.n2_r > kEngineRuns)) || Stands(29));
     },
     [] {
         return cockpit.fuel_balance_button == 0 ||
                (fuel_pumps.press_ctr_l > 29 && fuel_pumps.press_ctr_r > 29 && IsInAir() &&
                 sim.n2_l < kEngineRuns && sim.n2_r < kEngineRuns && !Stands(29));
     }},
    {101, "FUEL IN CENTER", kAdvisory,
     [] {
         return sim.centre_fuel > kCentreFull && cockpit.fuelpump_l_center_button == 0 &&
                cockpit.fuelpump_r_center_button == 0;
     },
     [] { return sim.centre_fuel <= kCentreFull || IsCentrePumpOnL() || IsCentrePumpOnR(); }},
    {102, "FUEL LOW CENTER", kAdvisory,
     [] { return (IsCentrePumpOnL() || IsCentrePumpOnR()) && sim.centre_fuel < CentreFuelLimit(); },
     [] { return (!IsCentrePumpOnL() && !IsCentrePumpOnR()) || sim.centre_fuel >= CentreFuelLimit(); }},
    {103, "FUEL PRESS ENG L+R", kAdvisory,
     [] {
         return AreMainPumpsLow(fuel_pumps.press_fwd_l, fuel_pumps.press_aft_l) &&
                AreMainPumpsLow(fuel_pumps.press_fwd_r, fuel_pumps.press_aft_r) &&
                fuel_pumps.press_ctr_l < kCentrePumpLow && fuel_pumps.press_ctr_r < kCentrePumpLow &&
                sim.n2_l < kEngineRuns && sim.n2_r < kEngineRuns && IsOnGround();
     },
     [] {
         return IsMainPressed(fuel_pumps.press_fwd_l, fuel_pumps.press_aft_l, 19) ||
                IsMainPressed(fuel_pumps.press_fwd_r, fuel_pumps.press_aft_r, 19) ||
                fuel_pumps.press_ctr_l > 29 || fuel_pumps.press_ctr_r > 29 || sim.n2_l >= kEngineRuns ||
                sim.n2_r >= kEngineRuns || IsInAir();
     }},
    {104, "FUEL PUMP CENTER L", kAdvisory,
     [] {
         return !Stands(103) && !Stands(106) && sim.n2_l >= kEngineRuns && IsCentrePumpOnL() &&
                fuel_pumps.press_ctr_l < 18;
     },
     [] {
         return Stands(103) || Stands(106) || sim.n2_l < kEngineRuns || !IsCentrePumpOnL() ||
                fuel_pumps.press_ctr_l > 18;
     }},
    {105, "FUEL PUMP CENTER R", kAdvisory,
     [] {
         return !Stands(103) && !Stands(106) && sim.n2_r >= kEngineRuns && IsCentrePumpOnR() &&
                fuel_pumps.press_ctr_r < 18;
     },
     [] {
         return Stands(103) || Stands(106) || sim.n2_r < kEngineRuns || !IsCentrePumpOnR() ||
                fuel_pumps.press_ctr_r > 18;
     }},
    {106, "FUEL PUMP CTR L+R", kAdvisory,
     [] {
         return !Stands(103) && IsCentrePumpOnL() && IsCentrePumpOnR() && fuel_pumps.press_ctr_l < 18 &&
                fuel_pumps.press_ctr_r < 18;
     },
     [] {
         return fuel_pumps.press_ctr_l > 18 || fuel_pumps.press_ctr_r > 18 || !IsCentrePumpOnL() ||
                !IsCentrePumpOnR();
     }},
    {107, "FUEL PUMP L AFT", kAdvisory, [] { return !Stands(103) && fuel_pumps.press_aft_l < 18; },
     [] { return fuel_pumps.press_aft_l > 18; }},
    {108, "FUEL PUMP R AFT", kAdvisory, [] { return !Stands(103) && fuel_pumps.press_aft_r < 18; },
     [] { return fuel_pumps.press_aft_r > 18; }},
    {109, "FUEL PUMP L FWD", kAdvisory, [] { return !Stands(103) && fuel_pumps.press_fwd_l < 18; },
     [] { return fuel_pumps.press_fwd_l > 18; }},
    {110, "FUEL PUMP R FWD", kAdvisory, [] { return !Stands(103) && fuel_pumps.press_fwd_r < 18; },
     [] { return fuel_pumps.press_fwd_r > 18; }},
    {112, "AUTO SPEEDBRAKE", kAdvisory,
     [] { return cfg.PfcSwitch == kPfcDisconnected || IsCentreLowInAir(); }, AreFlapsServed},
    {113, "FLAPS PRIMARY FAIL", kAdvisory, IsCentreLowInAir, AreFlapsServed},
    {114, "SLATS PRIMARY FAIL", kAdvisory, IsCentreLowInAir, AreFlapsServed},
    {115, "SPOILER PAIRS", kAdvisory, IsCentreLowInAir, [] { return IsOnGround() || IsHighC(); }},
    {116, "STABILIZER CUTOUT", kAdvisory,
     [] { return cockpit.TZ_THQ_Stab_Norm_L2 == 1 && cockpit.TZ_THQ_Stab_Norm_R2 == 1; },
     [] { return cockpit.TZ_THQ_Stab_Norm_L2 == 0 || cockpit.TZ_THQ_Stab_Norm_R2 == 0; }},
    {117, "STABILIZER L2", kAdvisory, [] { return !Stands(116) && cockpit.TZ_THQ_Stab_Norm_L2 == 1; },
     [] { return Stands(116) || cockpit.TZ_THQ_Stab_Norm_L2 == 0; }},
    {118, "STABILIZER R2", kAdvisory, [] { return !Stands(116) && cockpit.TZ_THQ_Stab_Norm_R2 == 1; },
     [] { return Stands(116) || cockpit.TZ_THQ_Stab_Norm_R2 == 0; }},
    {119, "ALTN ATTITUDE CAPT", kAdvisory,
     [] { return !Stands(121) && cockpit.TZ_MAIN_AIRDATA_ATT_L_Switch == 1; },
     [] { return Stands(121) || cockpit.TZ_MAIN_AIRDATA_ATT_L_Switch == 0; }},
    {120, "ALTN ATTITUDE F/O", kAdvisory,
     [] { return !Stands(121) && cockpit.TZ_MAIN_AIRDATA_ATT_R_Switch == 1; },
     [] { return Stands(121) || cockpit.TZ_MAIN_AIRDATA_ATT_R_Switch == 0; }},
    {121, "SGL SOURCE ATTITUDE", kAdvisory,
     [] { return cockpit.TZ_MAIN_AIRDATA_ATT_L_Switch == 1 && cockpit.TZ_MAIN_AIRDATA_ATT_R_Switch == 1; },
     [] { return cockpit.TZ_MAIN_AIRDATA_ATT_L_Switch == 0 || cockpit.TZ_MAIN_AIRDATA_ATT_R_Switch == 0; }},
    {122, "HYD OVERHEAT C1", kAdvisory, [] { return IsPumpHot(hydraulics.elec_pump_c1, sim.left_fuel); },
     [] { return IsPumpCool(hydraulics.elec_pump_c1, sim.left_fuel); }},
    {123, "HYD OVERHEAT C2", kAdvisory, [] { return IsPumpHot(hydraulics.elec_pump_c2, sim.right_fuel); },
     [] { return IsPumpCool(hydraulics.elec_pump_c2, sim.right_fuel); }},
    {124, "HYD OVERHEAT L", kAdvisory, [] { return IsPumpHot(hydraulics.elec_pump_l, sim.left_fuel); },
     [] { return IsPumpCool(hydraulics.elec_pump_l, sim.left_fuel); }},
    {125, "HYD OVERHEAT R", kAdvisory, [] { return IsPumpHot(hydraulics.elec_pump_r, sim.right_fuel); },
     [] { return IsPumpCool(hydraulics.elec_pump_r, sim.right_fuel); }},
    {126, "HYD OVERHEAT PRI L", kAdvisory, [] { return IsPumpHot(hydraulics.eng_pump_l, sim.left_fuel); },
     [] { return IsPumpCool(hydraulics.eng_pump_l, sim.left_fuel); }},
    {127, "HYD OVERHEAT PRI R", kAdvisory, [] { return IsPumpHot(hydraulics.eng_pump_r, sim.right_fuel); },
     [] { return IsPumpCool(hydraulics.eng_pump_r, sim.right_fuel); }},
    {128, "HYD PRESS C1", kAdvisory,
     [] { return !Stands(37) && !Stands(39) && !Stands(40) && IsLit(NamedVar("TZ_OH_Annun_LEH_FAULT1")); },
     [] { return Stands(37) || IsDark(NamedVar("TZ_OH_Annun_LEH_FAULT1")); }},
    {129, "HYD PRESS C2", kAdvisory,
     [] { return !Stands(37) && !Stands(39) && !Stands(40) && IsLit(NamedVar("TZ_OH_Annun_REH_FAULT1")); },
     [] { return Stands(37) || IsDark(NamedVar("TZ_OH_Annun_REH_FAULT1")); }},
    {130, "HYD PRESS DEM L", kAdvisory, [] { return IsLit(NamedVar("TZ_OH_Annun_LEH_FAULT2")); },
     [] { return IsDark(NamedVar("TZ_OH_Annun_LEH_FAULT2")); }},
    {131, "HYD PRESS DEM R", kAdvisory, [] { return IsLit(NamedVar("TZ_OH_Annun_REH_FAULT2")); },
     [] { return IsDark(NamedVar("TZ_OH_Annun_REH_FAULT2")); }},
    {132, "HYD PRESS PRI L", kAdvisory,
     [] { return !IsToldShutDownL() && IsLit(NamedVar("TZ_OH_Annun_LEH_FAULT")); },
     [] { return IsToldShutDownL() || IsDark(NamedVar("TZ_OH_Annun_LEH_FAULT")); }},
    {133, "HYD PRESS PRI R", kAdvisory,
     [] { return !IsToldShutDownR() && IsLit(NamedVar("TZ_OH_Annun_REH_FAULT")); },
     [] { return IsToldShutDownR() || IsDark(NamedVar("TZ_OH_Annun_REH_FAULT")); }},
    {134, "RAT UNLOCKED", kAdvisory, [] { return cockpit.rat_unlocked == 1; },
     [] { return cockpit.rat_unlocked == 0; }},
    {135, "ELEC GEN OFF APU L", kAdvisory, [] { return cockpit.apu_gen_button == 0; },
     [] { return cockpit.apu_gen_button == 1; }},
    {136, "ELEC GEN OFF APU R", kAdvisory, [] { return cockpit.apu_gen_button == 0; },
     [] { return cockpit.apu_gen_button == 1; }},
    {137, "MAIN BATTERY DISCH", kAdvisory, [] { return !IsAcBusPowered() && cockpit.battery_button == 1; },
     [] { return IsAcBusPowered() || cockpit.battery_button == 0; }},
    {138, "FD DOOR LOCK FAIL", kAdvisory, [] { return cockpit.fd_door_power_button == 0; },
     [] { return cockpit.fd_door_power_button == 1; }},
    {139, "PASS OXYGEN ON", kAdvisory, [] { return cockpit.pass_oxygen_on == 1; },
     [] { return cockpit.pass_oxygen_on == 0; }},
    {140, "EMER LIGHTS", kAdvisory,
     [] { return cockpit.emerg_lights_switch == 1 || cockpit.emerg_lights_switch == 2; },
     [] { return cockpit.emerg_lights_switch == 3 || cockpit.emerg_lights_switch == 4; }},
    {141, "FD DOOR OPEN", kAdvisory, [] { return cockpit.TZ_AFT_FD_DOOR_Switch == 0; },
     [] { return cockpit.TZ_AFT_FD_DOOR_Switch != 0; }},
    {142, "AUTOBRAKE", kAdvisory, [] { return cockpit.autobrake_switch == 1; },
     [] { return cockpit.autobrake_switch != 1; }},
    {143, "CARGO A/C FWD", kAdvisory, [] { return IsLit(NamedVar("TZ_OH_Annun_CARGOT_OFF")); },
     [] { return IsDark(NamedVar("TZ_OH_Annun_CARGOT_OFF")); }},
    {144, "CARGO HEAT BULK", kAdvisory, [] { return IsLit(NamedVar("TZ_OH_Annun_BULK_OFF")); },
     [] { return IsDark(NamedVar("TZ_OH_Annun_BULK_OFF")); }},
    {145, "FMC INTERCEPT HDG", kAdvisory,
     [] {
         return autoflight.ap_lat_mode_armed == kLatLnav && alerts.hdg_off_track == 1 &&
                sim.radio_alt_ft > 1000;
     },
     [] {
         return autoflight.ap_lat_mode_armed != kLatLnav || alerts.hdg_off_track == 0 ||
                sim.radio_alt_ft < 1000;
     }},
    {146, "BOTTLE 1 DISCH", kAdvisory, [] { return IsLit(NamedVar("TZ_AFT_ENGBTL_1_Annun")); },
     [] { return IsDark(NamedVar("TZ_AFT_ENGBTL_1_Annun")); }},
    {147, "BOTTLE 2 DISCH", kAdvisory, [] { return IsLit(NamedVar("TZ_AFT_ENGBTL_2_Annun")); },
     [] { return IsDark(NamedVar("TZ_AFT_ENGBTL_2_Annun")); }},
    {148, "BOTTLE DISCH APU", kAdvisory, [] { return IsLit(NamedVar("BOTTLE DISCH APU")); },
     [] { return IsDark(NamedVar("BOTTLE DISCH APU")); }},
    {149, "LANDING ALTITUDE", kAdvisory,
     [] { return !IsRouteActive() || IsLit(NamedVar("tz_oh_ldg_alt_mode")); },
     [] { return IsRouteActive() && IsDark(NamedVar("tz_oh_ldg_alt_mode")); }},
    {153, "TCAS OFF", kAdvisory, [] { return cockpit.TZ_AFT_Transponder_Knob < 3; },
     [] { return cockpit.TZ_AFT_Transponder_Knob > 2; }},
    {154, "ANTI ICE ON", kAdvisory, [] { return IsAntiIceOn() && sim.tat_c > 10 && sim.ice_test < 50; },
     [] { return !IsAntiIceOn() || sim.tat_c <= 10 || sim.ice_test >= 50; }},
    {155, "BRAKE TEMP", kAdvisory, IsABrakeHot, AreBrakesCool},
    {156, "FMC MESSAGE", kAdvisory, IsFmcMessageWaiting, [] { return !IsFmcMessageWaiting(); }},
    {157, "VNAV STEP CLIMB", kAdvisory, [] { return vnav.step_climb_timer >= 300; },
     [] { return vnav.step_climb_timer < 300; }},

    {201, "PARKING BRAKE SET", kMemo, IsParkingBrakeSet, [] { return !IsParkingBrakeSet(); }},
    {202, "IRU ALIGN MODE L", kMemo, [] { return !Stands(204) && irs.irs_timer_l > 0; },
     [] { return Stands(204) || irs.irs_timer_l == 0; }},
    {203, "IRU ALIGN MODE R", kMemo, [] { return !Stands(204) && irs.irs_timer_r > 0; },
     [] { return Stands(204) || irs.irs_timer_r == 0; }},
    {204, "INERTIAL ALIGN MODE", kMemo,
     [] { return Stands(203) && irs.irs_timer_l > 0 && irs.irs_timer_r > 0; },
     [] { return irs.irs_timer_l == 0 || irs.irs_timer_r == 0; }},
    {205, "APU RUNNING", kMemo, [] { return electrical.apu_rpm > 95; },
     [] { return electrical.apu_rpm < 95; }},
    {200, "APU COOLDOWN", kMemo, [] { return electrical.apu_cooldown == 1; },
     [] { return electrical.apu_cooldown == 0; }},
    {206, "AUTOBRAKE 1", kMemo, [] { return cockpit.autobrake_switch == 2; },
     [] { return cockpit.autobrake_switch != 2; }},
    {207, "AUTOBRAKE 2", kMemo, [] { return cockpit.autobrake_switch == 3; },
     [] { return cockpit.autobrake_switch != 3; }},
    {208, "AUTOBRAKE 3", kMemo, [] { return cockpit.autobrake_switch == 4; },
     [] { return cockpit.autobrake_switch != 4; }},
    {209, "AUTOBRAKE 4", kMemo, [] { return cockpit.autobrake_switch == 5; },
     [] { return cockpit.autobrake_switch != 5; }},
    {210, "AUTOBRAKE RTO", kMemo, [] { return cockpit.autobrake_switch == kAutobrakeRto; },
     [] { return cockpit.autobrake_switch != kAutobrakeRto; }},
    {211, "AUTOBRAKE MAX", kMemo, [] { return cockpit.autobrake_switch == kAutobrakeMax; },
     [] { return cockpit.autobrake_switch != kAutobrakeMax; }},
    {212, "SEATBELTS ON", kMemo, [] { return cockpit.seatbelts_switch == 2; },
     [] { return cockpit.seatbelts_switch != 2 && !Stands(139); }},
    {213, "FUEL CROSSFEED ON", kMemo, IsCrossfeedOn, [] { return !IsCrossfeedOn(); }},
    {214, "DOORS MANUAL", kMemo, [] { return !Stands(215) && AreSlidesArmable(); },
     [] { return Stands(215) || AreSlidesDone(); }},
    {215, "DOORS AUTO", kMemo, [] { return Stands(214) && AreSlidesArmable(); }, AreSlidesDone},
    {216, "SPEEDBRAKE ARMED", kMemo, [] { return sim.spoilers_armed != 0; },
     [] { return sim.spoilers_armed == 0; }},
    {217, "COMM", kMemo, [] { return alerts.comm_unread == 1; }, [] { return alerts.comm_unread == 0; }},
};
constexpr std::size_t kRows = std::size(kCatalogue);
static_assert(kRows == 157);

// Places in the catalogue, by the text there.
constexpr std::string_view TextAt(unsigned char place) {
    return kCatalogue[place].text;
}
constexpr auto kPlacesByText = [] {
    std::array<unsigned char, kRows> places{};
    std::iota(places.begin(), places.end(), static_cast<unsigned char>(0));
    std::ranges::sort(places, {}, TextAt);
    return places;
}();

}  // namespace

std::span<const AlertRow> AlertCatalogue() {
    return kCatalogue;
}

const AlertRow* FindAlert(std::string_view text) {
    const auto place = std::ranges::lower_bound(kPlacesByText, text, {}, TextAt);
    return place != kPlacesByText.end() && TextAt(*place) == text ? &kCatalogue[*place] : nullptr;
}
