#include <array>
#include <chrono>
#include <cmath>
#include <filesystem>

#include "host/remote_peer.h"
#include "host/root_folder.h"
#include "host/scenario/commands.h"
#include "host/scenario/inspection.h"
#include "host/world/terrain.h"
#include "host/world/world.h"

namespace host {
namespace {

constexpr double kMostHours = 1e6;

void Token(Scenario&, const std::vector<Word>& words) {
    const int token = IntWord(words[1], "a token");
    if (token < 0 || token >= kTokenCount)
        throw CommandError{"\"" + words[1].text + "\" is no token; 0 to 1023"};
    PinToken(token, NumberWord(words[2], "a raw value"));
}

void Calc(Scenario&, const std::vector<Word>& words) {
    const std::optional<double> number = ParseNumber(words[2].text);
    PinCalc(words[1].text, number.value_or(0), number ? "" : words[2].text);
}

void Lvar(Scenario&, const std::vector<Word>& words) {
    WriteByHand(words[1].text, NumberWord(words[2], "a value"));
}

void Key(Scenario&, const std::vector<Word>& words) {
    QueueKeyEvent(IntWord(words[1], "a key event"), words.size() > 2 ? IntWord(words[2], "a value") : 0);
}

void SimEvent(Scenario& scenario, const std::vector<Word>& words) {
    struct Row {
        std::string_view word;
        SimMessage::Kind kind;
        int id;
    };
    constexpr Row kRows[] = {{"sound", SimMessage::kEvent, 11},
                             {"pause", SimMessage::kEvent, 12},
                             {"flightsaved", SimMessage::kFileName, 13},
                             {"flightloaded", SimMessage::kSystemState, 14},
                             {"client", SimMessage::kEvent, -1}};
    for (const Row& row : kRows) {
        if (row.word != words[1].text) continue;
        SimMessage message{row.kind, row.id, 0, nullptr};
        if (row.kind == SimMessage::kEvent) message.data = IntWord(words[2], "a number");
        if (row.id < 0) message.id = message.data;
        if (scenario.started) {
            SendSimMessage(row.kind, message.id, message.data, words[2].text.c_str());
        } else {
            scenario.messages_before_start.push_back(message);
            scenario.message_texts.push_back(words[2].text);
            if (row.id == 14) world.loaded_flight = words[2].text;
        }
        return;
    }
    throw CommandError{"\"" + words[1].text + "\"; sound, pause, flightsaved, flightloaded or client"};
}

void Window(Scenario&, const std::vector<Word>& words) {
    const int ident = IntWord(words[1], "a window identifier");
    if (ident < 0 || ident >= static_cast<int>(world.windows.size()))
        throw CommandError{"\"" + words[1].text + "\" is no window; 0 to 99"};
    world.windows[static_cast<std::size_t>(ident)] = IntWord(words[2], "0 or 1") != 0;
}

void Route(Scenario& scenario, const std::vector<Word>& words) {
    Inspect(InspectionOf(scenario).enter_route, words[1].text.c_str());
}

void Exec(Scenario& scenario, const std::vector<Word>&) {
    Inspect(InspectionOf(scenario).execute_route);
}

void Age(Scenario& scenario, const std::vector<Word>& words) {
    const std::filesystem::path file = FindUnderRoot(scenario.session.settings.root, words[1].text);
    if (file.empty()) throw CommandError{"there is no " + words[1].text + " under the root"};
    const double hours = NumberWord(words[2], "a number of hours");
    if (std::fabs(hours) > kMostHours) throw CommandError{"\"" + words[2].text + "\" hours are no age"};
    const std::chrono::duration<double> age(3600 * hours);
    const auto now = std::chrono::sys_seconds(std::chrono::seconds(UtcSeconds()));
    const auto written =
        std::chrono::file_clock::from_sys(now - std::chrono::floor<std::chrono::seconds>(age));
    std::error_code failed;
    std::filesystem::last_write_time(file, written, failed);
    if (failed) throw CommandError{words[1].text + ": " + failed.message()};
}

void Terrain(Scenario& scenario, const std::vector<Word>& words) {
    if (words[1].text == "flat" && words.size() == 3) {
        UseFlatTerrain(NumberWord(words[2], "a height in metres"));
    } else if (words[1].text == "model" && words.size() == 2) {
        UseModelTerrain(AirportsFile(scenario.session.settings));
    } else {
        throw CommandError{"`terrain flat METRES` or `terrain model`"};
    }
    scenario.session.settings.terrain_chosen = true;
}

void Wind(Scenario&, const std::vector<Word>& words) {
    SetWind(NumberWord(words[1], "a direction"), NumberWord(words[2], "a speed in knots"));
}
void Fuel(Scenario&, const std::vector<Word>& words) {
    LoadFuel(NumberWord(words[1], "pounds"));
}
void Oat(Scenario&, const std::vector<Word>& words) {
    SetOutsideTemperature(NumberWord(words[1], "degrees Celsius"));
}
void Qnh(Scenario&, const std::vector<Word>& words) {
    SetQnh(NumberWord(words[1], "a pressure in hPa"));
}

// The runways that the air traffic uses at an airport, up to four; none = no traffic there.
void Runways(Scenario&, const std::vector<Word>& words) {
    std::array<std::string, 5> airport;
    for (std::size_t i = 1; i < words.size(); ++i) airport[i - 1] = words[i].text;
    std::erase_if(world.active_runways, [&](const auto& known) { return known[0] == airport[0]; });
    if (words.size() > 2) world.active_runways.push_back(airport);
}

// What a program that shows the CDUs and the tablet in windows of its own would send.
void Remote(Scenario&, const std::vector<Word>& words) {
    const int device = IntWord(words[1], "a device, 0 to 2");
    RemotePeer peer;
    if (!peer.Open()) throw CommandError{"the module serves no remote peer (RemoteCdu, four seconds)"};
    if (words[2].text == "key" && words.size() == 4)
        peer.Send(device, 0, IntWord(words[3], "a key code"));
    else if (words[2].text == "touch" && words.size() == 5)
        peer.Send(device, 2, 0, IntWord(words[3], "a pixel"), IntWord(words[4], "a pixel"));
    else
        throw CommandError{"`remote DEVICE key CODE` or `remote DEVICE touch X Y`"};
}

void Warp(Scenario&, const std::vector<Word>& words) {
    const double rate = NumberWord(words[1], "a rate");
    if (rate <= 0) throw CommandError{"\"" + words[1].text + "\" is no rate; above 0"};
    world.sim_rate = rate;
    FillClockTokens();
}

}  // namespace

std::vector<Command> HostSideCommands() {
    return {
        {"token", "T VALUE", "token 364 1", Command::kAnytime, 2, 2, Token},
        {"calc", "\"EXPR\" VALUE", "calc \"(A:EMPTY WEIGHT,pounds)\" 250000", Command::kAnytime, 2, 2, Calc},
        {"lvar", "NAME VALUE", "lvar TZ_OH_ELE_BAT_Button 1", Command::kAnytime, 2, 2, Lvar},
        {"key", "EVENT [VALUE]", "key 0x1002c", Command::kAnytime, 1, 2, Key},
        {"simevent", "sound|pause 0|1, flightsaved|flightloaded \"NAME\", client ID", "simevent sound 0",
         Command::kAnytime, 2, 2, SimEvent},
        {"window", "IDENT 0|1", "window 5 1", Command::kAnytime, 2, 2, Window},
        {"route", "\"ORIG[/RWY] FIX AIRWAY FIX ... DEST[/RWY or /ILS24R]\"", "route \"KSEA BTG J1 OED KSFO\"",
         Command::kAfter, 1, 1, Route},
        {"exec", "", "exec", Command::kAfter, 0, 0, Exec},
        {"age", "FILE HOURS", "age Velarion/tz900.cfg 24", Command::kAfter, 2, 2, Age},
        {"terrain", "flat METRES | model", "terrain flat 100", Command::kAnytime, 1, 2, Terrain},
        {"wind", "DIR KT", "wind 270 40", Command::kAnytime, 2, 2, Wind},
        {"fuel", "LB", "fuel 120000", Command::kAnytime, 1, 1, Fuel},
        {"oat", "C", "oat 15", Command::kAnytime, 1, 1, Oat},
        {"qnh", "HPA", "qnh 1013.25", Command::kAnytime, 1, 1, Qnh},
        {"runways", "ICAO RWY...", "runways KSEA 16L 16R", Command::kAnytime, 1, 5, Runways},
        {"traffic", "ID LAT LON ALT_FT VS_FPM HDG | clear", "", Command::kAnytime, 1, 6, nullptr},
        {"url", "ADDRESS FILE", "", Command::kAnytime, 2, 2, nullptr},
        {"remote", "DEVICE key CODE | touch X Y", "remote 0 key 20", Command::kAfter, 3, 4, Remote},
        {"warp", "X", "warp 4", Command::kAnytime, 1, 1, Warp},
    };
}

}  // namespace host
