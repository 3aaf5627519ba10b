#include "frame/snapshot.h"

#include <cmath>

#include "base/angles.h"
#include "base/bcd.h"
#include "base/numbers.h"
#include "base/units.h"
#include "frame/named_variables.h"
#include "frame/tokens.h"
#include "platform/host.h"
#include "state/cfg.h"
#include "state/flight_log.h"
#include "state/sim.h"
#include "state/sound.h"
#include "state/time_base.h"

namespace {

struct PlainValue {
    int token;
    double SimSnapshot::*member;
    double scale = 1;
};
struct PlainFlag {
    int token;
    int SimSnapshot::*member;
};

// Values that are kept as the host gives them, but for a factor.
constexpr PlainValue kPlainValues[] = {
    {kTokenAdf1Signal, &SimSnapshot::adf1_signal},
    {kTokenNav1Deviation, &SimSnapshot::nav1_deviation},
    {kTokenNav2Deviation, &SimSnapshot::nav2_deviation},
    {kTokenLocNeedle, &SimSnapshot::loc_needle},
    {kTokenGsNeedle, &SimSnapshot::gs_needle},
    {kTokenNav1Dme, &SimSnapshot::nav1_dme},
    {kTokenNav1Signal, &SimSnapshot::nav1_signal},
    {kTokenNav2Dme, &SimSnapshot::nav2_dme},
    {kTokenNav2Signal, &SimSnapshot::nav2_signal},
    {kTokenNav2Course, &SimSnapshot::nav2_course},
    {kTokenMach, &SimSnapshot::mach, 1 / 20480.0},
    {kTokenVerticalSpeed, &SimSnapshot::vs_fpm, 1 / 1.30048},
    {kTokenLat, &SimSnapshot::plane_lat, 1 / 111130.555557},
    {kTokenBaro, &SimSnapshot::baro_hpa},
    {kTokenMagVar, &SimSnapshot::mgvar},
    {kTokenTrueHeading, &SimSnapshot::true_hdg},
    {kTokenHeadingBug, &SimSnapshot::ap_hdgbug},
    {kTokenSpeedBug, &SimSnapshot::ap_spdbug},
    {kTokenMachBug, &SimSnapshot::ap_machbug},
    {kTokenVerticalSpeedBug, &SimSnapshot::ap_vsbug},
    {kTokenThrustLever1, &SimSnapshot::thrust_lever_1},
    {kTokenThrustLever2, &SimSnapshot::thrust_lever_2},
    {kTokenFuelWeightPerGallon, &SimSnapshot::fuel_lb_per_gal},
    {kTokenParkingBrake, &SimSnapshot::parking_brake},
    {kTokenSpoilersArmed, &SimSnapshot::spoilers_armed},
    {kTokenSpoilerLeft, &SimSnapshot::spoiler_l},
    {kTokenSpoilerRight, &SimSnapshot::spoiler_r},
    {kTokenFlapHandle, &SimSnapshot::flap_pos},
    {kTokenOat, &SimSnapshot::oat_c},
    {kTokenWindSpeed, &SimSnapshot::wind_kt},
    {kTokenWindDirection, &SimSnapshot::wind_dir},
    {kTokenTat, &SimSnapshot::tat_c, 256},
    {kTokenSlipBall, &SimSnapshot::slip_value},
    {kTokenStallMargin, &SimSnapshot::pli_margin},
    {kTokenBarberPole, &SimSnapshot::barber_pole},
    {kTokenNav1Course, &SimSnapshot::nav1_course},
    {kTokenAbsoluteTime, &SimSnapshot::abs_time},
    {kTokenEng1N1, &SimSnapshot::n1_l},
    {kTokenEng1N2, &SimSnapshot::n2_l},
    {kTokenEng1CorrectedN1, &SimSnapshot::corrected_n1_l},
    {kTokenEng1CorrectedN2, &SimSnapshot::corrected_n2_l},
    {kTokenConfigWarningArm, &SimSnapshot::config_warning_arm},
    {kTokenEng2N1, &SimSnapshot::n1_r},
    {kTokenEng2N2, &SimSnapshot::n2_r},
    {kTokenEng2CorrectedN1, &SimSnapshot::corrected_n1_r},
    {kTokenEng2CorrectedN2, &SimSnapshot::corrected_n2_r},
    {kTokenRudderTrim, &SimSnapshot::rudder_trim},
    {kTokenFlapAngle, &SimSnapshot::flap_te_angle},
    {kTokenIceTest, &SimSnapshot::ice_test},
};

constexpr PlainFlag kPlainFlags[] = {
    {kTokenStrobe, &SimSnapshot::strobe_light},
    {kTokenPitotHeat, &SimSnapshot::pitot_heat},
    {kTokenOnGround, &SimSnapshot::on_ground},
    {kTokenMasterBattery, &SimSnapshot::host_battery},
    {kTokenBeacon, &SimSnapshot::beacon_light},
    {kTokenTaxiLight, &SimSnapshot::taxi_light},
    {kTokenEng1Combustion, &SimSnapshot::eng1_combustion},
    {kTokenEng1Starter, &SimSnapshot::eng1_starter},
    {kTokenEng2Combustion, &SimSnapshot::eng2_combustion},
    {kTokenEng2Starter, &SimSnapshot::eng2_starter},
    {kTokenNavLight, &SimSnapshot::nav_light},
    {kTokenLogoLight, &SimSnapshot::logo_light},
    {kTokenWingLight, &SimSnapshot::wing_light},
    {kTokenFlightDirector, &SimSnapshot::fd_active},
    {kTokenEng1Fire, &SimSnapshot::eng1_fire},
    {kTokenEng2Fire, &SimSnapshot::eng2_fire},
};

struct Door {
    const char* expression;
    int SimSnapshot::*member;
};
constexpr Door kDoors[] = {
    {"(A:EXIT OPEN:0,bool)", &SimSnapshot::door_1l},
    {"(A:EXIT OPEN:1,bool)", &SimSnapshot::door_2l},
    {"(L:DoorL3, bool)", &SimSnapshot::door_3l},
    {"(L:DoorL4, bool)", &SimSnapshot::door_4l},
    {"(A:EXIT OPEN:2,bool)", &SimSnapshot::door_1r},
    {"(L:DoorR2, bool)", &SimSnapshot::door_2r},
    {"(L:DoorR3, bool)", &SimSnapshot::door_3r},
    {"(L:DoorR4, bool)", &SimSnapshot::door_4r},
    {"(A:EXIT OPEN:3, bool)", &SimSnapshot::door_fwd_cargo},
    {"(L:TZ_CargoDoor_aft, bool)", &SimSnapshot::door_aft_cargo},
    {"(L:TZ_CargoDoor_bulk, bool)", &SimSnapshot::door_bulk_cargo},
};

int WholeToken(int token) {
    return WholeNumber(ReadToken(token));
}

/// Degrees in 0 to below 360.
double RadialOf(int token) {
    return FoldBearing(ReadToken(token) * 360 / 16384 + 180);
}

double CelsiusOfRankine(double rankine) {
    return (rankine - 491.69) * 5 / 9;
}

// Pounds of one tank: its level, its capacity in gallons, and the weight of a gallon.
double TankWeight(int level_token) {
    constexpr double kFullLevel = 8388608;
    return ReadToken(level_token) * ReadToken(level_token + 1) / kFullLevel * sim.fuel_lb_per_gal;
}

void ReadFuel() {
    sim.centre_fuel = TankWeight(kTokenFuelTankFirst);
    sim.left_fuel = TankWeight(291) + TankWeight(293) + TankWeight(295);
    sim.right_fuel = TankWeight(297) + TankWeight(299) + TankWeight(301);
    sim.total_fuel = sim.left_fuel + sim.right_fuel + sim.centre_fuel;
}

void ReadRadios() {
    constexpr int kLocalizer = 1 << 7, kGlideSlope = 1 << 6;
    // The extension holds the thousands in its high byte and the tenths in its low one.
    const int extension = WholeToken(kTokenAdf1FreqExtended);
    sim.adf1_freq =
        DecodeBcd(ReadToken(kTokenAdf1Freq)) + (extension >> 8 & 0xf) * 1000 + (extension & 0xf) * 0.1;
    ReadNavFrequencies();
    sim.nav1_radial = RadialOf(kTokenNav1Radial);
    sim.nav2_radial = RadialOf(kTokenNav2Radial);
    sim.marker_state = WholeToken(kTokenMarker);
    sim.transponder_code = DecodeBcd(ReadToken(kTokenTransponder));
    const int codes1 = WholeToken(kTokenNav1Codes), codes2 = WholeToken(kTokenNav2Codes);
    sim.nav1_is_loc = (codes1 & kLocalizer) != 0 ? 1 : 0;
    sim.nav1_has_gs = (codes1 & kGlideSlope) != 0 ? 1 : 0;
    sim.nav2_is_loc = (codes2 & kLocalizer) != 0 ? 1 : 0;
    sim.nav2_has_gs = (codes2 & kGlideSlope) != 0 ? 1 : 0;
}

void ReadClock() {
    sim.local_minutes = WholeToken(kTokenLocalMinute);
    sim.utc_seconds = WholeToken(kTokenLocalSecond);
}

// Wind triangle. The head component is negative against the aircraft, so that ground speed less it is the
// true airspeed.
void ComputeWindAndTrack() {
    constexpr double kMinSpeed = 85, kMinHeight = 400;
    const double off_nose = (sim.wind_dir - sim.true_hdg) * kRadPerDeg;
    sim.wind_head_kt = -std::cos(off_nose) * sim.wind_kt;
    sim.wind_side_kt = std::sin(off_nose) * sim.wind_kt;
    sim.tas_kt = sim.ground_speed_kt - sim.wind_head_kt;
    if (sim.ground_speed_kt <= kMinSpeed || sim.radio_alt_ft <= kMinHeight || sim.tas_kt == 0)
        sim.drift_deg = 0;
    else
        sim.drift_deg = std::atan(sim.wind_side_kt / sim.tas_kt) / kRadPerDeg;
    sim.mag_track_deg = FoldBearing(sim.mag_hdg - sim.drift_deg);
    sim.true_track_deg = FoldBearing(sim.true_hdg - sim.drift_deg);
}

}  // namespace

void ReadMotion() {
    constexpr double kBankDeadBand = 0.035;
    sim.ground_speed_kt = std::fabs(ReadToken(kTokenGroundSpeed) / kFpsPerKnot);
    // What is smoothed would keep what is no number for ever.
    if (const double ias = ReadToken(kTokenIas); std::isfinite(ias))
        sim.ias_kt = 0.7 * sim.ias_kt + 0.3 * ias;
    sim.ind_alt_ft = EvalCalc("(A:INDICATED ALTITUDE, feet)");
    sim.pitch_deg = ReadToken(kTokenPitch);
    const double bank = ReadToken(cfg.simver == 9 ? kTokenBankGen9 : kTokenBank);
    sim.bank_deg = std::fabs(bank) < kBankDeadBand ? 0 : bank;
    sim.prev_mag_hdg = sim.mag_hdg;
    sim.mag_hdg = ReadToken(kTokenMagHeading);
    time_base.tick18 = ReadToken(kTokenTick18);
}

void ReadSnapshot() {
    for (const PlainValue& value : kPlainValues) sim.*value.member = ReadToken(value.token) * value.scale;
    // What is no number raises no flag.
    for (const PlainFlag& flag : kPlainFlags) sim.*flag.member = std::fabs(ReadToken(flag.token)) > 0 ? 1 : 0;
    const double lon = ReadToken(kTokenLon) / 781874935307.4;
    sim.plane_lon = lon > 180 ? lon - 360 : lon;
    sim.radio_alt_ft =
        ReadToken(kTokenRadarAltitude) * kFeetPerMetre - std::sin(sim.pitch_deg * kRadPerDeg) * 40 - 17.2;
    sim.baro_in = sim.baro_hpa / 1013.25 * 29.92;
    sim.egt_l = CelsiusOfRankine(ReadToken(kTokenEng1Egt));
    sim.egt_r = CelsiusOfRankine(ReadToken(kTokenEng2Egt));
    ReadClock();
    ReadRadios();
    ReadFuel();
    ComputeWindAndTrack();
}

void StepFlightClock() {
    constexpr int kFirstFlightPhase = 3, kLastFlightPhase = 10;
    const bool changed = time_base.last_seconds >= 0 && sim.utc_seconds != time_base.last_seconds;
    time_base.last_seconds = sim.utc_seconds;
    if (!changed) return;
    if (flight_log.fplog_mode >= kFirstFlightPhase && flight_log.fplog_mode <= kLastFlightPhase)
        time_base.fltsecs += 1;
    if (time_base.et_clock_running == 1 && sim.host_paused == 0 && ++time_base.et_seconds == 60) {
        time_base.et_seconds = 0;
        ++time_base.et_minutes;
    }
}

void ReadRestOfSnapshot() {
    sim.apalt = EvalCalc("(A:AUTOPILOT ALTITUDE LOCK VAR, feet)");
    sim.dh_host = EvalCalc("(A:DECISION HEIGHT,FEET)");
    sim.flap_le_angle = EvalCalc("(A:LEADING EDGE FLAPS LEFT ANGLE,degrees)");
    sim.flap_angle = sim.flap_te_angle + sim.flap_le_angle;
    sim.adf2_signal = EvalCalc("(A:ADF SIGNAL:2,number)");
    sim.adf2_freq = EvalCalc("(A:ADF ACTIVE FREQUENCY:2,number)");
    sim.adf2_radial = EvalCalc("(A:ADF RADIAL:2,degrees)");
    sim.host_tas_kt = EvalCalc("(A:AIRSPEED TRUE, knots)");
    sim.accel_z = EvalCalc("(A:ACCELERATION BODY Z,Feet per second squared)");
    sound.slew_active = EvalCalc("(A:IS SLEW ACTIVE,bool)") != 0 ? 1 : 0;
    sim.utc_hours = WholeToken(kTokenUtcHour);
    sim.utc_minutes = WholeToken(kTokenUtcMinute);
}

void ReadSlowValues() {
    sim.day = WholeNumber(EvalCalc("(E:LOCAL DAY OF MONTH,enum)"));
    sim.month = WholeNumber(EvalCalc("(E:LOCAL MONTH OF YEAR,enum)"));
    sim.day_of_week = WholeNumber(EvalCalc("(E:LOCAL DAY OF WEEK,enum)"));
    sim.year = WholeToken(kTokenYear);
    sim.day_of_year = WholeToken(kTokenDayOfYear);
    sim.empty_weight = EvalCalc("(A:EMPTY WEIGHT,pounds)");
    sim.design_vs0 = EvalCalc("(A:Design Speed VS0, knots)");
    sim.design_vs1 = EvalCalc("(A:Design Speed VS1, knots)");
    sim.nav1_ident = EvalCalcText("(A:NAV IDENT:1,string)");
    sim.nav2_ident = EvalCalcText("(A:NAV IDENT:2,string)");
    sim.adf1_ident = EvalCalcText("(A:ADF IDENT:1,string)");
    sim.adf2_ident = EvalCalcText("(A:ADF IDENT:2,string)");
}

void ReadDoors() {
    sim.door_count = 0;
    for (const Door& door : kDoors) {
        sim.*door.member = EvalCalc(door.expression) != 0 ? 1 : 0;
        sim.door_count += sim.*door.member;
    }
}

void ReadTailValues() {
    sim.ap_master = ReadToken(kTokenAutopilotMaster) != 0 ? 1 : 0;
    sim.gear_handle = ReadToken(kTokenGearHandle);
    sim.gear_nose = ReadToken(kTokenGearNose);
    sim.gear_left = ReadToken(kTokenGearLeft);
    sim.gear_right = ReadToken(kTokenGearRight);
}

void ReadSimRate() {
    const double raw = ReadToken(kTokenSimRate);
    sim.sim_rate = cfg.simver >= 10 ? raw / 256 : raw;
}

void ReadNavFrequencies() {
    sim.nav1_freq = DecodeBcd(ReadToken(kTokenNav1Freq)) + 10000;
    sim.nav2_freq = DecodeBcd(ReadToken(kTokenNav2Freq)) + 10000;
}

void ReadFreeAddressSpace() {
    if (cfg.VASdisplay == 1) sim.free_address_gb = Host().free_address_space();
}
