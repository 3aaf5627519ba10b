#include <cmath>

#include "host/process.h"
#include "host/scenario/commands.h"
#include "host/scenario/conditions.h"
#include "host/screens.h"

namespace host {
namespace {

constexpr int kMaxTicks = 100'000'000;

int CountWord(const std::vector<Word>& words) {
    if (words.size() < 2) return 1;
    const int count = IntWord(words[1], "a number of calls");
    if (count < 0) throw CommandError{"\"" + words[1].text + "\" is no number of calls; 0 or more"};
    return count;
}

int TicksOf(const Word& duration) {
    const std::optional<double> seconds = ParseDuration(duration.text);
    if (!seconds)
        throw CommandError{"\"" + duration.text +
                           "\" is no duration; a number of seconds, minutes as 90m, or h:mm:ss"};
    const double ticks = std::round(*seconds * 18);
    if (ticks > kMaxTicks) throw CommandError{"\"" + duration.text + "\" is longer than can be run"};
    return static_cast<int>(ticks);
}

void Tick(Scenario& scenario, const std::vector<Word>& words) {
    for (int left = CountWord(words); left > 0; --left) TickScenario(scenario, false);
}

void Frame(Scenario& scenario, const std::vector<Word>& words) {
    for (int left = CountWord(words); left > 0; --left) TickScenario(scenario, true);
}

void Run(Scenario& scenario, const std::vector<Word>& words) {
    if (words[1].text != "until") {
        if (words.size() != 2) throw CommandError{"`run SECONDS` takes one duration"};
        for (int left = TicksOf(words[1]); left > 0; --left) TickScenario(scenario, false);
        return;
    }
    if (words.size() < 7 || words[words.size() - 2].text != "max")
        throw CommandError{"`run until NAME OP VALUE max SECONDS`"};
    const Condition condition = ParseCondition({words.begin() + 2, words.end() - 2});
    std::string have;
    for (int left = TicksOf(words.back()); !Holds(scenario, condition, have); --left) {
        if (left == 0) {
            TellFailure(scenario, condition, have);
            return;
        }
        TickScenario(scenario, false);
    }
}

void Paint(Scenario& scenario, const std::vector<Word>& words) {
    const int every = IntWord(words[2], "a number of calls");
    if (words[1].text != "every" || every < 0) throw CommandError{"`paint every N`, N of 0 or more"};
    scenario.paint_every = every;
}

}  // namespace

void TickScenario(Scenario& scenario, bool paused_frame) {
    if (EndSignal() != 0) throw Interruption{};
    TickSession(scenario.session, paused_frame);
    if (scenario.paint_every > 0 && ++scenario.calls_since_paint >= scenario.paint_every) {
        scenario.calls_since_paint = 0;
        PaintGauges(scenario.session);
    }
    if (scenario.after_call) scenario.after_call(paused_frame);
}

std::vector<Command> TimeCommands() {
    return {
        {"tick", "[N]", "tick 36", Command::kAfter, 0, 1, Tick},
        {"run", "SECONDS | until NAME OP VALUE max SECONDS", "run until tick_phase == 4 max 60",
         Command::kAfter, 1, 7, Run},
        {"frame", "[N]", "frame 18", Command::kAfter, 0, 1, Frame},
        {"paint", "every N", "paint every 18", Command::kAnytime, 2, 2, Paint},
    };
}

}  // namespace host
