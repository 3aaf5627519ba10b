#include "host/flightdeck/commands.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "host/flight.h"
#include "host/flightdeck/control_sharing.h"
#include "host/inspection.h"
#include "host/scenario/words.h"
#include "host/screens.h"
#include "host/world/key_event_effects.h"
#include "host/world/world.h"

namespace host {
namespace {

constexpr int kKeyPause = 0x10019;
constexpr std::size_t kMostWaiting = 60;
constexpr int kLetGoTicks = 54;  // a control that nobody lets go within 3 seconds isn't served

void SendKey(Session& session, int event, int value) {
    char number[16];
    std::snprintf(number, sizeof number, "0x%x", static_cast<unsigned>(event));
    Record(session.recorder, {"key", number, std::to_string(value)});
    QueueKeyEvent(event, value);
}

void SetPause(Session& session, bool pause) {
    if (pause != world.paused) SendKey(session, kKeyPause, 0);
}

void SetRate(Session& session, double rate) {
    SetPause(session, rate <= 0);
    if (rate <= 0) return;
    world.sim_rate = std::clamp(rate, 0.25, 64.0);
    FillClockTokens();
    Record(session.recorder, {"warp", NumberText(world.sim_rate)});
}

void Click(Session& session, const std::string& gauge, double x, double y, bool right) {
    if (gauge.empty()) return;
    Record(session.recorder, {"click", gauge, NumberText(x), NumberText(y), right ? "right" : "left"});
    PressMouse(session, gauge, x, y, right);
}

// "L" or "R" of a tablet's screen; empty for another screen.
std::string TabletOf(const std::string& screen) {
    return screen == "efb_l" ? "L" : screen == "efb_r" ? "R" : "";
}

void Drag(Session& session, const std::string& screen, double x, double y) {
    if (TabletOf(screen).empty()) return;
    if (DragMouse(session, MouseGaugeOfScreen(screen), x, y))
        Record(session.recorder, {"efb", TabletOf(screen), "drag", NumberText(x), NumberText(y)});
}

void Type(Session& session, const std::string& screen, const std::string& keys) {
    const std::string side = TabletOf(screen);
    if (side.empty()) return;
    Ask(session.linkage->inspection->type_on_tablet, side == "L" ? 1 : 2, keys.c_str());
    Record(session.recorder, {"efb", side, "type", keys});
}

void SetVariable(Session& session, const std::string& name, double value) {
    if (!NamedVariableExists(name)) return;
    Record(session.recorder, {"lvar", name, NumberText(value)});
    SetNamedValue(name, value);
}

// A lever is a handle's token or an axis's key event.
struct Lever {
    std::string_view name;
    int token, event;
    double low, high;  // of its value
    double full;       // raw, at 1
};
constexpr Lever kLevers[] = {
    {"flaps", 328, 0, 0, 1, 16384},
    {"gear", 331, 0, 0, 1, 1},                       // 1 down
    {"thrust", 0, 0x100a1, kFullReverse, 1, 16384},  // both
    {"thrust_left", 0, kKeyLeverLeft, kFullReverse, 1, 16384},
    {"thrust_right", 0, kKeyLeverRight, kFullReverse, 1, 16384},
    {"elevator", 0, 0x100e2, -1, 1, 16383},  // nose up
    {"aileron", 0, 0x100e3, -1, 1, 16383},   // right wing down
    {"rudder", 0, 0x100e4, -1, 1, 16383},    // nose right; steers on the ground
    {"brakes", 0, kKeyBrakes, 0, 1, 16383},
    {"trim", 0, kKeyTrim, -1, 1, 1},  // a click, nose up
    {"speedbrake", 0, 0x10205, 0, 1, 16384},
    {"speedbrake_arm", 0, 0x10214, 0, 1, 1},
};

void MoveLever(Session& session, const std::string& name, double value) {
    if (!std::isfinite(value)) return;
    for (const Lever& lever : kLevers) {
        if (lever.name != name) continue;
        const double raw = std::round(std::clamp(value, lever.low, lever.high) * lever.full);
        if (lever.event != 0) return SendKey(session, lever.event, static_cast<int>(raw));
        Record(session.recorder, {"token", std::to_string(lever.token), NumberText(raw)});
        SetToken(lever.token, raw);
    }
}

// Who puts his hands to it overpowers what moves it by itself: the levers' autothrottle at once, the
// autopilot by a push that is no slip.
void Overpower(Session& session, const std::string& lever, double value) {
    constexpr double kPush = 0.5;
    const bool at_work = flight.autoflight.throttle != kThrottleNone;
    if (lever.starts_with("thrust") && at_work)
        for (const char* arm : {"at_armed_left", "at_armed_right"}) SetVariable(session, arm, 0);
    const bool pushes = (lever == "elevator" || lever == "aileron") && std::fabs(value) > kPush;
    if (pushes && flight.autoflight.engaged) SetVariable(session, "TZ_AP_DISENGAGE_Switch_Right", 1);
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
            SetVariable(session, command.name, command.value);
            break;
        case DeckCommand::kStateVariable:
            // What the module refuses is no part of a recording.
            if (Ask(session.linkage->inspection->write_variable, command.name.c_str(), command.text.c_str())
                    .good)
                Record(session.recorder, {"set", command.name, command.text});
            break;
        case DeckCommand::kMouse:
            Click(session, MouseGaugeOfScreen(command.name), command.x, command.y, command.right);
            break;
        case DeckCommand::kDrag:
            Drag(session, command.name, command.x, command.y);
            break;
        case DeckCommand::kType:
            Type(session, command.name, command.text);
            break;
        case DeckCommand::kMouseArea:
            if (PressMouseArea(session, command.name, command.text, command.right))
                Record(session.recorder,
                       {"press", command.name, command.text, command.right ? "right" : "left"});
            break;
        case DeckCommand::kKeyEvent:
            SendKey(session, static_cast<int>(command.value), static_cast<int>(command.x));
            break;
        case DeckCommand::kLever:
            Overpower(session, command.name, command.value);
            MoveLever(session, command.name, command.value);
            break;
        case DeckCommand::kFailure:
            if (const FailureRow* row = FindFailure(command.name)) {
                Record(session.recorder, {"fail", command.name, command.value != 0 ? "1" : "0"});
                SetFailure(*row, command.value != 0);
            }
            break;
        case DeckCommand::kGround:
            if (const GroundRow* row = FindGroundService(command.name);
                row != nullptr && SetGround(*row, command.value != 0))
                Record(session.recorder, {"ground", command.name, command.value != 0 ? "1" : "0"});
            break;
        case DeckCommand::kControl:
            if (world.pilot_does.empty()) break;
            if (command.value == 0) world.given_back |= world.user_has;
            world.user_has = command.value != 0 ? kAllThings : 0;
            SendKey(session, command.value != 0 ? kKeyTakeStick : kKeyLetStickGo, 0);
            break;
        case DeckCommand::kPause:
            SetPause(session, command.value != 0);
            break;
        case DeckCommand::kRate:
            SetRate(session, command.value);
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
