// Keyboard, key events, simulator client and active runways: the module's link to the host.

#include <gtest/gtest.h>

#include <cstring>

#include "frame/active_runways.h"
#include "frame/key_hook.h"
#include "frame/keyboard_capture.h"
#include "frame/sim_client.h"
#include "frame/tokens.h"
#include "state/autoflight.h"
#include "state/cdu.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/host_link.h"
#include "state/keyboard.h"
#include "state/placement.h"
#include "state/sim.h"
#include "state/sound.h"
#include "support/fake_host.h"

namespace {

using Events = std::vector<std::pair<int, int>>;

// Presses one key for one poll and lets it go for the next.
void Type(FakeHost& host, int scan) {
    host.keys[static_cast<std::size_t>(scan)] = 0x80;
    PollKeyboard();
    PollKeyboard();  // held down it is one character
    host.keys[static_cast<std::size_t>(scan)] = 0;
    PollKeyboard();
}

TEST(KeyboardCapture, TypesOnTheSideThatHasIt) {
    FakeHost host;
    PollKeyboard();
    EXPECT_FALSE(host.keyboard_open);
    keyboard.keyboard_capture_r = 1;
    PollKeyboard();
    EXPECT_TRUE(host.keyboard_open);
    EXPECT_TRUE(host.swallowing_keys);
    for (const int scan : {0x1e, 0x0b, 0x34, 0x35, 0x39, 0x2c}) Type(host, scan);
    EXPECT_EQ(cdu[1].ScratchPad, "A0./ Z");
    EXPECT_EQ(cdu[0].ScratchPad, "");
    Type(host, 0x0e);
    EXPECT_EQ(cdu[1].ScratchPad, "A0./ ");
    Type(host, 0xd0);
    EXPECT_EQ(keyboard.keyboard_code, 4);
    Type(host, 0x9c);
    EXPECT_EQ(keyboard.keyboard_code, 5);

    host.keys[0x38] = 0x80;  // left Alt: the simulator's shortcuts pass
    Type(host, 0x1e);
    EXPECT_EQ(cdu[1].ScratchPad, "A0./ ");
    EXPECT_FALSE(host.swallowing_keys);
    host.keys[0x38] = 0;

    host.read_keyboard_result = -1;  // input lost: acquired again in the same poll
    Type(host, 0x30);
    EXPECT_EQ(cdu[1].ScratchPad, "A0./ B");
    ReleaseKeyboard();
    EXPECT_FALSE(host.keyboard_open);
    EXPECT_EQ(keyboard.keyboard_capture_r, 0);
}

TEST(KeyboardCapture, AFailedDeviceIsTold) {
    for (const auto& [step, text] : {std::pair{1, "DirectInput failed"},
                                     {2, "CreateDevice failed"},
                                     {3, "SetDataFormat failed"},
                                     {4, "SetCooperativeLevel failed"}}) {
        FakeHost host;
        host.open_keyboard_result = step;
        keyboard.keyboard_capture_l = 1;
        PollKeyboard();
        EXPECT_EQ(cdu[0].ScratchMessage, text);
        cdu[0].ScratchMessage.clear();
        PollKeyboard();
        EXPECT_EQ(cdu[0].ScratchMessage, "");  // given up, until the window is another
        host.open_keyboard_result = 0;
        PollKeyboard();
        EXPECT_FALSE(host.keyboard_open);
        host.foreground_class = "FS98FLOAT";
        PollKeyboard();
        EXPECT_TRUE(host.keyboard_open);
    }
    FakeHost host;
    host.foreground_class = "Notepad";
    keyboard.keyboard_capture_l = 1;
    PollKeyboard();
    EXPECT_FALSE(host.keyboard_open);
}

TEST(KeyEvents, EngineFuelFollowsTheHost) {
    FakeHost host;
    AddKeyEventHook();
    AddKeyEventHook();
    ASSERT_EQ(host.key_hooks.size(), 1u);
    host.PressKey(0x100ee);
    EXPECT_EQ(cockpit.eng1_thrott, 1);
    EXPECT_EQ(cockpit.eng2_thrott, 1);
    EXPECT_EQ(cockpit.eng1_start_latch, 1);
    EXPECT_EQ(sound.event_cue, 12);
    host.tokens[kTokenEng2Starter] = 1;
    host.PressKey(0x100f2);
    EXPECT_EQ(cockpit.eng1_thrott, 2);
    EXPECT_EQ(cockpit.eng2_thrott, 2);
    EXPECT_EQ(host.events, (Events{{0x102fd, 0}}));
    EXPECT_EQ(sound.event_cue, 14);
    host.PressKey(0x102b0);
    EXPECT_EQ(cockpit.autostart_pending, 1);
    RemoveKeyEventHook();
    EXPECT_TRUE(host.key_hooks.empty());
}

TEST(KeyEvents, AutopilotParkingBrakeAndRearm) {
    FakeHost host;
    host.NamedVar("TZ_OH_PFC_G_Switch") = 1;
    host.NamedVar("ap_master_disconnect") = 0;
    cfg.PfcSwitch = 4;
    cfg.DiscPFCOnAPDisc = 1;
    OnKeyEvent(0x1002c, 0);
    EXPECT_EQ(cfg.PfcSwitch, 7);
    EXPECT_EQ(host.NamedVar("TZ_OH_PFC_G_Switch"), 0);
    autoflight.ap_master_r = 1;
    OnKeyEvent(0x1002c, 0);
    EXPECT_EQ(host.NamedVar("ap_master_disconnect"), 1);

    OnKeyEvent(0x100d8, 0);
    EXPECT_EQ(sound.event_cue, 0);
    host.tokens[kTokenParkingBrake] = 32767;
    OnKeyEvent(0x100d8, 0);
    EXPECT_EQ(sound.event_cue, 201);

    host.tokens[kTokenAutothrottleArm] = 1;
    OnKeyEvent(0x10101, 0);
    EXPECT_TRUE(host.events.empty());
    cfg.RealismMode = 1;
    OnKeyEvent(0x10101, 0);
    OnKeyEvent(0x10101, 0);
    EXPECT_EQ(host.events, (Events{{0x10215, 0}}));
}

TEST(SimClient, DeclaresItsDataAndActsOnMessages) {
    FakeHost host;
    host.failing.insert("open_sim_client");
    OpenSimClient();
    EXPECT_TRUE(host.sim_declarations.empty());
    host.failing.clear();
    OpenSimClient();
    EXPECT_EQ(host.sim_client_name, "System Event");
    EXPECT_EQ(host.sim_declarations.size(), 27u);  // 17 data, 5 events, 1 state, 4 client events
    EXPECT_EQ(host.sim_declarations[7], "data 8 FUEL TANK CENTER QUANTITY Gallons");
    EXPECT_EQ(host.sim_declarations[26], "client 16 My.CTRLSHIFTC ctrl+shift+B 3");

    host.SendSimMessage(SimMessage::kEvent, 11, 0);
    host.SendSimMessage(SimMessage::kEvent, 12, 1);
    host.SendSimMessage(SimMessage::kEvent, 15, 0);
    host.SendSimMessage(SimMessage::kFileName, 13, 0, "C:\\flights\\one.fxml");
    host.SendSimMessage(SimMessage::kSystemState, 14, 0, "two.fxml");
    host.SendSimMessage(SimMessage::kEvent, 4711, 1);
    EXPECT_EQ(sound.host_sound_on, 0);
    EXPECT_EQ(sim.host_paused, 1);
    EXPECT_EQ(host.saved_flights, std::vector<std::string>{"SaveTest|ST Title|ST Descr"});
    EXPECT_EQ(host_link.saved_flight, "C:\\flights\\one.fxml");
    EXPECT_EQ(host_link.loaded_flight, "two.fxml");

    placement.place_alt = 5000;
    placement.place_hdg = 90;
    placement.place_ias = 400;
    placement.place_left_fuel = 100;
    host.SendSimMessage(SimMessage::kEvent, 8, 0);
    EXPECT_EQ(host.events, (Events{{0x1024c, 5000}, {0x100a4, 0}, {0x10102, 0}}));
    std::vector<int> definitions;
    for (const auto& [definition, bytes] : host.sim_data) definitions.push_back(definition);
    EXPECT_EQ(definitions, (std::vector<int>{2, 3, 8, 0, 0}));
    ASSERT_EQ(host.sim_data.back().second.size(), 56u);
    double bank = 0;
    std::uint32_t ias = 0;
    std::memcpy(&bank, host.sim_data.back().second.data() + 32, sizeof bank);
    std::memcpy(&ias, host.sim_data.back().second.data() + 52, sizeof ias);
    EXPECT_EQ(bank, -1);
    EXPECT_EQ(ias, 340u);
    CloseSimClient();
    EXPECT_EQ(host.sim_handler, nullptr);
}

TEST(ActiveRunways, AreReadFromTheBlock) {
    FakeHost host;
    // The simulator answers at the third exchange.
    host.on_ipc_process = [](FakeHost& fake) {
        if (fake.calls["ipc_process"] != 3) return;
        const std::uint8_t pairs[8] = {9, 1, 27, 0, 0, 2, 36, 4};
        for (int i = 0; i < 8; ++i) fake.ipc_block[0xD00C + i] = pairs[i];
    };
    const auto runways = QueryActiveRunways("KSEA");
    EXPECT_EQ(runways, (std::array<std::string, 4>{"09L", "27", "", "36W"}));
    EXPECT_EQ(host.calls["ipc_process"], 4);
    EXPECT_EQ(host.ipc_block[0xD004], 'K');
    EXPECT_EQ(host.ipc_block[0xD000], 0);  // the request is taken back
}

TEST(ActiveRunways, StayEmptyWithoutAnAnswer) {
    FakeHost host;
    EXPECT_EQ(QueryActiveRunways("KSEA")[0], "");
    EXPECT_EQ(host.calls["ipc_process"], 32);  // the first, thirty tries, the farewell
    host.ipc_available = false;
    EXPECT_EQ(QueryActiveRunways("KSEA")[0], "");
    EXPECT_EQ(host.calls["ipc_process"], 32);
}

}  // namespace
