#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "frame/tokens.h"
#include "module/controls/control_table.h"
#include "module/controls/operate.h"
#include "module/gauge_table.h"
#include "platform/panel_gauges.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/displays.h"
#include "state/sound.h"
#include "state/variable_directory.h"
#include "support/fake_host.h"

namespace {

int ValueOf(std::string_view name) {
    return std::stoi(FormatValue(*FindVariable(name)));
}

void SetValue(std::string_view name, int value) {
    ASSERT_TRUE(StoreValue(*FindVariable(name), std::to_string(value))) << name;
}

void PollAllPhases() {
    for (int phase = 0; phase < 18; ++phase) PollControls(phase);
}

constexpr NamedVarRef RowOf(std::string_view name) {
    for (int row = 0; row < kNamedVariableCount; ++row)
        if (kNamedVariables[static_cast<std::size_t>(row)].name == name) return {row};
    return {-1};
}

struct Move {
    const char *variable, *shadow;
    int position;                 // of the shadow before
    double model;                 // what the model writes
    int becomes, cue;             // of shadow and variable; 0 = silent
    const char* guard = nullptr;  // shadow of a guard that is open
};

constexpr Move kMoves[] = {
    // latching: toggles, whatever the model writes
    {"TZ_OH_LPUMP_FWD_Button", "fuelpump_l_fwd_button", 0, 1, 1, 3},
    {"TZ_OH_LPUMP_FWD_Button", "fuelpump_l_fwd_button", 1, 0, 0, 3},
    {"TZ_OH_LPUMP_FWD_Button", "fuelpump_l_fwd_button", 1, 7, 0, 3},
    {"TZ_OH_LPUMP_FWD_Button", "fuelpump_l_fwd_button", 1, 1, 1, 0},
    // a switch goes one position the way it is moved, and stops at its ends
    {"TZ_OH_ELEC_L_Switch", "hydr_l_elec_demand_knob", 0, 1, 1, 2},
    {"TZ_OH_ELEC_L_Switch", "hydr_l_elec_demand_knob", 0, 2, 1, 2},
    {"TZ_OH_ELEC_L_Switch", "hydr_l_elec_demand_knob", 2, 0, 1, 2},
    {"TZ_OH_ELEC_L_Switch", "hydr_l_elec_demand_knob", 2, 3, 2, 0},
    {"TZ_OH_ELEC_L_Switch", "hydr_l_elec_demand_knob", 0, -1, 0, 0},
    {"TZ_OH_FLTDK_Temp_Switch", "TZ_OH_FLTDK_Temp_Switch", 5, 6, 6, 2},
    {"TZ_OH_FLTDK_Temp_Switch", "TZ_OH_FLTDK_Temp_Switch", 6, 7, 6, 0},
    {"TZ_OH_ENG_L_START_Switch", "TZ_OH_ENG_L_START_Switch", 0, 1, 1, 2},
    {"TZ_OH_SEATB_SIGN_Switch", "seatbelts_switch", 1, 2, 2, 4},
    // two-state knob
    {"TZ_OH_IRS_LEFT_Switch", "irs_left_knob", 0, 1, 1, 2},
    // a guard opens and shuts, a cover with sounds of its own
    {"TZ_OH_GEN_L1_Guard_Switch", "TZ_OH_GEN_L1_Guard_Switch", 0, 1, 1, 16},
    {"TZ_OH_GEN_L1_Guard_Switch", "TZ_OH_GEN_L1_Guard_Switch", 1, 0, 0, 17},
    {"TZ_OH_EMER_LTS_Safety_Switch", "emerg_lights_switch_guard", 0, 1, 1, 18},
    {"TZ_OH_EMER_LTS_Safety_Switch", "emerg_lights_switch_guard", 1, 0, 0, 19},
    // under a shut guard nothing moves, and the model is put back
    {"TZ_OH_DRVDISC_L1_Button", "drive_disc_l1", 0, 1, 0, 0},
    {"TZ_OH_EMER_LTS_Switch", "emerg_lights_switch", 3, 1, 3, 0},
    {"TZ_OH_ECC_L_Button", "TZ_OH_ECC_L_Button", 1, 0, 1, 0},
    {"TZ_OH_AC_VENT_Button", "ventilation_button", 0, 1, 0, 0},
    {"TZ_OH_ECC_L_Button", "TZ_OH_ECC_L_Button", 1, 0, 0, 3, "TZ_OH_ECC_L_Guard_Switch"},
    {"TZ_OH_EMER_LTS_Switch", "emerg_lights_switch", 3, 1, 2, 2, "emerg_lights_switch_guard"},
    // one way: in once, in for good
    {"TZ_OH_DRVDISC_L1_Button", "drive_disc_l1", 0, 1, 1, 3, "TZ_OH_GEN_L1_Guard_Switch"},
    {"TZ_OH_DRVDISC_L1_Button", "drive_disc_l1", 1, 0, 1, 0, "TZ_OH_GEN_L1_Guard_Switch"},
    {"TZ_OH_HYD_RAT_Button", "rat_unlocked", 0, 1, 1, 3, "TZ_OH_RAT_Guard_Switch"},
    {"TZ_OH_PASS_OXY1_Button", "pass_oxygen_on", 1, 0, 1, 0, "TZ_OH_PASSOXY_Guard_Switch"},
    {"TZ_OH_CFA_DISCH_Button", "TZ_OH_CFA_DISCH_Button", 0, 1, 1, 3, "TZ_OH_DISCH_Guard_Switch"},
    // the model's own position is copied as it stands
    {"TZ_OH_APU_FIRE_HNDL", "TZ_OH_APU_FIRE_HNDL", 0, 2, 2, 0},
    {"auto_brake_switch", "autobrake_switch", 0, -1, -1, 0},
};

TEST(Controls, MoveByTheirClass) {
    for (const Move& row : kMoves) {
        FakeHost host;
        SetValue(row.shadow, row.position);
        if (row.guard != nullptr) SetValue(row.guard, 1);
        host.NamedVar(row.variable) = row.model;
        PollAllPhases();
        const std::string told = std::string(row.variable) + " from " + std::to_string(row.position) +
                                 " to " + std::to_string(row.model);
        EXPECT_EQ(ValueOf(row.shadow), row.becomes) << told;
        EXPECT_EQ(host.NamedVar(row.variable), row.becomes) << told;
        EXPECT_EQ(sound.event_cue, row.cue) << told;
    }
}

TEST(Controls, TheMouseDoesWhatTheModelDoes) {
    constexpr auto kLeft = kMouseLeftSingle, kRight = kMouseRightSingle;
    const struct {
        const char *variable, *shadow;
        int position;
        std::uint32_t button;
        int becomes;
    } kCases[] = {
        {"TZ_OH_LPUMP_FWD_Button", "fuelpump_l_fwd_button", 0, kLeft, 1},
        {"TZ_OH_LPUMP_FWD_Button", "fuelpump_l_fwd_button", 1, kRight, 0},
        {"TZ_OH_ELEC_L_Switch", "hydr_l_elec_demand_knob", 1, kRight, 2},
        {"TZ_OH_ELEC_L_Switch", "hydr_l_elec_demand_knob", 2, kRight, 2},
        {"TZ_OH_ELEC_L_Switch", "hydr_l_elec_demand_knob", 1, kLeft, 0},
        {"TZ_MAIN_PFD_MFD_L_Switch", "TZ_MAIN_PFD_MFD_L_Switch", 0, kLeft, -1},
        {"TZ_OH_GEN_L1_Guard_Switch", "TZ_OH_GEN_L1_Guard_Switch", 0, kRight, 1},
        {"TZ_OH_DRVDISC_L1_Button", "drive_disc_l1", 0, kLeft, 0},
        {"TZ_OH_DRVDISC_L1_Button", "TZ_OH_GEN_L1_Guard_Switch", 0, kRight, 1},  // opens the guard over it
        {"TZ_MCP_L_SEL_RB_Knob", "TZ_MCP_L_SEL_RB_Knob", 18, kRight, 0},
        {"TZ_MCP_L_SEL_RB_Knob", "TZ_MCP_L_SEL_RB_Knob", 0, kLeft, 18},
        {"auto_brake_switch", "autobrake_switch", 0, kRight, 0},
    };
    for (const auto& row : kCases) {
        FakeHost host;
        SetValue(row.shadow, row.position);
        host.NamedVar(row.variable) = row.position;
        const Control* control = FindControl(RowOf(row.variable));
        ASSERT_NE(control, nullptr) << row.variable;
        ClickControl(*control, row.button);
        EXPECT_EQ(ValueOf(row.shadow), row.becomes) << row.variable;
        if (control->shadow == FindVariable(row.shadow)->address) {
            EXPECT_EQ(host.NamedVar(row.variable), row.becomes) << row.variable;
        }
    }
}

TEST(Controls, RotariesTurnBeyondTheirEnds) {
    // from the top to 0 is one step up, and one step down the other way
    const struct {
        int from, to, minimums;
    } kCases[] = {{3, 4, 210}, {4, 3, 190}, {18, 0, 210}, {0, 18, 190}, {2, 9, 210}, {17, 0, 190}};
    for (const auto& row : kCases) {
        FakeHost host;
        cockpit.TZ_MCP_L_SEL_RB_Knob = row.from;
        host.NamedVar("TZ_MCP_L_SEL_RB_Knob") = row.to;
        PollControls(0);
        PollControls(0);  // the same position is no further turn
        EXPECT_EQ(ValueOf("minimums_value"), row.minimums) << row.from << " to " << row.to;
        EXPECT_EQ(cockpit.TZ_MCP_L_SEL_RB_Knob, row.to);
    }
}

TEST(Controls, MomentaryKeysActOnceAndSpringBack) {
    FakeHost host;
    host.NamedVar("TZ_FMC_R_A_Button") = 1;
    host.NamedVar("TZ_MCP_L_BRST_STD_Button") = 1;
    PollAllPhases();
    PollAllPhases();
    EXPECT_EQ(FormatValue(*FindVariable("fo.ScratchPad")), "A");
    EXPECT_EQ(host.NamedVar("TZ_FMC_R_A_Button"), 0);
    EXPECT_EQ(host.NamedVar("TZ_MCP_L_BRST_STD_Button"), 0);
    EXPECT_EQ(sound.event_cue, 14);
    ASSERT_EQ(host.events.size(), 1u);
    EXPECT_EQ(host.events[0].first, 0x101f8);
}

TEST(Controls, TwoButtonsOfOneFunctionGoTogether) {
    FakeHost host;
    host.NamedVar("TZ_OH_APU_GEN_LEFT_Button") = 0;
    host.NamedVar("TZ_OH_APU_GEN_RIGHT_Button") = 1;
    PollAllPhases();
    EXPECT_EQ(cockpit.apu_gen_button, 1);
    EXPECT_EQ(host.NamedVar("TZ_OH_APU_GEN_LEFT_Button"), 1);
}

TEST(Controls, AVariableThatTheHostLacksMovesNothing) {
    FakeHost host;
    cockpit.emerg_lights_switch = cockpit.emerg_lights_switch_guard = 1;  // as a panel state has left them
    PollAllPhases();
    EXPECT_EQ(cockpit.emerg_lights_switch, 1);
    EXPECT_EQ(ValueOf("du_capt_rng_knob"), 6);
}

TEST(Controls, EachSetIsPolledInItsPhases) {
    const struct {
        const char* variable;
        std::set<int> phases;
    } kCases[] = {
        {"TZ_OH_HDG_REF_Button", {0, 4, 8, 12}},      {"TZ_OH_L_WIPER_Switch", {0, 4, 8, 12}},
        {"TZ_OH_TOWER_PWR_Button", {1, 5, 9, 13}},    {"TZ_OH_TEXT", {1, 5, 9, 13}},
        {"TZ_OH_FIRE_OHTEST_Button", {2, 6, 10, 14}}, {"TZ_OH_Humid_Button", {2, 6, 10, 14}},
        {"TZ_OH_FWDCARGO_AC_Button", {3, 7, 11, 15}}, {"TZ_EFB_R_XFR_Button", {3, 7, 11, 15}},
        {"TZ_AFT_FD_DOOR_Switch", {4, 8, 12, 16}},    {"TZ_MCP_L_RANGE_Knob", {5, 9, 13, 17}},
        {"TZ_FMC_R_SYS_Button", {5, 9, 13, 17}},      {"TZ_MCP_L_BRST_STD_Button", {5, 9, 13, 17}},
        {"ext_power_avail", {0, 6, 10, 14}},          {"TZ_EFB_L_DSPL_Button", {0, 6, 10, 14}},
    };
    std::set<int> all;
    for (int phase = 0; phase < 18; ++phase) all.insert(phase);
    const auto phases_of = [](const char* variable) {
        std::set<int> seen;
        for (int phase = 0; phase < 18; ++phase) {
            FakeHost host;
            host.NamedVar(variable) = 9;
            PollControls(phase);
            if (host.NamedVar(variable) != 9) seen.insert(phase);
        }
        return seen;
    };
    for (const auto& row : kCases) EXPECT_EQ(phases_of(row.variable), row.phases) << row.variable;
    for (const char* variable : {"TZ_MCP_L_ACPT_Button", "TZ_MCP_Clock_R_Button", "ALT_INTV_knob",
                                 "TZ_FMC_L_0_Button", "TZ_FMC_R_EXEC_Button", "TZ_CAPT_CDU_KEYPRESS"})
        EXPECT_EQ(phases_of(variable), all) << variable;
}

TEST(Controls, EveryNameThatACrewMovesIsAControl) {
    // what the autopilot's logic, and not this system, takes
    const std::set<std::string_view> kOthers = {"TZ_MCP_L_AP_Button", "TZ_AP_DISENGAGE_Switch_Right"};
    std::set<int> rows;
    for (const PollSet& set : PollSets())
        for (const Control& control : set.controls) {
            EXPECT_TRUE(rows.insert(control.variable.row).second)
                << NameOf(control.variable) << " stands twice";
            if (control.guard == kNoVariable) continue;
            const Control* guard = FindControl(control.guard);
            ASSERT_NE(guard, nullptr) << NameOf(control.guard);
            EXPECT_EQ(guard->kind, ControlClass::kGuard) << NameOf(control.guard);
        }
    for (int row = 0; row < kNamedVariableCount; ++row) {
        const std::string_view name = NameOf({row});
        const bool moved = name.starts_with("TZ_") &&
                           (name.ends_with("_Button") || name.ends_with("_Switch") ||
                            name.ends_with("_Knob") || name.ends_with("_KEYPRESS") || name.ends_with("HNDL"));
        if (moved && !kOthers.contains(name)) {
            EXPECT_TRUE(rows.contains(row)) << name;
        }
    }
}

TEST(Controls, FollowersActOnTheHost) {
    const struct {
        const char* variable;
        double model;
        std::map<int, double> tokens;
        int event, value;  // 0 = none
    } kCases[] = {
        {"TZ_OH_LT_BEACON_Button", 1, {}, 0x102bf, 0},
        {"TZ_OH_LT_BEACON_Button", 1, {{368, 1}}, 0, 0},  // the host's light burns already
        {"TZ_OH_LT_STROBE_Switch", 1, {}, 0x10018, 0},
        {"TZ_OH_LT_NAV_Button", 1, {}, 0x1034b, 1},
        {"TZ_OH_LT_LOGO_Button", 1, {}, 0x10348, 1},
        {"TZ_OH_LT_WING_Button", 1, {}, 0x1034a, 1},
        {"TZ_OH_LT_TAXI_Switch", 1, {}, 0x102c0, 1},
        {"TZ_OH_LDG_NSE_Switch", 1, {}, 0x1020b, 0},
        {"TZ_AFT_ENG1_FIRE_HNDL", 1, {{560, 1}}, 0x101c3, 0},
        {"TZ_AFT_ENG1_FIRE_HNDL", 1, {{570, 1}}, 0, 0},
        {"TZ_AFT_ENG2_FIRE_HNDL", 1, {{570, 1}}, 0x101c8, 0},
        {"TZ_MCP_R_BAROSET_Knob", 1, {}, 0x1015b, 0},
        {"TZ_MCP_R_BAROSET_Knob", 18, {}, 0x1015c, 0},
    };
    for (const auto& row : kCases) {
        FakeHost host;
        host.tokens.insert(row.tokens.begin(), row.tokens.end());
        host.NamedVar(row.variable) = row.model;
        for (const int phase : {2, 5}) {
            PollControls(phase);
        }
        ASSERT_EQ(host.events.size(), row.event == 0 ? 0u : 1u) << row.variable;
        if (row.event != 0) {
            EXPECT_EQ(host.events[0], std::pair(row.event, row.value)) << row.variable;
        }
    }
}

TEST(Controls, FlightComputerSwitchWorksUnderItsGuard) {
    FakeHost host;
    host.NamedVar("TZ_OH_PFC_Safety_Switch") = 1;
    host.NamedVar("TZ_OH_PFC_G_Switch") = 1;  // seen in the same poll as its guard
    PollAllPhases();
    EXPECT_EQ(cfg.PfcSwitch, 4);
    host.NamedVar("TZ_OH_PFC_G_Switch") = 0;
    PollAllPhases();
    EXPECT_EQ(cfg.PfcSwitch, 7);
}

const GaugeHeader* GaugeNamed(std::string_view name) {
    for (const GaugeHeader& gauge : Gauges())
        if (gauge.name == name) return &gauge;
    return nullptr;
}

void Press(GaugeInstance& instance, std::string_view area, std::uint32_t flags = kMouseLeftSingle) {
    for (int i = 0; i < instance.gauge->mouse_count; ++i) {
        const MouseRectangle& rectangle = instance.gauge->mouse[i];
        if (rectangle.name != area) continue;
        EXPECT_EQ(rectangle.callback(&instance, flags), 0);
        return;
    }
    FAIL() << instance.gauge->name << " has no area " << area;
}

TEST(MouseGauges, AreasEndInTheHandlers) {
    const struct {
        const char *gauge, *area, *state;
        int before, becomes;
        std::uint32_t flags = kMouseLeftSingle;
    } kCases[] = {
        {"OVERHEAD", "TZ_OH_LPUMP_FWD_Button", "fuelpump_l_fwd_button", 0, 1},
        {"OVERHEAD", "TZ_OH_HYD_RAT_Button", "TZ_OH_RAT_Guard_Switch", 0, 1, kMouseRightSingle},
        {"DSP_CAPT", "TZ_MCP_L_CDU_Button", "du_capt_inb_mode", 45, 6},
        {"DSP_FO", "TZ_MCP_R_MFD_R_Button", "dsp_fo_mode_button", 1, 2},
        {"MFK_CAPT", "TZ_FMC_L_ND_Button", "du_lower_mode", 3, 42},
        {"MFK_FO", "TZ_FMC_R_NXTPG_Button", "fo.NextPagePending", 0, 1},
        {"ENG_START", "TZ_OH_ENG_L_START_Switch", "TZ_OH_ENG_L_START_Switch", 1, 0},
        {"ENG_START", "fuel control 2", "eng2_thrott", 2, 1},
        {"CAPT_DU_MODE", "TZ_MAIN_PFD_MFD_L_Switch", "TZ_MAIN_PFD_MFD_L_Switch", 0, 1, kMouseRightSingle},
        {"GEAR_AUTOBRAKE", "autobrake", "autobrake_switch", 0, -1},
        {"GEAR_AUTOBRAKE", "autobrake", "autobrake_switch", 6, 6, kMouseRightSingle},
        {"CAPT_CLOCK_BUTTON", "TZ_MCP_Clock_L_Button", "et_clock_running", 0, 1},
        {"CAPT_CANC_RECALL_BUTTON", "TZ_MCP_L_CANRCL_Button", "unseen_cautions", 1, 0},
        {"WXR_BUTTON", "TZ_MCP_L_WXR_Button", "capt.nd_wxr", 0, 2},
        {"WXR_BUTTON", "TZ_MCP_L_WXR_Button", "capt.nd_terr", 1, 0},
        {"TERR_BUTTON", "TZ_MCP_L_TERR_Button", "capt.nd_wxr", 1, 0},
        {"TFC_BUTTON", "TZ_MCP_L_TFC_Button", "capt.nd_tfc", 2, 0},
        {"CAPT_EFB_MC", "TZ_EFB_L_R8_Button", "capt.EfbPendingKey", 0, 16},
        {"FO_EFB", "TZ_EFB_R_MENU_Button", "fo.EfbPendingKey", 0, 17},
    };
    for (const auto& row : kCases) {
        FakeHost host;
        SetValue(row.state, row.before);
        GaugeInstance instance{GaugeNamed(row.gauge), "", nullptr};
        ASSERT_NE(instance.gauge, nullptr) << row.gauge;
        Press(instance, row.area, row.flags);
        EXPECT_EQ(ValueOf(row.state), row.becomes) << row.gauge << ' ' << row.area;
    }
    FakeHost host;
    GaugeInstance strip{GaugeNamed("WINTOG"), "", nullptr};
    Press(strip, "window 3");
    EXPECT_EQ(host.windows[3], 1);
}

TEST(MouseGauges, OverheadShowsWhatStandsSet) {
    FakeHost host;
    std::array<GaugeElement, 400> chain = {};
    for (std::size_t i = 0; i + 1 < chain.size(); ++i) chain[i].next = &chain[i + 1];
    GaugeInstance overhead{GaugeNamed("OVERHEAD"), "", nullptr, chain.data()};
    const auto shown = [&](int service) {
        overhead.gauge->service(&overhead, service);
        std::set<int> places;
        for (std::size_t i = 0; i < chain.size(); ++i)
            if ((chain[i].flags & kElementHidden) == 0) places.insert(static_cast<int>(i));
        return places;
    };
    EXPECT_EQ(shown(kServicePreUpdate).size(), chain.size()) << "only pre-draw shows and hides";
    const std::set<int> dark = shown(kServicePreDraw);
    EXPECT_FALSE(dark.contains(0));
    cockpit.TZ_OH_HDG_REF_Button = 1;  // the first of the poll
    EXPECT_TRUE(shown(kServicePreDraw).contains(0));
    cockpit.apu_switch = 1;
    const std::set<int> on = shown(kServicePreDraw);
    cockpit.apu_switch = 2;
    const std::set<int> start = shown(kServicePreDraw);
    EXPECT_EQ(on.size(), start.size()) << "one picture for each position";
    EXPECT_NE(on, start);
    host.NamedVar("TZ_OH_Annun_ACVENT_ALTN") = 1;  // the first lamp, behind all controls
    EXPECT_EQ(shown(kServicePreDraw).size(), start.size() + 1);
}

}  // namespace
