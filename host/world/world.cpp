#include "host/world/world.h"

#include <algorithm>
#include <cmath>

#include "host/remote_peer.h"
#include "host/world/ipc_block.h"
#include "host/world/key_event_effects.h"
#include "host/world/terrain.h"

namespace host {

World world;

double TokenOf(int token) {
    return token >= 0 && token < kTokenCount ? world.tokens[static_cast<std::size_t>(token)] : 0;
}

void SetToken(int token, double value) {
    if (token < 0 || token >= kTokenCount) return;
    const auto i = static_cast<std::size_t>(token);
    if (!world.pinned[i]) world.tokens[i] = value;
}

void PinToken(int token, double value) {
    if (token < 0 || token >= kTokenCount) return;
    world.tokens[static_cast<std::size_t>(token)] = value;
    world.pinned[static_cast<std::size_t>(token)] = true;
}

namespace {

constexpr std::size_t kMostSentEvents = 20000;

int IdOf(std::string_view name) {
    const auto found = world.named_ids.find(name);
    return found == world.named_ids.end() ? -1 : found->second;
}

NamedVariable& VariableOf(std::string_view name) {
    int id = IdOf(name);
    if (id < 0) {
        id = static_cast<int>(world.named.size());
        world.named.push_back({std::string(name)});
        world.named_ids.emplace(name, id);
    }
    return world.named[static_cast<std::size_t>(id)];
}

NamedVariable* VariableById(int id) {
    if (id < 0 || id >= static_cast<int>(world.named.size())) return nullptr;
    NamedVariable& variable = world.named[static_cast<std::size_t>(id)];
    return variable.exists ? &variable : nullptr;
}

CalcValue* OpenCalc(std::string_view expression) {
    const auto found = world.calc.find(expression);
    if (found == world.calc.end()) return &world.calc.emplace(expression, CalcValue{}).first->second;
    return found->second.pinned ? nullptr : &found->second;
}

}  // namespace

double NamedValue(std::string_view name) {
    const int id = IdOf(name);
    return id < 0 ? 0 : world.named[static_cast<std::size_t>(id)].value;
}

bool NamedVariableExists(std::string_view name) {
    return VariableById(IdOf(name)) != nullptr;
}

void SetNamedValue(std::string_view name, double value) {
    NamedVariable& variable = VariableOf(name);
    variable.exists = variable.of_model = true;
    variable.value = value;
}

void CreateModelVariable(std::string_view name) {
    NamedVariable& variable = VariableOf(name);
    variable.exists = variable.of_model = true;
}

double CalcOf(std::string_view expression) {
    const auto found = world.calc.find(expression);
    return found == world.calc.end() ? 0 : found->second.number;
}

void SetCalc(std::string_view expression, double value) {
    if (CalcValue* calc = OpenCalc(expression)) calc->number = value;
}

void SetCalcText(std::string_view expression, std::string_view text) {
    if (CalcValue* calc = OpenCalc(expression)) calc->text = text;
}

void PinCalc(std::string_view expression, double value, std::string_view text) {
    world.calc.insert_or_assign(std::string(expression), CalcValue{value, std::string(text), true});
}

void QueueKeyEvent(int event, int value) {
    world.queued_events.push_back({event, value});
}

void DispatchQueuedCalls() {
    // What a hook sends waits for the tick after.
    std::vector<KeyEventRecord> events;
    events.swap(world.queued_events);
    for (const KeyEventRecord& event : events) {
        ApplyKeyEvent(event.event, event.value);
        const auto hooks = world.key_hooks;
        for (const KeyEventHandler hook : hooks) hook(event.event, event.value);
    }
    std::vector<int> client_events;
    client_events.swap(world.queued_client_events);
    for (const int id : client_events) SendSimMessage(SimMessage::kEvent, id, 0, nullptr);
    if (!world.saved_flight.empty()) {
        const std::string file = std::move(world.saved_flight);
        world.saved_flight.clear();
        SendSimMessage(SimMessage::kFileName, 13, 0, file.c_str());
    }
}

void SendSimMessage(SimMessage::Kind kind, int id, int data, const char* text) {
    const SimMessage message{kind, id, data, text};
    if (world.client_handler != nullptr) world.client_handler(&message);
}

namespace {

int CopyText(std::string_view from, char* text, int size) {
    if (text == nullptr || size <= 0) return 0;
    const std::size_t length = std::min(from.size(), static_cast<std::size_t>(size - 1));
    std::copy_n(from.begin(), length, text);
    text[length] = '\0';
    return static_cast<int>(length);
}

// "(L:NAME, unit)" reads a named variable of the model.
double LocalVariable(std::string_view expression) {
    constexpr std::string_view kOpening = "(L:";
    if (!expression.starts_with(kOpening)) return 0;
    const std::size_t end = expression.find_first_of(",)");
    return end == std::string_view::npos
               ? 0
               : NamedValue(expression.substr(kOpening.size(), end - kOpening.size()));
}

double EvalCalcNumber(const char* expression) {
    const auto found = world.calc.find(std::string_view(expression));
    return found == world.calc.end() ? LocalVariable(expression) : found->second.number;
}

int EvalCalcText(const char* expression, char* text, int size) {
    const auto found = world.calc.find(std::string_view(expression));
    return CopyText(found == world.calc.end() ? std::string_view{} : std::string_view(found->second.text),
                    text, size);
}

// A GPS without a flight plan.
alignas(void*) std::array<std::uint8_t, GpsRouteLayout::kBlockSize> gps_route = {GpsRouteLayout::kBlockSize};

void* BindSharedPointer(const char* name) {
    return std::string_view(name) == kGpsRouteName ? gps_route.data() : nullptr;
}

int FindNamedVar(const char* name) {
    const int id = IdOf(name);
    return VariableById(id) == nullptr ? -1 : id;
}

void RegisterNamedVar(const char* name) {
    NamedVariable& variable = VariableOf(name);
    if (!variable.exists) variable.value = 0;
    variable.exists = true;
}

void UnregisterNamedVar(const char* name) {
    const int id = IdOf(name);
    if (id < 0) return;
    NamedVariable& variable = world.named[static_cast<std::size_t>(id)];
    variable.exists = variable.of_model;
}

double GetNamedVar(int id) {
    const NamedVariable* variable = VariableById(id);
    return variable == nullptr ? 0 : variable->value;
}

void SetNamedVar(int id, double value) {
    if (NamedVariable* variable = VariableById(id)) variable->value = value;
}

void SendKeyEvent(int event, int value) {
    // Nobody looks at events for hours of flight; those of the last minutes are enough.
    if (world.sent_events.size() >= kMostSentEvents)
        world.sent_events.erase(world.sent_events.begin(), world.sent_events.begin() + kMostSentEvents / 2);
    world.sent_events.push_back({event, value});
    world.queued_events.push_back({event, value});
}

void AddKeyHook(KeyEventHandler handler) {
    world.key_hooks.push_back(handler);
}
void RemoveKeyHook(KeyEventHandler handler) {
    std::erase(world.key_hooks, handler);
}

int IsWindowVisible(int ident) {
    return ident >= 0 && ident < static_cast<int>(world.windows.size()) &&
           world.windows[static_cast<std::size_t>(ident)];
}
void ToggleWindow(int ident) {
    if (ident < 0 || ident >= static_cast<int>(world.windows.size())) return;
    bool& visible = world.windows[static_cast<std::size_t>(ident)];
    visible = !visible;
}

int OpenSimClient(const char*, SimMessageHandler handler) {
    world.client_handler = handler;
    return 1;
}
void CloseSimClient() {
    world.client_handler = nullptr;
    world.client_events.clear();
}
void AddDataDefinition(int, const char*, const char*) {}
void SubscribeSystemEvent(int, const char*) {}
void RequestSystemState(int id, const char*) {
    if (!world.loaded_flight.empty())
        SendSimMessage(SimMessage::kSystemState, id, 0, world.loaded_flight.c_str());
}
void MapClientEvent(int id, const char* name, const char* input, int group) {
    world.client_events.push_back({id, name, input, group});
}
void SetSimData(int definition, const void* bytes, int size) {
    if (bytes == nullptr || size <= 0) return;
    const auto* from = static_cast<const std::uint8_t*>(bytes);
    world.data_writes.push_back({definition, {from, from + size}});
}
void SendClientEvent(int event) {
    world.queued_client_events.push_back(event);
}
void SaveFlight(const char* file, const char*, const char*) {
    world.saved_flight = file;
}

int ForegroundWindowClass(char* text, int size) {
    return CopyText(world.foreground_window, text, size);
}
int OpenKeyboard() {
    return 0;
}
int ReadKeyboard(std::uint8_t state[256]) {
    std::copy(world.keyboard.begin(), world.keyboard.end(), state);
    return 1;
}
int AcquireKeyboard() {
    return 1;
}
void CloseKeyboard() {}
void SwallowKeys(int on) {
    world.swallow_keys = on != 0;
}

void SetTimerPeriod(int) {}
int RootFolder(char* text, int size) {
    return CopyText(world.root, text, size);
}
int NavdataFolder(char* text, int size) {
    return CopyText(world.navdata, text, size);
}
int AppDataFolder(char* text, int size) {
    return CopyText(world.app_data, text, size);
}
int IsLibraryLoaded(const char*) {
    return 0;
}
int MachineDate() {
    return world.machine_date;
}
double FreeAddressSpace() {
    return 131072;
}
int OpenSoundDevice() {
    return 0;
}
void CloseSoundDevice() {}

constexpr HostOperations kOperations = {
    .version = kHostOperationsVersion,
    .read_token = TokenOf,
    .eval_calc_number = EvalCalcNumber,
    .eval_calc_text = EvalCalcText,
    .bind_shared_pointer = BindSharedPointer,
    .find_named_var = FindNamedVar,
    .register_named_var = RegisterNamedVar,
    .unregister_named_var = UnregisterNamedVar,
    .get_named_var = GetNamedVar,
    .set_named_var = SetNamedVar,
    .send_key_event = SendKeyEvent,
    .add_key_hook = AddKeyHook,
    .remove_key_hook = RemoveKeyHook,
    .is_window_visible = IsWindowVisible,
    .toggle_window = ToggleWindow,
    .open_sim_client = OpenSimClient,
    .close_sim_client = CloseSimClient,
    .add_data_definition = AddDataDefinition,
    .subscribe_system_event = SubscribeSystemEvent,
    .request_system_state = RequestSystemState,
    .map_client_event = MapClientEvent,
    .set_sim_data = SetSimData,
    .send_client_event = SendClientEvent,
    .save_flight = SaveFlight,
    .ipc_open = IpcOpen,
    .ipc_write = IpcWrite,
    .ipc_read = IpcRead,
    .ipc_process = IpcProcess,
    .ipc_close = IpcClose,
    .ground_elevation = GroundElevationMetres,
    .foreground_window_class = ForegroundWindowClass,
    .open_keyboard = OpenKeyboard,
    .read_keyboard = ReadKeyboard,
    .acquire_keyboard = AcquireKeyboard,
    .close_keyboard = CloseKeyboard,
    .swallow_keys = SwallowKeys,
    .set_timer_period = SetTimerPeriod,
    .navdata_folder = NavdataFolder,
    .root_folder = RootFolder,
    .app_data_folder = AppDataFolder,
    .is_library_loaded = IsLibraryLoaded,
    .machine_date = MachineDate,
    .free_address_space = FreeAddressSpace,
    .open_sound_device = OpenSoundDevice,
    .close_sound_device = CloseSoundDevice,
    .paints_in_line = [] { return world.paints_in_line ? 1 : 0; },
    .shared_name_space = [](char* text, int size) { return CopyText(SharedNames(), text, size); },
};

}  // namespace

const HostOperations* HostOperationsOf() {
    return &kOperations;
}

}  // namespace host
