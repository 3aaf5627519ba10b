#include "host/fly/deck_loop.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <map>
#include <random>
#include <thread>
#include <utility>

#include "host/flightdeck/commands.h"
#include "host/flightdeck/control_sharing.h"
#include "host/flightdeck/deck.h"
#include "host/flightdeck/values.h"
#include "host/inspection.h"
#include "host/process.h"
#include "host/screens.h"
#include "host/world/world.h"

namespace host {
namespace {

using Clock = std::chrono::steady_clock;

constexpr auto kPeriod = std::chrono::nanoseconds(1'000'000'000 / 18);
constexpr auto kLate = std::chrono::milliseconds(500);  // then the loop doesn't catch up
constexpr int kPublishEvery = 3;                        // periods: six times a second
constexpr int kFramesForKeys = 3;  // calls between two ticks, as of a simulator at 72 frames a second

std::string MadeUpToken() {
    constexpr std::string_view kLetters = "abcdefghijkmnpqrstuvwxyz23456789";
    std::random_device random;
    std::string token;
    for (int i = 0; i < 20; ++i) token += kLetters[random() % kLetters.size()];
    return token;
}

DeckSettings SettingsOf(const Session& session, const FlyOptions& options) {
    DeckSettings settings{options.address, options.port, options.token, options.page_folder,
                          session.settings.root};
    if (!IsLoopback(options.address) && settings.token.empty()) settings.token = MadeUpToken();
    settings.stream_image = [&inspection = *session.linkage->inspection](const std::string& name,
                                                                         std::string& bytes) {
        const ByteSink sink = [](void* to, const uint8_t* data, size_t size, uint64_t) {
            static_cast<std::string*>(to)->assign(reinterpret_cast<const char*>(data), size);
        };
        return inspection.stream_image(name.c_str(), sink, &bytes) != 0;
    };
    settings.fonts = Ask(session.linkage->inspection->list_fonts).results;
    return settings;
}

// Which gauge paints a screen changes with the cockpit that is shown; each counts its own pictures.
PictureSource PicturesOf(const InspectionTable& inspection, const std::atomic<bool>& in_2d) {
    return [&inspection, &in_2d, painted_by = std::map<std::string, std::string>{}](
               const std::string& screen, std::uint64_t after, std::string& bytes,
               std::uint64_t& number) mutable {
        struct Picture {
            std::string& bytes;
            std::uint64_t& number;
        } picture{bytes, number};
        const ByteSink sink = [](void* context, const uint8_t* data, size_t size, uint64_t count) {
            auto& to = *static_cast<Picture*>(context);
            to.bytes.assign(reinterpret_cast<const char*>(data), size);
            to.number = count;
        };
        const std::string gauge = GaugeOfScreen(screen, in_2d);
        if (std::exchange(painted_by[screen], gauge) != gauge) after = 0;
        return inspection.picture(gauge.c_str(), after, sink, &picture) != 0;
    };
}

bool ApplyDuePresses(Session& session, PressQueue& presses) {
    const std::vector<DeckCommand> due = TakeDuePresses(presses);
    for (const DeckCommand& press : due) ApplyUserCommand(session, press);
    return !due.empty();
}

void TakeCommands(Session& session, FlightDeck& deck, PressQueue& presses) {
    for (const DeckCommand& command : deck.TakeCommands()) {
        if (command.kind == DeckCommand::kPress)
            QueuePress(presses, command.name, command.value);
        else
            ApplyUserCommand(session, command);
    }
    ApplyDuePresses(session, presses);
}

void MakeCall(Session& session, bool paused_frame) {
    TickSession(session, paused_frame);
    if (world.paints_in_line) PaintGauges(session);
}

}  // namespace

bool RunFlightDeck(Session& session, const FlyOptions& options, const std::function<void()>& opened,
                   const std::function<void()>& each_second, std::string& error) {
    const DeckSettings settings = SettingsOf(session, options);
    std::atomic<bool> in_2d = IsMainPanelShown();
    FlightDeck deck(settings, PicturesOf(*session.linkage->inspection, in_2d));
    deck.SetGreeting(DeckGreeting(session));
    if (!deck.Start(error)) return false;
    const bool is_v6 = options.address.find(':') != std::string::npos;
    std::printf("The flight deck is at http://%s%s%s:%d/%s%s (Ctrl-C ends)\n", is_v6 ? "[" : "",
                options.address.c_str(), is_v6 ? "]" : "", deck.port(),
                settings.token.empty() ? "" : "?token=", settings.token.c_str());
    opened();
    std::fflush(stdout);

    PressQueue presses;
    double ticks_due = 0;
    auto next = Clock::now();
    for (int period = 0; EndSignal() == 0; ++period) {
        TakeCommands(session, deck, presses);
        if (world.paused) MakeCall(session, true);
        for (ticks_due += world.paused ? 0 : world.sim_rate; ticks_due >= 1 && !world.paused; --ticks_due) {
            MakeCall(session, false);
            if (world.ticks % 18 == 0) each_second();
        }
        // Of keys typed at once each takes a call, but not a tick.
        for (int frame = 0; frame < kFramesForKeys && ApplyDuePresses(session, presses); ++frame)
            MakeCall(session, true);
        in_2d = IsMainPanelShown();
        if (!world.paints_in_line) RequestPictures(session);
        if (period % kPublishEvery == 0) deck.PublishValues(ReadValues(session, deck.WatchedNames()));
        next += kPeriod;
        if (Clock::now() > next + kLate) next = Clock::now();
        std::this_thread::sleep_until(next);
    }
    deck.Stop();
    return true;
}

}  // namespace host
