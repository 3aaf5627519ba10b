#include <string>

#include "host/scenario/commands.h"
#include "host/scenario/inspection.h"
#include "host/world/world.h"

// The keys of the two CDUs, pressed as in the cockpit: each is a named variable that the module polls and
// sets back.

namespace host {
namespace {

constexpr int kMostTicks = 200;  // polling begins eight seconds after the start
constexpr int kTicksBehind = 2;  // the page acts on the next service call
constexpr int kPressTicks = 12;  // CLR MSG acts at the end of its press

struct CduKey {
    std::string_view name;
    std::string_view keypad;  // key of the keypad, "" = an item of the face
    int item = 0;
};
constexpr CduKey kKeys[] = {
    {"1L", "", 1},     {"2L", "", 2},        {"3L", "", 3},       {"4L", "", 4},      {"5L", "", 5},
    {"6L", "", 6},     {"1R", "", 9},        {"2R", "", 10},      {"3R", "", 11},     {"4R", "", 12},
    {"5R", "", 13},    {"6R", "", 14},       {"INITREF", "", 17}, {"RTE", "", 18},    {"DEPARR", "", 19},
    {"ALTN", "", 20},  {"VNAV", "", 21},     {"EXEC", "EXEC"},    {"FIX", "", 23},    {"LEGS", "", 24},
    {"HOLD", "", 25},  {"FMCCOMM", "", 26},  {"PROG", "", 27},    {"NAVRAD", "", 28}, {"PREV", "PRVPG"},
    {"NEXT", "NXTPG"}, {"CLR", "CLR"},       {"DEL", "DEL"},      {"SP", "SP"},       {"SLASH", "SLASH"},
    {"DEC", "DEC"},    {"NEGPOS", "NEGPOS"},
};
constexpr std::string_view kClearMessage = "CLRMSG";

void Tick(Scenario& scenario) {
    TickScenario(scenario, false);
}

// Presses a key of the cockpit and waits until the module has taken it.
void PressVariable(Scenario& scenario, const std::string& name, double value) {
    SetNamedValue(name, value);
    for (int ticks = 0; ticks < kMostTicks && NamedValue(name) != 0; ++ticks) Tick(scenario);
    for (int ticks = 0; ticks < kTicksBehind; ++ticks) Tick(scenario);
}

void PressKeypad(Scenario& scenario, bool left, std::string_view key) {
    PressVariable(scenario, std::string(left ? "TZ_FMC_L_" : "TZ_FMC_R_").append(key).append("_Button"), 1);
}

void Type(Scenario& scenario, bool left, char c) {
    switch (c) {
        case ' ':
            return PressKeypad(scenario, left, "SP");
        case '/':
            return PressKeypad(scenario, left, "SLASH");
        case '.':
            return PressKeypad(scenario, left, "DEC");
        case '+':  // the key gives "-" and turns it
            PressKeypad(scenario, left, "NEGPOS");
            [[fallthrough]];
        case '-':
            return PressKeypad(scenario, left, "NEGPOS");
        default:
            break;
    }
    const bool has_key = (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    if (!has_key) throw CommandError{std::string("the keypad has no key \"") + c + "\""};
    PressKeypad(scenario, left, std::string_view(&c, 1));
}

void Keys(Scenario& scenario, const std::vector<Word>& words) {
    const bool left = IsLeftSide(words[1]);
    for (const char c : words[2].text) Type(scenario, left, c);
}

void PressCdu(Scenario& scenario, bool left, const std::string& name) {
    if (name == kClearMessage) {
        InspectionOf(scenario).press_clear_message(left ? 1 : 2);
        for (int ticks = 0; ticks < kPressTicks; ++ticks) Tick(scenario);
        return;
    }
    for (const CduKey& key : kKeys) {
        if (key.name != name) continue;
        if (!key.keypad.empty()) return PressKeypad(scenario, left, key.keypad);
        return PressVariable(scenario, left ? "TZ_CAPT_CDU_KEYPRESS" : "TZ_FO_CDU_KEYPRESS", key.item);
    }
    std::string known;
    for (const CduKey& key : kKeys) known.append(" ").append(key.name);
    throw CommandError{"\"" + name + "\" is no key of the CDU;" + known + " CLRMSG"};
}

void Cdu(Scenario& scenario, const std::vector<Word>& words) {
    const bool left = IsLeftSide(words[1]);
    for (std::size_t i = 2; i < words.size(); ++i) PressCdu(scenario, left, words[i].text);
}

}  // namespace

std::vector<Command> CduCommands() {
    return {
        {"keys", "L|R TEXT", "keys L KSEA", Command::kAfter, 2, 2, Keys},
        {"cdu", "L|R KEY...", "cdu L RTE 1L", Command::kAfter, 2, 100, Cdu},
    };
}

}  // namespace host
