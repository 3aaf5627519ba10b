#include <fstream>
#include <iterator>

#include "host/flight.h"
#include "host/root_folder.h"
#include "host/scenario/inspection.h"
#include "host/scenario/scenario.h"
#include "host/screens.h"
#include "host/world/world.h"

namespace host {

const InspectionTable& InspectionOf(const Scenario& scenario) {
    if (scenario.session.linkage == nullptr) throw CommandError{"the module is not loaded; `start` first"};
    return *scenario.session.linkage->inspection;
}

std::string PrintedList(const Scenario& scenario, std::string_view list, const std::string& argument) {
    std::string text;
    const std::string name(list);
    for (const auto& [unused, line] :
         Inspect(InspectionOf(scenario).print_list, name.c_str(), argument.c_str()))
        text += line + '\n';
    return text;
}

std::string PrintedPicture(const Scenario& scenario, std::string_view list, const std::string& screen) {
    const std::string gauge = GaugeOfScreen(screen);
    if (gauge.empty())
        throw CommandError{
            "\"" + screen +
            "\" is no screen; capt_outb capt_inb fo_inb fo_outb lower hud stby efb_l efb_r debug"};
    return PrintedList(scenario, list, gauge);
}

namespace {

std::string LvarValue(Scenario&, const std::string& name) {
    return NumberText(NamedValue(name));
}

std::string TokenValue(Scenario&, const std::string& name) {
    const std::optional<int> token = ParseInt(name);
    if (!token || *token < 0 || *token >= kTokenCount)
        throw CommandError{"\"" + name +
                           "\" is no token; a number from 0 to 1023, decimal or 0x hexadecimal"};
    return NumberText(TokenOf(*token));
}

std::string CalcText(Scenario&, const std::string& expression) {
    const auto found = world.calc.find(expression);
    if (found == world.calc.end()) return "0";
    return found->second.text.empty() ? NumberText(found->second.number) : found->second.text;
}

std::string AircraftText(Scenario&, const std::string& name) {
    double value = 0;
    if (!AircraftValue(name, value))
        throw CommandError{"the aircraft has no \"" + name +
                           "\"; lat lon alt hdg ias gs vs bank pitch fuel weight"};
    return NumberText(value);
}

std::string FunctionResult(Scenario& scenario, const std::string& text) {
    const std::size_t dot = text.rfind('.');
    const Results results = Inspect(InspectionOf(scenario).call_function, text.substr(0, dot).c_str());
    for (const auto& [name, value] : results)
        if (dot != std::string::npos && name == text.substr(dot + 1)) return value;
    throw CommandError{
        "name one of the function's results behind a point: call:\"GreatCircle 0 0 1 1\".dist"};
}

std::string FileText(Scenario& scenario, const std::string& path) {
    std::ifstream file(FindUnderRoot(scenario.session.settings.root, path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string MessagesText(Scenario& scenario, const std::string& side) {
    return PrintedList(scenario, "messages", side);
}

std::string PictureText(Scenario& scenario, const std::string& screen) {
    return PrintedPicture(scenario, "text", screen);
}
std::string PictureDraws(Scenario& scenario, const std::string& screen) {
    return PrintedPicture(scenario, "draws", screen);
}

struct NameSpace {
    std::string_view prefix;
    std::string (*value)(Scenario&, const std::string& rest);
};

constexpr NameSpace kNameSpaces[] = {
    {"lvar:", LvarValue},        {"token:", TokenValue},    {"calc:", CalcText},
    {"aircraft:", AircraftText}, {"call:", FunctionResult}, {"file:", FileText},
    {"text:", PictureText},      {"draws:", PictureDraws},  {"messages:", MessagesText},
};

}  // namespace

std::string EventsText() {
    std::string text;
    for (const KeyEventRecord& event : world.sent_events) {
        char line[48];
        std::snprintf(line, sizeof line, "0x%x %d\n", static_cast<unsigned>(event.event), event.value);
        text += line;
    }
    return text;
}

std::string ValueOfName(Scenario& scenario, const Word& name) {
    for (const NameSpace& space : kNameSpaces)
        if (name.text.starts_with(space.prefix))
            return space.value(scenario, name.text.substr(space.prefix.size()));
    if (name.text == "events") return EventsText();
    if (name.text == "alerts" || name.text == "sounds") return PrintedList(scenario, name.text, "");
    const Results results = Inspect(InspectionOf(scenario).read_variable, name.text.c_str());
    return results.empty() ? std::string() : results.front().second;
}

}  // namespace host
