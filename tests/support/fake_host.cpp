#include "support/fake_host.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>

#include "paint/image_store.h"
#include "platform/host.h"
#include "state/state_groups.h"

namespace {

FakeHost* fake = nullptr;

struct Slot {
    std::string name;  // empty = unregistered
    double value = 0;
};
std::vector<Slot> slots;

struct QueuedRead {
    int offset;
    void* bytes;
    int size;
};
std::vector<QueuedRead> ipc_reads;

// Counts the call; true when it is to fail.
bool Fails(std::string_view operation) {
    ++fake->calls[std::string(operation)];
    return fake->failing.contains(operation);
}

int FillText(const std::string& from, char* text, int size) {
    return std::snprintf(text, static_cast<std::size_t>(size), "%s", from.c_str());
}

int FindSlot(std::string_view name) {
    const auto found =
        std::find_if(slots.begin(), slots.end(), [&](const Slot& slot) { return slot.name == name; });
    return found == slots.end() ? -1 : static_cast<int>(found - slots.begin());
}

// A place that an unregistered name has left is taken again from the back, so that ids kept too long show.
void MakeSlot(std::string_view name) {
    const auto left =
        std::find_if(slots.rbegin(), slots.rend(), [](const Slot& slot) { return slot.name.empty(); });
    if (left == slots.rend())
        slots.push_back({std::string(name)});
    else
        *left = {std::string(name)};
}

Slot* SlotOf(int id) {
    return id >= 0 && id < static_cast<int>(slots.size()) ? &slots[static_cast<std::size_t>(id)] : nullptr;
}

template <class Map, class Key>
auto ValueOr0(const Map& map, const Key& key) {
    const auto found = map.find(key);
    return found == map.end() ? typename Map::mapped_type{} : found->second;
}

constexpr HostOperations kOperations = {
    .version = kHostOperationsVersion,
    .read_token = [](int token) { return Fails("read_token") ? 0.0 : ValueOr0(fake->tokens, token); },
    .eval_calc_number =
        [](const char* text) { return Fails("eval_calc_number") ? 0.0 : ValueOr0(fake->calc_numbers, text); },
    .eval_calc_text =
        [](const char* expression, char* text, int size) {
            const bool fails = Fails("eval_calc_text");
            return FillText(fails ? std::string() : ValueOr0(fake->calc_texts, expression), text, size);
        },
    .bind_shared_pointer = [](const char* name) -> void* {
        return Fails("bind_shared_pointer") ? nullptr : ValueOr0(fake->shared_pointers, name);
    },
    .find_named_var = [](const char* name) { return Fails("find_named_var") ? -1 : FindSlot(name); },
    .register_named_var =
        [](const char* name) {
            if (Fails("register_named_var")) return;
            fake->registered_names.emplace_back(name);
            if (FindSlot(name) < 0) MakeSlot(name);
        },
    .unregister_named_var =
        [](const char* name) {
            if (Fails("unregister_named_var")) return;
            fake->unregistered_names.emplace_back(name);
            if (Slot* slot = SlotOf(FindSlot(name))) slot->name.clear();
        },
    .get_named_var =
        [](int id) {
            const Slot* slot = SlotOf(id);
            return Fails("get_named_var") || slot == nullptr ? 0.0 : slot->value;
        },
    .set_named_var =
        [](int id, double value) {
            if (Slot* slot = SlotOf(id); !Fails("set_named_var") && slot != nullptr) slot->value = value;
        },
    .send_key_event =
        [](int event, int value) {
            if (!Fails("send_key_event")) fake->events.emplace_back(event, value);
        },
    .add_key_hook =
        [](KeyEventHandler handler) {
            if (!Fails("add_key_hook")) fake->key_hooks.push_back(handler);
        },
    .remove_key_hook =
        [](KeyEventHandler handler) {
            if (!Fails("remove_key_hook")) std::erase(fake->key_hooks, handler);
        },
    .is_window_visible =
        [](int ident) { return Fails("is_window_visible") ? 0 : ValueOr0(fake->windows, ident); },
    .toggle_window =
        [](int ident) {
            if (!Fails("toggle_window")) fake->windows[ident] = fake->windows[ident] == 0 ? 1 : 0;
        },
    .open_sim_client =
        [](const char* name, SimMessageHandler handler) {
            if (Fails("open_sim_client")) return 0;
            fake->sim_client_name = name;
            fake->sim_handler = handler;
            return 1;
        },
    .close_sim_client =
        [] {
            if (!Fails("close_sim_client")) fake->sim_handler = nullptr;
        },
    .add_data_definition =
        [](int id, const char* name, const char* units) {
            if (Fails("add_data_definition")) return;
            fake->sim_declarations.push_back("data " + std::to_string(id) + " " + name + " " + units);
        },
    .subscribe_system_event =
        [](int id, const char* name) {
            if (Fails("subscribe_system_event")) return;
            fake->sim_declarations.push_back("event " + std::to_string(id) + " " + name);
        },
    .request_system_state =
        [](int id, const char* name) {
            if (Fails("request_system_state")) return;
            fake->sim_declarations.push_back("state " + std::to_string(id) + " " + name);
        },
    .map_client_event =
        [](int id, const char* name, const char* input, int group) {
            if (Fails("map_client_event")) return;
            fake->sim_declarations.push_back("client " + std::to_string(id) + " " + name + " " + input + " " +
                                             std::to_string(group));
        },
    .set_sim_data =
        [](int definition, const void* bytes, int size) {
            if (Fails("set_sim_data")) return;
            const auto* first = static_cast<const std::uint8_t*>(bytes);
            fake->sim_data.emplace_back(definition, std::vector<std::uint8_t>(first, first + size));
        },
    .send_client_event =
        [](int event) {
            if (Fails("send_client_event")) return;
            fake->client_events.push_back(event);
            fake->SendSimMessage(SimMessage::kEvent, event, 0);
        },
    .save_flight =
        [](const char* file, const char* title, const char* description) {
            if (Fails("save_flight")) return;
            fake->saved_flights.push_back(std::string(file) + "|" + title + "|" + description);
        },
    .ipc_open = [] { return !Fails("ipc_open") && fake->ipc_available ? 1 : 0; },
    .ipc_write =
        [](int offset, const void* bytes, int size) {
            if (Fails("ipc_write")) return;
            for (int i = 0; i < size; ++i)
                fake->ipc_block[offset + i] = static_cast<const std::uint8_t*>(bytes)[i];
        },
    .ipc_read =
        [](int offset, void* bytes, int size) {
            if (!Fails("ipc_read")) ipc_reads.push_back({offset, bytes, size});
        },
    .ipc_process =
        [] {
            const bool fails = Fails("ipc_process");
            if (!fails && fake->on_ipc_process != nullptr) fake->on_ipc_process(*fake);
            for (const QueuedRead& wanted : ipc_reads)
                for (int i = 0; i < wanted.size && !fails; ++i)
                    static_cast<std::uint8_t*>(wanted.bytes)[i] =
                        ValueOr0(fake->ipc_block, wanted.offset + i);
            ipc_reads.clear();
            return fails ? 0 : 1;
        },
    .ipc_close = [] { Fails("ipc_close"); },
    .ground_elevation =
        [](double lat, double lon) {
            return Fails("ground_elevation") || fake->terrain == nullptr ? 0.0 : fake->terrain(lat, lon);
        },
    .foreground_window_class =
        [](char* text, int size) {
            return FillText(Fails("foreground_window_class") ? "" : fake->foreground_class, text, size);
        },
    .open_keyboard =
        [] {
            if (Fails("open_keyboard")) return 1;
            fake->keyboard_open = fake->open_keyboard_result == 0;
            return fake->open_keyboard_result;
        },
    .read_keyboard =
        [](std::uint8_t* state) {
            if (Fails("read_keyboard")) return 0;
            std::memcpy(state, fake->keys.data(), fake->keys.size());
            return fake->read_keyboard_result;
        },
    .acquire_keyboard =
        [] {
            if (Fails("acquire_keyboard")) return 0;
            fake->read_keyboard_result = 1;
            return 1;
        },
    .close_keyboard =
        [] {
            if (!Fails("close_keyboard")) fake->keyboard_open = false;
        },
    .swallow_keys =
        [](int on) {
            if (!Fails("swallow_keys")) fake->swallowing_keys = on != 0;
        },
    .set_timer_period =
        [](int milliseconds) {
            if (!Fails("set_timer_period")) fake->timer_period = milliseconds;
        },
    .navdata_folder =
        [](char* text, int size) {
            return FillText(Fails("navdata_folder") ? "" : fake->navdata.string(), text, size);
        },
    .root_folder =
        [](char* text, int size) {
            return FillText(Fails("root_folder") ? "" : fake->root.string(), text, size);
        },
    .app_data_folder =
        [](char* text, int size) {
            return FillText(Fails("app_data_folder") ? "" : fake->app_data.string(), text, size);
        },
    .is_library_loaded =
        [](const char* path) {
            return !Fails("is_library_loaded") && fake->loaded_libraries.contains(path) ? 1 : 0;
        },
    .machine_date = [] { return Fails("machine_date") ? 0 : fake->machine_date; },
    .free_address_space = [] { return Fails("free_address_space") ? 0.0 : fake->free_address_space; },
    .open_sound_device =
        [] {
            fake->sound_device_open = !Fails("open_sound_device");
            return fake->sound_device_open ? 1 : 0;
        },
    .close_sound_device =
        [] {
            if (!Fails("close_sound_device")) fake->sound_device_open = false;
        },
    .paints_in_line = [] { return fake->paints_in_line ? 1 : 0; },
    .shared_name_space =
        [](char* text, int size) {
            return FillText(Fails("shared_name_space") ? "" : fake->shared_name_space, text, size);
        },
    .config_lines = [] { return Fails("config_lines") ? "" : fake->config_lines.c_str(); },
};

}  // namespace

FakeHost::FakeHost() {
    fake = this;
    slots.clear();
    ipc_reads.clear();
    std::string pattern = (std::filesystem::temp_directory_path() / "tz900_test_XXXXXX").string();
    const char* made = mkdtemp(pattern.data());
    if (made == nullptr) std::abort();
    root = std::filesystem::path(made) / "root";
    app_data = std::filesystem::path(made) / "appdata";
    std::filesystem::create_directories(root);
    std::filesystem::create_directories(app_data);
    ResetSystemState();
    UseHost(&kOperations);
}

FakeHost::~FakeHost() {
    UseHost(nullptr);
    DropImages();
    ResetSystemState();
    std::error_code error;
    std::filesystem::remove_all(root.parent_path(), error);
    fake = nullptr;
}

const HostOperations* FakeHost::Operations() {
    return &kOperations;
}

double& FakeHost::NamedVar(std::string_view name) {
    if (FindSlot(name) < 0) {
        // References that tests hold stay good as long as the list doesn't move.
        if (slots.capacity() < 2000) slots.reserve(2000);
        MakeSlot(name);
    }
    return SlotOf(FindSlot(name))->value;
}

bool FakeHost::NamedVarExists(std::string_view name) const {
    return FindSlot(name) >= 0;
}

void FakeHost::PressKey(int event, int value) {
    for (KeyEventHandler hook : std::vector(key_hooks)) hook(event, value);
}

void FakeHost::SendSimMessage(SimMessage::Kind kind, int id, int data, const char* text) {
    const SimMessage message{kind, id, data, text};
    if (sim_handler != nullptr) sim_handler(&message);
}

void FakeHost::PutFile(std::string_view name, std::string_view text) const {
    const std::filesystem::path path = root / name;
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
}
