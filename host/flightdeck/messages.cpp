#include "host/flightdeck/messages.h"

#include <cmath>
#include <cstddef>
#include <limits>
#include <string_view>
#include <utility>
#include <vector>

namespace host {
namespace {

using nlohmann::json;

constexpr std::size_t kMaxText = 200;
constexpr double kMaxNumber = 1e12;
constexpr double kMaxInt = std::numeric_limits<int>::max();

// A type of message, and under which keys it brings the fields of its command; an empty key: none.
struct CommandForm {
    std::string_view type;
    DeckCommand::Kind kind;
    std::string_view name, text, value, x, y;
    bool has_button = false;
    double most = kMaxNumber;  // of the numbers, either way
};
constexpr CommandForm kForms[] = {
    {"lvar", DeckCommand::kNamedVariable, "name", "", "value", "", ""},
    {"press", DeckCommand::kPress, "name", "", "value", "", ""},
    {"set", DeckCommand::kStateVariable, "name", "text", "", "", ""},
    {"mouse", DeckCommand::kMouse, "screen", "", "", "x", "y", true},
    {"drag", DeckCommand::kDrag, "screen", "", "", "x", "y"},
    {"type", DeckCommand::kType, "screen", "text", "", "", ""},
    {"area", DeckCommand::kMouseArea, "gauge", "area", "", "", "", true},
    {"event", DeckCommand::kKeyEvent, "", "", "event", "value", "", false, kMaxInt},
    {"lever", DeckCommand::kLever, "name", "", "value", "", ""},
    {"fail", DeckCommand::kFailure, "name", "", "value", "", ""},
    {"ground", DeckCommand::kGround, "name", "", "value", "", ""},
    {"control", DeckCommand::kControl, "", "", "value", "", ""},
    {"pause", DeckCommand::kPause, "", "", "value", "", ""},
    {"rate", DeckCommand::kRate, "", "", "value", "", ""},
};

bool TakeText(const json& message, std::string_view key, std::string& to) {
    const auto found = message.find(key);
    if (found == message.end() || !found->is_string()) return false;
    to = *found;
    return to.size() <= kMaxText;
}

bool TakeNumber(const json& message, std::string_view key, double most, double& to) {
    const auto found = message.find(key);
    if (found == message.end() || !found->is_number()) return false;
    to = *found;
    return std::abs(to) <= most;
}

bool TakeButton(const json& message, bool& right) {
    std::string side;
    if (!TakeText(message, "button", side)) return false;
    right = side == "right";
    return right || side == "left";
}

// "mouse: screen, x, y and button"
std::string DescribeForm(const CommandForm& form) {
    std::vector<std::string_view> keys;
    for (const std::string_view key : {form.name, form.text, form.value, form.x, form.y})
        if (!key.empty()) keys.push_back(key);
    if (form.has_button) keys.push_back("button");
    std::string told(form.type);
    for (std::size_t i = 0; i < keys.size(); ++i)
        told.append(i == 0 ? ": " : i + 1 == keys.size() ? " and " : ", ").append(keys[i]);
    return told;
}

}  // namespace

std::string ReadMessage(const std::string& text, json& message, std::string& type) {
    message = json::parse(text, nullptr, false);
    if (!message.is_object() || !message.contains("type") || !message["type"].is_string())
        return "not a message: an object with a type";
    type = message["type"];
    return {};
}

std::string WriteMessage(const json& message) {
    return message.dump(-1, ' ', false, json::error_handler_t::replace);
}

std::string ReadCommand(const json& message, const std::string& type, DeckCommand& command) {
    for (const CommandForm& form : kForms) {
        if (form.type != type) continue;
        command.kind = form.kind;
        const auto text = [&](std::string_view key, std::string& to) {
            return key.empty() || TakeText(message, key, to);
        };
        const auto number = [&](std::string_view key, double& to) {
            return key.empty() || TakeNumber(message, key, form.most, to);
        };
        const bool whole = text(form.name, command.name) && text(form.text, command.text) &&
                           number(form.value, command.value) && number(form.x, command.x) &&
                           number(form.y, command.y) &&
                           (!form.has_button || TakeButton(message, command.right));
        return whole ? "" : DescribeForm(form);
    }
    return "unknown message type";
}

std::string ReadNames(const json& message, std::size_t most, std::set<std::string>& to) {
    const auto found = message.find("names");
    if (found == message.end() || !found->is_array() || found->size() > most)
        return "names: an array, not too long";
    std::set<std::string> names;
    for (const json& name : *found) {
        if (!name.is_string()) return "names: texts";
        std::string text = name;
        if (text.size() > kMaxText) return "names: too long";
        names.insert(std::move(text));
    }
    to = std::move(names);
    return {};
}

}  // namespace host
