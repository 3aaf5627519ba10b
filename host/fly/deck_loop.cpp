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
#include "host/flightdeck/reach.h"
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

void ApplyCommands(Session& session, const std::vector<DeckCommand>& commands, PressQueue& presses) {
    for (const DeckCommand& command : commands) {
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

struct DeckLoop {
    Session& session;
    std::atomic<bool> in_2d;
    FlightDeck deck;
    int period = 0;
    Clock::time_point next = Clock::now();

    DeckLoop(Session& of, const DeckSettings& settings)
        : session(of),
          in_2d(IsMainPanelShown()),
          deck(settings, PicturesOf(*of.linkage->inspection, in_2d)) {}
};

std::shared_ptr<DeckLoop> OpenFlightDeck(Session& session, const FlyOptions& options, std::string& error) {
    const DeckSettings settings = SettingsOf(session, options);
    auto loop = std::make_shared<DeckLoop>(session, settings);
    loop->deck.SetGreeting(DeckGreeting(session));
    if (!loop->deck.Start(error)) return {};
    const std::vector<std::string> urls = DeckUrls(options.address, loop->deck.port(), settings.token);
    std::printf("The flight deck is at %s (Ctrl-C ends)\n", urls.front().c_str());
    for (std::size_t i = 1; i < urls.size(); ++i) std::printf("  and at %s\n", urls[i].c_str());
    if (!IsLoopback(options.address))
        std::printf("For a tablet or phone in the same network:\n%s", DrawQrCode(urls.front()).c_str());
    std::fflush(stdout);
    return loop;
}

namespace {

void ShowPresent(DeckLoop& loop) {
    loop.in_2d = IsMainPanelShown();
    if (loop.period++ % kPublishEvery == 0)
        loop.deck.PublishValues(ReadValues(loop.session, loop.deck.WatchedNames()));
}

Clock::time_point EndOfPeriod(DeckLoop& loop) {
    loop.next += kPeriod;
    if (Clock::now() > loop.next + kLate) loop.next = Clock::now();
    return loop.next;
}

}  // namespace

std::vector<DeckCommand> PassPeriod(DeckLoop& loop) {
    ShowPresent(loop);
    std::this_thread::sleep_until(EndOfPeriod(loop));
    return loop.deck.TakeCommands();
}

void RunFlightDeck(DeckLoop& loop, const std::function<void()>& each_second) {
    Session& session = loop.session;
    PressQueue presses;
    double ticks_due = 0;
    while (EndSignal() == 0) {
        ApplyCommands(session, loop.deck.TakeCommands(), presses);
        if (world.paused) MakeCall(session, true);
        for (ticks_due += world.paused ? 0 : world.sim_rate; ticks_due >= 1 && !world.paused; --ticks_due) {
            MakeCall(session, false);
            if (world.ticks % 18 == 0) each_second();
        }
        // Of keys typed at once each takes a call, but not a tick.
        for (int frame = 0; frame < kFramesForKeys && ApplyDuePresses(session, presses); ++frame)
            MakeCall(session, true);
        if (!world.paints_in_line) RequestPictures(session);
        ShowPresent(loop);
        // Who works something within the period needn't wait for its end.
        const Clock::time_point end = EndOfPeriod(loop);
        for (int frame = 0; frame < kFramesForKeys && loop.deck.WaitForCommands(end); ++frame) {
            ApplyCommands(session, loop.deck.TakeCommands(), presses);
            MakeCall(session, true);
            if (!world.paints_in_line) RequestPictures(session);
        }
        std::this_thread::sleep_until(end);
    }
}

}  // namespace host
