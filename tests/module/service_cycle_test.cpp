// The module's frame as the host drives it: start-up, the update cycle, teardown.

#include <gtest/gtest.h>

#include "frame/lamps.h"
#include "frame/tokens.h"
#include "module/gauge_table.h"
#include "module/lifecycle.h"
#include "state/autoflight.h"
#include "state/cdu.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/displays.h"
#include "state/electrical.h"
#include "state/host_link.h"
#include "state/identity.h"
#include "state/irs.h"
#include "state/module_life.h"
#include "state/plan.h"
#include "state/predictions.h"
#include "state/sim.h"
#include "state/takeoff_approach.h"
#include "state/time_base.h"
#include "state/vnav.h"
#include "state/weights.h"
#include "support/fake_host.h"

namespace {

using Events = std::vector<std::pair<int, int>>;

/// A host that has the module loaded and drives its SERVER gauge.
class Simulator {
  public:
    Simulator() {
        host.tokens[kTokenTick18] = 1000;
        host.tokens[kTokenAbsoluteTime] = 5e10;
        host.calc_texts["(A:TITLE,string)"] = "TZ900-9 GE House";
        host.calc_numbers["(A:DECISION HEIGHT,FEET)"] = 200;
        host.PutFile("SimObjects/Airplanes/TZ900/Aircraft.cfg",
                     "[fltsim.0]\ntitle=TZ900-9 GE House\nsim=TZ900-9\nmodel=ge\n");
        host.PutFile("Prepar3D.exe", "");
    }
    ~Simulator() { ModuleDeinit(); }

    void Serve(int service) { ServerCallback(&instance, service); }
    void Start() {
        ModuleInit();
        for (const int service : {2, 3, 4, 5, 14, 6}) Serve(service);
    }
    void Tick(int count = 1) {
        for (; count > 0; --count) {
            host.tokens[kTokenTick18] += 1;
            host.tokens[kTokenAbsoluteTime] += 1 / 18.0;
            Serve(kServicePreUpdate);
        }
    }
    void Run(double seconds) { Tick(static_cast<int>(seconds * 18)); }
    void PausedFrame() { Serve(kServicePreUpdate); }

    FakeHost host;
    GaugeInstance instance = {&Gauges()[0], "", nullptr};
};

TEST(GaugeTable, Has41GaugesInOrder) {
    const auto gauges = Gauges();
    ASSERT_EQ(gauges.size(), 41u);
    const std::pair<int, const char*> kPlaces[] = {
        {0, "SERVER"},          {8, "DU_CAPT_INB_PW"},  {16, "DU_LOWER_PW"},
        {17, "OVERHEAD"},       {24, "CAPT_EFB_PW"},    {30, "HUD"},
        {33, "GEAR_AUTOBRAKE"}, {37, "GEAR_AUTOBRAKE"}, {40, "TERR_BUTTON"}};
    for (const auto& [place, name] : kPlaces)
        EXPECT_STREQ(gauges[static_cast<std::size_t>(place)].name, name);
    int painted = 0;
    for (const GaugeHeader& gauge : gauges) painted += gauge.version == 1000 ? 1 : 0;
    EXPECT_EQ(painted, 24);
}

TEST(GaugeTable, TheMcpHasItsMouseAreas) {
    Simulator sim_host;
    sim_host.Start();
    const GaugeHeader& mcp = Gauges()[31];
    ASSERT_STREQ(mcp.name, "MCP");
    const auto press = [&](std::string_view area) {
        for (int i = 0; i < mcp.mouse_count; ++i)
            if (mcp.mouse[i].name == area) return mcp.mouse[i].callback(nullptr, kMouseLeftSingle);
        return -1;
    };
    EXPECT_EQ(press("lnav"), 0);
    EXPECT_EQ(sim_host.host.NamedVar("ap_lat_mode_clicked"), 6);
    sim.ap_spdbug = 250;
    EXPECT_EQ(press("spd -10"), 0);
    EXPECT_EQ(sim_host.host.events, (Events{{0x101f5, 240}}));
    EXPECT_EQ(press("nothing"), -1);
}

TEST(ServiceCycle, BringUpReadsConfigurationAircraftAndHost) {
    Simulator sim_host;
    sim_host.host.PutFile("Velarion/tz900.cfg", "AccelHt=1200\n");
    sim_host.Start();
    EXPECT_EQ(sim_host.host.timer_period, 1);
    EXPECT_EQ(cfg.AccelHt, 1200);
    EXPECT_EQ(cfg.simver, 11);
    EXPECT_EQ(identity.aircraft, "tz900-9 ge house");
    EXPECT_EQ(identity.engine_model, "GENX-1B70");
    EXPECT_EQ(weights.flap_speeds[14].flaps30, 119);
    EXPECT_EQ(sim_host.host.key_hooks.size(), 1u);
    EXPECT_EQ(sim_host.host.registered_names.size(), 337u);
    EXPECT_EQ(time_base.flight_time_base, 5e10);
    for (const int service : {0, 1, 7, 16, -5}) sim_host.Serve(service);
}

TEST(ServiceCycle, PhasesWrapWithTheTickAndStandInPause) {
    Simulator sim_host;
    sim_host.Start();
    // The first pre-update finds a counter that differs from 0.
    EXPECT_EQ(time_base.tick_phase, 1);
    EXPECT_EQ(time_base.tick3s_phase, 1);
    sim_host.Tick(53);
    EXPECT_EQ(time_base.tick_phase, 0);
    EXPECT_EQ(time_base.tick2s_phase, 18);
    EXPECT_EQ(time_base.tick3s_phase, 54);
    sim_host.Tick();
    EXPECT_EQ(time_base.tick3s_phase, 1);
    for (int i = 0; i < 5; ++i) sim_host.PausedFrame();
    EXPECT_EQ(time_base.tick_phase, 1);
    sim_host.host.tokens[kTokenAbsoluteTime] += 8.1;
    sim_host.PausedFrame();
    EXPECT_EQ(time_base.frame_phase, 1);
    for (int i = 0; i < 17; ++i) sim_host.PausedFrame();
    EXPECT_EQ(time_base.frame_phase, 0);  // goes on in pause
    EXPECT_EQ(time_base.tick_phase, 1);
    EXPECT_EQ(time_base.startup_msg_ticks, 55);
}

TEST(ServiceCycle, DelayedStartShowsTheShadows) {
    Simulator sim_host;
    FakeHost& host = sim_host.host;
    host.tokens[kTokenEng1Combustion] = 1;
    host.tokens[kTokenNav1Freq] = 0x1190;
    host.NamedVar("TZ_OH_LDG_NSE_Switch") = 1;
    host.NamedVar("TZ_V_MO") = 360;
    host.NamedVar("TZ_MCP_Annun_WARN") = 1;
    sim_host.Start();
    cockpit.irs_left_knob = 1;
    sim_host.Run(3.9);
    EXPECT_EQ(module_life.startup_done, 0);
    EXPECT_EQ(host.NamedVar("TZ_OH_ELE_BAT_Button"), 0);
    sim_host.Run(0.3);
    EXPECT_EQ(module_life.startup_done, 1);
    EXPECT_EQ(host.NamedVar("TZ_OH_ELE_BAT_Button"), 1);
    EXPECT_EQ(host.NamedVar("TZ_OH_IRS_LEFT_Switch"), 1);
    EXPECT_EQ(host.NamedVar("TZ_OH_RECIRC_UPP_Button"), 1);
    EXPECT_EQ(host.NamedVar("TZ_OH_RECIRC_LOW_Button"), 1);
    EXPECT_EQ(host.NamedVar("TZ_MCP_Annun_WARN"), 0);
    EXPECT_EQ(cockpit.ovhd_nose_lights_switch, 1);  // the landing lights follow the model
    EXPECT_EQ(sim.v_mo_kt, 360);
    EXPECT_EQ(sim.nav1_freq, 11190);
    EXPECT_EQ(cockpit.eng1_thrott, 1);
    EXPECT_EQ(cockpit.eng2_thrott, 2);
    EXPECT_EQ(takeoff_approach.takeoff_flap_list, ",5,10,15,17,18,20,");
    EXPECT_EQ(irs.irs_timer_l, 180);
    EXPECT_EQ(irs.irs_timer_r, 0);
    sim_host.Run(20);
    EXPECT_EQ(irs.irs_left, 1);
    EXPECT_EQ(irs.irs_right, 0);
}

TEST(ServiceCycle, SystemsOnStartsTheSystems) {
    Simulator sim_host;
    sim_host.host.PutFile("Velarion/tz900.cfg", "SystemsOn=1\nBattery=0\n");
    sim_host.Start();
    sim_host.Run(4.2);
    EXPECT_EQ(cockpit.battery_button, 1);
    EXPECT_EQ(electrical.batt_volts, 28.0);
    EXPECT_EQ(sim_host.host.events, (Events{{0x102c1, 0}}));
    EXPECT_EQ(displays.du_cib_startup_cnt, 90);
    EXPECT_EQ(irs.irs_left, 1);
    EXPECT_EQ(irs.irs_right, 1);
}

TEST(ServiceCycle, StaleNavigationDataIsToldToBothCdus) {
    Simulator sim_host;
    sim_host.host.PutFile("Velarion/TZ900/Navdata/navs.txt", ";AIRAC 1801 JAN04FEB01/18\n");
    sim_host.Start();
    sim_host.Run(4.2);
    for (CduState& unit : cdu) {
        ASSERT_EQ(unit.CduMessageCount, 1);
        EXPECT_EQ(unit.CduMessages[1].title, "NAV DATA OUT OF DATE");
        EXPECT_EQ(unit.CduMessages[1].body, "CURRENT DATE NOT IN\nDATA BASE RANGE");
    }
}

TEST(ServiceCycle, OnlyOneCopyOfServerRunsTheOutputs) {
    Simulator sim_host;
    GaugeInstance vc_copy = {&Gauges()[0], "VC", nullptr};
    sim_host.Start();
    sim_host.Run(9);
    const int phase = time_base.frame_phase;
    sim_host.host.windows[0] = 1;
    ServerCallback(&vc_copy, kServicePreUpdate);
    EXPECT_EQ(time_base.frame_phase, phase);
    sim_host.host.windows[0] = 0;
    ServerCallback(&vc_copy, kServicePreUpdate);
    EXPECT_NE(time_base.frame_phase, phase);
    sim_host.host.windows[0] = sim_host.host.windows[37] = 1;
    sim_host.PausedFrame();
    EXPECT_EQ(sim_host.host.windows[0], 0);
}

TEST(ServiceCycle, GearLeverOfTheModelIsCheckedEveryTwoSeconds) {
    Simulator sim_host;
    sim_host.host.tokens[kTokenOnGround] = 1;
    sim_host.Start();
    sim_host.host.NamedVar("gearleverpos") = 1;
    sim_host.Run(2);
    EXPECT_EQ(sim_host.host.NamedVar("gearleverpos"), 0);
    EXPECT_EQ(sim_host.host.events, (Events{{0x10220, 0}}));
    while (time_base.tick2s_phase != 35) sim_host.Tick();
    sim_host.host.NamedVar("gearleverpos") = 1;
    sim_host.PausedFrame();
    EXPECT_EQ(sim_host.host.NamedVar("gearleverpos"), 1);
    sim_host.host.tokens[kTokenOnGround] = 0;
    sim_host.Run(3);
    EXPECT_EQ(sim_host.host.NamedVar("gearleverpos"), 1);
}

TEST(ServiceCycle, ALateTitleIsFound) {
    Simulator sim_host;
    sim_host.host.calc_texts["(A:TITLE,string)"] = "";
    sim_host.Start();
    sim_host.Tick(4);
    EXPECT_EQ(identity.aircraft_identified, 0);
    sim_host.host.calc_texts["(A:TITLE,string)"] = "TZ900-9 GE House";
    sim_host.Tick();
    EXPECT_EQ(identity.aircraft_identified, 1);
    EXPECT_EQ(identity.aircraft_model, "900-9");
}

TEST(ServiceCycle, AnUnknownTitleIsTriedTenTimes) {
    Simulator sim_host;
    sim_host.host.calc_texts["(A:TITLE,string)"] = "unknown";
    sim_host.Start();
    const int file_calls = sim_host.host.calls["root_folder"];
    sim_host.Tick(20);
    EXPECT_EQ(identity.identify_attempts, 10);
    EXPECT_EQ(sim_host.host.calls["root_folder"], file_calls);  // thousands of files are read once
}

TEST(ServiceCycle, ATitleThatTheHostFailsToGiveStays) {
    Simulator sim_host;
    sim_host.host.calc_texts["(A:ATC ID,string)"] = "TZ-01";
    sim_host.Start();
    sim_host.host.failing.insert("eval_calc_text");
    sim_host.Serve(kServiceConnectToWindow);
    EXPECT_EQ(identity.engine_model, "GENX-1B70");
    EXPECT_EQ(identity.registration, "TZ-01");
}

TEST(ServiceCycle, OutputsGoOnWhenTheClockIsSetBack) {
    Simulator sim_host;
    sim_host.Start();
    sim_host.Run(9);
    sim_host.host.tokens[kTokenAbsoluteTime] -= 3600;
    const int phase = time_base.frame_phase;
    sim_host.Tick();
    EXPECT_NE(time_base.frame_phase, phase);
}

TEST(ServiceCycle, AModelLoadedAnewLearnsItsEngines) {
    Simulator sim_host;
    FakeHost& host = sim_host.host;
    host.calc_texts["(A:TITLE,string)"] = "TZ900-8 RR House";
    host.PutFile("SimObjects/Airplanes/TZ900-8/Aircraft.cfg",
                 "[fltsim.0]\ntitle=TZ900-8 RR House\nsim=TZ900-8\nmodel=rr\n");
    sim_host.Start();
    sim_host.Run(9);
    EXPECT_EQ(host.NamedVar("TZ_ENG_TYPE_RR"), 1);
    sim_host.Serve(kServiceDisconnect);
    sim_host.Serve(kServiceConnectToWindow);
    EXPECT_EQ(host.NamedVar("TZ_ENG_TYPE_RR"), 0);  // registered anew
    sim_host.Run(3);
    EXPECT_EQ(host.NamedVar("TZ_ENG_TYPE_RR"), 1);
}

TEST(ServiceCycle, DecisionHeightIsSteppedTo200) {
    Simulator sim_host;
    FakeHost& host = sim_host.host;
    host.calc_numbers["(A:DECISION HEIGHT,FEET)"] = 190;
    sim_host.Start();
    EXPECT_EQ(host.events, (Events{{0x10311, 0}}));
    host.calc_numbers["(A:DECISION HEIGHT,FEET)"] = 210;
    sim_host.Tick();
    host.calc_numbers["(A:DECISION HEIGHT,FEET)"] = 200;
    sim_host.Tick();
    host.calc_numbers["(A:DECISION HEIGHT,FEET)"] = 300;
    sim_host.Tick();
    EXPECT_EQ(host.events, (Events{{0x10311, 0}, {0x10312, 0}}));
}

TEST(ServiceCycle, TopOfDescentPausesOnceAndSlowsDown) {
    Simulator sim_host;
    FakeHost& host = sim_host.host;
    host.PutFile("Velarion/tz900.cfg", "PauseAtTod=1\n1xAtTod=1\n");
    host.tokens[kTokenSimRate] = 4 * 256;
    sim_host.Start();
    sim_host.Tick(3);
    EXPECT_TRUE(host.events.empty());
    vnav.tod = 1;
    sim_host.Tick();
    host.tokens[kTokenSimRate] = 2 * 256;
    sim_host.Tick();
    host.tokens[kTokenSimRate] = 256;
    sim_host.Tick();
    host.tokens[kTokenSimRate] = 512;  // the pilot's choice from here on
    sim_host.Tick(3);
    EXPECT_EQ(host.events, (Events{{0x10019, 0}, {0x100fe, 0}, {0x100fe, 0}}));
    host.events.clear();
    vnav.tod = 0;
    sim_host.Tick();
    vnav.tod = 1;
    host.tokens[kTokenSimRate] = 128;
    sim_host.Tick();
    EXPECT_EQ(host.events, (Events{{0x10019, 0}, {0x100fd, 0}}));
}

TEST(ServiceCycle, DistanceFromDestinationPausesOnce) {
    Simulator sim_host;
    FakeHost& host = sim_host.host;
    host.PutFile("Velarion/tz900.cfg", "PauseAtDistFromDest=50\n");
    host.tokens[kTokenSimRate] = 256;
    sim_host.Start();
    plan.fms_fpln_active = 3;
    predictions.dist_to_dest = 51;
    sim_host.Tick();
    EXPECT_TRUE(host.events.empty());
    predictions.dist_to_dest = 49;
    sim_host.Tick(3);
    EXPECT_EQ(host.events, (Events{{0x10019, 0}}));
}

TEST(ServiceCycle, RealismModeDisarmsForGood) {
    Simulator sim_host;
    FakeHost& host = sim_host.host;
    host.PutFile("Velarion/tz900.cfg", "RealismMode=1\n");
    host.tokens[kTokenAutothrottleArm] = 1;
    sim_host.Start();
    sim_host.Tick(2);
    host.tokens[kTokenAutothrottleArm] = 0;
    sim_host.Tick(2);
    EXPECT_EQ(host.events, (Events{{0x1022e, 0}}));
}

TEST(TickOutputs, PublishLampsTrendAndFmcValues) {
    Simulator sim_host;
    FakeHost& host = sim_host.host;
    host.NamedVar("airspeed_smooth") = 180;
    host.NamedVar("TZ_FMC_EXEC_L_Annun") = 0;
    host.NamedVar("tz_accel_ht") = 0;
    host.NamedVar("TZ_V_S") = 100;
    host.NamedVar("TZ_V_A") = 150;
    host.NamedVar("auto_brake_switch") = 3;
    sim_host.Start();
    plan.fms_fpln_active = 4;
    sim_host.Run(8.05);
    sim_host.Run(60);
    EXPECT_EQ(host.NamedVar("TZ_FMC_EXEC_L_Annun"), 1);
    EXPECT_EQ(host.NamedVar("tz_accel_ht"), 1500);
    EXPECT_EQ(cockpit.autobrake_switch, 3);
    EXPECT_NEAR(sim.low_speed_limit, 135, 1e-9);
    // A steady speed is its own trend.
    EXPECT_NEAR(autoflight.spd_trend, 180, 1e-6);
    EXPECT_NEAR(autoflight.spd_lookahead, 180, 1e-6);
    // Once the mean follows a speed that rises by a knot a second, it rises by 1/18 a tick: 60 and 180 ticks
    // on.
    for (int i = 0; i < 18 * 20; ++i) {
        host.NamedVar("airspeed_smooth") += 1 / 18.0;
        sim_host.Tick();
    }
    EXPECT_NEAR(autoflight.spd_lookahead, 200 + 60 / 18.0, 1e-3);
    EXPECT_NEAR(autoflight.spd_trend - autoflight.spd_mean, 10, 0.1);
    plan.fms_fpln_active = 3;
    sim_host.Run(1);
    EXPECT_EQ(host.NamedVar("TZ_FMC_EXEC_L_Annun"), 0);
}

TEST(ServiceCycle, TeardownAndReconnectKeepConfigurationAndNavigationData) {
    Simulator sim_host;
    FakeHost& host = sim_host.host;
    sim_host.Start();
    sim_host.Run(5);
    host.PutFile("Velarion/tz900.cfg", "AccelHt=1000\n");
    host.registered_names.clear();
    electrical.fwd_ext_pwr_avail = 1;
    ShowLamp(NamedVar("TZ_OH_Annun_OFF_BATT"), true);
    sim_host.Serve(kServicePreKill);
    EXPECT_EQ(host.key_hooks.size(), 1u);
    sim_host.Serve(kServiceConnectToWindow);  // the pending kill tears down, the connect brings all back
    EXPECT_EQ(host.unregistered_names.size(), 337u);
    EXPECT_EQ(host.registered_names.size(), 337u);
    EXPECT_EQ(host.key_hooks.size(), 1u);
    sim_host.Serve(kServiceDisconnect);
    EXPECT_TRUE(host.key_hooks.empty());
    sim_host.Serve(kServicePreInitialize);
    EXPECT_EQ(cfg.AccelHt, 1500);                         // not read again
    EXPECT_EQ(host.NamedVar("TZ_OH_ELE_BAT_Button"), 1);  // the model shows the shadow again
    EXPECT_EQ(host.NamedVar("ext_power_avail"), 1);
    EXPECT_EQ(host.NamedVar("TZ_OH_Annun_OFF_BATT"), 0);
    ShowLamp(NamedVar("TZ_OH_Annun_OFF_BATT"), true);  // what was shown before went with the variable
    EXPECT_EQ(host.NamedVar("TZ_OH_Annun_OFF_BATT"), 1);
    EXPECT_EQ(module_life.startup_done, 1);
    EXPECT_EQ(host.key_hooks.size(), 1u);
    host.calc_texts["(A:TITLE,string)"] = "Something else";
    sim_host.Serve(kServiceConnectToWindow);
    EXPECT_EQ(identity.aircraft_model, "");  // not that of the aircraft before
    ModuleDeinit();
    EXPECT_TRUE(host.key_hooks.empty());
    EXPECT_EQ(host.timer_period, 0);
    EXPECT_EQ(host.sim_handler, nullptr);
    EXPECT_FALSE(host.sound_device_open);
    sim_host.Start();
    EXPECT_EQ(cfg.AccelHt, 1000);
}

TEST(ServiceCycle, SurvivesAHostWhoseEveryCallFails) {
    decltype(FakeHost::calls) calls;
    {
        Simulator sim_host;
        sim_host.Start();
        sim_host.Run(10);
        calls = sim_host.host.calls;
    }
    for (const auto& [operation, count] : calls) {
        Simulator sim_host;
        sim_host.host.failing.insert(operation);
        sim_host.Start();
        sim_host.Run(10);
        sim_host.Serve(kServiceDisconnect);
        EXPECT_GT(count, 0) << operation;
    }
}

}  // namespace
