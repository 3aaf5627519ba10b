#pragma once

#include <string>

#include "host/scenario/scenario.h"

// Groups of commands, which scenario.cpp joins into the table, and what several groups use.

namespace host {

std::vector<Command> SetUpCommands();
std::vector<Command> TimeCommands();
std::vector<Command> HostSideCommands();
std::vector<Command> AircraftCommands();
std::vector<Command> CockpitCommands();
std::vector<Command> CduCommands();
std::vector<Command> LookingCommands();

/// "0xEVENT VALUE" lines of the key events sent since the last `events`.
std::string EventsText();

/// One call of the module, and a picture of each visible gauge if this is the call for it.
void TickScenario(Scenario& scenario, bool paused_frame);

/// A number word; throws CommandError that names what it should be.
double NumberWord(const Word& word, std::string_view what);
int IntWord(const Word& word, std::string_view what);

/// "L", the captain's, or "R"; throws CommandError for another word.
bool IsLeftSide(const Word& word);

/// The words behind the command's name as one text, a blank between.
std::string Rest(const std::vector<Word>& words);

}  // namespace host
