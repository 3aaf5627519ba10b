#include "panels/panel_keys.h"

#include <algorithm>
#include <cmath>

#include "base/bcd.h"
#include "base/numbers.h"
#include "base/text.h"
#include "frame/controls.h"
#include "frame/engine_fuel.h"
#include "frame/key_events.h"
#include "frame/named_variables.h"
#include "platform/host.h"
#include "state/autoflight.h"
#include "state/cockpit.h"

namespace {

using enum PanelNumber;
using enum PanelKeyUse;

// --- what a load does beyond storing a value

void SendSpeed(double value) {
    SendKeyEvent(kKeySpeedSet, WholeNumber(value));
}

void SendAltitude(double value) {
    SendKeyEvent(kKeyAltitudeSet, WholeNumber(value));
}

// The decimal digits become digits of the frequency that the host takes.
void SendIlsFrequency(double value) {
    constexpr int kMost = 99999;
    const int digits = std::clamp(WholeNumber(value), 0, kMost);
    if (digits > 0) SendKeyEvent(kKeyNav1FreqSet, EncodeBcd(digits));
}

void ShowAutopilot(double value) {
    autoflight.ap_master_l = WholeNumber(value);
    for (const NamedVarRef variable :
         {NamedVar("ap_master_l"), NamedVar("ap_master_r"), NamedVar("TZ_MCP_L_AP_Button"),
          NamedVar("tz_ap_master_l"), NamedVar("tz_ap_master_r")})
        WriteNamedVar(variable, value);
}

void ShowAtMode(double value) {
    WriteNamedVar(NamedVar("at_mode"), value);
}
void ShowLeftArm(double value) {
    WriteNamedVar(NamedVar("at_armed_left"), value);
}
void ShowRightArm(double value) {
    WriteNamedVar(NamedVar("at_armed_right"), value);
}

// The modes that the system itself guides are asked for, so that the autopilot takes them up.
constexpr int kLnavRequest = 6, kVnavRequest = 5;

void TakeLateralMode(double value) {
    WriteNamedVar(NamedVar("ap_lat_mode"), value);
    if (WholeNumber(value) == kLatLnav) WriteNamedVar(NamedVar("ap_lat_mode_clicked"), kLnavRequest);
}
void TakeArmedLateralMode(double value) {
    WriteNamedVar(NamedVar("ap_lat_mode_armed"), value);
    if (WholeNumber(value) == kLatLnav) WriteNamedVar(NamedVar("ap_lat_mode_clicked"), kLnavRequest);
}
void TakeVerticalMode(double value) {
    WriteNamedVar(NamedVar("ap_vert_mode"), value);
    if (WholeNumber(value) == kVertVnavPth) WriteNamedVar(NamedVar("ap_vert_mode_clicked"), kVnavRequest);
}
void TakeArmedVerticalMode(double value) {
    WriteNamedVar(NamedVar("ap_vert_mode_armed"), value);
    if (WholeNumber(value) == kVertVnavSpd) WriteNamedVar(NamedVar("ap_vert_mode_clicked"), kVnavRequest);
}

template <int kEngine>
void CutOff(double value) {
    const EngineFuel& engine = kEngineFuel[kEngine];
    if (value != kFuelCutOff) return;
    if (ReadToken(engine.starter_token) != 0) SendKeyEvent(engine.starter_toggle, 0);
    SendKeyEvent(engine.cut_off, 0);
}

// Sends the event where the host's own switch stands otherwise.
template <int kToken, int kEvent>
void Agree(double value) {
    if ((ReadToken(kToken) != 0) != (value != 0)) SendKeyEvent(kEvent, value != 0 ? 1 : 0);
}

void SetRightLandingLight(double value) {
    SetControl(&cockpit.ovhd_ldg_lights_r_switch, WholeNumber(value));
}

constexpr PanelKey kKeys[] = {
    {.section = "FLTPLN"},
    {.name = "toc", .use = kLegOfRoute},
    {.name = "toc_lat", .style = kDegrees, .use = kOfRoute},
    {.name = "toc_lon", .style = kDegrees, .use = kOfRoute},
    {.name = "tod", .use = kLegOfRoute},
    {.name = "init_tod", .use = kLegOfRoute},
    {.name = "tod_lat", .style = kDegrees, .use = kOfRoute},
    {.name = "tod_lon", .style = kDegrees, .use = kOfRoute},
    {.name = "tod_rod", .style = kRound, .use = kOfRoute},
    {.name = "toc_stpos", .use = kLegOfRoute},
    {.name = "tod_stpos", .use = kLegOfRoute},
    {.name = "fms_fpln_active", .use = kOfRoute},
    {.name = "bod_pos", .use = kLegOfRoute},
    {.name = "stpos", .use = kLegOfRoute},
    {.name = "cross_at_elev", .style = kRound, .use = kOfRoute},
    {.name = "cross_at_lat", .style = kDegrees, .use = kOfRoute},
    {.name = "cross_at_lon", .style = kDegrees, .use = kOfRoute},
    {.name = "dist_from_tod_to_bod", .style = kRound, .use = kOfRoute},
    {.name = "last_tod_pos", .use = kLegOfRoute},
    {.name = "last_tod_elev", .style = kRound, .use = kOfRoute},
    {.name = "dist_from_bod", .style = kRound, .use = kOfRoute},
    {.name = "fplog_mode"},
    {.name = "fltsecs", .style = kRound},
    {.name = "clb_burn_per_nm", .style = kTenths},
    {.name = "crz_burn_per_nm", .style = kTenths},
    {.name = "des_burn_per_nm", .style = kTenths},
    {.name = "get_pax_flag"},
    {.section = "DISPLAY_UNITS"},
    {.name = "capt_ctr_mode"},
    {.name = "capt_nd_menu"},
    {.name = "capt_nd_mode"},
    {.name = "dsp_capt_mode_button"},
    {.name = "dsp_fo_mode_button"},
    {.name = "du_capt_inb_l_sys_page"},
    {.name = "du_capt_inb_mode"},
    {.name = "du_capt_inb_r_sys_page"},
    {.name = "du_capt_outb_mode"},
    {.name = "du_capt_rng_nm", .style = kTenths},
    {.name = "du_capt_rng_knob"},
    {.name = "du_fo_inb_l_sys_page"},
    {.name = "du_fo_inb_mode"},
    {.name = "du_fo_inb_r_sys_page"},
    {.name = "du_fo_outb_mode"},
    {.name = "du_fo_rng_knob"},
    {.name = "du_fo_rng_nm", .style = kTenths},
    {.name = "du_lower_l_sys_page"},
    {.name = "du_lower_mode"},
    {.name = "du_lower_r_sys_page"},
    {.name = "eicas_eng_button"},
    {.name = "fo_ctr_mode"},
    {.name = "fo_nd_menu"},
    {.name = "fo_nd_mode"},
    {.section = "CDU"},
    {.name = "capt_fms_page"},
    {.name = "capt_fms_vnav_page"},
    {.name = "capt_prev_fms_page"},
    {.name = "climb_ias"},
    {.name = "climb_mach", .style = kHundredths},
    {.name = "cost_index"},
    {.name = "cruise_alt"},
    {.name = "cruise_ias"},
    {.name = "cruise_mach", .style = kHundredths},
    {.name = "descent_ias"},
    {.name = "descent_mach", .style = kHundredths},
    {.name = "fms_step_size", .style = kRound},
    {.name = "fms_step_to_alt"},
    {.name = "fms_dep_rwy_pos", .use = kRunway},
    {.name = "fms_dest_rwy_pos", .use = kRunway},
    {.name = "appr_type", .style = kText},
    {.name = "fo_fms_page"},
    {.name = "fo_fms_vnav_page"},
    {.name = "fo_prev_fms_page"},
    {.name = "fms_fltno", .style = kText},
    {.name = "init_cruise_alt"},
    {.name = "ldg_flaps"},
    {.name = "lnav_init_lat", .style = kDegrees},
    {.name = "lnav_init_lon", .style = kDegrees},
    {.name = "lnav_init_mode"},
    {.name = "lnav_join_trk_lat", .style = kDegrees},
    {.name = "lnav_join_trk_lon", .style = kDegrees},
    {.name = "lnav_join_trk", .style = kRound},
    {.name = "resv_fuel"},
    {.name = "to_flaps"},
    {.name = "v1"},
    {.name = "vr"},
    {.name = "v2"},
    {.name = "vref", .style = kRound},
    {.name = "ilsfreq", .then = SendIlsFrequency},
    {.section = "MAIN"},
    {.name = "ToId", .style = kText, .use = kOfRoute},
    {.name = "to_lat", .style = kDegrees, .use = kOfRoute},
    {.name = "to_lon", .style = kDegrees, .use = kOfRoute},
    {.name = "FrId", .style = kText, .use = kOfRoute},
    {.name = "fr_lat", .style = kDegrees, .use = kOfRoute},
    {.name = "fr_lon", .style = kDegrees, .use = kOfRoute},
    {.name = "irs_left"},
    {.name = "irs_right"},
    {.name = "batt_pwr"},
    {.name = "apu_gen_pwr"},
    {.name = "gen_l1_pwr"},
    {.name = "gen_l2_pwr"},
    {.name = "gen_r1_pwr"},
    {.name = "gen_r2_pwr"},
    {.name = "ram_air_turb"},
    {.name = "du_lwr_startup_cnt"},
    {.name = "du_cib_startup_cnt"},
    {.name = "du_pfd_ah_startup_cnt"},
    {.name = "ext_ac_pwr"},
    {.name = "fwd_ext_pwr_avail"},
    {.name = "WeightUnit", .style = kText},
    {.name = "cockpit_callout_mode"},
    {.name = "apu_pwr_avail"},
    {.name = "apu_rpm", .style = kTenths},
    {.name = "apu_oil_qty", .style = kTenths},
    {.name = "apu_oil_press", .style = kTenths},
    {.name = "apu_oil_temp", .style = kTenths},
    {.name = "apu_egt", .style = kTenths},
    {.section = "MCP"},
    {.name = "ap_master", .style = kRound, .then = ShowAutopilot},
    {.name = "ap_spdbug", .style = kRound, .then = SendSpeed},
    {.name = "apalt", .style = kRound, .then = SendAltitude},
    {.name = "capt_fd_switch"},
    {.name = "fo_fd_switch"},
    {.name = "capt_mcp_clock_mode"},
    {.name = "annuncement_mode"},
    {.name = "at_mode", .then = ShowAtMode},
    {.name = "at_mode_armed"},
    {.name = "at_armed_left", .then = ShowLeftArm},
    {.name = "at_armed_right", .then = ShowRightArm},
    {.name = "ap_lat_mode", .then = TakeLateralMode},
    {.name = "ap_lat_mode_armed", .then = TakeArmedLateralMode},
    {.name = "ap_vert_mode", .then = TakeVerticalMode},
    {.name = "ap_vert_mode_armed", .then = TakeArmedVerticalMode},
    {.section = "FORWARD"},
    {.name = "autobrake_switch"},
    {.section = "PEDESTAL"},
    {.name = "eng1_thrott", .then = CutOff<0>},
    {.name = "eng2_thrott", .then = CutOff<1>},
    {.section = "OVERHEAD"},
    {.name = "irs_left_knob"},
    {.name = "irs_right_knob"},
    {.name = "battery_button", .then = Agree<kTokenMasterBattery, kKeyMasterBatteryToggle>},
    {.name = "apu_switch"},
    {.name = "apu_gen_button"},
    {.name = "fwd_ext_pwr_button"},
    {.name = "gen_l1_button"},
    {.name = "gen_l2_button"},
    {.name = "gen_r1_button"},
    {.name = "gen_r2_button"},
    {.name = "fd_door_power_button"},
    {.name = "emerg_lights_switch"},
    {.name = "emerg_lights_switch_guard"},
    {.name = "window_heat_primary_l_side_button"},
    {.name = "window_heat_primary_l_fwd_button"},
    {.name = "window_heat_primary_l_fwd_button"},
    {.name = "window_heat_primary_r_fwd_button"},
    {.name = "window_heat_primary_r_side_button"},
    {.name = "hydr_l_elec_demand_knob"},
    {.name = "hydr_c1_elec_demand_knob"},
    {.name = "hydr_c2_elec_demand_knob"},
    {.name = "hydr_r_elec_demand_knob"},
    {.name = "seatbelts_switch"},
    {.name = "fuelpump_l_fwd_button"},
    {.name = "fuelpump_l_aft_button"},
    {.name = "fuelpump_crosfeed_button"},
    {.name = "fuelpump_r_fwd_button"},
    {.name = "fuelpump_r_aft_button"},
    {.name = "fuelpump_l_center_button"},
    {.name = "fuelpump_r_center_button"},
    {.name = "fuelpump_crosfeed_button"},
    {.name = "pack_l_button"},
    {.name = "pack_r_button"},
    {.name = "beacon_lights_button", .then = Agree<kTokenBeacon, kKeyBeaconToggle>},
    {.name = "logo_lights_button", .then = Agree<kTokenLogoLight, kKeyLogoLightSet>},
    {.name = "wing_lights_button", .then = Agree<kTokenWingLight, kKeyWingLightSet>},
    {.name = "nav_lights_button", .style = kRound, .then = Agree<kTokenNavLight, kKeyNavLightSet>},
    {.name = "strobe_lights_button", .style = kRound, .then = Agree<kTokenStrobe, kKeyPanelLightSet>},
    {.name = "taxi_lights_button", .style = kRound, .then = Agree<kTokenTaxiLight, kKeyTaxiLightSet>},
    {.name = "window_heat_backup_l_fwd_button"},
    {.name = "window_heat_backup_r_fwd_button"},
    {.name = "ife_pass_seats_button"},
    {.name = "cabin_util_button"},
    {.name = "hydr_l_eng_primary_button"},
    {.name = "hydr_r_eng_primary_button"},
    {.name = "fuel_balance_button"},
    {.name = "ovhd_rwy_lights_l_switch"},
    {.name = "ovhd_rwy_lights_r_switch"},
    {.name = "ovhd_nose_lights_switch"},
    {.name = "ovhd_ldg_lights_l_switch", .then = SetRightLandingLight},
    {.name = "storm_lights_button"},
    {.name = "humid_button"},
    {.name = "bulk_cargo_heat_button"},
    {.name = "equip_cooling_fwd_button"},
    {.name = "equip_cooling_aft_button"},
    {.name = "recirc_fans_upper_button"},
    {.name = "recirc_fans_lower_button"},
    {.name = "trim_air_l_button"},
    {.name = "trim_air_r_button"},
    {.name = "ventilation_button"},
    {.name = "fwd_outflow_valve_button"},
    {.name = "fwd_outflow_valve_button"},
    {.name = "aft_outflow_valve_button"},
    {.name = "TZ_AFT_Transponder_Knob"},
    {.section = "TZCP"},
    {.name = "cargo_doors_anun", .use = kOnlyWritten},
    {.name = "EadiMode", .use = kOnlyWritten},
    {.name = "FlightDirectorType", .use = kOnlyWritten},
    {.name = "play_announcements", .use = kOnlyWritten, .variable = "PlayAnnouncements"},
    // never written; a file edited by hand may hold it
    {.name = "parking_brake_pos", .use = kOnlyRead, .then = Agree<kTokenParkingBrake, kKeyParkingBrake>},
};

int Decimals(PanelNumber style) {
    switch (style) {
        case kTenths:
            return 1;
        case kHundredths:
            return 2;
        case kDegrees:
            return 6;
        default:
            return 0;
    }
}

std::optional<VariableRef> VariableOf(const PanelKey& key) {
    return FindVariable(key.variable.empty() ? key.name : key.variable);
}

}  // namespace

std::span<const PanelKey> PanelKeys() {
    return kKeys;
}

const PanelKey* FindPanelKey(std::string_view name) {
    const auto row = std::ranges::find_if(
        kKeys, [&](const PanelKey& key) { return !key.name.empty() && EqualIgnoringCase(key.name, name); });
    return row == std::end(kKeys) || row->use == kOnlyWritten ? nullptr : row;
}

std::string PanelText(const PanelKey& key) {
    const auto variable = VariableOf(key);
    if (!variable) return {};
    switch (variable->type->kind) {
        case ValueKind::kInt:
            return Format("%.*f", Decimals(key.style),
                          static_cast<double>(*static_cast<int*>(variable->address)));
        case ValueKind::kDouble:
            return Format("%.*f", Decimals(key.style), *static_cast<double*>(variable->address));
        case ValueKind::kText:
            return *static_cast<std::string*>(variable->address);
        default:
            return {};
    }
}

void StorePanelText(const PanelKey& key, std::string_view text) {
    constexpr double kMost = 1e9;
    const auto variable = VariableOf(key);
    if (!variable) return;
    double value = LeadingDouble(text);
    if (!(std::fabs(value) <= kMost)) value = 0;
    switch (variable->type->kind) {
        case ValueKind::kInt: {
            int& number = *static_cast<int*>(variable->address);
            number = WholeNumber(value);
            ShowControl(&number);
            break;
        }
        case ValueKind::kDouble:
            *static_cast<double*>(variable->address) = value;
            break;
        case ValueKind::kText:
            *static_cast<std::string*>(variable->address) = text;
            break;
        default:
            break;
    }
}
