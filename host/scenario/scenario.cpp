#include "host/scenario/scenario.h"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <sstream>

#include "host/process.h"
#include "host/scenario/commands.h"
#include "host/world/world.h"

namespace host {

const std::vector<Command>& Commands() {
    static const std::vector<Command> kCommands = [] {
        std::vector<Command> all;
        for (const auto& group : {SetUpCommands(), TimeCommands(), HostSideCommands(), CockpitCommands(),
                                  CduCommands(), LookingCommands()})
            all.insert(all.end(), group.begin(), group.end());
        return all;
    }();
    return kCommands;
}

double NumberWord(const Word& word, std::string_view what) {
    const std::optional<double> number = ParseNumber(word.text);
    if (!number) throw CommandError{"\"" + word.text + "\" is no number; here stands " + std::string(what)};
    return *number;
}

int IntWord(const Word& word, std::string_view what) {
    const std::optional<int> number = ParseInt(word.text);
    if (!number)
        throw CommandError{"\"" + word.text + "\" is no whole number; here stands " + std::string(what)};
    return *number;
}

bool IsLeftSide(const Word& word) {
    if (word.text != "L" && word.text != "R") throw CommandError{"\"" + word.text + "\" is no side; L or R"};
    return word.text == "L";
}

std::string Rest(const std::vector<Word>& words) {
    std::string text;
    for (std::size_t i = 1; i < words.size(); ++i) text += (i > 1 ? " " : "") + words[i].text;
    return text;
}

namespace {

std::string Form(const Command& command) {
    return std::string(command.name) + (command.usage.empty() ? "" : " ") + std::string(command.usage);
}

void RunLine(Scenario& scenario, const std::string& line) {
    const std::optional<std::vector<Word>> words = SplitWords(line);
    if (!words) throw CommandError{"a quote is left open; a text ends with \""};
    if (words->empty()) return;
    const std::string& name = words->front().text;
    const auto& commands = Commands();
    const auto command =
        std::find_if(commands.begin(), commands.end(), [&](const Command& c) { return c.name == name; });
    if (command == commands.end())
        throw CommandError{"\"" + name + "\" is no command; `tz900 run --help` lists them"};
    const std::size_t given = words->size() - 1;
    if (given < command->least_words || given > command->most_words)
        throw CommandError{"`" + name + "` can't take " + std::to_string(given) + " words; " +
                           Form(*command)};
    if (command->when == Command::kBefore && scenario.started)
        throw CommandError{"`" + name + "` stands before `start`"};
    if (command->when == Command::kAfter && !scenario.started)
        throw CommandError{"`" + name + "` stands behind `start`"};
    if (command->run == nullptr) throw CommandError{"`" + name + "` is not available yet"};
    command->run(scenario, *words);
}

// A file with a `start` of its own is a run of its own; one without goes on in the run before it.
bool StartsOfItself(const std::string& text) {
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        const auto words = SplitWords(line);
        if (words && !words->empty() && words->front().text == "start") return true;
    }
    return false;
}

}  // namespace

int RunScenario(Scenario& scenario, std::istream& in, const std::string& file_name, std::ostream& errors) {
    scenario.file = file_name;
    scenario.line = 0;
    for (std::string line; std::getline(in, line);) {
        ++scenario.line;
        try {
            RunLine(scenario, line);
        } catch (const CommandError& error) {
            scenario.out.flush();
            errors << file_name << ':' << scenario.line << ": " << error.text << '\n';
            return 2;
        } catch (const Interruption&) {
            break;
        }
        if (EndSignal() != 0) break;
    }
    if (EndSignal() != 0) return 128 + EndSignal();
    return scenario.failed_expectations > 0 ? 1 : 0;
}

int RunScenarioFiles(const std::vector<std::string>& files, const std::string& demo_root) {
    std::vector<std::string> texts;
    for (const std::string& file : files) {
        std::ostringstream text;
        if (file == "-") {
            text << std::cin.rdbuf();
        } else {
            std::ifstream in(file);
            if (!in) {
                std::cerr << file << ": can't be read\n";
                return 2;
            }
            text << in.rdbuf();
        }
        texts.push_back(text.str());
    }
    HoldEndSignals();
    int status = 0;
    std::optional<Scenario> scenario;
    for (std::size_t i = 0; i < files.size() && status < 2; ++i) {
        if (!scenario || StartsOfItself(texts[i])) {
            if (scenario) StopSession(scenario->session);
            world = World{};
            flight = Flight{};
            scenario.emplace(Session{}, std::cout);
            scenario->session.settings.demo_root = demo_root;
        }
        std::istringstream lines(texts[i]);
        status = std::max(status, RunScenario(*scenario, lines, files[i], std::cerr));
    }
    if (scenario) StopSession(scenario->session);
    std::cout.flush();
    return status;
}

std::string ScenarioHelp() {
    std::string help = "Commands, one a line; an example of each that is available behind it:\n";
    for (const Command& command : Commands()) {
        const std::string form = Form(command);
        help += "  " + form + "\n      " +
                (command.run == nullptr ? std::string("(not available yet)") : std::string(command.example)) +
                "\n";
    }
    return help;
}

}  // namespace host
