#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/host_operations.h"

// The stand-in simulator's side of the boundary: the values that the module reads and the calls that it
// makes. One host a process, so one world; HostOperationsOf() is its table of functions.

namespace host {

struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
};
template <class Value>
using TextMap = std::unordered_map<std::string, Value, TextHash, std::equal_to<>>;

struct NamedVariable {
    std::string name;
    double value = 0;
    bool of_model = false;  // exists by the cockpit model, whatever the module registers
    bool by_hand = false;   // written by a scenario: the aircraft's model leaves it
    bool exists = false;
};

struct CalcValue {
    double number = 0;
    std::string text;
    bool pinned = false;
};

struct KeyEventRecord {
    int event;
    int value;
};

struct SimDataWrite {
    int definition;
    std::vector<std::uint8_t> bytes;
};

struct IpcQueuedRead {
    int offset;
    void* bytes;
    int size;
};

struct ClientEvent {
    int id;
    std::string name, input;
    int group;
};

constexpr int kTokenCount = 1024;

/// Where the pilot's own stick and pedals stand, -1 to 1: nose up, right wing down, nose right.
struct Stick {
    double pitch = 0, roll = 0, pedals = 0;
    double brakes = 0;     // 0 to 1, both pedals
    int trim_clicks = 0;   // of the trim switches since the last tick, nose up positive
    bool in_hand = false;  // somebody has it: no crew follows the flight director in his place
};

struct World {
    // values
    std::array<double, kTokenCount> tokens = {};
    std::bitset<kTokenCount> pinned;  // set by hand: holds until changed
    Stick stick;
    std::vector<NamedVariable> named;
    TextMap<int> named_ids;
    std::string never_a_number;  // the last one to which the module wrote what is no number
    TextMap<CalcValue> calc;
    std::array<bool, 100> windows = {};
    std::array<std::uint8_t, 256> keyboard = {};
    std::string foreground_window = "FS98MAIN";
    std::vector<std::array<std::string, 5>> active_runways;  // ICAO and up to four runway names

    // calls that wait for the next tick, and what has been sent since the last look
    std::vector<KeyEventRecord> queued_events;
    std::vector<KeyEventRecord> sent_events;
    std::vector<KeyEventHandler> key_hooks;

    // simulator client
    SimMessageHandler client_handler = nullptr;
    std::vector<ClientEvent> client_events;
    std::vector<int> queued_client_events;
    std::vector<SimDataWrite> data_writes;
    std::string loaded_flight;  // answer to the FlightLoaded request
    std::string saved_flight;   // file name of a save that is to be told at the next tick

    // inter-process block of the active runways
    std::array<std::uint8_t, 0x10000> ipc = {};
    std::vector<IpcQueuedRead> ipc_reads;

    // machine
    std::string root;
    std::string app_data;
    std::string navdata;       // folder to use as Navdata, empty = the one under the root
    std::string config_lines;  // each with its line feed, read behind those of tz900.cfg
    int machine_date = 20261201;
    bool swallow_keys = false;
    bool paints_in_line = true;  // no workers: scenarios paint in their own time
    bool serves_peers = false;   // other programs on the machine find what the module shares

    // clock
    double seconds = 0;  // since the start of the run, unpaused
    long long ticks = 0;
    int clock_offset_hours = 0;  // the clock set by hand against its start
    double sim_rate = 1;
    bool paused = false;
    double played_rate =
        -1;                  // times real time, at which a recording is shown, 0 = stopped; below 0 = none is
    std::string pilot_does;  // what the demonstration's pilot is about, for the page; empty = there is none
    unsigned user_has = 0;   // bits of flightdeck/control_sharing.h: what that pilot has let go
    unsigned given_back = 0;  // of these, what he hasn't taken up again yet

    // other aircraft, as a traffic module would publish them
    std::vector<std::array<double, 8>> traffic;
};

extern World world;

/// The functions that the module calls. Good for the life of the process.
const HostOperations* HostOperationsOf();

/// Raw value of a token; 0 for one outside the table.
double TokenOf(int token);
/// A value of the host's own; a pinned token keeps what was set by hand.
void SetToken(int token, double value);
/// Sets a token by hand: it holds until changed by hand.
void PinToken(int token, double value);

double NamedValue(std::string_view name);
bool NamedVariableExists(std::string_view name);
void SetNamedValue(std::string_view name, double value);
/// A value that the aircraft's model works out by itself; one written by hand stays.
void SetModelValue(std::string_view name, double value);
/// Writes a variable by hand, as nobody else then does.
void WriteByHand(std::string_view name, double value);
/// Makes a name exist as the cockpit model does.
void CreateModelVariable(std::string_view name);

double CalcOf(std::string_view expression);
void SetCalc(std::string_view expression, double value);
void SetCalcText(std::string_view expression, std::string_view text);
void PinCalc(std::string_view expression, double value, std::string_view text);

/// A key event, as the pilot's own hardware sends it: its effect and the hooks come at the next tick.
void QueueKeyEvent(int event, int value);

/// Carries out what waited for this tick: key events with their effects and hooks, client events.
void DispatchQueuedCalls();

/// Sends a message to the module's simulator client, if it is open.
void SendSimMessage(SimMessage::Kind kind, int id, int data, const char* text);

/// Steps the clock by one 18 Hz tick and writes the clock's tokens.
void AdvanceClock();
/// Sets the hour of the clock, 0 to 23, on the same day.
void SetClockHour(int hour);
/// Writes the clock's tokens as they stand.
void FillClockTokens();
/// The simulator's clock as Unix time.
std::int64_t UtcSeconds();

}  // namespace host
