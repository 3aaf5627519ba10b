#include "host/fly/playback.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>

#include "host/flightdeck/commands.h"
#include "host/fly/deck_loop.h"
#include "host/process.h"
#include "host/scenario/scenario.h"
#include "host/scenario/words.h"
#include "host/world/key_event_effects.h"
#include "host/world/world.h"

namespace host {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t kLargest = 64 << 20;  // bytes, some days of flight

bool ReadRecording(const std::string& name, std::string& text, std::string& error) {
    std::error_code failed;
    if (!fs::is_regular_file(name, failed))
        error = name + (fs::exists(name, failed) ? " is no file" : " isn't there");
    else if (fs::file_size(name, failed) > kLargest)
        error = name + " is larger than a recording can be";
    if (!error.empty()) return false;
    std::ifstream file(name, std::ios::binary);
    text.assign(std::istreambuf_iterator<char>(file), {});
    if (!file) error = name + " can't be read";
    return error.empty();
}

// A recording on the deck, call by call.
struct Playback {
    const FlyOptions& options;
    Session& session;
    std::shared_ptr<DeckLoop> deck = {};
    std::string error = {};  // the deck can't open
    double rate = 1;         // times real time
    bool stopped = false;
    double periods_left = 0;                // for calls, of what has passed
    std::vector<DeckCommand> of_user = {};  // with which he takes over
};

// Pause and rate are those of the show; anything else is a user who takes over.
bool TakesOver(Playback& play, const DeckCommand& command) {
    if (command.kind == DeckCommand::kPause)
        play.stopped = command.value != 0;
    else if (command.kind == DeckCommand::kRate && command.value > 0)
        play.rate = std::min(command.value, 64.0);
    else if (command.kind != DeckCommand::kRate)
        return true;
    return false;
}

// Waits until the call that has been made is over. A call for a key typed in flight takes no time.
void PassCall(Playback& play, bool paused_frame) {
    if (!play.deck) play.deck = OpenFlightDeck(play.session, play.options, play.error);
    if (!play.deck) throw Interruption{};
    if (!paused_frame || world.paused) --play.periods_left;
    while (play.periods_left < 0) {
        world.played_rate = play.stopped ? 0 : play.rate;
        play.of_user = PassPeriod(*play.deck);
        play.periods_left += world.played_rate;
        bool takes_over = false;
        for (const DeckCommand& command : play.of_user) takes_over |= TakesOver(play, command);
        if (takes_over || EndSignal() != 0) throw Interruption{};
    }
}

// The user has stick and time as he left them.
void HandOver(Playback& play) {
    world.pilot_does.clear();
    world.played_rate = -1;
    const auto apply = [&](const DeckCommand& command) { ApplyDeckCommand(play.session, command); };
    apply({.kind = DeckCommand::kKeyEvent, .value = kKeyTakeStick});
    apply({.kind = DeckCommand::kRate, .value = play.rate});
    if (play.stopped) apply({.kind = DeckCommand::kPause, .value = 1});
    for (const DeckCommand& command : play.of_user)
        if (command.kind != DeckCommand::kPause && command.kind != DeckCommand::kRate) apply(command);
    std::printf("%s, after %s; the flight is yours\n",
                play.of_user.empty() ? "The recording has ended" : "Taken over",
                DurationText(world.seconds).c_str());
    std::fflush(stdout);
}

int Refuse(const std::string& error) {
    std::fprintf(stderr, "tz900 fly: %s\n", error.c_str());
    return 2;
}

}  // namespace

int PlayRecording(const FlyOptions& options) {
    std::string text, error;
    if (!ReadRecording(options.play, text, error)) return Refuse(error);
    Scenario scenario{Session{}, std::cout};
    scenario.may_write_files = false;
    scenario.session.settings.demo_root = options.demo_root;
    scenario.session.settings.pixel_surfaces = world.serves_peers = true;
    world.pilot_does = "shows " + fs::path(options.play).filename().string();
    Playback play{options, scenario.session};
    play.rate = options.rate;
    scenario.after_call = [&play](bool paused_frame) { PassCall(play, paused_frame); };
    std::istringstream lines(text);
    int status = RunScenario(scenario, lines, options.play, std::cerr);
    if (EndSignal() != 0) {
        status = 0;
    } else if (!play.error.empty()) {
        status = Refuse(play.error);
    } else if (status < 2 && !play.deck) {
        status = Refuse(options.play + " is no recording: nothing flies in it");
    } else if (status < 2) {
        HandOver(play);
        RunFlightDeck(*play.deck, [] {});
        status = 0;
    }
    play.deck.reset();
    StopSession(scenario.session);
    return status;
}

}  // namespace host
