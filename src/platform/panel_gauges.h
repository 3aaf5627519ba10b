#pragma once

#include <cstdint>

// How the simulator calls a module's gauges. Plain C types only; append only.

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

/// One element of a gauge's chain, owned by the host: a surface to paint on, or a bitmap that is shown or
/// hidden.
struct GaugeElement {
    GaugeElement* next;
    void* device_context;   // null = nothing can be painted this frame
    int32_t width, height;  // of its image, pixels
    uint8_t* pixels;        // the image's bytes, may be null
    int32_t byte_size;
    uint32_t flags;  // top bit: cleared after each frame; bit 30 hides the element
};
constexpr uint32_t kElementDirty = 0x80000000;
constexpr uint32_t kElementHidden = 0x40000000;

/// One copy of a gauge on a panel, owned by the host.
struct GaugeInstance {
    const GaugeHeader* gauge;
    const char* parameters;            // of the panel's gauge line: "VC" in the virtual cockpit, else empty
    void* user_data;                   // the gauge's own
    GaugeElement* elements = nullptr;  // head of its chain
    int32_t mouse_x = 0, mouse_y = 0;  // of the press that is handed over, in the gauge's logical frame
};

constexpr uint32_t kMouseLeftSingle = 0x20000000;
constexpr uint32_t kMouseRightSingle = 0x80000000;
constexpr uint32_t kMouseLeftDrag = 0x00800000;

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
}
