#pragma once

#include <array>
#include <cstdint>

#include "frame/named_variables.h"
#include "module/controls/operate.h"
#include "platform/panel_gauges.h"
#include "platform/state_lock.h"

// Mouse areas of the two-dimensional gauges. The host's callback brings no data of ours, so that each area
// has a function of its own, made from what it does.

using MouseCallback = int32_t (*)(GaugeInstance* instance, uint32_t flags);

struct MouseArea {
    const char* name;
    MouseCallback callback;
};

template <void (*kPress)(uint32_t flags)>
int32_t OnPress(GaugeInstance*, uint32_t flags) {
    const StateLock lock;
    kPress(flags);
    return 0;
}

template <NamedVarRef kVariable>
void PressControl(uint32_t flags) {
    ClickControl(kVariable, flags);
}

/// The area of a control bears its variable's name: ControlArea<NamedVar("TZ_MCP_L_WXR_Button")>().
template <NamedVarRef kVariable>
constexpr MouseArea ControlArea() {
    return {NameOf(kVariable).data(), OnPress<PressControl<kVariable>>};
}

/// Areas stand in a grid of eight columns from a gauge's `left` edge on.
constexpr int kAreaColumns = 8, kAreaWidth = 70, kAreaHeight = 40;

template <std::size_t kCount>
constexpr std::array<MouseRectangle, kCount> LayOut(const MouseArea (&areas)[kCount], int left = 0) {
    std::array<MouseRectangle, kCount> rectangles{};
    for (int i = 0; i < static_cast<int>(kCount); ++i)
        rectangles[static_cast<std::size_t>(i)] = {areas[i].name,
                                                   static_cast<int16_t>(left + i % kAreaColumns * kAreaWidth),
                                                   static_cast<int16_t>(i / kAreaColumns * kAreaHeight),
                                                   kAreaWidth,
                                                   kAreaHeight,
                                                   areas[i].callback};
    return rectangles;
}
