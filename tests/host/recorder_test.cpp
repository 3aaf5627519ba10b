// What pilots do comes to the same when it is played back.

#include "host/recorder.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <sstream>

#include "host/flightdeck/commands.h"
#include "host/fly/start.h"
#include "host/scenario/scenario.h"
#include "host/screens.h"
#include "host/world/world.h"
#include "support/all_variables.h"
#include "support/file_text.h"
#include "support/paths.h"

namespace {

using namespace host;

struct Recording {
    std::filesystem::path file =
        std::filesystem::temp_directory_path() / ("tz900_recorder_test_" + std::to_string(getpid()) + ".scn");
    Recorder recorder;
    Recording() {
        std::string error;
        EXPECT_TRUE(OpenRecording(recorder, file.string(), error)) << error;
    }
    ~Recording() { std::filesystem::remove(file); }
};

TEST(Recorder, WritesCallsAndCommandsInTheirOrder) {
    Recording recording;
    Recorder& recorder = recording.recorder;
    Record(&recorder, {"start"});
    for (int i = 0; i < 12; ++i) RecordCall(&recorder, false);
    EXPECT_EQ(FileText(recording.file), "start\ntick 12\n") << "whole at any time";
    for (int i = 0; i < 3; ++i) RecordCall(&recorder, true);
    Record(&recorder, {"route", "KSEA BTG"});
    Record(&recorder, {"set", "capt.ScratchPad", ""});
    RecordCall(&recorder, true);
    Record(&recorder, {"set", "x", "a\nb \\n"});
    Record(&recorder, {"set", "x", "a \"b\"\nc"});
    EXPECT_EQ(FileText(recording.file),
              "start\ntick 12\nframe 3\nroute \"KSEA BTG\"\nset capt.ScratchPad \"\"\nframe 1\n"
              "set x \"a\\nb \"\\\"n\"\n"
              "# not expressible: set x \"a \"b\"\\nc\"\n");
    std::string error;
    Recorder nowhere;
    EXPECT_FALSE(OpenRecording(nowhere, "/no/such/folder/x.scn", error));
    EXPECT_NE(error.find("/no/such/folder/x.scn: "), std::string::npos);
}

TEST(Recorder, TellsAWriteThatFailsAndOverwritesNothing) {
    Recording recording;
    Recorder again;
    std::string error;
    EXPECT_FALSE(OpenRecording(again, recording.file.string(), error));
    DiscardRecording(again);
    EXPECT_TRUE(std::filesystem::exists(recording.file));
    DiscardRecording(recording.recorder);
    EXPECT_FALSE(std::filesystem::exists(recording.file));

    Recorder full;
    full.name = "full.scn";
    full.file.open("/dev/full", std::ios::in | std::ios::out);
    testing::internal::CaptureStderr();
    RecordCall(&full, false);
    Record(&full, {"start"});
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "tz900: the recording ends early, full.scn: No space left on device\n");
    EXPECT_NE(full.error, "");
}

// Every kind of command, in the air with a route and cold on the ground.
void FlyALittle(Session& session) {
    using Command = DeckCommand;
    const auto apply = [&](const Command& command) { ApplyDeckCommand(session, command); };
    const auto calls = [&](int count) {
        for (; count > 0; --count) {
            TickSession(session, world.paused);
            PaintGauges(session);
        }
    };
    calls(170);
    apply({.kind = Command::kKeyEvent, .value = 0x101f5, .x = 251});
    apply({.kind = Command::kMouseArea, .name = "MCP", .text = "atarm"});
    apply({.kind = Command::kMouseArea, .name = "MCP", .text = "hdg +10", .right = true});
    apply({.kind = Command::kMouseArea, .name = "MCP", .text = "no such area"});
    apply({.kind = Command::kNamedVariable, .name = "TZ_OH_ELE_BAT_Button", .value = 1});
    apply({.kind = Command::kNamedVariable, .name = "no_such_variable", .value = 1});
    calls(40);
    apply({.kind = Command::kStateVariable, .name = "du_lower_mode", .text = "44"});
    apply({.kind = Command::kStateVariable, .name = "du_lower_mode", .text = "not a number"});
    apply({.kind = Command::kStateVariable, .name = "capt.ScratchPad", .text = "TO KSFO # \\n"});
    apply({.kind = Command::kNamedVariable, .name = "TZ_FMC_L_B_Button", .value = 1});
    calls(20);
    apply({.kind = Command::kLever, .name = "flaps", .value = 0.5});
    apply({.kind = Command::kLever, .name = "aileron", .value = 0.7});
    apply({.kind = Command::kLever, .name = "thrust", .value = 0.6});
    apply({.kind = Command::kLever, .name = "brakes", .value = 0.5});
    apply({.kind = Command::kLever, .name = "trim", .value = -1});
    apply({.kind = Command::kRate, .value = 4});
    apply({.kind = Command::kMouse, .name = "capt_inb", .x = 100.5, .y = 400, .right = true});
    apply({.kind = Command::kMouse, .name = "hud", .x = 1, .y = 1});
    calls(20);
    apply({.kind = Command::kPause, .value = 1});
    calls(9);
    apply({.kind = Command::kRate, .value = 0.5});
    calls(60);
}

std::string TextsOf(const Session& session) {
    std::string texts;
    for (const char* screen :
         {"capt_outb", "capt_inb", "fo_inb", "fo_outb", "lower", "hud", "stby", "efb_l", "efb_r", "debug"})
        session.linkage->inspection->print_list(
            "text", GaugeOfScreen(screen).c_str(),
            [](void* to, const char*, const char* line) {
                static_cast<std::string*>(to)->append(line).append("\n");
            },
            &texts);
    return texts;
}

// All variables; the private root's name differs from run to run.
std::string StateOf(const Session& session) {
    std::string state = AllVariables(*session.linkage->inspection);
    const std::string& root = session.settings.root;
    for (std::size_t at = 0; (at = state.find(root, at)) != std::string::npos;)
        state.replace(at, root.size(), "ROOT");
    return state;
}

std::string FirstDifference(const std::string& have, const std::string& want) {
    std::istringstream have_lines(have), want_lines(want);
    std::string have_line, want_line;
    while (std::getline(want_lines, want_line)) {
        std::getline(have_lines, have_line);
        if (have_line != want_line) return have_line + " instead of " + want_line;
    }
    return have.size() == want.size() ? "" : "more lines";
}

TEST(Recorder, PlaysBackToTheSameState) {
    for (const bool cold : {false, true}) {
        Recording recording;
        FlyOptions options;
        options.demo_root = SourceDir() + "/data/root";
        options.headless = true;
        options.cold = cold;
        options.route = "KSEA/16L BTG J1 OED KSFO";
        world = {};
        flight = {};
        Session session;
        session.settings.module_file = BinaryDir() + "/tz900.gau";
        session.recorder = &recording.recorder;
        std::string error;
        ASSERT_TRUE(StartFlight(session, options, error)) << error;
        FlyALittle(session);
        const std::string texts = TextsOf(session), state = StateOf(session);
        StopSession(session);
        EXPECT_EQ(texts.find("\"RANGE\"") == std::string::npos, cold) << texts;

        world = {};
        flight = {};
        std::ostringstream out, errors;
        Scenario scenario{Session{}, out};
        scenario.session.settings.demo_root = options.demo_root;
        scenario.session.settings.module_file = BinaryDir() + "/tz900.gau";
        std::istringstream lines(FileText(recording.file));
        EXPECT_EQ(RunScenario(scenario, lines, "recording", errors), 0) << errors.str();
        EXPECT_EQ(TextsOf(scenario.session), texts);
        EXPECT_EQ(FirstDifference(StateOf(scenario.session), state), "");
        StopSession(scenario.session);
        world = {};
    }
}

}  // namespace
