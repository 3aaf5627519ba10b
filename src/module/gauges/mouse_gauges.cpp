#include "module/gauges/mouse_gauges.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "display/formats/clicks.h"
#include "efb/tablet_input.h"
#include "efb/words/face.h"
#include "frame/key_events.h"
#include "module/controls/control_table.h"
#include "module/controls/operate.h"
#include "module/gauges/mouse_areas.h"
#include "platform/host.h"
#include "state/side.h"
#include "systems/engine_controls.h"
#include "systems/wheels.h"

namespace {

constexpr std::string_view kOverheadPrefix = "TZ_OH_", kOverheadLampPrefix = "TZ_OH_Annun_";

constexpr bool IsOverheadLamp(std::string_view name) {
    return name.starts_with(kOverheadLampPrefix);
}
constexpr bool IsOverheadControl(std::string_view name) {
    return name.starts_with(kOverheadPrefix) && !IsOverheadLamp(name);
}

template <char kSide>
constexpr bool IsKeypadKey(std::string_view name) {
    return name.starts_with(kSide == 'L' ? "TZ_FMC_L_" : "TZ_FMC_R_");
}

template <char kSide>
constexpr bool IsBezelKey(std::string_view name) {
    return name.starts_with(kSide == 'L' ? "TZ_EFB_L_" : "TZ_EFB_R_");
}

using PassesName = bool (*)(std::string_view name);

template <PassesName kPasses>
consteval auto RowsWhere() {
    constexpr auto kCount = std::ranges::count_if(kNamedVariables, kPasses, &NamedVariable::name);
    std::array<int, static_cast<std::size_t>(kCount)> rows{};
    std::size_t next = 0;
    for (int row = 0; row < kNamedVariableCount; ++row)
        if (kPasses(NameOf({row}))) rows[next++] = row;
    return rows;
}

/// The rows of the catalogue whose names pass.
template <PassesName kPasses>
constexpr auto kRowsWhere = RowsWhere<kPasses>();

template <PassesName kPasses, int kLeft, std::size_t... kIndex>
consteval auto AreasOfRows(std::index_sequence<kIndex...>) {
    return LayOut({ControlArea<NamedVarRef{kRowsWhere<kPasses>[kIndex]}>()...}, kLeft);
}

/// An area for each of them, from a left edge on.
template <PassesName kPasses, int kLeft = 0>
constexpr auto kAreasWhere =
    AreasOfRows<kPasses, kLeft>(std::make_index_sequence<kRowsWhere<kPasses>.size()>());

// One area for the control of a variable.
template <NamedVarRef kVariable>
constexpr auto kSingle = LayOut({ControlArea<kVariable>()});

constexpr auto kCaptainDisplaySelect = LayOut({
    ControlArea<NamedVar("TZ_MCP_L_CANRCL_Button")>(),
    ControlArea<NamedVar("TZ_MCP_L_CDU_Button")>(),
    ControlArea<NamedVar("TZ_MCP_L_CHKL_Button")>(),
    ControlArea<NamedVar("TZ_MCP_L_COMM_Button")>(),
    ControlArea<NamedVar("TZ_MCP_L_EICAS_Button")>(),
    ControlArea<NamedVar("TZ_MCP_L_ENG_Button")>(),
    ControlArea<NamedVar("TZ_MCP_L_INFO_Button")>(),
    ControlArea<NamedVar("TZ_MCP_L_MFD_L_Button")>(),
    ControlArea<NamedVar("TZ_MCP_L_MFD_R_Button")>(),
    ControlArea<NamedVar("TZ_MCP_L_ND_Button")>(),
    ControlArea<NamedVar("TZ_MCP_L_SYS_Button")>(),
});
constexpr auto kFirstOfficerDisplaySelect = LayOut({
    ControlArea<NamedVar("TZ_MCP_R_CANRCL_Button")>(),
    ControlArea<NamedVar("TZ_MCP_R_CDU_Button")>(),
    ControlArea<NamedVar("TZ_MCP_R_CHKL_Button")>(),
    ControlArea<NamedVar("TZ_MCP_R_COMM_Button")>(),
    ControlArea<NamedVar("TZ_MCP_R_EICAS_Button")>(),
    ControlArea<NamedVar("TZ_MCP_R_ENG_Button")>(),
    ControlArea<NamedVar("TZ_MCP_R_INFO_Button")>(),
    ControlArea<NamedVar("TZ_MCP_R_MFD_L_Button")>(),
    ControlArea<NamedVar("TZ_MCP_R_MFD_R_Button")>(),
    ControlArea<NamedVar("TZ_MCP_R_ND_Button")>(),
    ControlArea<NamedVar("TZ_MCP_R_SYS_Button")>(),
});

constexpr auto kEngineStart = LayOut({
    ControlArea<NamedVar("TZ_OH_ENG_L_START_Switch")>(),
    ControlArea<NamedVar("TZ_OH_ENG_R_START_Switch")>(),
    {"fuel control 1", OnPress<[](uint32_t) { ToggleFuelControl(1); }>},
    {"fuel control 2", OnPress<[](uint32_t) { ToggleFuelControl(2); }>},
});

// The windows of the strip are the panel's: they count from 1, 0 is the main panel itself.
template <int kIdent>
void Toggle(uint32_t) {
    ToggleWindow(kIdent);
}
constexpr auto kWindowToggles = LayOut({
    {"window 1", OnPress<Toggle<1>>},
    {"window 2", OnPress<Toggle<2>>},
    {"window 3", OnPress<Toggle<3>>},
    {"window 4", OnPress<Toggle<4>>},
    {"window 5", OnPress<Toggle<5>>},
    {"window 6", OnPress<Toggle<6>>},
    {"window 7", OnPress<Toggle<7>>},
    {"window 8", OnPress<Toggle<8>>},
});

void PressAutobrake(uint32_t flags) {
    TurnAutobrake(flags == kMouseRightSingle ? 1 : -1);
}
constexpr auto kGearAutobrake = LayOut({
    {"gear lever", OnPress<[](uint32_t) { SendKeyEvent(kKeyPanelButton, 0); }>},
    {"autobrake", OnPress<PressAutobrake>},
});

template <int kUnit>
int32_t OnScreenPress(GaugeInstance* instance, uint32_t) {
    const StateLock lock;
    OnDisplayUnitClick(instance->mouse_x, instance->mouse_y, kUnit);
    return 0;
}
constexpr MouseRectangle kScreens[] = {
    {"screen", 0, 0, 564, 424, OnScreenPress<1>}, {"screen", 0, 0, 564, 424, OnScreenPress<2>},
    {"screen", 0, 0, 564, 424, OnScreenPress<3>}, {"screen", 0, 0, 564, 424, OnScreenPress<4>},
    {"screen", 0, 0, 564, 424, OnScreenPress<5>},
};

template <int kSide>
int32_t OnTabletTouch(GaugeInstance* instance, uint32_t flags) {
    const StateLock lock;
    OnEfbTouch(instance->mouse_x, instance->mouse_y, kSide, flags);
    return 0;
}

template <int kSide, PassesName kIsKey>
consteval auto Tablet() {
    const auto& keys = kAreasWhere<kIsKey, kTabletWidth>;
    std::array<MouseRectangle, keys.size() + 1> areas{};
    areas[0] = {"screen", 0, 0, kTabletWidth, kTabletHeight, OnTabletTouch<kSide>};
    std::copy(keys.begin(), keys.end(), areas.begin() + 1);
    return areas;
}
constexpr auto kCaptainTablet = Tablet<kCaptain, IsBezelKey<'L'>>();
constexpr auto kFirstOfficerTablet = Tablet<kFirstOfficer, IsBezelKey<'R'>>();

// Walks a gauge's chain; what stands behind its end isn't there to show.
class Elements {
  public:
    explicit Elements(GaugeElement* head) : next_(head) {}
    bool AtEnd() const { return next_ == nullptr; }
    void ShowNext(bool shown) {
        if (next_ == nullptr) return;
        if (shown)
            next_->flags &= ~kElementHidden;
        else
            next_->flags |= kElementHidden;
        next_ = next_->next;
    }

  private:
    GaugeElement* next_;
};

}  // namespace

std::span<const MouseRectangle> OverheadAreas() {
    return kAreasWhere<IsOverheadControl>;
}
std::span<const MouseRectangle> DisplaySelectAreas(int side) {
    if (side == kCaptain) return kCaptainDisplaySelect;
    return kFirstOfficerDisplaySelect;
}
std::span<const MouseRectangle> KeypadAreas(int side) {
    if (side == kCaptain) return kAreasWhere<IsKeypadKey<'L'>>;
    return kAreasWhere<IsKeypadKey<'R'>>;
}
std::span<const MouseRectangle> EngineStartAreas() {
    return kEngineStart;
}
std::span<const MouseRectangle> WindowToggleAreas() {
    return kWindowToggles;
}
std::span<const MouseRectangle> GearAutobrakeAreas() {
    return kGearAutobrake;
}
std::span<const MouseRectangle> DisplaySelectorAreas() {
    return kSingle<NamedVar("TZ_MAIN_PFD_MFD_L_Switch")>;
}
std::span<const MouseRectangle> ClockAreas() {
    return kSingle<NamedVar("TZ_MCP_Clock_L_Button")>;
}
std::span<const MouseRectangle> CancelRecallAreas() {
    return kSingle<NamedVar("TZ_MCP_L_CANRCL_Button")>;
}
std::span<const MouseRectangle> WeatherAreas() {
    return kSingle<NamedVar("TZ_MCP_L_WXR_Button")>;
}
std::span<const MouseRectangle> TrafficAreas() {
    return kSingle<NamedVar("TZ_MCP_L_TFC_Button")>;
}
std::span<const MouseRectangle> TerrainAreas() {
    return kSingle<NamedVar("TZ_MCP_L_TERR_Button")>;
}
std::span<const MouseRectangle> DisplayUnitAreas(int unit) {
    return std::span(kScreens).subspan(static_cast<std::size_t>(unit - 1), 1);
}
std::span<const MouseRectangle> TabletAreas(int side) {
    if (side == kCaptain) return kCaptainTablet;
    return kFirstOfficerTablet;
}

void ServeOverhead(GaugeInstance* instance, int32_t service_id) {
    if (service_id != kServicePreDraw || instance->elements == nullptr) return;
    const StateLock lock;
    Elements elements(instance->elements);
    for (const PollSet& set : PollSets())
        for (const Control& control : set.controls) {
            if (control.shadow == nullptr || !IsOverheadControl(NameOf(control.variable))) continue;
            for (int position = control.min + 1; position <= control.max; ++position)
                elements.ShowNext(*control.shadow == position);
        }
    for (const int row : kRowsWhere<IsOverheadLamp>) {
        if (elements.AtEnd()) return;
        elements.ShowNext(ReadNamedVar({row}) != 0);
    }
}
