#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

// The flight deck in a browser, seen from the host's loop: commands come out of it, values go into it. Its
// network thread never waits for the loop, nor the loop for it.

namespace host {

/// What a browser has asked the host's loop to do.
struct DeckCommand {
    enum Kind {
        kNamedVariable,  // name, value: as the cockpit model writes it
        kPress,          // name, value: a momentary control, pressed once the last press has been taken
        kStateVariable,  // name, text
        kMouse,          // name (a screen), x, y in its logical frame, right
        kMouseArea,      // name (a gauge), text (the area's name), right
        kKeyEvent,       // value (the event), x (its value)
        kLever,          // name and value: the pilot's own hardware, see the table in commands.cpp
        kPause,          // value 0 or 1
        kRate,           // value: times real time, 0 to 64
        kControl,        // value 1: the user has control, 0: the demonstration's pilot has it again
        kFailure,        // name (of `fail`), value 0 or 1
        kGround,         // name (of `ground`), value 0 or 1
        kDrag,           // name (a tablet's screen), x, y: the pressed mouse goes on to there
        kType,           // name (a tablet's screen), text: keys of a real keyboard, \b and \n among them
    };
    Kind kind;
    std::string name = {};
    std::string text = {};
    double value = 0;
    double x = 0, y = 0;
    bool right = false;
};

struct DeckSettings {
    std::string address = "127.0.0.1";
    int port = 8900;    // 0 = any free one
    std::string token;  // asked for on an address wider than loopback
    std::string page_folder;
    std::string root;  // where the pictures' image files lie
    /// Family and file, by the picture form's numbers.
    std::vector<std::pair<std::string, std::string>> fonts = {};
    /// The bytes of an image that is no file, by the name that pictures give it; called on the network
    /// thread.
    std::function<bool(const std::string& name, std::string& bytes)> stream_image = {};
};

/// Where the deck gets pictures from; called on the network thread. False when there is none newer than
/// `after`.
using PictureSource = std::function<bool(const std::string& screen, std::uint64_t after, std::string& bytes,
                                         std::uint64_t& number)>;

class FlightDeck {
  public:
    struct Network;  // server.cpp's own

    FlightDeck(DeckSettings settings, PictureSource pictures);
    ~FlightDeck();
    FlightDeck(const FlightDeck&) = delete;
    FlightDeck& operator=(const FlightDeck&) = delete;

    /// Opens the port and starts the network thread. False with the reason.
    bool Start(std::string& error);
    void Stop();
    int port() const;

    /// The host's loop: takes what has been asked since the last call. While the loop doesn't call, browsers
    /// hear nothing and blank their screens.
    std::vector<DeckCommand> TakeCommands();
    /// Waits until something has been asked; false when that hasn't come by `until`.
    bool WaitForCommands(std::chrono::steady_clock::time_point until);
    /// The names that any browser watches.
    std::set<std::string> WatchedNames();
    /// Gives the values of watched names; what has changed goes out.
    void PublishValues(std::map<std::string, std::string> values);
    /// What every browser gets when it connects, as JSON: the controls, the names of variables.
    void SetGreeting(std::string json);

  private:
    std::unique_ptr<Network> network_;
};

/// Is the address one that only this machine reaches? False for what is no address too.
bool IsLoopback(const std::string& address);

}  // namespace host
