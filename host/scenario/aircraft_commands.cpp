#include "host/flight.h"
#include "host/scenario/commands.h"

// What befalls the aircraft, and what the ground does to it.

namespace host {
namespace {

bool SwitchWord(const std::vector<Word>& words) {
    if (words.size() < 3) return true;
    const int value = IntWord(words[2], "0 or 1");
    if (value != 0 && value != 1) throw CommandError{"\"" + words[2].text + "\"; 0 or 1"};
    return value != 0;
}

template <class Rows>
std::string NamesOf(const Rows& rows) {
    std::string names;
    for (const auto& row : rows) names.append(names.empty() ? "" : " ").append(row.name);
    return names;
}

void Tell(Scenario& scenario, std::string_view name, bool on, std::string_view told) {
    scenario.out << name << ' ' << (on ? 1 : 0) << " \"" << told << "\"\n";
}

void Fail(Scenario& scenario, const std::vector<Word>& words) {
    if (words.size() == 1) {
        for (const FailureRow& row : FailureRows())
            Tell(scenario, row.name, flight.aircraft.fails[row.failure],
                 std::string(row.group) + ": " + std::string(row.told));
        return;
    }
    const FailureRow* row = FindFailure(words[1].text);
    if (row == nullptr)
        throw CommandError{"\"" + words[1].text + "\" is nothing that fails; " + NamesOf(FailureRows())};
    SetFailure(*row, SwitchWord(words));
}

void Ground(Scenario& scenario, const std::vector<Word>& words) {
    if (words.size() == 1) {
        for (const GroundRow& row : GroundRows())
            Tell(scenario, row.name, IsSet(flight.aircraft, row), row.told);
        return;
    }
    const GroundRow* row = FindGroundService(words[1].text);
    if (row == nullptr)
        throw CommandError{"\"" + words[1].text + "\" is no door and no service; " + NamesOf(GroundRows())};
    if (!SetGround(*row, SwitchWord(words))) throw CommandError{"the aircraft must stand for that"};
}

}  // namespace

std::vector<Command> AircraftCommands() {
    return {
        {"fail", "[WHAT [0|1]]", "fail engine_l", Command::kAnytime, 0, 2, Fail},
        {"ground", "[WHAT [0|1]]", "ground cargo_aft 0", Command::kAnytime, 0, 2, Ground},
    };
}

}  // namespace host
