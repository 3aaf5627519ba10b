#pragma once

#include <initializer_list>
#include <string_view>

#include "display/routing/content_place.h"
#include "paint/painter.h"
#include "paint/soft_key.h"

// The words in which system pages are drawn. A page stands in the coordinates of the right half of a unit, x
// from 282 to 564.

/// A page being drawn.
struct SysPage {
    Graphics& graphics;
    int side;  // whose panel the page acts on
};

constexpr int kPageLeft = 282, kPageMiddle = 423;

/// Whether a press on a half is on a key of its page.
bool IsOnKey(const SoftKeyBox& box, const FormatTouch& at);

/// How something of a diagram stands.
enum class FlowState {
    kDead,     // grey
    kPlain,    // white: there, and no more
    kLive,     // green: it carries power, pressure, fuel or air
    kWarning,  // amber
};
Rgb ColourOf(FlowState state);
constexpr FlowState LiveIf(bool live) {
    return live ? FlowState::kLive : FlowState::kDead;
}

/// A box with cut corners.
void DrawSysBox(const SysPage& page, int x, int y, int width, int height, FlowState state,
                bool filled = false);
/// A box around words that stand in its middle, one under the other.
void DrawUser(const SysPage& page, int x, int y, int width, int height, FlowState state,
              std::initializer_list<std::string_view> words);

/// A diamond where lines meet; the small form marks a feed. Filled while something flows.
void DrawFlowArrow(const SysPage& page, int x, int y, FlowState state, bool filled);
void DrawFlowTick(const SysPage& page, int x, int y, FlowState state, bool filled);

/// A line through points, green and thicker while it is live.
void DrawFlow(const SysPage& page, std::initializer_list<IntPoint> points, FlowState state);

/// A pump: a circle with an arrowhead upwards, about x, y.
void DrawPump(const SysPage& page, int x, int y, int width, int height, FlowState state);
/// A valve: a circle with a bar along the line when it is open, across it when it is shut.
void DrawValve(const SysPage& page, int x, int y, bool open, bool line_is_level, FlowState state);

/// Small blue-grey words about x; white values about x; ending at x.
void DrawSysLabel(const SysPage& page, double x, double y, std::string_view text);
void DrawSysValue(const SysPage& page, double x, double y, std::string_view text, Rgb colour = kWhite);
/// A label on a line, which it interrupts.
void DrawLineLabel(const SysPage& page, double x, double y, std::string_view text);
void DrawSysTitle(const SysPage& page, double x, double y, std::string_view text);
