#include "host/flightdeck/commands.h"

#include <algorithm>

#include "host/inspection.h"
#include "host/screens.h"
#include "host/world/world.h"

namespace host {
namespace {

constexpr int kKeyPause = 0x10019;
constexpr std::size_t kMostWaiting = 60;
constexpr int kLetGoTicks = 54;  // a control that nobody lets go within 3 seconds isn't served

void SetRate(double rate) {
    const bool pause = rate <= 0;
    if (pause != world.paused) QueueKeyEvent(kKeyPause, 0);
    if (!pause) world.sim_rate = std::clamp(rate, 0.25, 64.0);
}

// "TZ_FMC_L" of "TZ_FMC_L_A_Button".
std::string PanelOf(const std::string& name) {
    std::size_t end = 0;
    for (int i = 0; i < 3 && end != std::string::npos; ++i) end = name.find('_', end + (i > 0));
    return name.substr(0, end);
}

}  // namespace

void ApplyDeckCommand(Session& session, const DeckCommand& command) {
    switch (command.kind) {
        case DeckCommand::kNamedVariable:
        case DeckCommand::kPress:
            if (NamedVariableExists(command.name)) SetNamedValue(command.name, command.value);
            break;
        case DeckCommand::kStateVariable:
            Ask(session.linkage->inspection->write_variable, command.name.c_str(), command.text.c_str());
            break;
        case DeckCommand::kMouse:
            PressScreen(session, command.name, command.x, command.y, command.right);
            break;
        case DeckCommand::kMouseArea:
            PressMouseArea(session, command.name, command.text, command.right);
            break;
        case DeckCommand::kKeyEvent:
            QueueKeyEvent(static_cast<int>(command.value), static_cast<int>(command.x));
            break;
        case DeckCommand::kPause:
            if ((command.value != 0) != world.paused) QueueKeyEvent(kKeyPause, 0);
            break;
        case DeckCommand::kRate:
            SetRate(command.value);
            break;
    }
}

void QueuePress(PressQueue& queue, const std::string& name, double value) {
    if (!NamedVariableExists(name)) return;
    PressQueue::Panel& panel = queue.panels[PanelOf(name)];
    if (panel.waiting.size() < kMostWaiting) panel.waiting.push_back({name, value});
}

std::vector<DeckCommand> TakeDuePresses(PressQueue& queue) {
    std::vector<DeckCommand> due;
    for (auto& [name, panel] : queue.panels) {
        const bool held =
            !panel.pressed.empty() && NamedValue(panel.pressed) != 0 && ++panel.ticks < kLetGoTicks;
        if (held) continue;
        panel.pressed.clear();
        panel.ticks = 0;
        if (panel.waiting.empty()) continue;
        const PressQueue::Press press = std::move(panel.waiting.front());
        panel.waiting.pop_front();
        panel.pressed = press.name;
        due.push_back({DeckCommand::kNamedVariable, press.name, "", press.value});
    }
    return due;
}

}  // namespace host
