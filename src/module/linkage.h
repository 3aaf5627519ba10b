#pragma once

#include <cstdint>

#include "platform/host_operations.h"

// The module's two exports, as the simulator sees them: `Linkage` (what the module offers) and `ImportTable`
// (what it needs). Append only.

extern "C" {

/// Panel service identifiers that a gauge's callback is called with.
enum PanelService : int32_t {
    kServicePreInstall = 2,
    kServicePostInstall = 3,
    kServicePreInitialize = 4,
    kServicePostInitialize = 5,
    kServicePreUpdate = 6,
    kServicePreDraw = 10,
    kServicePreKill = 12,
    kServiceConnectToWindow = 14,
    kServiceDisconnect = 15,
};

struct GaugeHeader;

/// One element of a gauge's chain, owned by the host: a surface to paint on, or a bitmap that is shown or hidden.
struct GaugeElement {
    GaugeElement* next;
    void* device_context;   // null = nothing can be painted this frame
    int32_t width, height;  // of its image, pixels
    uint8_t* pixels;        // the image's bytes, may be null
    int32_t byte_size;
    uint32_t flags;         // top bit: cleared after each frame; bit 30 hides the element
};
constexpr uint32_t kElementDirty = 0x80000000;
constexpr uint32_t kElementHidden = 0x40000000;

/// One copy of a gauge on a panel, owned by the host.
struct GaugeInstance {
    const GaugeHeader* gauge;
    const char* parameters;  // of the panel's gauge line: "VC" in the virtual cockpit, else empty
    void* user_data;         // the gauge's own
    GaugeElement* elements = nullptr;  // head of its chain
};

constexpr uint32_t kMouseLeftSingle = 0x20000000;
constexpr uint32_t kMouseRightSingle = 0x80000000;

/// A mouse area of a gauge, in its logical frame.
struct MouseRectangle {
    const char* name;  // of the control that lies there, such as "lnav"
    int16_t x, y, width, height;
    int32_t (*callback)(GaugeInstance* instance, uint32_t flags);  // gives 0
};

struct GaugeHeader {
    const char* name;
    int32_t version;  // 800 or 1000; those of 1000 are painted
    void (*service)(GaugeInstance* instance, int32_t service_id) = nullptr;
    const MouseRectangle* mouse = nullptr;
    int32_t mouse_count = 0;
};

/// Takes one result: a name and its text. Several lines are several calls.
typedef void (*ResultSink)(void* context, const char* name, const char* value);

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
    /// what the scenario command of that name takes as argument.
    int (*print_list)(const char* list, const char* argument, ResultSink sink, void* context);
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

constexpr uint32_t kLinkageVersion = 1;
