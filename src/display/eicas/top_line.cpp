#include "display/eicas/top_line.h"

#include <cmath>
#include <string>

#include "base/text.h"
#include "frame/engine_fuel.h"
#include "state/autoflight.h"
#include "state/cockpit.h"
#include "state/engines.h"
#include "state/sim.h"

namespace {

constexpr float kTopText = 10;
constexpr double kLeft = 297;  // 5 before the first dial

constexpr int kTakeoff = 0, kGoAround = 1, kContinuous = 2, kClimb = 3, kCruise = 4;

std::string ThrustLimitName() {
    const auto rating = [](std::string_view name, int derate) {
        return derate >= 1 && derate <= 2 ? std::string(name) + Format(" %d", derate) : std::string(name);
    };
    switch (autoflight.thrust_limit) {
        case kTakeoff:
            return rating("TO", engines.FMC_TO_Derate);
        case kGoAround:
            return "G/A";
        case kContinuous:
            return "CON";
        case kClimb:
            return rating("CLB", engines.FMC_CLB_Derate);
        case kCruise:
            return "CRZ";
        default:
            return {};
    }
}

}  // namespace

void DrawTopLine(Graphics& graphics) {
    const bool assumed = engines.FMC_Flex_Temp > 0;
    const bool derated = assumed || engines.FMC_TO_Derate > 0;
    EicasLabel(graphics, kLeft, 0, kTopText, "TAT");
    EicasText(graphics, kLeft + 24, 0, kTopText, kWhite,
              Format("%s%2.0fc", sim.tat_c < 0 ? "-" : "+", std::fabs(sim.tat_c)));
    const bool on_takeoff = autoflight.thrust_limit == kTakeoff;
    if (derated && on_takeoff) EicasText(graphics, kLeft + 60, 0, kTopText, kGreen, "D-");
    EicasText(graphics, kLeft + 72, 0, kTopText, kGreen, ThrustLimitName());
    if (assumed && on_takeoff)
        EicasText(graphics, kLeft + 104, 0, kTopText, kGreen, Format("+%d c", engines.FMC_Flex_Temp));
}

void DrawEngineState(Graphics& graphics, const EngineView& engine) {
    constexpr float kSmall = 8;
    const double x = engine.right ? 367 : 302;
    const int timer = engine.right ? engines.eng2_lightoff_timer : engines.eng1_lightoff_timer;
    const EngineFuel& fuel = kEngineFuel[engine.right ? 1 : 0];
    const bool autostart = cockpit.*fuel.start_latch == 1 && cockpit.*fuel.control == kFuelRun;
    if (autostart)
        EicasText(graphics, x + 2, 69, kSmall, kWhite, "AUTOSTART");
    else if (timer > 0)
        EicasText(graphics, x + 2, 69, kSmall, kWhite, "RUNNING");
    if (engine.readings.reverser > 0)
        EicasText(graphics, x + 34, 11, kTopText, engine.readings.reverser >= 1 ? kGreen : kAmber, "REV");
}
