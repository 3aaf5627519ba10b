#include "display/nd/nd_keys.h"

#include <string_view>

#include "base/area.h"
#include "cdu/unit/keypad.h"
#include "display/nd/header_text.h"
#include "display/nd/plan_cursor.h"
#include "display/routing/nd_controls.h"
#include "paint/painter.h"
#include "paint/soft_key.h"
#include "state/leg_words.h"
#include "state/plan.h"
#include "state/sim.h"

namespace {

// The frame of the keys begins in the middle of the half, at a height of 235.
constexpr int kFrameX = 141, kFrameY = 235;

// --- the menu

void Toggle(int& flag) {
    flag = flag == 0 ? 1 : 0;
}

// The menu sets 1 where the panel's button sets 2.
void ToggleWeather(NdSide& display) {
    Toggle(display.nd_wxr);
    if (display.nd_wxr == 0) display.nd_wxr_lamp = 0;
    display.nd_terr = 0;
}

void ToggleTerrain(NdSide& display) {
    Toggle(display.nd_terr);
    display.nd_wxr = 0;
    display.nd_wxr_lamp = 0;
}

struct MenuRow {
    std::string_view text;
    int y;            // of its box, in the frame of the keys
    int top, bottom;  // where it is touched, from the top of the half
    int NdSide::*flag;
    void (*press)(NdSide& display) = nullptr;  // null: the flag changes
};

constexpr MenuRow kMapMenu[] = {
    {"VSD", -198, 36, 50, &NdSide::nd_vsd},
    {"WXR", -178, 57, 69, &NdSide::nd_wxr, ToggleWeather},
    {"TERR", -162, 73, 85, &NdSide::nd_terr, ToggleTerrain},
    {"TFC", -139, 95, 110, &NdSide::nd_tfc},
    {"APT", -121, 113, 126, &NdSide::nd_apt},
    {"WPT", -103, 131, 145, &NdSide::nd_wpt},
    {"STA", -84, 150, 165, &NdSide::nd_sta},
    {"POS", -66, 168, 181, &NdSide::nd_pos},
    {"DATA", -48, 186, 200, &NdSide::nd_data},
    {"VOR L", -24, 210, 224, &NdSide::nd_vor_l},
    {"VOR R", -6, 227, 242, &NdSide::nd_vor_r},
    {"FIR", 18, 0, 0, nullptr},
    {"AIRSP", 36, 0, 0, nullptr},
};
constexpr MenuRow kPlanMenu[] = {
    {"APT", -191, 44, 58, &NdSide::nd_apt}, {"WPT", -172, 64, 76, &NdSide::nd_wpt},
    {"STA", -153, 81, 96, &NdSide::nd_sta}, {"DATA", -135, 99, 113, &NdSide::nd_data},
    {"FIR", -116, 0, 0, nullptr},           {"AIRSP", -98, 0, 0, nullptr},
};

struct Menu {
    std::span<const MenuRow> rows;
    SoftKeyBox exit;
    Area exit_touch;
};
constexpr Menu kMenuOfMap{kMapMenu, {85, 63, 30, 15}, {225, 258, 295, 314}};
constexpr Menu kMenuOfPlan{kPlanMenu, {85, -66, 30, 15}, {225, 258, 168, 185}};
constexpr int kMenuLeft = 218, kMenuRight = 278;

const Menu& MenuOf(bool in_plan) {
    return in_plan ? kMenuOfPlan : kMenuOfMap;
}

void DrawMenu(Graphics& graphics, const NdFrame& frame) {
    constexpr int kBoxX = 80, kBox = 12, kTextX = 95, kLeft = 76, kWidth = 64, kMargin = 8;
    constexpr Rgb kUnusable{112, 108, 123};
    const Menu& menu = MenuOf(frame.in_plan);
    const NdSide& display = NdOf(frame.side);
    const int top = menu.rows.front().y - kMargin;
    const int height = menu.exit.y + menu.exit.height + kMargin - top;
    FilledBox(graphics, kLeft, top, kWidth, height, kBlack);
    BoxOutline(graphics, kLeft, top, kWidth, height, kBlueGrey);
    for (const MenuRow& row : menu.rows) {
        const Rgb colour = row.flag != nullptr ? kWhite : kUnusable;
        BoxOutline(graphics, kBoxX, row.y, kBox, kBox, colour);
        if (row.flag != nullptr && display.*row.flag != 0)
            FilledBox(graphics, kBoxX + 3, row.y + 3, kBox - 6, kBox - 6, kGreen);
        Text(graphics, kTextX, row.y, kNdTextSize, colour, row.text);
    }
    DrawSoftKey(graphics, menu.exit, "EXIT", {});
}

void PressMenu(NdSide& display, bool in_plan, int x, int y) {
    const Menu& menu = MenuOf(in_plan);
    if (menu.exit_touch.Has(x, y)) display.nd_menu = 0;
    for (const MenuRow& row : menu.rows) {
        if (row.flag == nullptr || !Area{kMenuLeft, kMenuRight, row.top, row.bottom}.Has(x, y)) continue;
        if (row.press != nullptr)
            row.press(display);
        else
            Toggle(display.*row.flag);
    }
}

// --- the keys of PLAN

void Arm(NdSide& display, int use) {
    const bool is_armed = display.nd_pick_pending == 1 && display.nd_pick_use == use;
    display.nd_pick_pending = is_armed ? 0 : 1;
    display.nd_pick_use = is_armed ? kPickWaypoint : use;
    display.nd_pick_taken = 0;
}

void CentreOn(NdSide& display, double lat, double lon) {
    display.plan_lat = lat;
    display.plan_lon = lon;
}

struct PlanKey {
    std::string_view text;
    SoftKeyBox box;
    int use;  // what it asks a point of the map for; kNoUse: it acts at once
    void (*press)(NdSide& display);
};
constexpr int kNoUse = -1;
constexpr int kPlanKeysY = 160;
constexpr PlanKey kPlanKeys[] = {
    {"AIRPLANE",
     {-135, kPlanKeysY, 50, 20},
     kNoUse,
     [](NdSide& display) { CentreOn(display, sim.plane_lat, sim.plane_lon); }},
    {"DEST",
     {-79, kPlanKeysY, 50, 20},
     kNoUse,
     [](NdSide& display) {
         const RouteVersion& route = IsRouteActive() ? plan.active : plan.mod;
         const FlightPlanLeg& last = route.legs[route.leg_cnt];
         if (route.leg_cnt > 0 && IsPlace(last)) CentreOn(display, last.lat, last.lon);
     }},
    {"CURSOR", {-23, kPlanKeysY, 50, 20}, kPickCursor, [](NdSide& display) { Arm(display, kPickCursor); }},
    {"CTR ON", {33, kPlanKeysY, 50, 20}, kPickCentre, [](NdSide& display) { Arm(display, kPickCentre); }},
    {"PICK\nWPT",
     {105, kPlanKeysY, 30, 20},
     kPickWaypoint,
     [](NdSide& display) { Arm(display, kPickWaypoint); }},
};

void DrawPlanKeys(Graphics& graphics, const NdFrame& frame) {
    const NdSide& display = NdOf(frame.side);
    constexpr float kTitleSize = 8;
    Line(graphics, -137, 150, -85, 150, kWhite);
    Line(graphics, 40, 150, 88, 150, kWhite);
    for (const int x : {-137, 88}) Line(graphics, x, 150, x, 156, kWhite);
    CentredText(graphics, -22, 144, kTitleSize, kWhite, "MAP CENTERING");
    const bool on_leg = display.plan_lat == 0 && display.plan_lon == 0 && plan.active.stpos != kNoPlan;
    const FlightPlanLeg& leg = FlightPlanLegAt(display.plan_step);
    CentredText(graphics, 0, 180, kTitleSize - 1, kWhite,
                on_leg && IsPlace(leg) ? std::string_view(leg.ident) : "------");
    for (const PlanKey& key : kPlanKeys) {
        const bool armed =
            key.use != kNoUse && display.nd_pick_pending == 1 && display.nd_pick_use == key.use;
        const bool cancels = armed && key.use == kPickWaypoint;
        DrawSoftKey(graphics, key.box, cancels ? "CANCEL" : key.text, {.active = armed});
    }
}

// The frame around the key that the cursor works for.
void DrawCursorBox(Graphics& graphics, const NdFrame& frame) {
    const NdSide& display = NdOf(frame.side);
    if (!frame.in_plan || display.nd_pick_pending != 1) return;
    for (const PlanKey& key : kPlanKeys)
        if (key.use == display.nd_pick_use)
            BoxOutline(graphics, key.box.x - 1, key.box.y - 1, key.box.width + 2, key.box.height + 2,
                       kMagenta);
}

// --- the strip on top

constexpr SoftKeyBox kMapKey{-130, -233, 100, 20}, kPlanKey{-30, -233, 100, 20}, kMenuKey{90, -233, 40, 20};
constexpr Area kMapTouch{7, 109, 0, 24}, kPlanTouch{111, 215, 0, 24}, kMenuTouch{230, 275, 0, 24};

void SelectMode(int side, int mode) {
    NdSide& display = NdOf(side);
    SelectNdMode(side, mode);
    if (mode == kNdMap) display.nd_pick_pending = display.nd_pick_taken = 0;
}

}  // namespace

void DrawNdKeys(Graphics& graphics, const NdFrame& frame) {
    EnterTextFrame(graphics, frame);
    const bool menu = NdOf(frame.side).nd_menu == 1;
    DrawSoftKey(graphics, kMapKey, "MAP", {.active = !frame.in_plan});
    DrawSoftKey(graphics, kPlanKey, "PLAN", {.active = frame.in_plan});
    DrawSoftKey(graphics, kMenuKey, "MENU", {.active = menu});
    if (menu) DrawMenu(graphics, frame);
    if (frame.in_plan) DrawPlanKeys(graphics, frame);
    DrawCursorBox(graphics, frame);
    GdipResetWorldTransform(graphics);
}

void OnNdKey(int side, int x, int y) {
    NdSide& display = NdOf(side);
    const bool in_plan = display.nd_mode == kNdPlan;
    if (kMapTouch.Has(x, y)) return SelectMode(side, kNdMap);
    if (kPlanTouch.Has(x, y)) return SelectMode(side, kNdPlan);
    if (kMenuTouch.Has(x, y)) return Toggle(display.nd_menu);
    if (in_plan)
        for (const PlanKey& key : kPlanKeys) {
            const int left = key.box.x + kFrameX, top = key.box.y + kFrameY;
            if (Area{left, left + key.box.width, top - 1, top + key.box.height + 1}.Has(x, y))
                return key.press(display);
        }
    if (display.nd_menu == 1) PressMenu(display, in_plan, x, y);
}

void OnNdMapPress(int side, bool wide, int x, int y) {
    NdSide& display = NdOf(side);
    display.nd_pick_taken = 1;
    display.nd_cursor_x = x;
    display.nd_cursor_y = y;
    if (display.nd_pick_use == kPickCursor) return;
    display.nd_pick_pending = 0;
    const CursorPoint point = PointUnderCursor(MakeNdFrame(side, 1, wide));
    if (display.nd_pick_use == kPickCentre)
        CentreOn(display, point.at.lat, point.at.lon);
    else
        PutOnScratchpad(side, CursorText(side, point));
}
