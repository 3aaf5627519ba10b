#pragma once

#include <cstdint>

// The boundary between the module and the simulator that loads it: what the system asks of its host. Plain C
// types only, so that either side may be rebuilt alone. The host fills ImportTable with it before ModuleInit.
//
// Everything is called on the host's gauge thread unless told otherwise. No operation reports failure to the
// crew; what the host doesn't know reads 0, an empty text or -1 as told.

extern "C" {

typedef void (*KeyEventHandler)(int event, int value);

/// A message of the simulator's client interface.
struct SimMessage {
    enum Kind : int32_t { kEvent = 0, kFileName = 1, kSystemState = 2 };
    int32_t kind;
    int32_t id;        // client event, system event or request id
    int32_t data;      // of an event
    const char* text;  // file name of kFileName and kSystemState, else null
};
typedef void (*SimMessageHandler)(const SimMessage* message);

struct HostOperations {
    uint32_t version;  // kHostOperationsVersion of the host; append only, never reorder

    // values of the aircraft and the simulator
    double (*read_token)(int token);  // raw value of the moment; 0 for an unknown token
    double (*eval_calc_number)(const char* expression);
    int (*eval_calc_text)(const char* expression, char* text, int size);  // length; text is terminated
    // "tcas_targets", "tcas_target_cnt", kGpsRouteName; null when there is none. What it points to stays
    void* (*bind_shared_pointer)(const char* name);

    // named variables, shared with the aircraft's model and other gauges
    int (*find_named_var)(const char* name);  // -1 when the name doesn't exist
    void (*register_named_var)(const char* name);
    void (*unregister_named_var)(const char* name);
    double (*get_named_var)(int id);  // 0 for an unknown id
    void (*set_named_var)(int id, double value);

    // key events
    void (*send_key_event)(int event, int value);  // queued, its effect is seen on a later tick
    void (*add_key_hook)(KeyEventHandler handler);
    void (*remove_key_hook)(KeyEventHandler handler);

    // panel windows
    int (*is_window_visible)(int ident);
    void (*toggle_window)(int ident);

    // simulator client: 1 when the client is open
    int (*open_sim_client)(const char* name, SimMessageHandler handler);
    void (*close_sim_client)();
    void (*add_data_definition)(int id, const char* name, const char* units);
    void (*subscribe_system_event)(int id, const char* name);
    void (*request_system_state)(int id, const char* name);
    void (*map_client_event)(int id, const char* name, const char* input, int group);
    void (*set_sim_data)(int definition, const void* bytes, int size);
    void (*send_client_event)(int event);  // loops back to the handler
    void (*save_flight)(const char* file, const char* title, const char* description);

    // the simulator's inter-process block (active runways): open gives 1 or 0; reads and writes are queued
    // and carried out by ipc_process
    int (*ipc_open)();
    void (*ipc_write)(int offset, const void* bytes, int size);
    void (*ipc_read)(int offset, void* bytes, int size);
    int (*ipc_process)();
    void (*ipc_close)();

    // world
    double (*ground_elevation)(double lat, double lon);  // metres; 0 when the host has no terrain

    // keyboard: the foreground window's class; the device is opened for it step by step
    int (*foreground_window_class)(char* text, int size);
    int (*open_keyboard)();  // 0, or the step that failed: 1 interface, 2 device, 3 format, 4 level
    int (*read_keyboard)(uint8_t state[256]);  // 1 read, 0 failed, -1 input lost: acquire and read again
    int (*acquire_keyboard)();                 // 1 acquired, 0 failed, -1 still lost
    void (*close_keyboard)();
    void (*swallow_keys)(int on);  // while on, keys do not reach the simulator itself

    // machine; the folders are asked for by any thread, since those who paint read the pictures' files
    void (*set_timer_period)(int milliseconds);    // 0 gives the period back
    int (*navdata_folder)(char* text, int size);   // navigation data kept elsewhere; empty = under the root
    int (*root_folder)(char* text, int size);      // the simulator's root folder
    int (*app_data_folder)(char* text, int size);  // the user's application data folder
    int (*is_library_loaded)(const char* path);
    int (*machine_date)();           // YYYYMMDD of the machine's clock
    double (*free_address_space)();  // gigabytes
    int (*open_sound_device)();      // 1 when there is one
    void (*close_sound_device)();

    // pictures: 1 when the host has each picture painted in line by the inspection table, so that no worker
    // starts
    int (*paints_in_line)();

    // machine: what stands for "Global\" in the names that programs share, "/" or "/" and a beginning of
    // names; empty = nothing can be shared. Hosts with different ones don't meet.
    int (*shared_name_space)(char* text, int size);

    // machine: further lines of tz900.cfg, read behind the file's whenever it is; never null, stays as it is
    // while the module is loaded. What the system saves then goes to the file, these values too
    const char* (*config_lines)();
};

constexpr uint32_t kHostOperationsVersion = 3;

/// The flight plan of the host's own GPS, as bind_shared_pointer gives it: byte offsets, nothing aligned.
constexpr const char* kGpsRouteName = "FS2002 GPS DATA";
struct GpsRouteLayout {
    static constexpr int kBlockSize = 184;      // at least; its own size is the first 32-bit word
    static constexpr int kWaypointCount = 172;  // int32
    static constexpr int kWaypoints = 176;      // pointer to the records, null = no plan
    // a record
    static constexpr int kWaypointSize = 72;
    static constexpr int kLatitude = 12;   // int32, 40007000 a circle
    static constexpr int kLongitude = 16;  // int64, its high 48 bits, 2^64 a circle
    static constexpr int kAltitude = 48;   // double, metres
    static constexpr int kIdent = 56;      // kIdentUnits 16-bit characters, ended by 0 when shorter
    static constexpr int kIdentUnits = 8;
};
}
