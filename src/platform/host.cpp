#include "platform/host.h"

#include <cmath>
#include <cstring>

namespace {

// A host that knows nothing: what the module meets before ImportTable is filled and after it is emptied.
constexpr HostOperations kDeafHost = {
    .version = kHostOperationsVersion,
    .read_token = [](int) { return 0.0; },
    .eval_calc_number = [](const char*) { return 0.0; },
    .eval_calc_text =
        [](const char*, char* text, int size) {
            if (size > 0) *text = '\0';
            return 0;
        },
    .bind_shared_pointer = [](const char*) -> void* { return nullptr; },
    .find_named_var = [](const char*) { return -1; },
    .register_named_var = [](const char*) {},
    .unregister_named_var = [](const char*) {},
    .get_named_var = [](int) { return 0.0; },
    .set_named_var = [](int, double) {},
    .send_key_event = [](int, int) {},
    .add_key_hook = [](KeyEventHandler) {},
    .remove_key_hook = [](KeyEventHandler) {},
    .is_window_visible = [](int) { return 0; },
    .toggle_window = [](int) {},
    .open_sim_client = [](const char*, SimMessageHandler) { return 0; },
    .close_sim_client = [] {},
    .add_data_definition = [](int, const char*, const char*) {},
    .subscribe_system_event = [](int, const char*) {},
    .request_system_state = [](int, const char*) {},
    .map_client_event = [](int, const char*, const char*, int) {},
    .set_sim_data = [](int, const void*, int) {},
    .send_client_event = [](int) {},
    .save_flight = [](const char*, const char*, const char*) {},
    .ipc_open = [] { return 0; },
    .ipc_write = [](int, const void*, int) {},
    .ipc_read = [](int, void*, int) {},
    .ipc_process = [] { return 0; },
    .ipc_close = [] {},
    .ground_elevation = [](double, double) { return 0.0; },
    .foreground_window_class =
        [](char* text, int size) {
            if (size > 0) *text = '\0';
            return 0;
        },
    .open_keyboard = [] { return 1; },
    .read_keyboard = [](uint8_t*) { return 0; },
    .acquire_keyboard = [] { return 0; },
    .close_keyboard = [] {},
    .swallow_keys = [](int) {},
    .set_timer_period = [](int) {},
    .navdata_folder =
        [](char* text, int size) {
            if (size > 0) *text = '\0';
            return 0;
        },
    .root_folder =
        [](char* text, int size) {
            if (size > 0) *text = '\0';
            return 0;
        },
    .app_data_folder =
        [](char* text, int size) {
            if (size > 0) *text = '\0';
            return 0;
        },
    .is_library_loaded = [](const char*) { return 0; },
    .machine_date = [] { return 0; },
    .free_address_space = [] { return 0.0; },
    .open_sound_device = [] { return 0; },
    .close_sound_device = [] {},
    .paints_in_line = [] { return 1; },
    .shared_name_space =
        [](char* text, int size) {
            if (size > 0) *text = '\0';
            return 0;
        },
    .config_lines = [] { return ""; },
};

const HostOperations* host_in_force = &kDeafHost;

// Runs an operation that fills a text buffer; a host that claims more than the buffer holds is cut.
template <class Operation>
std::string TakeText(Operation&& operation) {
    char text[1024];
    text[0] = '\0';
    const int length = operation(text, static_cast<int>(sizeof text));
    text[sizeof text - 1] = '\0';
    return length > 0 ? std::string(text, strnlen(text, static_cast<std::size_t>(length))) : std::string();
}

}  // namespace

void UseHost(const HostOperations* operations) {
    const bool usable = operations != nullptr && operations->version >= kHostOperationsVersion;
    host_in_force = usable ? operations : &kDeafHost;
}

const HostOperations& Host() {
    return *host_in_force;
}

std::string EvalCalcText(const char* expression) {
    return TakeText([&](char* text, int size) { return Host().eval_calc_text(expression, text, size); });
}

std::string ForegroundWindowClass() {
    return TakeText([](char* text, int size) { return Host().foreground_window_class(text, size); });
}

std::string RootFolder() {
    return TakeText([](char* text, int size) { return Host().root_folder(text, size); });
}

std::string NavdataFolder() {
    return TakeText([](char* text, int size) { return Host().navdata_folder(text, size); });
}

std::string SharedNameSpace() {
    return TakeText([](char* text, int size) { return Host().shared_name_space(text, size); });
}

std::string AppDataFolder() {
    return TakeText([](char* text, int size) { return Host().app_data_folder(text, size); });
}
