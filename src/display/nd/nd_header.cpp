#include "display/nd/nd_header.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "base/angles.h"
#include "display/nd/header_text.h"
#include "display/nd/passage.h"
#include "display/nd/vnav_scale.h"
#include "paint/painter.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/flight_log.h"
#include "state/irs.h"
#include "state/lnav.h"
#include "state/plan.h"
#include "state/pos_init.h"
#include "state/sim.h"
#include "state/time_base.h"

namespace {

constexpr char kDegree[] = "\xb0";  // of the ANSI code page

// Where the labels of the left side stand: above the vertical situation display, where there is one.
double FootOf(const NdFrame& frame) {
    return frame.vsd ? 18 : 155;
}

bool HasRoute() {
    return plan.active.stpos != kNoPlan;
}

void DrawLabel(Graphics& graphics, const NdFrame& frame, double x, double y, int width, Rgb colour,
               std::string_view text) {
    constexpr int kHeight = 11;
    BlackBox(graphics, AtSide(frame, x), y, width, kHeight);
    Text(graphics, AtSide(frame, x), y, kNdTextSize, colour, text);
}

void DrawLayerLabels(Graphics& graphics, const NdFrame& frame) {
    const NdSide& settings = NdOf(frame.side);
    const double foot = FootOf(frame);
    const auto label = [&](double y, int width, std::string_view text) {
        DrawLabel(graphics, frame, -140, foot + y, width, kCyanAlternate, text);
    };
    if (settings.nd_wpt == 1) label(-83, 22, "WPT");
    if (settings.nd_apt == 1) label(-73, 24, "ARPT");
    if (settings.nd_sta == 1) label(-63, 24, "STA");
    if (settings.nd_terr == 1 || settings.nd_terr == 2)
        label(-53, 24, "TERR");
    else if (settings.nd_wxr == 1 || settings.nd_wxr == 2)
        label(-54, 22, "WX");
    if (settings.nd_tfc != 1 && settings.nd_tfc != 2) return;
    constexpr int kTaOnly = 3;
    const int knob = cockpit.TZ_AFT_Transponder_Knob;
    if (knob > kTaOnly) return label(-23, 22, "TFC");
    if (knob == kTaOnly) return label(-23, 40, "TA ONLY");
    label(-23, 24, "TCAS");
    DrawLabel(graphics, frame, -140, foot - 13, 22, kAmber, "OFF");
}

void DrawNavigationPerformance(Graphics& graphics, const NdFrame& frame) {
    constexpr double kActual = 0.05;
    const double foot = FootOf(frame);
    DrawLabel(graphics, frame, -23, foot + 14, 22, kWhite, "RNP");
    DrawLabel(graphics, frame, 5, foot + 14, 22, kWhite, "ANP");
    PrintText(graphics, -23, foot + 24, kNdTextSize, kWhite, "%.2f", pos_init.RnpEntry);
    PrintText(graphics, 5, foot + 24, kNdTextSize, kWhite, "%.2f", kActual);
}

void DrawTurnLogCount(Graphics& graphics, const NdFrame& frame) {
    if (cfg.LogWptTurnData == 1 && sim.on_ground == 0)
        PrintText(graphics, -65, FootOf(frame), kNdTextSize, kWhite, "[%d]", time_base.wpt_log_ticks);
}

// The ground speed comes from the IRS, the true airspeed from the air data.
void DrawSpeeds(Graphics& graphics, const NdFrame& frame) {
    constexpr double kStanding = 0.4, kLeastTas = 100;
    if (frame.irs_on) {
        const double gs = sim.ground_speed_kt < kStanding ? 0 : sim.ground_speed_kt;
        Text(graphics, AtSide(frame, -140), -202, kNdTextSize - 1, kWhite, "GS");
        PrintText(graphics, AtSide(frame, -130), -205, kNdValueSize, kWhite, "%.0f", gs);
    }
    if (!(sim.tas_kt >= kLeastTas)) return;
    Text(graphics, AtSide(frame, -107), -202, kNdTextSize - 1, kWhite, "TAS");
    PrintText(graphics, AtSide(frame, -93), -205, kNdValueSize, kWhite, "%.0f", sim.tas_kt);
}

void DrawNextWaypoint(Graphics& graphics, const NdFrame& frame) {
    if (HasRoute())
        Text(graphics, AtSide(frame, 90), -210, kNdValueSize, kMagenta, ToLeg().ident.substr(0, 7));
    const bool has_route = HasRoute() && frame.irs_on;  // what follows asks where the aircraft is
    const std::string passage = TimeOfPassage(has_route ? lnav.wpt_dist : 0);
    const bool is_known = has_route && passage.front() != '-';
    Text(graphics, AtSide(frame, is_known ? 91 : 92), -199, kNdValueSize - 1, kWhite,
         is_known ? passage : "------");
    if (has_route)
        PrintText(graphics, AtSide(frame, 67), -188, kNdValueSize - 1, kWhite, "%9.1f",
                  std::max(lnav.wpt_dist, 0.0));
    else
        Text(graphics, AtSide(frame, 99), -188, kNdValueSize - 1, kWhite, "----");
    Text(graphics, AtSide(frame, 132), -197, kNdTextSize - 2, kWhite, "Z");
    Text(graphics, AtSide(frame, 127), -185, kNdTextSize - 2, kWhite, "NM");
}

void DrawRangeBox(Graphics& graphics, double range) {
    constexpr float kCaptionSize = 6.5f;
    FilledBox(graphics, -66, -210, 22, 18, kBlack);
    BoxOutline(graphics, -66, -210, 22, 18, kWhite);
    BoxOutline(graphics, -65, -209, 20, 16, kWhite);
    Text(graphics, -66, -209, kCaptionSize, kWhite, "RANGE");
    const double x = range < 10 ? -60 : range < 100 ? -61 : range < 1000 ? -63 : -67;
    PrintText(graphics, x, -202, kNdTextSize, kWhite, range < 1 ? "%.1f" : "%.0f", range);
}

void DrawPlanMarks(Graphics& graphics, const NdFrame& frame) {
    Text(graphics, -5, -208, kNdValueSize, kWhite, "N");
    Text(graphics, -5, 130, kNdValueSize, kWhite, "S");
    Text(graphics, AtSide(frame, -140), -25, kNdValueSize, kWhite, "W");
    Text(graphics, AtSide(frame, 130), -25, kNdValueSize, kWhite, "E");
    Line(graphics, 8, -198, 8, -207, kWhite);
    Line(graphics, 8, -207, 5, -204, kWhite);
    Line(graphics, 8, -207, 11, -204, kWhite);
    const struct { double y, part; } kMarks[] = {{-147, 0.5}, {-87, 0.25}, {32, 0.25}, {92, 0.5}};
    for (const auto& mark : kMarks) {
        const double nm = frame.view.range * mark.part;
        const char* format = nm >= 1 && nm != 2.5 ? "%.0f" : nm == 0.125 ? "%.3f" : "%.2f";
        PrintText(graphics, -10, mark.y, kNdTextSize, kWhite, format, nm);
    }
}

// A box open below.
void DrawSelectedHeading(Graphics& graphics, const NdFrame& frame) {
    if (!frame.irs_on) {
        BoxOutline(graphics, -11, -202, 22, 11, kAmber);
        Text(graphics, -11, -202, kNdTextSize, kAmber, "TRK");
        return;
    }
    constexpr int kHalfWidth = 15, kHeight = 15;
    const int y = frame.Pick(-203, -143, -203, -188);
    FilledBox(graphics, -kHalfWidth, y, 2 * kHalfWidth, kHeight, kBlack);
    const IntPoint box[] = {
        {-kHalfWidth, y + kHeight}, {-kHalfWidth, y}, {kHalfWidth, y}, {kHalfWidth, y + kHeight}};
    GdipDrawLinesI(graphics, GdipCreatePen1(Scaled(kWhite), 1), box);
    constexpr float kValueSize = 14;
    PrintText(graphics, -16, y, kValueSize, kWhite, "%03.0f", sim.ap_hdgbug);
    Text(graphics, -40, y + 3, kNdTextSize, kGreen, cockpit.hdg_trk_mode == 0 ? "HDG" : "TRK");
    Text(graphics, 20, y + 3, kNdTextSize, kGreen, frame.reference.is_true ? "TRU" : "MAG");
    constexpr int kDescending = 9;
    const bool changed = nd_memory.ref_change_timer >= 1;
    if (frame.reference.is_true && (!changed || flight_log.fplog_mode < kDescending))
        BoxOutline(graphics, 20, y, 22, 14, kWhite);
    if (!frame.reference.is_true && changed) BoxOutline(graphics, 20, y, 22, 14, kGreen);
}

void DrawWindArrow(Graphics& graphics, const NdFrame& frame) {
    constexpr double kX = 11, kY = 60;
    const TransformBlock block(graphics);
    const double left = frame.view.centre_x - (frame.wide ? 282 : 141);
    GdipResetWorldTransform(graphics);
    GdipTranslateWorldTransform(graphics, left + kX, kY);
    GdipRotateWorldTransform(graphics, sim.wind_dir + 180 - frame.reference.up_true);
    constexpr IntPoint kHead[] = {{0, -9}, {3, -6}, {-3, -6}};
    GdipFillPolygonI(graphics, GdipCreateSolidFill(Scaled(kWhite)), kHead);
    Line(graphics, 0, -6, 0, 6, kWhite);
}

void DrawWind(Graphics& graphics, const NdFrame& frame) {
    constexpr double kStandingKt = 5, kAirborneFt = 100, kCalmKt = 1, kTicksPerSecond = 18;
    const double x = AtSide(frame, -140);
    const int ticks = TicksToAlign();
    if (sim.ground_speed_kt < kStandingKt && sim.on_ground == 1 && !frame.irs_on && ticks > 0) {
        Text(graphics, x, -199, kNdTextSize, kWhite, "TIME TO");
        Text(graphics, x, -190, kNdTextSize, kWhite, "ALIGN");
        PrintText(graphics, x, -180, kNdTextSize, kWhite, "%d", static_cast<int>(ticks / kTicksPerSecond));
        return;
    }
    if (!(sim.radio_alt_ft > kAirborneFt)) return;
    if (sim.wind_kt < kCalmKt) {
        PrintText(graphics, x, -194, kNdTextSize, kWhite, "---%s/---", kDegree);
        return;
    }
    PrintText(graphics, x, -194, kNdTextSize, kWhite, "%03.0f%s/ %.0f",
              FoldBearing(frame.reference.Of(sim.wind_dir)), kDegree, sim.wind_kt);
    if (!frame.in_plan) DrawWindArrow(graphics, frame);
}

struct VorReceiver {
    std::string_view name;
    const std::string& ident;
    double freq, radial, dme;
    bool is_localizer;
    double x, dme_x, dist_x;
    int ident_width, dist_width;
};

void DrawVorLabels(Graphics& graphics, const NdFrame& frame, const VorReceiver& vor) {
    constexpr double kNoFrequency = 10000;
    if (!(vor.freq > kNoFrequency)) return;
    const double foot = FootOf(frame);
    if (vor.radial > 0 && !vor.is_localizer) {
        DrawLabel(graphics, frame, vor.x, foot, 34, kGreen, vor.name);
        BlackBox(graphics, AtSide(frame, vor.x), foot + 11, 28, 11);
        PrintText(graphics, AtSide(frame, vor.x), foot + 11, kNdTextSize, kGreen, "%*.5s", vor.ident_width,
                  vor.ident.c_str());
    }
    if (!(vor.dme > 0)) return;
    Text(graphics, AtSide(frame, vor.dme_x), foot + 23, kNdTextSize - 2, kGreen, "DME");
    PrintText(graphics, AtSide(frame, vor.dist_x), foot + 22, kNdTextSize, kGreen, "%*.1f", vor.dist_width,
              vor.dme);
}

void DrawVorReceivers(Graphics& graphics, const NdFrame& frame) {
    const NdSide& settings = NdOf(frame.side);
    if (settings.nd_vor_l == 1)
        DrawVorLabels(graphics, frame,
                      {"VOR L", sim.nav1_ident, sim.nav1_freq, sim.nav1_radial, sim.nav1_dme,
                       sim.nav1_is_loc != 0, -140, -140, -123, 0, 0});
    if (settings.nd_vor_r == 1)
        DrawVorLabels(graphics, frame,
                      {"VOR R", sim.nav2_ident, sim.nav2_freq, sim.nav2_radial, sim.nav2_dme,
                       sim.nav2_is_loc != 0, 105, 85, 105, 5, 5});
}

}  // namespace

void DrawNdHeader(Graphics& graphics, const NdFrame& frame) {
    EnterTextFrame(graphics, frame);
    DrawLayerLabels(graphics, frame);
    if (!frame.in_plan) {
        DrawTurnLogCount(graphics, frame);
        DrawNavigationPerformance(graphics, frame);
    }
    DrawSpeeds(graphics, frame);
    DrawNextWaypoint(graphics, frame);
    DrawRangeBox(graphics, frame.view.range);
    if (frame.in_plan)
        DrawPlanMarks(graphics, frame);
    else
        DrawSelectedHeading(graphics, frame);
    DrawWind(graphics, frame);
    if (!frame.in_plan && frame.irs_on) DrawVorReceivers(graphics, frame);
    if (!frame.in_plan) DrawVnavScale(graphics, frame);
    GdipResetWorldTransform(graphics);
}
