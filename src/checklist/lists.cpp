#include "checklist/lists.h"

#include <algorithm>

#include "frame/engine_fuel.h"
#include "state/checklist.h"
#include "state/cockpit.h"
#include "state/identity.h"
#include "state/sim.h"
#include "state/surfaces.h"

namespace {

bool IsParkingBrakeSet() {
    return sim.parking_brake != 0;
}

bool AreFuelControlsCutOff() {
    return cockpit.eng1_thrott == kFuelCutOff && cockpit.eng2_thrott == kFuelCutOff;
}

bool IsFlightDeckDoorLocked() {
    return cockpit.fd_door_power_button == 1 && cockpit.TZ_AFT_FD_DOOR_Switch != 0;
}

bool AreTrimsSet() {
    constexpr double kFirstUnit = 3.0, kLastUnit = 9.0, kRudderBand = 0.005;
    return surfaces.elev_trim_ind >= kFirstUnit && surfaces.elev_trim_ind <= kLastUnit &&
           sim.rudder_trim >= -kRudderBand && sim.rudder_trim <= kRudderBand;
}

bool IsGearUp() {
    constexpr double kUp = 1000;
    return sim.gear_nose < kUp && sim.gear_left < kUp && sim.gear_right < kUp;
}

bool IsGearDown() {
    constexpr double kDown = 16000;
    return sim.gear_nose >= kDown && sim.gear_left >= kDown && sim.gear_right >= kDown;
}

// Degrees, both flap angles together.
bool AreFlapsSetForTakeoff() {
    return sim.flap_angle >= 34.0 && sim.flap_angle <= 53.5;
}

bool AreFlapsSetForLanding() {
    return sim.flap_angle >= (identity.aircraft_model == "900-8" ? 52.0 : 57.0);
}

bool IsHydraulicPanelSet() {
    return cockpit.hydr_l_eng_primary_button == 1 && cockpit.hydr_r_eng_primary_button == 1 &&
           cockpit.hydr_l_elec_demand_knob == 0 && cockpit.hydr_r_elec_demand_knob == 0 &&
           cockpit.hydr_c1_elec_demand_knob == 0 && cockpit.hydr_c2_elec_demand_knob == 0;
}

bool AreFuelPumpsOff() {
    return cockpit.fuelpump_l_fwd_button == 0 && cockpit.fuelpump_l_aft_button == 0 &&
           cockpit.fuelpump_r_fwd_button == 0 && cockpit.fuelpump_r_aft_button == 0 &&
           cockpit.fuelpump_l_center_button == 0 && cockpit.fuelpump_r_center_button == 0;
}

constexpr ChecklistItem kPreflight[] = {
    {"Oxygen.....................Tested, 100%"},
    {"Flight\nInstruments...Heading ___, Altimeter ___"},
    {"Parking brake.......................Set", IsParkingBrakeSet},
    {"FUEL CONTROL switches............CUTOFF", AreFuelControlsCutOff},
};
constexpr ChecklistItem kBeforeStart[] = {
    {"Flight deck door......Closed and locked", IsFlightDeckDoorLocked},
    {"Passenger signs.....................___"},
    {"MCP........V2___, HDG/TRK___,ALTITUDE___"},
    {"Takeoff speeds......V1___, VR___, V2___"},
    {"CDU preflight.................Completed"},
    {"Trim.......................-----Units, 0", AreTrimsSet},
    {"Taxi and takeoff briefing......Completed"},
    {"BEACON...............................ON", [] { return sim.beacon_light != 0; }},
};
constexpr ChecklistItem kBeforeTaxi[] = {
    {"Anti-ice.............................___"},
    {"Recall...........................Checked"},
    {"Autobrake..........................RTO", [] { return cockpit.autobrake_switch == -1; }},
    {"Flight controls..................Checked"},
    {"Ground equipment....................Clear"},
};
constexpr ChecklistItem kBeforeTakeoff[] = {
    {"Flaps..............................___", AreFlapsSetForTakeoff},
};
constexpr ChecklistItem kAfterTakeoff[] = {
    {"Landing gear.........................UP", IsGearUp},
    {"Flaps.................................UP", [] { return sim.flap_angle < 19.0; }},
};
constexpr ChecklistItem kDescent[] = {
    {"Recall.........................Checked"},   {"Notes............................Checked"},
    {"Autobrake............................___"}, {"Landing data........VREF___, Minimums___"},
    {"Approach briefing..............Completed"},
};
constexpr ChecklistItem kApproach[] = {
    {"Altimeters.........................___"},
};
constexpr ChecklistItem kLanding[] = {
    {"Speedbrake.......................ARMED", [] { return sim.spoilers_armed != 0; }},
    {"Landing gear........................DOWN", IsGearDown},
    {"Flaps................................___", AreFlapsSetForLanding},
};
constexpr ChecklistItem kShutdown[] = {
    {"Hydraulic panel....................Set", IsHydraulicPanelSet},
    {"Fuel pumps...........................Off", AreFuelPumpsOff},
    {"Flaps.................................UP", [] { return sim.flap_angle < 18.5; }},
    {"Parking brake........................___"},
    {"FUEL CONTRL switches..............CUTOFF", AreFuelControlsCutOff},
    {"Weather radar........................Off"},
};
constexpr ChecklistItem kSecure[] = {
    {"IRS................................OFF",
     [] { return cockpit.irs_left_knob == 0 && cockpit.irs_right_knob == 0; }},
    {"Emergency lights...................OFF", [] { return cockpit.emerg_lights_switch == 1; }},
    {"Packs..............................OFF",
     [] { return cockpit.pack_l_button == 0 && cockpit.pack_r_button == 0; }},
};

constexpr NormalChecklist kLists[kNormalLists] = {
    {"PREFLIGHT", kPreflight},        {"BEFORE START", kBeforeStart},
    {"BEFORE TAXI", kBeforeTaxi},     {"BEFORE TAKEOFF", kBeforeTakeoff},
    {"AFTER TAKEOFF", kAfterTakeoff}, {"DESCENT", kDescent},
    {"APPROACH", kApproach},          {"LANDING", kLanding},
    {"SHUTDOWN", kShutdown},          {"SECURE", kSecure},
};
static_assert(std::ranges::all_of(kLists, [](const NormalChecklist& list) {
    return list.items.size() <= static_cast<std::size_t>(kMostItems);
}));

}  // namespace

const NormalChecklist& ChecklistOf(int list) {
    return kLists[static_cast<std::size_t>(std::clamp(list, 1, kNormalLists) - 1)];
}
