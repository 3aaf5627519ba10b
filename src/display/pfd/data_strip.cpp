#include "display/pfd/data_strip.h"

#include <algorithm>
#include <cmath>

#include "base/angles.h"
#include "base/numbers.h"
#include "base/text.h"
#include "display/nd/nd_frame.h"
#include "display/nd/passage.h"
#include "display/pfd/compass.h"
#include "state/cockpit.h"
#include "state/lnav.h"
#include "state/nd.h"
#include "state/plan.h"
#include "state/sim.h"
#include "state/time_base.h"
#include "state/traffic.h"

namespace {

constexpr int kByButton = 2;  // of nd_terr and nd_tfc
constexpr float kLabelSize = 8, kValueSize = 9;

// Where the two columns stand; everything below is an offset from the middle of the compass.
struct Strip {
    Graphics& graphics;
    int left, right;
    int side;
};

bool IsSwitchedOn() {
    return cockpit.irs_left_knob == 1 || cockpit.irs_right_knob == 1 || IsIrsOn();
}

void StripValue(const Strip& strip, int x, int y, std::string_view text) {
    Text(strip.graphics, x, y, kValueSize, kWhite, text);
}
void StripLabel(const Strip& strip, int x, int y, std::string_view text, Rgb colour = kCyan) {
    Text(strip.graphics, x, y, kLabelSize, colour, text);
}

void DrawSpeeds(const Strip& strip) {
    constexpr double kLeastGround = 0.4, kLeastAir = 100;
    constexpr int kY = -110;
    StripLabel(strip, strip.left, kY, "GS");
    if (sim.ground_speed_kt >= kLeastGround)
        StripValue(strip, strip.left + 10, kY - 1, Format("%.0f", Bounded(sim.ground_speed_kt, 0, 9999)));
    if (!(sim.tas_kt >= kLeastAir)) return;
    StripLabel(strip, strip.left + 33, kY, "TAS");
    StripValue(strip, strip.left + 48, kY - 1, Format("%.0f", Bounded(sim.tas_kt, 0, 9999)));
}

void DrawWindArrow(const Strip& strip, double direction) {
    const TransformBlock block(strip.graphics);
    GdipTranslateWorldTransform(strip.graphics, strip.left + 15, -80);
    GdipRotateWorldTransform(strip.graphics, direction + 180 - ReferenceHeading());
    FillOutline(strip.graphics, BrushOf(kWhite), {At(0, -9), At(3, -6), At(-3, -6)});
    Line(strip.graphics, 0, -6, 0, 6, kWhite);
}

void DrawWind(const Strip& strip) {
    constexpr double kOffGround = 4, kCalm = 1;
    constexpr int kY = -99;
    if (!(sim.radio_alt_ft > kOffGround)) return;
    if (!(sim.wind_kt >= kCalm)) return StripValue(strip, strip.left, kY, Format("---%c/---", kDegreeSign));
    const double direction = FoldBearing(Bounded(HeadingReferenceInUse().Of(sim.wind_dir), -360, 720));
    StripValue(strip, strip.left, kY,
               Format("%03.0f%c/%.0f", direction, kDegreeSign, Bounded(sim.wind_kt, 0, 999)));
    DrawWindArrow(strip, direction);
}

void DrawAlignmentOrWind(const Strip& strip) {
    constexpr double kStanding = 5;
    const int left = TicksToAlign();
    if (left <= 0 || !(sim.ground_speed_kt < kStanding)) return DrawWind(strip);
    StripValue(strip, strip.left, -99, "TIME TO");
    StripValue(strip, strip.left, -89, "ALIGN");
    StripValue(strip, strip.left, -79, Format("%d", left / kTicksPerSecond));
}

// Below a thousand with leading zeros, so that all are alike long.
std::string FrequencyText(double khz) {
    const double shown = Bounded(khz, 0, 9999);
    if (shown < 10) return "0000.0";
    return Format("%s%.1f", shown < 100 ? "00" : shown < 1000 ? "0" : "", shown);
}

void DrawRadio(const Strip& strip, int x, std::string_view label, double frequency,
               const std::string& ident) {
    StripLabel(strip, x, -62, label);
    StripValue(strip, x, -53, FrequencyText(frequency));
    if (!ident.empty()) StripValue(strip, x, -43, ident);
}

void DrawTerrainLabels(const Strip& strip) {
    if (NdOf(strip.side).nd_terr != kByButton) return;
    StripLabel(strip, strip.left, -32, "TERR");
}

void DrawTrafficLabels(const Strip& strip) {
    constexpr int kAdvisoriesOnly = 3, kResolution = 2;
    if (traffic.tcas_ra_level > 0)
        StripLabel(strip, strip.right, -24, "TRAFFIC",
                   traffic.tcas_ra_level == kResolution ? kPfdRed : kAmber);
    if (NdOf(strip.side).nd_tfc != kByButton) return;
    const int knob = cockpit.TZ_AFT_Transponder_Knob;
    if (knob < kAdvisoriesOnly) {
        StripLabel(strip, strip.left, -16, "TCAS", kAmber);
        return StripLabel(strip, strip.left, -8, "OFF", kAmber);
    }
    StripLabel(strip, strip.left, -8, knob == kAdvisoriesOnly ? "TA ONLY" : "TFC");
}

void DrawNextWaypoint(const Strip& strip) {
    constexpr int kY = -110;
    const bool route = plan.active.stpos != kNoPlan;
    Text(strip.graphics, strip.right, kY, kValueSize, kPfdMagenta, route ? ToLeg().ident : "------");
    if (!route) return;
    const double distance = std::max(lnav.wpt_dist, 0.0);
    StripValue(strip, strip.right, kY + 11, Format("%*s", 6, TimeOfPassage(distance).c_str()));
    StripLabel(strip, strip.right + 40, kY + 12, "Z", kWhite);
    StripValue(strip, strip.right - 6, kY + 22,
               Format("%*s", 7, Format("%.1f", Bounded(distance, 0, 99999)).c_str()));
    StripLabel(strip, strip.right + 40, kY + 23, "NM", kWhite);
}

void DrawSelectedHeading(const Strip& strip) {
    constexpr int kY = 22;
    StripLabel(strip, strip.left, kY, "SEL");
    StripLabel(strip, strip.left + 18, kY, cockpit.hdg_trk_mode == 1 ? "TRK" : "HDG");
    Text(strip.graphics, strip.left, kY + 10, kValueSize + 2, kPfdMagenta,
         Format("%03.0f", Bounded(sim.ap_hdgbug, 0, 360)));
    StripLabel(strip, strip.left + 24, kY + 12, HeadingReferenceInUse().is_true ? "TRU" : "MAG");
    StripLabel(strip, strip.right + 20, kY + 12, "GPS", kWhite);
}

}  // namespace

void DrawPfdDataStrip(const PfdView& view) {
    if (!IsSwitchedOn()) return;
    const TransformBlock block(view.graphics);
    GdipTranslateWorldTransform(view.graphics, 0, kCompassY);
    const Strip strip{view.graphics, view.narrow ? -117 : -160, view.narrow ? 94 : 110, view.side};
    DrawSpeeds(strip);
    DrawAlignmentOrWind(strip);
    DrawRadio(strip, strip.left, "ADF L", sim.adf1_freq, sim.adf1_ident);
    DrawRadio(strip, strip.right, "ADF R", sim.adf2_freq, sim.adf2_ident);
    DrawTerrainLabels(strip);
    DrawTrafficLabels(strip);
    DrawNextWaypoint(strip);
    DrawSelectedHeading(strip);
}
