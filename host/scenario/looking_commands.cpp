#include <algorithm>

#include "host/scenario/commands.h"
#include "host/scenario/conditions.h"
#include "host/scenario/inspection.h"
#include "host/screens.h"
#include "host/world/world.h"

namespace host {
namespace {

void Get(Scenario& scenario, const std::vector<Word>& words) {
    for (std::size_t i = 1; i < words.size(); ++i) {
        const std::string value = ValueOfName(scenario, words[i]);
        scenario.out << words[i].raw << " = " << value << '\n';
    }
}

void Set(Scenario& scenario, const std::vector<Word>& words) {
    Inspect(InspectionOf(scenario).write_variable, words[1].text.c_str(), words[2].text.c_str());
}

void Expect(Scenario& scenario, const std::vector<Word>& words) {
    const Condition condition = ParseCondition({words.begin() + 1, words.end()});
    std::string have;
    if (!Holds(scenario, condition, have)) TellFailure(scenario, condition, have);
}

void Vars(Scenario& scenario, const std::vector<Word>& words) {
    const std::string pattern = Rest(words);
    for (const auto& [name, type] : Inspect(InspectionOf(scenario).list_variables, ""))
        if (MatchesPattern(name, pattern)) scenario.out << name << ' ' << type << '\n';
}

template <const char* const& kList>
void PrintList(Scenario& scenario, const std::vector<Word>& words) {
    scenario.out << PrintedList(scenario, kList, Rest(words));
}

constexpr const char* kLegs = "legs";
constexpr const char* kRows = "rows";
constexpr const char* kCandidates = "candidates";
constexpr const char* kMessages = "messages";
constexpr const char* kAlerts = "alerts";

constexpr const char* kText = "text";
constexpr const char* kDraws = "draws";

template <const char* const& kList>
void PrintPicture(Scenario& scenario, const std::vector<Word>& words) {
    scenario.out << PrintedPicture(scenario, kList, words[1].text);
}

void Shot(Scenario& scenario, const std::vector<Word>& words) {
    if (!scenario.may_write_files) throw CommandError{"a recording writes no files"};
    PrintedPicture(scenario, kText, words[1].text);  // tells a wrong screen
    const double scale = words.size() > 3 ? NumberWord(words[3], "a scale") : 1;
    if (!(scale > 0 && scale <= 16))
        throw CommandError{"\"" + words[3].text + "\" is no scale; above 0, to 16"};
    if (!WritePictureFile(scenario.session, words[1].text, words[2].text, scale))
        throw CommandError{"no picture of " + words[1].text + " yet, or " + words[2].text +
                           " can't be written"};
}

void Events(Scenario& scenario, const std::vector<Word>&) {
    scenario.out << EventsText();
    world.sent_events.clear();
}

void Lvars(Scenario& scenario, const std::vector<Word>& words) {
    std::vector<const NamedVariable*> variables;
    for (const NamedVariable& variable : world.named)
        if (variable.exists && MatchesPattern(variable.name, Rest(words))) variables.push_back(&variable);
    std::sort(variables.begin(), variables.end(),
              [](const auto* a, const auto* b) { return a->name < b->name; });
    for (const NamedVariable* variable : variables)
        scenario.out << variable->name << " = " << NumberText(variable->value) << '\n';
}

void Controls(Scenario& scenario, const std::vector<Word>& words) {
    const InspectionTable& table = InspectionOf(scenario);
    for (const auto& [name, told] : Inspect(table.list_controls)) {
        if (!MatchesPattern(name, Rest(words))) continue;
        const std::string kind = told.substr(0, told.find(' ')), state = told.substr(told.rfind(' ') + 1);
        const std::string value = state == "-" ? NumberText(NamedValue(name))
                                               : Inspect(table.read_variable, state.c_str()).front().second;
        scenario.out << name << ' ' << kind << ' ' << state << ' ' << value << '\n';
    }
}

void PrintResults(Scenario& scenario, const Results& results) {
    for (const auto& [name, value] : results) scenario.out << name << " = " << value << '\n';
}

void Call(Scenario& scenario, const std::vector<Word>& words) {
    PrintResults(scenario, Inspect(InspectionOf(scenario).call_function, Rest(words).c_str()));
}

void Op(Scenario& scenario, const std::vector<Word>& words) {
    PrintResults(scenario, Inspect(InspectionOf(scenario).run_operation, Rest(words).c_str()));
}

void Log(Scenario& scenario, const std::vector<Word>& words) {
    scenario.out << Rest(words) << '\n';
}

}  // namespace

std::vector<Command> LookingCommands() {
    return {
        {"get", "NAME...", "get stpos aircraft:lat", Command::kAfter, 1, 100, Get},
        {"set", "NAME VALUE", "set AccelHt 1000", Command::kAfter, 2, 2, Set},
        {"expect", "NAME OP VALUE [TOL]", "expect aircraft:alt > 0", Command::kAfter, 3, 4, Expect},
        {"vars", "[PATTERN]", "vars fp_*", Command::kAfter, 0, 1, Vars},
        {"legs", "[active|mod]", "legs active", Command::kAfter, 0, 1, PrintList<kLegs>},
        {"rows", "", "rows", Command::kAfter, 0, 0, PrintList<kRows>},
        {"candidates", "\"ENTRY\"", "candidates \"N45W120\"", Command::kAfter, 1, 1, PrintList<kCandidates>},
        {"messages", "L|R", "messages L", Command::kAfter, 1, 1, PrintList<kMessages>},
        {"alerts", "", "alerts", Command::kAfter, 0, 0, PrintList<kAlerts>},
        {"text", "SCREEN", "text capt_outb", Command::kAfter, 1, 1, PrintPicture<kText>},
        {"draws", "SCREEN", "draws stby", Command::kAfter, 1, 1, PrintPicture<kDraws>},
        {"shot", "SCREEN FILE.png [SCALE]", "shot lower lower.png 2", Command::kAfter, 2, 3, Shot},
        {"sounds", "", "", Command::kAfter, 0, 0, nullptr},
        {"events", "", "events", Command::kAfter, 0, 0, Events},
        {"lvars", "[PATTERN]", "lvars TZ_OH_*", Command::kAfter, 0, 1, Lvars},
        {"controls", "[PATTERN]", "controls TZ_OH_ELE_*", Command::kAfter, 0, 1, Controls},
        {"call", "FUNCTION ARG...", "call GreatCircle 47 -122 45 -122", Command::kAfter, 1, 20, Call},
        {"op", "FUNCTION ARG...", "op RebuildRouteRows", Command::kAfter, 1, 20, Op},
        {"log", "\"TEXT\"", "log \"half way\"", Command::kAnytime, 0, 100, Log},
    };
}

}  // namespace host
