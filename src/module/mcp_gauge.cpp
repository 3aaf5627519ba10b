#include "module/mcp_gauge.h"

#include <array>
#include <utility>

#include "guidance/mcp.h"
#include "platform/state_lock.h"

namespace {

struct McpControl {
    const char* area;  // name of the mouse area
    const char* control;
    enum Kind { kButton, kKnob, kBar } kind = kButton;
    int amount = 0;  // detents of a knob; 1 = the bar down
};

constexpr McpControl kControls[] = {
    {"lnav", "lnav"},
    {"vnav", "vnav"},
    {"flch", "flch"},
    {"vs", "vs"},
    {"althold", "althold"},
    {"app", "app"},
    {"loc", "loc"},
    {"hdgsel", "hdgsel"},
    {"hdghold", "hdghold"},
    {"at", "at"},
    {"clbcon", "clbcon"},
    {"apl", "apl"},
    {"apr", "apr"},
    {"atarm", "atarm"},
    {"spd -10", "spd", McpControl::kKnob, -10},
    {"spd -1", "spd", McpControl::kKnob, -1},
    {"spd +1", "spd", McpControl::kKnob, 1},
    {"spd +10", "spd", McpControl::kKnob, 10},
    {"hdg -10", "hdg", McpControl::kKnob, -10},
    {"hdg -1", "hdg", McpControl::kKnob, -1},
    {"hdg +1", "hdg", McpControl::kKnob, 1},
    {"hdg +10", "hdg", McpControl::kKnob, 10},
    {"alt -10", "alt", McpControl::kKnob, -10},
    {"alt -1", "alt", McpControl::kKnob, -1},
    {"alt +1", "alt", McpControl::kKnob, 1},
    {"alt +10", "alt", McpControl::kKnob, 10},
    {"vswheel -10", "vswheel", McpControl::kKnob, -10},
    {"vswheel -1", "vswheel", McpControl::kKnob, -1},
    {"vswheel +1", "vswheel", McpControl::kKnob, 1},
    {"vswheel +10", "vswheel", McpControl::kKnob, 10},
    {"bar down", "bar", McpControl::kBar, 1},
    {"bar up", "bar", McpControl::kBar, 0},
};
constexpr std::size_t kControlCount = std::size(kControls);

void Act(const McpControl& control) {
    const StateLock lock;
    switch (control.kind) {
        case McpControl::kButton:
            PressMcpButton(control.control);
            break;
        case McpControl::kKnob:
            TurnMcpKnob(control.control, control.amount);
            break;
        case McpControl::kBar:
            MoveDisengageBar(control.amount == 1);
            break;
    }
}

// The host's callback brings no data of ours, so that each area has a function of its own.
template <std::size_t kIndex>
int32_t OnPress(GaugeInstance*, uint32_t) {
    Act(kControls[kIndex]);
    return 0;
}

// The areas stand in a grid of eight columns over the gauge's frame.
template <std::size_t... kIndex>
constexpr auto LayOut(std::index_sequence<kIndex...>) {
    constexpr int kColumns = 8, kWidth = 70, kHeight = 40;
    return std::array{MouseRectangle{kControls[kIndex].area,
                                     static_cast<int16_t>(static_cast<int>(kIndex) % kColumns * kWidth),
                                     static_cast<int16_t>(static_cast<int>(kIndex) / kColumns * kHeight),
                                     kWidth, kHeight, OnPress<kIndex>}...};
}
constexpr auto kAreas = LayOut(std::make_index_sequence<kControlCount>());

}  // namespace

std::span<const MouseRectangle> McpMouseAreas() {
    return kAreas;
}
