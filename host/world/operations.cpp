#include <algorithm>

#include "host/remote_peer.h"
#include "host/world/ipc_block.h"
#include "host/world/named_variables.h"
#include "host/world/terrain.h"
#include "host/world/world.h"

namespace host {
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

void SendKeyEvent(int event, int value) {
    // Nobody looks at events for hours of flight; those of the last minutes are enough.
    constexpr std::size_t kMostSentEvents = 20000;
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
    .config_lines = [] { return world.config_lines.c_str(); },
};

}  // namespace

const HostOperations* HostOperationsOf() {
    return &kOperations;
}

}  // namespace host
