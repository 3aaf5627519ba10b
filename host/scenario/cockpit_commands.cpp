#include <cstdlib>

#include "host/scenario/commands.h"
#include "host/screens.h"

// What the crew does with its hands on gauges, tablets and the mode control panel.

namespace host {
namespace {

const GaugeHeader& GaugeNamed(const Scenario& scenario, const std::string& name) {
    std::string known;
    for (const PanelGauge& panel : scenario.session.gauges) {
        const GaugeHeader& gauge = *panel.instance.gauge;
        if (name == gauge.name && gauge.mouse_count > 0) return gauge;
        if (gauge.mouse_count > 0) known += std::string(known.empty() ? "" : " ") + gauge.name;
    }
    throw CommandError{"\"" + name + "\" is no gauge that takes a mouse; " + known};
}

bool IsRight(const std::vector<Word>& words, std::size_t at) {
    if (words.size() <= at || words[at].text == "left") return false;
    if (words[at].text == "right") return true;
    throw CommandError{"\"" + words[at].text + "\"; left or right"};
}

// A press beside every area does nothing, as in a cockpit.
void Click(Scenario& scenario, const std::vector<Word>& words) {
    const GaugeHeader& gauge = GaugeNamed(scenario, words[1].text);
    PressMouse(scenario.session, gauge.name, NumberWord(words[2], "a place across"),
               NumberWord(words[3], "a place down"), IsRight(words, 4));
}

void Press(Scenario& scenario, const std::vector<Word>& words) {
    const GaugeHeader& gauge = GaugeNamed(scenario, words[1].text);
    if (PressMouseArea(scenario.session, gauge.name, words[2].text, IsRight(words, 3))) return;
    std::string known;
    for (int i = 0; i < gauge.mouse_count; ++i)
        known += std::string(i == 0 ? "" : ", ") + gauge.mouse[i].name;
    throw CommandError{words[1].text + " has no area \"" + words[2].text + "\"; " + known};
}

void Efb(Scenario& scenario, const std::vector<Word>& words) {
    const char* gauge = IsLeftSide(words[1]) ? "CAPT_EFB" : "FO_EFB";
    const double x = NumberWord(words[2], "an x"), y = NumberWord(words[3], "a y");
    if (!(x >= 0 && x < 340 && y >= 0 && y < 448))
        throw CommandError{words[2].text + ' ' + words[3].text +
                           " is outside the canvas; 0 to 339, 0 to 447"};
    PressMouse(scenario.session, gauge, x, y, false);
}

// A button by its name, a bar by "up" or "down", a knob by detents: ten of them are one big step.
void Mcp(Scenario& scenario, const std::vector<Word>& words) {
    const std::string control = words[1].text;
    const auto press = [&](const std::string& area) { return PressMouseArea(scenario.session, "MCP", area); };
    if (words.size() == 2) {
        if (!press(control)) throw CommandError{"the MCP has no button \"" + control + "\""};
        return;
    }
    if (words[2].text == "push") {
        if (!press(control + " push")) throw CommandError{"only the alt knob can be pushed"};
        return;
    }
    if (words[2].text == "up" || words[2].text == "down") {
        if (!press(control + ' ' + words[2].text)) throw CommandError{"only the bar moves up and down"};
        return;
    }
    const int detents = IntWord(words[2], "a number of detents");
    const bool big = detents % 10 == 0;
    const std::string area = control + (detents < 0 ? " -" : " +") + (big ? "10" : "1");
    for (int left = std::abs(big ? detents / 10 : detents); left > 0; --left)
        if (!press(area)) throw CommandError{"the MCP has no knob \"" + control + "\"; spd hdg alt vswheel"};
}

}  // namespace

std::vector<Command> CockpitCommands() {
    return {
        {"click", "GAUGE X Y [left|right]", "click DU_CAPT_INB_MC 120 10", Command::kAfter, 3, 4, Click},
        {"press", "GAUGE AREA [left|right]", "press MCP \"hdg +10\"", Command::kAfter, 2, 3, Press},
        {"mcp", "CONTROL [N|up|down|push]", "mcp hdg 10", Command::kAfter, 1, 2, Mcp},
        {"efb", "L|R X Y", "efb L 50 110", Command::kAfter, 3, 3, Efb},
    };
}

}  // namespace host
