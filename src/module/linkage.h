#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/host_operations.h"
#include "platform/panel_gauges.h"

// The module's two exports, as the simulator sees them: `Linkage` (what the module offers) and `ImportTable`
// (what it needs). Append only.

extern "C" {

/// Takes one result: a name and its text. Several lines are several calls.
typedef void (*ResultSink)(void* context, const char* name, const char* value);

/// Takes bytes, such as a picture's, and the picture's number.
typedef void (*ByteSink)(void* context, const uint8_t* bytes, size_t size, uint64_t number);

/// The system from outside, for scenarios and the inspector. Every function gives 1, or 0 with the reason as
/// one result named "error".
struct InspectionTable {
    uint32_t version;
    int (*read_variable)(const char* path, ResultSink sink, void* context);  // one result: path, value
    int (*write_variable)(const char* path, const char* value, ResultSink sink, void* context);
    /// All names that contain `pattern` ("" = all): name, "TYPE GROUP".
    int (*list_variables)(const char* pattern, ResultSink sink, void* context);
    /// A filed route text; the error names the word that is wrong.
    int (*enter_route)(const char* text, ResultSink sink, void* context);
    /// Activates and executes what has been entered.
    int (*execute_route)(ResultSink sink, void* context);
    /// A pure function with its arguments, blanks between: "GreatCircle 47 -122 45 -122".
    int (*call_function)(const char* line, ResultSink sink, void* context);
    /// One operation of the route model: "RemoveToRow 2"; a result named "result" where it has one.
    int (*run_operation)(const char* line, ResultSink sink, void* context);
    /// A printed list, a line each, its name empty: "legs", "rows", "candidates", "messages", "alerts", with
    /// what the scenario command of that name takes as argument; "text" and "draws" take a gauge.
    int (*print_list)(const char* list, const char* argument, ResultSink sink, void* context);
    /// Paints what has been asked of a gauge by pre-draw, in line; for a host that paints so. 1 when it
    /// painted.
    int (*paint_pending)(GaugeInstance* instance);
    /// A gauge's last picture in the form of paint/encode.h, if its number is above `after`. Any thread.
    int (*picture)(const char* gauge, uint64_t after, ByteSink sink, void* context);
    /// The same as a PNG file, its logical frame enlarged by `scale`.
    int (*picture_png)(const char* gauge, double scale, ByteSink sink, void* context);
    /// The font families by the numbers of the picture form: family, font file.
    int (*list_fonts)(ResultSink sink, void* context);
    /// Every control of the cockpit, in the order of the poll: its named variable, "CLASS SET MIN MAX GUARD
    /// STATE". CLASS: latching, momentary (springs back to 0), switch (stops at MIN and MAX), rotary (goes on
    /// beyond MAX at MIN), knob (toggles), guarded (stays in once pressed), guard (0 shut, 1 open), mirrored
    /// (only read). GUARD: the variable of the guard that must stand at 1, or "-". STATE: the state variable
    /// that keeps its position, for read_variable; "-" for a momentary key, which has none.
    int (*list_controls)(ResultSink sink, void* context);
    /// CLR MSG of a side's CDU (1 or 2), the one key of it that no variable of the cockpit stands for.
    int (*press_clear_message)(int side);
    /// The bytes of a picture file that came as a stream, by the name that pictures give it. Any thread.
    int (*stream_image)(const char* name, ByteSink sink, void* context);
    /// The named variables that the module expects to exist and doesn't register: the aircraft's model and
    /// its other gauges bring them along. The name, nothing.
    int (*list_model_variables)(ResultSink sink, void* context);
    /// Keys of a real keyboard on a side's tablet (1 or 2): characters, '\b', and '\n' for Enter. A dark
    /// tablet passes over them.
    int (*type_on_tablet)(int side, const char* keys, ResultSink sink, void* context);
};

struct ModuleLinkage {
    uint32_t version;
    void (*module_init)();
    void (*module_deinit)();
    int32_t gauge_count;
    const GaugeHeader* gauges;
    const InspectionTable* inspection;
};

struct ModuleImports {
    uint32_t version;
    const HostOperations* host;
};
}

constexpr uint32_t kLinkageVersion = 2;
