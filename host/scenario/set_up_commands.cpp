#include <filesystem>

#include "host/scenario/commands.h"
#include "host/world/world.h"

namespace host {
namespace {

std::string FolderWord(const Word& word) {
    std::error_code failed;
    if (!std::filesystem::is_directory(word.text, failed)) throw CommandError{word.text + " is no folder"};
    return std::filesystem::absolute(word.text).string();
}

void Root(Scenario& scenario, const std::vector<Word>& words) {
    scenario.session.settings.root = FolderWord(words[1]);
}

void Navdata(Scenario& scenario, const std::vector<Word>& words) {
    scenario.session.settings.navdata = FolderWord(words[1]);
}

void AircraftTitle(Scenario& scenario, const std::vector<Word>& words) {
    scenario.session.settings.title = Rest(words);
}

void Cfg(Scenario& scenario, const std::vector<Word>& words) {
    scenario.session.settings.cfg_lines.push_back(Rest(words));
}

void Date(Scenario& scenario, const std::vector<Word>& words) {
    const std::string& text = words[1].text;
    const auto part = [&](std::size_t from, std::size_t count) {
        return text.size() == 10 ? ParseInt(text.substr(from, count)).value_or(-1) : -1;
    };
    const int year = part(0, 4), month = part(5, 2), day = part(8, 2);
    if (year < 1970 || month < 1 || month > 12 || day < 1 || day > 31 || text[4] != '-' || text[7] != '-')
        throw CommandError{"\"" + text + "\" is no date; YYYY-MM-DD"};
    scenario.session.settings.machine_date = year * 10000 + month * 100 + day;
}

void At(Scenario& scenario, const std::vector<Word>& words) {
    Placement placement{NumberWord(words[1], "a latitude"), NumberWord(words[2], "a longitude"),
                        NumberWord(words[3], "an altitude in feet"), NumberWord(words[4], "a heading")};
    if (words.size() > 5) placement.ias = NumberWord(words[5], "an indicated airspeed");
    if (placement.lat < -90 || placement.lat > 90 || placement.lon < -180 || placement.lon > 180)
        throw CommandError{"no such place; a latitude of -90 to 90, a longitude of -180 to 180"};
    scenario.session.settings.placed = true;
    scenario.session.settings.placement = placement;
    if (scenario.started) PlaceAircraft(placement);
}

void Fdm(Scenario& scenario, const std::vector<Word>& words) {
    if (words[1].text != "on" && words[1].text != "off")
        throw CommandError{"\"" + words[1].text + "\"; on or off"};
    scenario.session.settings.fdm = words[1].text == "on";
}

void Cold(Scenario&, const std::vector<Word>&) {
    ShutDownAircraft();
}

void Start(Scenario& scenario, const std::vector<Word>&) {
    std::string error;
    if (!PrepareSession(scenario.session, error) || !StartSession(scenario.session, error))
        throw CommandError{error};
    scenario.started = true;
    for (std::size_t i = 0; i < scenario.messages_before_start.size(); ++i) {
        SimMessage message = scenario.messages_before_start[i];
        SendSimMessage(static_cast<SimMessage::Kind>(message.kind), message.id, message.data,
                       scenario.message_texts[i].c_str());
    }
}

}  // namespace

std::vector<Command> SetUpCommands() {
    return {
        {"root", "DIR", "root data/root", Command::kBefore, 1, 1, Root},
        {"navdata", "DIR", "navdata data/root/Velarion/TZ900/Navdata", Command::kBefore, 1, 1, Navdata},
        {"aircraft", "TITLE", "aircraft \"TZ900-9 GE House\"", Command::kBefore, 1, 20, AircraftTitle},
        {"cfg", "KEY=VALUE", "cfg WeightUnit=KGS", Command::kBefore, 1, 20, Cfg},
        {"date", "YYYY-MM-DD", "date 2026-12-24", Command::kBefore, 1, 1, Date},
        {"at", "LAT LON ALT_FT HDG [IAS]", "at 47.45 -122.31 12000 180 280", Command::kAnytime, 4, 5, At},
        {"fdm", "on|off", "fdm on", Command::kAnytime, 1, 1, Fdm},
        {"cold", "", "cold", Command::kAfter, 0, 0, Cold},
        {"start", "", "start", Command::kBefore, 0, 0, Start},
    };
}

}  // namespace host
