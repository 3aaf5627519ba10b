#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "alert_cases.h"
#include "frame/named_variables.h"
#include "sound/warnings.h"
#include "state/alerts.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/identity.h"
#include "state/lnav.h"
#include "state/sim.h"
#include "state/sound.h"
#include "state/variable_directory.h"
#include "support/fake_host.h"
#include "systems/alerting/alert_inputs.h"
#include "systems/alerting/alerts_update.h"
#include "systems/alerting/catalogue.h"
#include "systems/alerting/master_caution.h"
#include "systems/alerting/message_lists.h"

namespace {

// A cruise in which nothing is to be told.
constexpr const char* kQuiet =
    "air, ias_kt 280, airspeed_smooth 280, v_mo_kt 350, low_speed_limit 180, n1_l 50, n1_r 50, n2_l 80, n2_r "
    "80, "
    "thrust_lever_1 8000, thrust_lever_2 8000, oat_c 20, tat_c 20, cabin_alt 5000, left_fuel 20000, "
    "right_fuel "
    "20000, press_fwd_l 20, press_aft_l 20, press_fwd_r 20, press_aft_r 20, tz_hyd_press_l 5000, "
    "tz_hyd_press_c "
    "5000, tz_hyd_press_r 5000, PfcSwitch 7, irs_left 1, irs_right 1, fwd_outflow_valve_button 1, "
    "aft_outflow_valve_button 1, pack_l_button 1, pack_r_button 1, equip_cooling_aft_button 1, "
    "equip_cooling_fwd_button 1, window_heat_primary_l_fwd_button 1, window_heat_primary_r_fwd_button 1, "
    "window_heat_primary_l_side_button 1, window_heat_primary_r_side_button 1, TZ_OH_WING_ANTICE_Switch 1, "
    "recirc_fans_upper_button 1, recirc_fans_lower_button 1, trim_air_l_button 1, trim_air_r_button 1, "
    "ventilation_button 1, TZ_OH_ECC_L_Button 1, TZ_OH_ECC_R_Button 1, battery_button 1, cabin_util_button "
    "1, "
    "ife_pass_seats_button 1, apu_gen_button 1, fd_door_power_button 1, emerg_lights_switch 3, "
    "TZ_AFT_FD_DOOR_Switch 1, fms_fpln_active 3, TZ_AFT_Transponder_Knob 3, power_level 1000, ac_bus_powered "
    "1, "
    "batt_volts 31, eng1_thrott 1, eng2_thrott 1, elev_trim_ind 5, aircraft_model 900-8, engine_model "
    "GENX-1B70";
constexpr std::pair<const char*, const char*> kShorthands[] = {
    {"ground", "on_ground 1, radio_alt_ft 0, flap_angle 25"},
    {"air", "on_ground 0, radio_alt_ft 3000, flap_angle 0"},
    {"unpressed",
     "press_fwd_l 17, press_aft_l 17, press_fwd_r 17, press_aft_r 17, press_ctr_l 27, press_ctr_r 27"},
    {"astray", "stpos 1, mag_hdg 180, course_here 0, wpt_brg 0"},
};

std::vector<std::string> Split(const std::string& text, char at) {
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, at);) {
        part.erase(0, part.find_first_not_of(' '));
        if (!part.empty()) parts.push_back(part);
    }
    return parts;
}

// "NAME VALUE" of a state variable or else of a named variable, or a shorthand.
void Apply(FakeHost& host, const std::string& changes) {
    for (const std::string& change : Split(changes, ',')) {
        const std::size_t blank = change.rfind(' ');
        const std::string name = change.substr(0, blank);
        const auto* shorthand =
            std::ranges::find(kShorthands, name, &std::pair<const char*, const char*>::first);
        if (shorthand != std::end(kShorthands)) {
            Apply(host, shorthand->second);
            continue;
        }
        ASSERT_NE(blank, std::string::npos) << change;
        const std::string value = change.substr(blank + 1);
        if (const auto variable = FindVariable(name)) {
            ASSERT_TRUE(StoreValue(*variable, value)) << change;
        } else {
            const auto row = std::ranges::find(kNamedVariables, name, &NamedVariable::name);
            ASSERT_NE(row, kNamedVariables.end()) << "unknown: " << change;
            host.NamedVar(name) = std::stod(value);
        }
    }
}

void Pass(int times) {
    for (int i = 0; i < times; ++i) AlertsUpdate();
}
constexpr int kSettled = 20;

bool IsPosted(int id) {
    return alerts.posted[static_cast<std::size_t>(id)] != 0;
}
std::vector<int> PostedIds() {
    std::vector<int> ids;
    for (int id = 0; id <= kLastAlertId; ++id)
        if (IsPosted(id)) ids.push_back(id);
    return ids;
}

const GrowingList<AlertRecord>& ListOfId(int id, int& count) {
    if (id < 20) return count = alerts.warning_count, alerts.warning_list;
    if (id < 61) return count = alerts.caution_count, alerts.caution_list;
    if (id < 200) return count = alerts.advisory_count, alerts.advisory_list;
    return count = alerts.memo_count, alerts.memo_list;
}
bool IsListed(int id, const std::string& text) {
    int count = 0;
    const GrowingList<AlertRecord>& list = ListOfId(id, count);
    for (int i = 1; i <= count; ++i)
        if (list[i].text == text) return true;
    return false;
}

TEST(Alerting, EachMessageComesStaysAndGoes) {
    std::set<int> ids;
    for (const AlertCase& row : kAlertCases) {
        ids.insert(row.id);
        const auto expect = [&](const char* before, const std::string& changes, bool stands) {
            FakeHost host;
            Apply(host, kQuiet);
            Pass(2);
            EXPECT_TRUE(PostedIds().empty()) << "posted in the quiet state";
            Apply(host, before);
            Pass(kSettled);
            Apply(host, changes);
            Pass(kSettled);
            EXPECT_EQ(IsPosted(row.id), stands) << row.text << ": " << before << " / " << changes;
            EXPECT_EQ(IsListed(row.id, row.text), stands) << row.text << ": " << before << " / " << changes;
        };
        expect("", row.comes, true);
        for (const std::string& changes : Split(row.not_yet, '|')) expect("", changes, false);
        for (const std::string& changes : Split(row.stays, '|')) expect(row.comes, changes, true);
        for (const std::string& changes : Split(row.goes, '|')) expect(row.comes, changes, false);
    }
    EXPECT_EQ(ids.size(), 156u);
}

// What comes and goes pass by pass, until nothing does: "+45 +44 -45".
std::string Story() {
    std::string story;
    for (int pass = 0; pass < 60; ++pass) {
        const auto before = alerts.posted;
        AlertsUpdate();
        for (const bool comes : {true, false})
            for (int id = 0; id <= kLastAlertId; ++id) {
                const int was = before[static_cast<std::size_t>(id)];
                if (IsPosted(id) != (was != 0) && IsPosted(id) == comes)
                    story += (story.empty() ? "" : " ") + std::string(comes ? "+" : "-") + std::to_string(id);
            }
    }
    return story;
}

TEST(Alerting, OneComesAndOneGoesAPassInTheirOrder) {
    const struct {
        const char *changes, *story, *back;
    } kCases[] = {
        {"door_fwd_cargo 1, door_aft_cargo 1, door_count 2", "+45 +44 +80 -44 -45", "-80 +45 +44"},
        {"door_bulk_cargo 1, door_count 1, pack_r_button 0", "+72 +98", "-98 -72"},
        {"apu_rpm 99, apu_cooldown 1", "+205 +200", "-200 -205"},
        // from the bottom of the lists up: memos, advisories, cautions, warnings, the newest of a list first
        {"ap_disc_warning 1, tz_altitude_alert 1, terrain_state 3, rat_unlocked 1, spoilers_armed 1",
         "+9 +47 +49 +134 +216", "-216 -134 -49 -47 -9"},
        {"tz_hyd_press_l 0, tz_hyd_press_c 0, tz_hyd_press_r 0, PfcSwitch 7, TZ_OH_Annun_LEH_FAULT1 1",
         "+33 +36 +37 +38 +39 -37 +40 -39 +112 -38 +113 -36 +114 +115", nullptr},
        {"ground, n1_l 75", "+214 +215 -214", nullptr},
        {"irs_timer_l 9, irs_timer_r 9", "+202 +203 +204 -203 -202", nullptr},
        {"eng1_thrott 2, eng2_thrott 2", "+26", nullptr},
        {"TZ_MAIN_AIRDATA_ATT_L_Switch 1, TZ_MAIN_AIRDATA_ATT_R_Switch 1", "+119 +120 +121 -120 -119",
         nullptr},
        {"airspeed_smooth 351, ias_kt 351, ap_disc_warning 1", "+1 +9", nullptr},
        {"airspeed_smooth 351, ap_disc_warning 1", "+9", nullptr},
    };
    for (const auto& row : kCases) {
        FakeHost host;
        Apply(host, kQuiet);
        Apply(host, row.changes);
        EXPECT_EQ(Story(), row.story) << row.changes;
        if (row.back == nullptr) continue;
        Apply(host,
              std::string(kQuiet) + ", door_fwd_cargo 0, door_aft_cargo 0, door_bulk_cargo 0, door_count 0");
        Apply(host,
              "apu_rpm 0, apu_cooldown 0, ap_disc_warning 0, tz_altitude_alert 0, terrain_state 0, "
              "rat_unlocked 0, spoilers_armed 0");
        if (std::string(row.back).find('+') != std::string::npos)
            Apply(host, "door_fwd_cargo 1, door_aft_cargo 1, door_count 1");
        EXPECT_EQ(Story(), row.back) << row.changes;
    }
}

TEST(Alerting, HoldsMessagesBackInStartAndTakeOff) {
    const struct {
        const char *changes, *story;
    } kCases[] = {
        {"eng1_start_phase 1, eng1_fire 1", ""},
        {"eng2_start_phase 2, rat_unlocked 1", ""},
        {"n1_l 81, n1_r 81, radio_alt_ft 399, eng1_fire 1", "+10"},
        {"n1_l 81, n1_r 81, radio_alt_ft 399, terrain_state 3, eng1_fire 1, rat_unlocked 1", "+10"},
        {"n1_l 81, n1_r 81, radio_alt_ft 400, terrain_state 3", "+47"},
        {"n1_l 81, n1_r 80, radio_alt_ft 399, terrain_state 3", "+47"},
    };
    for (const auto& row : kCases) {
        FakeHost host;
        Apply(host, kQuiet);
        Apply(host, row.changes);
        EXPECT_EQ(Story(), row.story) << row.changes;
    }
    // What has come goes all the same, and what was held back follows.
    FakeHost host;
    Apply(host, kQuiet);
    Apply(host, "terrain_state 3");
    Pass(1);
    Apply(host, "eng1_start_phase 1, terrain_state 0, rat_unlocked 1");
    EXPECT_EQ(Story(), "-47");
    Apply(host, "eng1_start_phase 0");
    EXPECT_EQ(Story(), "+134");
}

TEST(Alerting, SoundsAsTheMessageAsks) {
    const struct {
        const char* changes;
        int aural, siren, beeper;  // asked for by the pass, and running when the sound step has taken it
    } kCases[] = {
        {"ap_disc_warning 1", 6, 1, 0},
        {"eng1_fire 1", 13, 0, 0},
        {"eng2_fire 1", 13, 0, 0},
        {"FIRE APU 1", 13, 0, 0},
        {"fire_test_timer 5", 13, 0, 0},
        {"fire_pass_timer 5", 0, 0, 0},
        {"fire_pass_timer 5, beeper_running 1", 0, 0, 0},
        {"cabin_alt 10000, radio_alt_ft 6000", 5, 1, 0},
        {"cabin_alt 10000, radio_alt_ft 6000, beeper_running 1", 5, 1, 0},
        {"cabin_alt 10000, radio_alt_ft 6000, warning_count 1, siren_running 1", 0, 1, 0},
        {"terrain_state 3", 1, 0, 1},
        {"terrain_state 3, n2_l 67, n2_r 67", 0, 0, 0},
        {"terrain_state 3, n2_l 67, n2_r 67.1", 1, 0, 1},
        {"terrain_state 3, warning_count 1, siren_running 1", 0, 1, 0},
        {"terrain_state 3, caution_count 1, beeper_running 1", 0, 0, 1},
        {"eng1_thrott 2, eng2_thrott 2", 0, 0, 0},
        {"eng1_thrott 2", 0, 0, 0},
        {"eng2_thrott 2", 0, 0, 0},
        {"rat_unlocked 1", 0, 0, 0},
        {"spoilers_armed 1", 0, 0, 0},
    };
    for (const auto& row : kCases) {
        FakeHost host;
        Apply(host, std::string(kQuiet) + ", dsound_ok 1, warning_list[1].text A, caution_list[1].text B");
        Apply(host, row.changes);
        Pass(1);
        EXPECT_EQ(sound.alert_aural, row.aural) << row.changes;
        EndWarningSounds();
        TakeAlertAural();
        EXPECT_EQ(sound.alert_aural, 0) << row.changes;
        EXPECT_EQ(sound.siren_running, row.siren) << row.changes;
        EXPECT_EQ(sound.beeper_running, row.beeper) << row.changes;
    }
    FakeHost host;
    Apply(host, "alert_aural 5, dsound_ok 1, PlayWarningSounds 0");
    TakeAlertAural();
    EXPECT_EQ(sound.alert_aural, 5) << "waits while the sounds are off";
    Apply(host, "PlayWarningSounds 1, warning_count 1");
    TakeAlertAural();
    EndWarningSounds();
    EXPECT_EQ(sound.siren_running, 1);
    Apply(host, "warning_count 0");
    EndWarningSounds();
    EXPECT_EQ(sound.siren_running, 0);
    EXPECT_EQ(sound.sounds_to_stop, 2);
}

TEST(Alerting, CancelTakesElevenAndRecallBringsAllBack) {
    FakeHost host;
    Apply(host, kQuiet);
    CancelRecall();
    EXPECT_EQ(alerts.recall_timer, 0) << "nothing stands";
    // twelve cautions, an advisory, a warning and a memo
    Apply(host,
          "pack_l_button 0, pack_r_button 0, power_level 0, irs_left 0, irs_right 0, terrain_state 3, "
          "tz_altitude_alert 1, ap_envelope_prot 1, oat_c 0, rat_unlocked 1, eng1_fire 1, spoilers_armed 1");
    Pass(30);
    ASSERT_EQ(alerts.caution_count, 12);
    EXPECT_EQ(alerts.unseen_cautions, 12);
    ASSERT_EQ(alerts.unseen_advisories, 1);
    CancelRecall();
    EXPECT_EQ(alerts.unseen_cautions, 1);
    EXPECT_EQ(alerts.unseen_advisories, 1);
    for (int i = 1; i <= 12; ++i) EXPECT_EQ(alerts.caution_list[i].cancelled, i <= 11 ? 1 : 0);
    CancelRecall();
    EXPECT_EQ(alerts.unseen_cautions + alerts.unseen_advisories, 0);
    EXPECT_EQ(alerts.recall_timer, 0);
    EXPECT_EQ(alerts.warning_list[1].cancelled + alerts.memo_list[1].cancelled, 0);
    // a newcomer stands above, what goes closes the gap, and the others keep their flags
    Apply(host, "apu_gen_button 0, left_fuel 3000, right_fuel 3000");
    Pass(3);
    EXPECT_EQ(alerts.caution_list[1].text, "FUEL QTY LOW");
    EXPECT_EQ(alerts.unseen_cautions, 1);
    EXPECT_EQ(alerts.unseen_advisories, 2);
    Apply(host, "left_fuel 20000, right_fuel 20000");
    Pass(1);
    EXPECT_EQ(alerts.caution_count, 12);
    EXPECT_EQ(alerts.unseen_cautions, 0);
    CancelRecall();
    CancelRecall();
    EXPECT_EQ(alerts.recall_timer, 3);
    EXPECT_EQ(alerts.unseen_cautions, 12);
    EXPECT_EQ(alerts.unseen_advisories, 3);
    for (int second = 0; second < 5; ++second) CountRecall();
    EXPECT_EQ(alerts.recall_timer, 0);
}

TEST(Alerting, MasterCautionFollowsTheCautions) {
    FakeHost host;
    double &left = host.NamedVar("TZ_MCP_Annun_CAUT"), &right = host.NamedVar("TZ_MCP_AnnunR_CAUT");
    const auto lit = [&](const char* changes) {
        Apply(host, changes);
        ShowMasterCaution();
        EXPECT_EQ(left, right) << changes;
        EXPECT_EQ(left, alerts.caution_light_on) << changes;
        return left == 1;
    };
    Apply(host, kQuiet);
    EXPECT_FALSE(lit(""));
    Apply(host, "terrain_state 3");
    Pass(1);
    EXPECT_FALSE(lit("n2_l 61.9, n2_r 0"));
    EXPECT_FALSE(lit("n2_r 62, power_level 4"));
    EXPECT_TRUE(lit("power_level 5"));
    EXPECT_TRUE(lit("n2_l 0, n2_r 0, power_level 0")) << "once lit it stays";
    MasterWarningReset();
    EXPECT_EQ(left + right, 0);
    EXPECT_FALSE(lit("n2_l 80, power_level 1000"));
    Apply(host, "tz_altitude_alert 1");
    Pass(1);
    EXPECT_TRUE(lit("")) << "a new caution";
    Apply(host, "tz_altitude_alert 0, terrain_state 0");
    Pass(2);
    EXPECT_FALSE(lit(""));
}

TEST(Alerting, MasterCautionKnowsTheEngines) {
    FakeHost host;
    Apply(host, std::string(kQuiet) + ", caution_count 1, n2_l 52, n2_r 0");
    ShowMasterCaution();
    EXPECT_EQ(cockpit.TZ_MCP_Annun_CAUT, 0);
    identity.engine_model = "TRENT 1000";
    ShowMasterCaution();
    EXPECT_EQ(cockpit.TZ_MCP_Annun_CAUT, 1);
}

TEST(Alerting, ResetPutsEveryLampOut) {
    FakeHost host;
    host.NamedVar("TZ_MCP_R_WARNING_Button") = 1;
    Apply(host,
          "TZ_MCP_Annun_WARN 1, TZ_MCP_AnnunR_WARN 1, TZ_MCP_AnnunR_CAUT 1, caution_light_on 1, "
          "beeper_running 1");
    MasterWarningReset();
    EXPECT_EQ(cockpit.TZ_MCP_Annun_WARN + cockpit.TZ_MCP_AnnunR_WARN + cockpit.TZ_MCP_AnnunR_CAUT, 0);
    EXPECT_EQ(alerts.caution_light_cancelled, 1);
    EXPECT_EQ(alerts.caution_light_on + sound.beeper_running, 0);
    EXPECT_EQ(host.NamedVar("TZ_MCP_R_WARNING_Button"), 0);
    Apply(host, "caution_light_cancelled 0");
    MasterWarningReset();
    EXPECT_EQ(alerts.caution_light_cancelled, 0) << "no caution lamp was lit";
}

TEST(Alerting, DisconnectsHaveAnAftermath) {
    const struct {
        const char* changes;
        int pfc_switch;
    } kCases[] = {
        {"", 7},
        {"DiscPFCOnAPDisc 0", 4},
        {"TZ_OH_PFC_Safety_Switch 0", 4},
        {"TZ_MCP_AP_DISENGAGE_Bar 1", 4},
        {"PfcSwitch 5", 5},
    };
    for (const auto& row : kCases) {
        FakeHost host;
        Apply(host, kQuiet);
        Apply(host,
              "PfcSwitch 4, TZ_OH_PFC_G_Switch 1, DiscPFCOnAPDisc 1, TZ_OH_PFC_Safety_Switch 1, "
              "ap_disc_warning 1");
        Apply(host, row.changes);
        Pass(2);
        EXPECT_NE(cfg.PfcSwitch, 7);
        Apply(host, "ap_disc_warning 0");
        Pass(5);
        EXPECT_EQ(cfg.PfcSwitch, row.pfc_switch) << row.changes;
        EXPECT_EQ(cockpit.TZ_OH_PFC_G_Switch, row.pfc_switch == 7 ? 0 : 1) << row.changes;
    }
    FakeHost host;
    Apply(host, kQuiet);
    Apply(host, "at_disc 1, TZ_MCP_Annun_CAUT 1, TZ_MCP_AnnunR_CAUT 1");
    Pass(2);
    ClearDisconnectCaution();
    EXPECT_EQ(cockpit.TZ_MCP_Annun_CAUT, 1) << "it still stands";
    Apply(host, "at_disc 0");
    Pass(1);
    ClearDisconnectCaution();
    EXPECT_EQ(cockpit.TZ_MCP_Annun_CAUT, 0);
    EXPECT_EQ(cockpit.TZ_MCP_AnnunR_CAUT, 1) << "the captain's alone";
    Apply(host, "TZ_MCP_Annun_CAUT 1");
    ClearDisconnectCaution();
    EXPECT_EQ(cockpit.TZ_MCP_Annun_CAUT, 1) << "once";
}

TEST(Alerting, KnowsWhereTheHeadingLeads) {
    const struct {
        double heading, course, to_fix;
        int off;
    } kCases[] = {
        {10, 0, 0, 0},     {90, 0, 30, 0},     {91, 0, 30, 1},     {271, 0, 359, 0},  {269, 0, 359, 1},
        {80, 60, 171, 1},  {80, 60, 170, 1},   {80, 61, 170, 0},   {80, 61, 60, 0},   {80, 40, 60, 0},
        {350, 10, 330, 1}, {350, 9.9, 330, 0}, {350, 350, 300, 0}, {350, 40, 350, 0},
    };
    for (const auto& row : kCases) {
        FakeHost host;
        Apply(host, "stpos 1");
        lnav.course_here = row.course;
        lnav.wpt_brg = row.to_fix;
        sim.mag_hdg = row.heading;
        ComputeAlertInputs();
        EXPECT_EQ(alerts.hdg_off_track, row.off) << row.heading << ' ' << row.course << ' ' << row.to_fix;
        Apply(host, "stpos 999");
        ComputeAlertInputs();
        EXPECT_EQ(alerts.hdg_off_track, 0) << "no plan";
    }
}

TEST(Alerting, ArmsTheGearWarningByTheFlight) {
    FakeHost host;
    const struct {
        const char* changes;
        int armed;
    } kSteps[] = {
        {"gear_config_armed 2, on_ground 1, flight_time_base 100, abs_time 115", 2},
        {"abs_time 115.5", 0},
        {"on_ground 0, radio_alt_ft 29, vs_fpm 1000", 0},
        {"radio_alt_ft 30, vs_fpm 300", 0},
        {"vs_fpm 301", 1},
        {"radio_alt_ft 1500, vs_fpm -700", 1},
        {"radio_alt_ft 1501, flap_angle 49.5", 1},
        {"flap_angle 49.4", 2},
        {"radio_alt_ft 1000, vs_fpm -700, flap_angle 52", 2},
        {"vs_fpm 2000", 1},
        {"on_ground 1, radio_alt_ft 0", 0},
    };
    for (const auto& step : kSteps) {
        Apply(host, step.changes);
        ArmGearWarning();
        EXPECT_EQ(alerts.gear_config_armed, step.armed) << step.changes;
    }
}

// Every control, value and flag that the rules look at, thrown at random, no numbers among them.
TEST(Alerting, ListsAndFlagsAgreeWhateverHappens) {
    FakeHost host;
    Apply(host, kQuiet);
    std::set<std::string> names;
    for (const AlertCase& row : kAlertCases)
        for (const char* changes : {row.comes, row.goes})
            for (const std::string& alternative : Split(changes, '|'))
                for (const std::string& change : Split(alternative, ','))
                    if (const std::size_t blank = change.rfind(' '); blank != std::string::npos &&
                                                                     !change.starts_with("posted") &&
                                                                     !change.starts_with("aircraft"))
                        names.insert(change.substr(0, blank));
    const std::vector<std::string> all(names.begin(), names.end());
    const std::vector<std::string> values = {"0",  "1",  "2",  "3",    "7",    "-1",
                                             "18", "30", "55", "3999", "5000", "20000"};
    const double kNoNumbers[] = {std::nan(""), std::numeric_limits<double>::infinity(), -1};
    std::mt19937 random(15);
    const auto pick = [&](std::size_t count) { return random() % count; };
    const auto agree = [] {
        std::set<std::string> listed;
        int unseen[2] = {0, 0};
        int records = 0, count = 0;
        for (const int first_id : {1, 20, 61, 200}) {
            const GrowingList<AlertRecord>& list = ListOfId(first_id, count);
            for (int i = 1; i <= count; ++i, ++records) {
                listed.insert(list[i].text);
                if (first_id == 20) unseen[0] += list[i].cancelled == 0;
                if (first_id == 61) unseen[1] += list[i].cancelled == 0;
            }
        }
        std::set<std::string> posted;
        for (const AlertRow& row : AlertCatalogue())
            if (IsPosted(row.id)) posted.insert(std::string(row.text));
        return listed == posted && records == static_cast<int>(listed.size()) &&
               unseen[0] == alerts.unseen_cautions && unseen[1] == alerts.unseen_advisories;
    };
    for (int round = 0; round < 2000; ++round) {
        const std::string& name = all[pick(all.size())];
        Apply(host, name + " " + values[pick(values.size())]);
        if (round % 5 == 0) {
            double* const kReals[] = {&sim.n1_l,         &sim.left_fuel,    &sim.ias_kt,
                                      &sim.radio_alt_ft, &sim.flap_angle,   &sim.oat_c,
                                      &sim.mag_hdg,      &lnav.course_here, &host.NamedVar("at_disc")};
            *kReals[pick(std::size(kReals))] = kNoNumbers[pick(3)];
        }
        if (round % 50 == 0) CancelRecall();
        Pass(1);
        ASSERT_TRUE(agree()) << "after " << name << " in round " << round;
    }
    Story();
    Story();
    EXPECT_EQ(Story(), "") << "nothing comes and goes for ever";
}

}  // namespace
