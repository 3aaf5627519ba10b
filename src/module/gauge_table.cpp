#include "module/gauge_table.h"

#include "display/pictures/gauge.h"
#include "display/routing/selector_gauges.h"
#include "module/gauges/mcp_gauge.h"
#include "module/gauges/mouse_gauges.h"
#include "module/lifecycle.h"
#include "state/side.h"

namespace {

constexpr int32_t kMouseOnly = 800;
constexpr int32_t kPainted = 1000;

using Service = void (*)(GaugeInstance* instance, int32_t service_id);

GaugeHeader Panel(const char* name, Service service, std::span<const MouseRectangle> areas) {
    return {name, kMouseOnly, service, areas.data(), static_cast<int32_t>(areas.size())};
}
GaugeHeader Screen(const char* name, std::span<const MouseRectangle> areas) {
    return {name, kPainted, ServePaintedGauge, areas.data(), static_cast<int32_t>(areas.size())};
}

const GaugeHeader kGauges[] = {
    {"SERVER", kMouseOnly, ServerCallback},
    Screen("DU_CAPT_OUTB_2D", DisplayUnitAreas(1)),
    Screen("DU_CAPT_OUTB_VC", DisplayUnitAreas(1)),
    Screen("DU_CAPT_OUTB_MC", DisplayUnitAreas(1)),
    Screen("DU_CAPT_OUTB_PW", DisplayUnitAreas(1)),
    Screen("DU_CAPT_INB_2D", DisplayUnitAreas(2)),
    Screen("DU_CAPT_INB_VC", DisplayUnitAreas(2)),
    Screen("DU_CAPT_INB_MC", DisplayUnitAreas(2)),
    Screen("DU_CAPT_INB_PW", DisplayUnitAreas(2)),
    Screen("DU_FO_INB_VC", DisplayUnitAreas(3)),
    Screen("DU_FO_INB_MC", DisplayUnitAreas(3)),
    Screen("DU_FO_INB_PW", DisplayUnitAreas(3)),
    Screen("DU_FO_OUTB_VC", DisplayUnitAreas(4)),
    Screen("DU_FO_OUTB_PW", DisplayUnitAreas(4)),
    Screen("DU_LOWER_VC", DisplayUnitAreas(5)),
    Screen("DU_LOWER_MC", DisplayUnitAreas(5)),
    Screen("DU_LOWER_PW", DisplayUnitAreas(5)),
    Panel("OVERHEAD", ServeOverhead, OverheadAreas()),
    {"DEBUG", kPainted, ServePaintedGauge},
    Panel("DSP_CAPT", ServeSelectorGauge, DisplaySelectAreas(kCaptain)),
    Panel("DSP_FO", ServeSelectorGauge, DisplaySelectAreas(kFirstOfficer)),
    Panel("MFK_CAPT", nullptr, KeypadAreas(kCaptain)),
    Panel("MFK_FO", nullptr, KeypadAreas(kFirstOfficer)),
    Panel("ENG_START", nullptr, EngineStartAreas()),
    Screen("CAPT_EFB_PW", TabletAreas(kCaptain)),
    Screen("CAPT_EFB", TabletAreas(kCaptain)),
    Screen("CAPT_EFB_MC", TabletAreas(kCaptain)),
    Screen("FO_EFB", TabletAreas(kFirstOfficer)),
    Screen("FO_EFB_MC", TabletAreas(kFirstOfficer)),
    {"STBY_PFD", kPainted, ServePaintedGauge},
    {"HUD", kPainted, ServePaintedGauge},
    Panel("MCP", nullptr, McpMouseAreas()),
    Panel("WINTOG", nullptr, WindowToggleAreas()),
    Panel("GEAR_AUTOBRAKE", nullptr, GearAutobrakeAreas()),
    Panel("CAPT_DU_MODE", ServeSelectorGauge, DisplaySelectorAreas()),
    Panel("CAPT_CLOCK_BUTTON", nullptr, ClockAreas()),
    Panel("CAPT_CANC_RECALL_BUTTON", nullptr, CancelRecallAreas()),
    Panel("GEAR_AUTOBRAKE", nullptr, GearAutobrakeAreas()),  // panels know it at both places
    Panel("WXR_BUTTON", nullptr, WeatherAreas()),
    Panel("TFC_BUTTON", nullptr, TrafficAreas()),
    Panel("TERR_BUTTON", nullptr, TerrainAreas()),
};
static_assert(std::size(kGauges) == 41);

}  // namespace

std::span<const GaugeHeader> Gauges() {
    return kGauges;
}
