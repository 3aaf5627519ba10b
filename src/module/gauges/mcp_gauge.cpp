#include "module/gauges/mcp_gauge.h"

#include <iterator>
#include <utility>

#include "guidance/mcp.h"
#include "module/gauges/mouse_areas.h"

namespace {

struct McpControl {
    const char* area;  // name of the mouse area
    const char* control;
    enum Kind { kButton, kKnob, kKnobPush, kBar } kind = kButton;
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
    {"alt push", "alt", McpControl::kKnobPush},
};

void Act(const McpControl& control) {
    switch (control.kind) {
        case McpControl::kButton:
            PressMcpButton(control.control);
            break;
        case McpControl::kKnob:
            TurnMcpKnob(control.control, control.amount);
            break;
        case McpControl::kKnobPush:
            PushAltitudeKnob();
            break;
        case McpControl::kBar:
            MoveDisengageBar(control.amount == 1);
            break;
    }
}

template <std::size_t kIndex>
void Press(uint32_t) {
    Act(kControls[kIndex]);
}

template <std::size_t... kIndex>
constexpr auto Areas(std::index_sequence<kIndex...>) {
    const MouseArea areas[] = {{kControls[kIndex].area, OnPress<Press<kIndex>>}...};
    return LayOut(areas);
}
constexpr auto kAreas = Areas(std::make_index_sequence<std::size(kControls)>());

}  // namespace

std::span<const MouseRectangle> McpMouseAreas() {
    return kAreas;
}
