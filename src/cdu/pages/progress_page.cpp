#include "cdu/pages/progress_page.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "base/text.h"
#include "cdu/pages/pos_init_page.h"
#include "cdu/words/enroute.h"
#include "cdu/words/page.h"
#include "cdu/words/typed_values.h"
#include "fmc/performance/predictions.h"
#include "navdata/geodesy.h"
#include "state/autoflight.h"
#include "state/cfg.h"
#include "state/flight_log.h"
#include "state/leg_words.h"
#include "state/lnav.h"
#include "state/plan.h"
#include "state/predictions.h"
#include "state/sim.h"
#include "state/vnav.h"

namespace {

constexpr int kPages = 2;

bool HasActiveLeg() {
    return IsRouteActive() && plan.active.stpos >= 1 && plan.active.stpos != kNoPlan;
}

// The first leg behind the active one that is no gap; 0 = none.
int NextLeg() {
    if (!HasActiveLeg()) return 0;
    for (int i = plan.active.stpos + 1; i <= plan.active.leg_cnt; ++i)
        if (!IsDisco(plan.active.legs[i])) return i;
    return 0;
}

double ToTopOfClimb() {
    return vnav.toc == 0 ? predictions.dist_to_toc : 0;
}
double ToTopOfDescent() {
    return vnav.tod == 0 ? predictions.dist_to_tod : 0;
}

std::string FuelAfter(double distance) {
    const double dc = ToTopOfClimb(), dd = ToTopOfDescent();
    const double climb = std::min(distance, dc);
    const double cruise = std::clamp(distance - dc, 0.0, std::max(0.0, dd - dc));
    const double descent = std::max(0.0, distance - std::max(dc, dd));
    const double burn = climb * predictions.clb_burn_per_nm + cruise * predictions.crz_burn_per_nm +
                        descent * predictions.des_burn_per_nm;
    return Format("%3.1f", std::max(0.0, ThousandsShown(TotalFuel() - burn * (1 + PerfFactor()))));
}

std::string WindText() {
    return Format("%03.0f\xb0/%.0f", sim.wind_dir, sim.wind_kt);
}

void DrawLeg(PageCall& call, int row, int leg, double distance) {
    if (leg < 1) return;
    const double y = DataY(row);
    PageText(call, 34, y, Format("%-5s", plan.active.legs[leg].ident.c_str()),
             leg == plan.active.stpos ? kMagenta : kWhite);
    PageText(call, 96, y, Format("%4.0f", distance));
    if (!HasEstimates()) return;
    PageText(call, 142, y, EtaAfter(distance));
    RightData(call, row, FuelAfter(distance));
}

struct TargetSpeed {
    const char* label;
    bool is_mach;
    double value;
};

bool IsSpeedSelected(const SpeedSelections& selected) {
    if (vnav.tod == 1) return selected.DescentSelected != 0 || selected.descent_mach_manual != 0;
    if (vnav.toc == 1) return selected.CruiseSelected != 0 || selected.CruiseMachSelected != 0;
    return selected.ClimbSelected != 0 || selected.climb_mach_manual != 0;
}

TargetSpeed SpeedInForce() {
    if (vnav.vnav_engaged == 0 || autoflight.spd_intv_active == 1) {
        const bool is_mach = autoflight.at_mode == kThrottleMach;
        return {"MCP SPD", is_mach, is_mach ? sim.ap_machbug : sim.ap_spdbug};
    }
    const SpeedSelections& selected = plan.mod.selected;
    const char* label = selected.LrcSelected != 0   ? "LRC SPD"
                        : IsSpeedSelected(selected) ? "SEL SPD"
                                                    : "ECON SPD";
    const bool is_mach = vnav.vnav_spd_mode == 2;
    return {label, is_mach, is_mach ? vnav.vnav_mach : vnav.vnav_ias};
}

void DrawSpeed(PageCall& call) {
    const TargetSpeed speed = SpeedInForce();
    LeftLabel(call, 4, speed.label);
    const int shown = WholeNumber(std::round(speed.value * (speed.is_mach ? 1000 : 1)));
    LeftData(call, 4, speed.is_mach ? Format(".%03d", shown) : Format("%3d", shown));
}

double EnrouteMinutes(double d) {
    constexpr double kNear = 60, kNearSpeed = 250, kSlowedDown = 0.75;
    const double climb = predictions.clb_tas + predictions.clb_wind;
    const double cruise = predictions.crz_tas + predictions.crz_wind;
    const double descent = predictions.des_tas + predictions.des_wind;
    const double dc = ToTopOfClimb(), dd = ToTopOfDescent();
    double speed = kNearSpeed;
    if (d > kNear && vnav.toc == 0)
        speed = (cruise * (d - dc) + climb * dc) / d;
    else if (d > kNear && vnav.tod == 0)
        speed = (descent * (d - dd) + cruise * dd) / d;
    else if (d > kNear)
        speed = descent * kSlowedDown;
    const double minutes = speed > 0 ? d / speed * 60 : 0;
    return sim.sim_rate > 0 && sim.sim_rate != 1 ? minutes / sim.sim_rate : minutes;
}

void DrawTimeEnroute(PageCall& call) {
    constexpr double kFlying = 100;  // kt
    if (cfg.DisplayProgETE != 1 || !HasActiveLeg() || sim.ground_speed_kt <= kFlying) return;
    const int minutes = WholeNumber(EnrouteMinutes(predictions.dist_to_dest));
    PageText(call, 105, LabelY(4),
             Format("DEST (%s) ETE", plan.active.legs[plan.active.leg_cnt].ident.c_str()), kCyan, kLabelSize);
    const std::string time = Format("%02d:%02d", minutes / 60, minutes % 60);
    PageText(call, 115, DataY(4), sim.sim_rate != 1 ? "(" + time + ")" : time);
}

void DrawTop(PageCall& call) {
    constexpr double kFlying = 80, kHigh = 4000;  // kt, ft
    if (!HasActiveLeg() || sim.ground_speed_kt <= kFlying) return;
    if (vnav.tod == 1) {
        if (sim.radio_alt_ft <= kHigh) return;
        RightLabel(call, 4, "TO T/D");
        return RightData(call, 4, "NOW");
    }
    const double distance = vnav.toc == 0 ? ToTopOfClimb() : ToTopOfDescent();
    if (distance <= 0) return;  // not planned
    RightLabel(call, 4, vnav.toc == 0 ? "TO T/C" : "TO T/D");
    const std::string text = EtaAfter(distance) + Format("/%.0f", distance);
    RightData(call, 4, Format("%11sNM", text.c_str()));
}

void Progress1(PageCall& call) {
    if (call.line == kL6) GoToPage(call.side, kPagePosReport);
    if (call.line == kR6) OpenPosRef(call);

    LeftLabel(call, 1, "TO");
    PageText(call, 103, LabelY(1), "DTG", kCyan, kLabelSize);
    PageText(call, 148, LabelY(1), "ETA", kCyan, kLabelSize);
    RightLabel(call, 1, "FUEL");
    LeftLabel(call, 2, "NEXT");
    LeftLabel(call, 3, "DEST");
    if (HasActiveLeg()) {
        const int next = NextLeg();
        DrawLeg(call, 1, plan.active.stpos, std::max(0.0, lnav.wpt_dist));
        DrawLeg(call, 2, next, DistanceAlongRoute(next));
        DrawLeg(call, 3, plan.active.leg_cnt, predictions.dist_to_dest);
    }
    DrawSpeed(call);
    DrawTimeEnroute(call);
    DrawTop(call);
    LeftLabel(call, 5, "FUEL QTY");
    LeftData(call, 5, Format("%.1f", ThousandsShown(TotalFuel())));
    RightLabel(call, 5, "WIND");
    RightData(call, 5, WindText());
    LeftData(call, 6, "<POS REPORT");
    RightData(call, 6, "POS REF>");
    MarkSelectable(call, kR6);
}

void Progress2(PageCall& call) {
    if (call.line == kL6) GoToPage(call.side, kPageInitRefIndex);

    const WindParts wind = WindComponents(sim.true_hdg, sim.wind_dir, sim.wind_kt);
    LeftLabel(call, 1, wind.headwind > 0 ? "T/WIND" : "H/WIND");
    LeftData(call, 1, Format("%2d KT", std::abs(wind.headwind)));
    PageText(call, 128, LabelY(1), "WIND", kCyan, kLabelSize);
    PageText(call, 118, DataY(1), WindText());
    RightLabel(call, 1, "X/WIND");
    RightData(call, 1, Format("%s %2d KT", wind.crosswind < 0 ? "L" : "R", std::abs(wind.crosswind)));
    LeftLabel(call, 2, "XTK ERROR");
    if (HasActiveLeg() && lnav.xtk_shown >= 0)
        LeftData(call, 2, Format("%s %3.1f NM", lnav.xtk_side_shown == 1 ? "L" : "R", lnav.xtk_shown));
    RightLabel(call, 2, "VTK ERROR");
    if (vnav.tod == 1)
        RightData(call, 2, Format("%s%d FT", vnav.vnav_vert_dev > 0 ? "+" : "", vnav.vnav_vert_dev));
    LeftLabel(call, 3, "TAS");
    LeftData(call, 3, Format("%3.0f KT", sim.tas_kt));
    RightLabel(call, 3, "SAT");
    RightData(call, 3,
              Format("%.0f\xb0"
                     "C",
                     sim.oat_c));
    LeftLabel(call, 4, "FUEL USED");
    LeftData(call, 4,
             flight_log.fplog_mode < 0 ? "---"
                                       : Format("%.1f", ThousandsShown(flight_log.start_fuel - TotalFuel())));
    const std::string fuel = Format("%.1f", ThousandsShown(TotalFuel()));
    LeftLabel(call, 5, "TOTALIZER");
    PageText(call, 116, LabelY(5), "FUEL QTY", kCyan, kLabelSize);
    RightLabel(call, 5, "CALCULATED");
    LeftData(call, 5, "<USE  " + fuel);
    RightData(call, 5, Format("%*s", 5, fuel.c_str()));
    LeftData(call, 6, "<INDEX");
}

void FlightTitle(PageCall& call, const char* title) {
    Title(call, 60, plan.fms_fltno);
    Title(call, 135, title);
}

void DrawAhead(PageCall& call, int row, int leg, double distance) {
    if (leg < 1) return;
    LeftData(call, row, plan.active.legs[leg].ident, leg == plan.active.stpos ? kMagenta : kWhite);
    PageText(call, 128, DataY(row), EtaAfter(distance));
}

}  // namespace

void ProgressPage(PageCall& call) {
    int& page = call.unit.progress_index;
    TurnPages(call, page, kPages);
    FlightTitle(call, "PROGRESS");
    PageText(call, 225, 25, Format("%d/%d", page, kPages), kWhite, kLabelSize);
    DashLine(call);
    MarkSelectable(call, kL6);
    (page == 1 ? Progress1 : Progress2)(call);
}

void PosReportPage(PageCall& call) {
    if (call.line == kL6) GoToPage(call.side, kPageProgress);
    if (call.line == kR6) OpenPosRef(call);

    FlightTitle(call, "POS REPORT");
    LeftLabel(call, 1, "POS");
    PageText(call, 134, LabelY(1), "ATA", kCyan, kLabelSize);
    RightLabel(call, 1, "ALT");
    LeftLabel(call, 5, "POS FUEL");
    if (plan.position_report_cnt > 0) {
        const PositionReport& passed = plan.PositionReports[plan.position_report_cnt];
        LeftData(call, 1, passed.leg.ident);
        PageText(call, 128, DataY(1), passed.time);
        RightData(call, 1,
                  passed.altitude >= cfg.TransAlt ? Format("FL%3.0f", passed.altitude / 100)
                                                  : Format("%5.0f", passed.altitude));
        LeftData(call, 5, Format("%3.1f", passed.fuel / 1000));
    }
    LeftLabel(call, 2, "EST");
    PageText(call, 134, LabelY(2), "ETA", kCyan, kLabelSize);
    LeftLabel(call, 3, "NEXT");
    if (HasActiveLeg()) {
        DrawAhead(call, 2, plan.active.stpos, std::max(0.0, lnav.wpt_dist));
        if (const int next = NextLeg()) LeftData(call, 3, plan.active.legs[next].ident);
    }
    LeftLabel(call, 4, "TEMP");
    LeftData(call, 4,
             Format("%.0f\xb0"
                    "C",
                    sim.oat_c));
    RightLabel(call, 4, "WIND");
    RightData(call, 4, WindText() + "KT");
    DashLine(call);
    LeftData(call, 6, "<PROGRESS");
    RightData(call, 6, "POS REF>");
    MarkSelectable(call, kL6);
    MarkSelectable(call, kR6);
}
