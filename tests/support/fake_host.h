#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/host_operations.h"

/// A simulator of maps: what a test puts in is what the system reads, and what the system does can be looked
/// at afterwards. Making one resets the system's state and puts the fake in force; one exists at a time.
/// Its root folder is a private temporary one that goes with it.
class FakeHost {
  public:
    FakeHost();
    ~FakeHost();
    FakeHost(const FakeHost&) = delete;
    FakeHost& operator=(const FakeHost&) = delete;

    /// The table itself, for a test that fills ImportTable.
    static const HostOperations* Operations();

    /// Operations told to fail, by their names in the table ("read_token"): they do nothing and give what the
    /// table tells for failure (0, -1, an empty text).
    std::set<std::string, std::less<>> failing;
    /// How often each operation has been called.
    std::map<std::string, int, std::less<>> calls;

    std::map<int, double> tokens;
    std::map<std::string, double, std::less<>> calc_numbers;
    std::map<std::string, std::string, std::less<>> calc_texts;
    std::map<std::string, void*, std::less<>> shared_pointers;

    /// The value of a named variable, made if it doesn't exist, as a model or another gauge would.
    double& NamedVar(std::string_view name);
    bool NamedVarExists(std::string_view name) const;
    std::vector<std::string> registered_names, unregistered_names;

    std::vector<std::pair<int, int>> events;  // key events sent: event, value
    std::vector<KeyEventHandler> key_hooks;
    /// A key event of the pilot's own hardware.
    void PressKey(int event, int value = 0);

    std::map<int, int> windows;  // visible or not, by identifier

    SimMessageHandler sim_handler = nullptr;  // null while the client is closed
    std::string sim_client_name;
    /// "data 2 NAME UNITS", "event 11 NAME", "state ...", "client ..."
    std::vector<std::string> sim_declarations;
    std::vector<std::pair<int, std::vector<std::uint8_t>>> sim_data;  // definition, bytes
    std::vector<int> client_events;
    std::vector<std::string> saved_flights;  // "FILE|TITLE|DESCRIPTION"
    void SendSimMessage(SimMessage::Kind kind, int id, int data, const char* text = nullptr);

    std::map<int, std::uint8_t> ipc_block;  // bytes by offset
    bool ipc_available = true;
    /// Called by ipc_process after the queued writes and before the queued reads.
    void (*on_ipc_process)(FakeHost&) = nullptr;

    double (*terrain)(double lat, double lon) = nullptr;  // metres; null = no terrain

    std::string foreground_class = "FS98MAIN";
    std::array<std::uint8_t, 256> keys = {};
    int open_keyboard_result = 0;
    int read_keyboard_result = 1;
    bool keyboard_open = false;
    bool swallowing_keys = false;

    int timer_period = 0;
    int machine_date = 20261124;
    double free_address_space = 100;
    std::set<std::string> loaded_libraries;
    bool sound_device_open = false;
    bool paints_in_line = true;
    std::string shared_name_space;  // empty = no shared objects
    std::string config_lines;       // read behind those of tz900.cfg

    std::filesystem::path root, app_data, navdata;  // navdata empty = under the root
    /// Writes a file below the root (name with "/"), with its folders.
    void PutFile(std::string_view name, std::string_view text) const;
};
