#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <sstream>

#include "host/scenario/scenario.h"
#include "host/world/world.h"
#include "support/paths.h"

// The help of `tz900 run` is a manual that runs: every example in it must be good.

namespace host {
namespace {

namespace fs = std::filesystem;

// Examples name files by paths below the folder that the reader stands in: a copy of the demonstration.
struct FolderOfExamples {
    fs::path before = fs::current_path();
    fs::path folder = fs::temp_directory_path() / ("tz900-help-" + std::to_string(getpid()));
    FolderOfExamples() {
        fs::create_directories(folder / "data");
        fs::copy(SourceDir() + "/data/root", folder / "data/root", fs::copy_options::recursive);
        fs::current_path(folder);
    }
    ~FolderOfExamples() {
        fs::current_path(before);
        fs::remove_all(folder);
    }
};

TEST(ScenarioHelp, EveryExampleRuns) {
    const FolderOfExamples folder;
    std::string before, after;
    for (const Command& command : Commands()) {
        if (command.example.empty() || command.name == "start") continue;
        (command.when == Command::kBefore ? before : after) += std::string(command.example) + '\n';
    }
    world = World{};
    std::ostringstream out, errors;
    Scenario scenario{{}, out};
    scenario.session.settings.module_file = BinaryDir() + "/tz900.gau";
    std::istringstream lines(before + "start\nrun 5\n" + after);  // past the delayed start
    const int status = RunScenario(scenario, lines, "help", errors);
    StopSession(scenario.session);
    EXPECT_EQ(status, 0) << errors.str() << out.str() << "\nof\n" << lines.str();
}

TEST(ScenarioHelp, WrongCommandsSayWhatWouldBeRight) {
    const struct {
        std::string line;
        const char* told;
    } kCases[] = {
        {"fly", "\"fly\" is no command"},
        {"tick", "`tick` stands behind `start`"},
        {"at 91 0 0 0", "a latitude of -90 to 90"},
        {"token x 1", "\"x\" is no whole number"},
        {"token 5000 1", "0 to 1023"},
        {"fdm maybe", "on or off"},
        {"log \"open", "a quote is left open"},
        {"date 2026/12/01", "YYYY-MM-DD"},
        {"root /nowhere/at/all", "is no folder"},
        {"navdata " + std::string(5000, 'x'), "is no folder"},
        {"at 1 2", "LAT LON ALT_FT HDG [IAS]"},
    };
    for (const auto& row : kCases) {
        world = World{};
        std::ostringstream out, errors;
        Scenario scenario{{}, out};
        std::istringstream lines("log ready\n" + row.line + '\n');
        EXPECT_EQ(RunScenario(scenario, lines, "case.scn", errors), 2) << row.line;
        EXPECT_TRUE(errors.str().starts_with("case.scn:2: ")) << errors.str();
        EXPECT_NE(errors.str().find(row.told), std::string::npos) << row.line << ": " << errors.str();
        EXPECT_EQ(out.str(), "ready\n");
    }
}

TEST(ScenarioHelp, WrongPressesSayWhatWouldBeRight) {
    const struct {
        const char *line, *told;
    } kCases[] = {
        {"click NOPE 1 1", "is no gauge that takes a mouse; DU_CAPT_OUTB_2D"},
        {"click MCP 1 1 middle", "left or right"},
        {"click MCP one 1", "a place across"},
        {"press MCP nope", "has no area \"nope\"; lnav, vnav"},
        {"efb L 340 1", "outside the canvas"},
        {"mcp spd push", "only the alt knob"},
    };
    for (const auto& row : kCases) {
        world = World{};
        std::ostringstream out, errors;
        Scenario scenario{{}, out};
        scenario.session.settings.module_file = BinaryDir() + "/tz900.gau";
        scenario.session.settings.demo_root = SourceDir() + "/data/root";
        std::istringstream lines(std::string("start\nclick MCP 5000 5000\n") + row.line + '\n');
        EXPECT_EQ(RunScenario(scenario, lines, "case.scn", errors), 2) << row.line;
        StopSession(scenario.session);
        EXPECT_TRUE(errors.str().starts_with("case.scn:3: ")) << errors.str();
        EXPECT_NE(errors.str().find(row.told), std::string::npos) << row.line << ": " << errors.str();
    }
}

}  // namespace
}  // namespace host
