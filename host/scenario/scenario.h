#pragma once

#include <functional>
#include <istream>
#include <ostream>
#include <string>

#include "host/scenario/words.h"
#include "host/session.h"

// The scenario language: one command a line, the whole system driven through the host boundary, always with
// the same result. Commands() is the table of commands, names.cpp answers the names of get and expect.

namespace host {

/// What a command is told and what it may answer.
struct Scenario {
    Session session;
    std::ostream& out;
    bool started = false;
    int failed_expectations = 0;
    std::string file = {};  // of the line being run
    int line = 0;
    std::vector<SimMessage> messages_before_start = {};
    std::vector<std::string> message_texts = {};
    int paint_every = 1;  // calls from picture to picture, 0 = never
    int calls_since_paint = 0;
    std::function<void(bool paused_frame)> after_call = {};  // may throw Interruption; empty = nobody looks
    bool may_write_files = true;
};

/// A command that is wrong: what is wrong, what would be right.
struct CommandError {
    std::string text;
};

/// Thrown between two calls of the module to end the run, as when a signal asks the process to end.
struct Interruption {};

struct Command {
    std::string_view name;
    std::string_view usage;  // the words behind the name
    std::string_view example;
    enum When { kBefore, kAfter, kAnytime } when;
    std::size_t least_words, most_words;  // behind the name
    /// Throws CommandError; words[0] is the name. Null for a command that isn't available yet.
    void (*run)(Scenario& scenario, const std::vector<Word>& words);
};

/// The table of commands, in the order of their help.
const std::vector<Command>& Commands();

/// Value of a name of `get` and `expect` as text; throws CommandError for an unknown one.
std::string ValueOfName(Scenario& scenario, const Word& name);

/// Runs one stream of commands. Exit status: 0 everything held, 1 an expectation failed, 2 a command was
/// wrong, 128 and its number when a signal ended the run.
int RunScenario(Scenario& scenario, std::istream& in, const std::string& file_name, std::ostream& errors);

/// `tz900 run FILE...`: the files in turn, a folder for the *.scn in it and its folders by their names, "-"
/// for standard input, each with a session of its own. All are read before the first is run.
int RunScenarioFiles(const std::vector<std::string>& words, const std::string& demo_root);

/// The commands with their examples, for `tz900 run --help`.
std::string ScenarioHelp();

}  // namespace host
