#include <algorithm>
#include <cstdlib>
#include <sstream>

#include "host/scenario/commands.h"
#include "host/scenario/inspection.h"
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

struct TabletPoint {
    double x, y;
};
TabletPoint PointWords(const Word& across, const Word& down) {
    const TabletPoint at{NumberWord(across, "an x"), NumberWord(down, "a y")};
    if (!(at.x >= 0 && at.x < 340 && at.y >= 0 && at.y < 448))
        throw CommandError{across.text + ' ' + down.text + " is outside the canvas; 0 to 339, 0 to 447"};
    return at;
}

// Pressed at the first point, then moved to the last; of a recording the going on alone.
void DragOnTablet(Scenario& scenario, const char* gauge, const std::vector<Word>& words) {
    constexpr int kSteps = 4;
    if (words.size() != 5 && words.size() != 7) throw CommandError{"efb L|R drag X Y X Y"};
    const TabletPoint from = PointWords(words[3], words[4]);
    if (words.size() == 5) {
        DragMouse(scenario.session, gauge, from.x, from.y);
        return;
    }
    const TabletPoint to = PointWords(words[5], words[6]);
    PressMouse(scenario.session, gauge, from.x, from.y, false);
    for (int step = 1; step <= kSteps; ++step)
        DragMouse(scenario.session, gauge, from.x + (to.x - from.x) * step / kSteps,
                  from.y + (to.y - from.y) * step / kSteps);
}

// The module lists what may be touched, topmost first: "X Y WIDTH HEIGHT "LABEL"".
void TouchLabel(Scenario& scenario, const char* gauge, const std::string& side, std::string label) {
    std::replace(label.begin(), label.end(), '\n', ' ');
    std::string known;
    std::istringstream touches(PrintedList(scenario, "touches", side));
    int x = 0, y = 0, width = 0, height = 0;
    std::string rest;
    while (touches >> x >> y >> width >> height && std::getline(touches, rest)) {
        const std::string text = rest.substr(std::min<std::size_t>(rest.size(), 2));
        if (text == label + '"') {
            PressMouse(scenario.session, gauge, x + width / 2, y + height / 2, false);
            return;
        }
        known += (known.empty() ? "" : ", ") + text.substr(0, text.size() - 1);
    }
    throw CommandError{"nothing there bears \"" + label + "\"; " +
                       (known.empty() ? "the tablet is dark" : known)};
}

void Efb(Scenario& scenario, const std::vector<Word>& words) {
    const bool left = IsLeftSide(words[1]);
    const char* gauge = left ? "CAPT_EFB" : "FO_EFB";
    if (words.size() == 3) return TouchLabel(scenario, gauge, left ? "L" : "R", words[2].text);
    if (words[2].text == "drag") return DragOnTablet(scenario, gauge, words);
    if (words[2].text == "type") {
        Inspect(InspectionOf(scenario).type_on_tablet, left ? 1 : 2, words[3].text.c_str());
        return;
    }
    const TabletPoint at = PointWords(words[2], words[3]);
    if (words.size() > 4 && words[4].text == "wheel") return;  // no page scrolls
    PressMouse(scenario.session, gauge, at.x, at.y, IsRight(words, 4));
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
        {"efb", "L|R \"LABEL\" | X Y [left|right|wheel] | drag X Y X Y | type TEXT", "efb L 50 110",
         Command::kAfter, 2, 6, Efb},
    };
}

}  // namespace host
