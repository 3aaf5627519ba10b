#include "host/world/world.h"

#include <utility>

#include "host/world/key_event_effects.h"

namespace host {

World world;

double TokenOf(int token) {
    return token >= 0 && token < kTokenCount ? world.tokens[static_cast<std::size_t>(token)] : 0;
}

void SetToken(int token, double value) {
    if (token < 0 || token >= kTokenCount) return;
    const auto i = static_cast<std::size_t>(token);
    if (!world.pinned[i]) world.tokens[i] = value;
}

void PinToken(int token, double value) {
    if (token < 0 || token >= kTokenCount) return;
    world.tokens[static_cast<std::size_t>(token)] = value;
    world.pinned[static_cast<std::size_t>(token)] = true;
}

namespace {

CalcValue* OpenCalc(std::string_view expression) {
    const auto found = world.calc.find(expression);
    if (found == world.calc.end()) return &world.calc.emplace(expression, CalcValue{}).first->second;
    return found->second.pinned ? nullptr : &found->second;
}

}  // namespace

double CalcOf(std::string_view expression) {
    const auto found = world.calc.find(expression);
    return found == world.calc.end() ? 0 : found->second.number;
}

void SetCalc(std::string_view expression, double value) {
    if (CalcValue* calc = OpenCalc(expression)) calc->number = value;
}

void SetCalcText(std::string_view expression, std::string_view text) {
    if (CalcValue* calc = OpenCalc(expression)) calc->text = text;
}

void PinCalc(std::string_view expression, double value, std::string_view text) {
    world.calc.insert_or_assign(std::string(expression), CalcValue{value, std::string(text), true});
}

void QueueKeyEvent(int event, int value) {
    world.queued_events.push_back({event, value});
}

void DispatchQueuedCalls() {
    // What a hook sends waits for the tick after.
    std::vector<KeyEventRecord> events;
    events.swap(world.queued_events);
    for (const KeyEventRecord& event : events) {
        ApplyKeyEvent(event.event, event.value);
        const auto hooks = world.key_hooks;
        for (const KeyEventHandler hook : hooks) hook(event.event, event.value);
    }
    std::vector<int> client_events;
    client_events.swap(world.queued_client_events);
    for (const int id : client_events) SendSimMessage(SimMessage::kEvent, id, 0, nullptr);
    if (!world.saved_flight.empty()) {
        const std::string file = std::move(world.saved_flight);
        world.saved_flight.clear();
        SendSimMessage(SimMessage::kFileName, 13, 0, file.c_str());
    }
}

void SendSimMessage(SimMessage::Kind kind, int id, int data, const char* text) {
    const SimMessage message{kind, id, data, text};
    if (world.client_handler != nullptr) world.client_handler(&message);
}

}  // namespace host
