#include "host/scenario/scenario.h"

#include <algorithm>
#include <filesystem>
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
        for (const auto& group : {SetUpCommands(), TimeCommands(), HostSideCommands(), AircraftCommands(),
                                  CockpitCommands(), CduCommands(), LookingCommands()})
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

// A file may hold anything, and a terminal obeys some of it. Of a long text the ends tell most.
std::string Printable(const std::string& text) {
    constexpr std::size_t kLongest = 1000, kEnd = kLongest / 2;
    std::string printable =
        text.size() <= kLongest ? text : text.substr(0, kEnd) + " ... " + text.substr(text.size() - kEnd);
    for (char& c : printable)
        if ((static_cast<unsigned char>(c) < ' ' && c != '\n') || c == '\x7f') c = '?';
    return printable;
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

struct ScenarioText {
    std::string file, lines;
};

// Whole streams, without the mark that some editors put before the first letter.
ScenarioText ReadScenario(const std::string& file, std::istream& in) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    std::ostringstream text;
    text << in.rdbuf();
    ScenarioText scenario{file, text.str()};
    if (scenario.lines.starts_with(kByteOrderMark)) scenario.lines.erase(0, kByteOrderMark.size());
    return scenario;
}

// Adds what a word of the command line stands for: a file, "-" or a folder.
bool ReadScenarios(const std::string& word, std::vector<ScenarioText>& texts, std::string& error) {
    namespace fs = std::filesystem;
    std::error_code failed;
    if (word == "-") {
        texts.push_back(ReadScenario(word, std::cin));
        return true;
    }
    std::vector<std::string> files = {word};
    if (fs::is_directory(word, failed)) {
        files.clear();
        for (fs::recursive_directory_iterator entry(word, failed), end; !failed && entry != end;
             entry.increment(failed))
            if (entry->path().extension() == ".scn") files.push_back(entry->path());
        std::sort(files.begin(), files.end());
        if (files.empty()) error = "holds no scenario, no file with a name in .scn";
    }
    for (const std::string& file : files) {
        std::ifstream in(file);
        if (!in)
            error = file == word ? "can't be read" : file + " can't be read";
        else
            texts.push_back(ReadScenario(file, in));
    }
    return error.empty();
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
            errors << file_name << ':' << scenario.line << ": " << Printable(error.text) << '\n';
            return 2;
        } catch (const Interruption&) {
            break;
        }
        if (EndSignal() != 0) break;
    }
    if (EndSignal() != 0) return 128 + EndSignal();
    if (!world.never_a_number.empty()) {
        scenario.out.flush();
        errors << file_name << ": " << world.never_a_number << " was no number\n";
        return 1;
    }
    return scenario.failed_expectations > 0 ? 1 : 0;
}

int RunScenarioFiles(const std::vector<std::string>& words, const std::string& demo_root) {
    std::vector<ScenarioText> texts;
    for (const std::string& word : words)
        if (std::string error; !ReadScenarios(word, texts, error)) {
            std::cerr << word << ": " << error << '\n';
            return 2;
        }
    HoldEndSignals();
    int status = 0;
    std::optional<Scenario> scenario;
    for (const ScenarioText& text : texts) {
        if (!scenario || StartsOfItself(text.lines)) {
            if (scenario) StopSession(scenario->session);
            world = World{};
            flight = Flight{};
            scenario.emplace(Session{}, std::cout);
            scenario->session.settings.demo_root = demo_root;
        }
        std::istringstream lines(text.lines);
        status = std::max(status, RunScenario(*scenario, lines, text.file, std::cerr));
        if (status >= 2) break;
    }
    if (scenario) StopSession(scenario->session);
    std::cout.flush();
    return status;
}

std::string ScenarioHelp() {
    std::string help =
        "Commands, one a line; an example of each that is available behind it. SECONDS may also be minutes, "
        "as 90m, or "
        "h:mm:ss.\n";
    for (const Command& command : Commands()) {
        const std::string form = Form(command);
        help += "  " + form + "\n      " +
                (command.run == nullptr ? std::string("(not available yet)") : std::string(command.example)) +
                "\n";
    }
    return help;
}

}  // namespace host
