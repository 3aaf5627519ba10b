#include "module/gauge_table.h"

#include "display/gauge.h"
#include "display/selector_gauges.h"
#include "module/lifecycle.h"
#include "module/mcp_gauge.h"

namespace {

constexpr int32_t kMouseOnly = 800;
constexpr int32_t kPainted = 1000;

const GaugeHeader kGauges[] = {
    {"SERVER", kMouseOnly, ServerCallback},
    {"DU_CAPT_OUTB_2D", kPainted, ServePaintedGauge},
    {"DU_CAPT_OUTB_VC", kPainted, ServePaintedGauge},
    {"DU_CAPT_OUTB_MC", kPainted, ServePaintedGauge},
    {"DU_CAPT_OUTB_PW", kPainted, ServePaintedGauge},
    {"DU_CAPT_INB_2D", kPainted, ServePaintedGauge},
    {"DU_CAPT_INB_VC", kPainted, ServePaintedGauge},
    {"DU_CAPT_INB_MC", kPainted, ServePaintedGauge},
    {"DU_CAPT_INB_PW", kPainted, ServePaintedGauge},
    {"DU_FO_INB_VC", kPainted, ServePaintedGauge},
    {"DU_FO_INB_MC", kPainted, ServePaintedGauge},
    {"DU_FO_INB_PW", kPainted, ServePaintedGauge},
    {"DU_FO_OUTB_VC", kPainted, ServePaintedGauge},
    {"DU_FO_OUTB_PW", kPainted, ServePaintedGauge},
    {"DU_LOWER_VC", kPainted, ServePaintedGauge},
    {"DU_LOWER_MC", kPainted, ServePaintedGauge},
    {"DU_LOWER_PW", kPainted, ServePaintedGauge},
    {"OVERHEAD", kMouseOnly},
    {"DEBUG", kPainted, ServePaintedGauge},
    {"DSP_CAPT", kMouseOnly, ServeSelectorGauge},
    {"DSP_FO", kMouseOnly, ServeSelectorGauge},
    {"MFK_CAPT", kMouseOnly},
    {"MFK_FO", kMouseOnly},
    {"ENG_START", kMouseOnly},
    {"CAPT_EFB_PW", kPainted, ServePaintedGauge},
    {"CAPT_EFB", kPainted, ServePaintedGauge},
    {"CAPT_EFB_MC", kPainted, ServePaintedGauge},
    {"FO_EFB", kPainted, ServePaintedGauge},
    {"FO_EFB_MC", kPainted, ServePaintedGauge},
    {"STBY_PFD", kPainted, ServePaintedGauge},
    {"HUD", kPainted, ServePaintedGauge},
    {"MCP", kMouseOnly, nullptr, McpMouseAreas().data(), static_cast<int32_t>(McpMouseAreas().size())},
    {"WINTOG", kMouseOnly},
    {"GEAR_AUTOBRAKE", kMouseOnly},
    {"CAPT_DU_MODE", kMouseOnly, ServeSelectorGauge},
    {"CAPT_CLOCK_BUTTON", kMouseOnly},
    {"CAPT_CANC_RECALL_BUTTON", kMouseOnly},
    {"GEAR_AUTOBRAKE", kMouseOnly},  // panels know it at both places
    {"WXR_BUTTON", kMouseOnly},
    {"TFC_BUTTON", kMouseOnly},
    {"TERR_BUTTON", kMouseOnly},
};
static_assert(std::size(kGauges) == 41);

}  // namespace

std::span<const GaugeHeader> Gauges() {
    return kGauges;
}
