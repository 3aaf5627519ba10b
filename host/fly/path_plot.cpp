#include "host/fly/path_plot.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <sstream>

#include "host/aircraft/angles.h"
#include "host/flightdeck/commands.h"
#include "host/fly/flight_log.h"
#include "host/inspection.h"
#include "host/screens.h"

namespace host {
namespace {

// The first officer's map on the right half of the inboard unit: its centre, and the units of its range.
constexpr double kCentreX = 423, kCentreY = 356, kRangeUnits = 300, kRangeNm = 20;
constexpr int kEicasAndNd = 31;
constexpr const char* kRoutePen = "stroke 255,19,213,255 2 M";
constexpr double kNmPerDegree = 60;

void SetVariable(Session& session, const char* name, const char* value) {
    if (ReadVariable(session, name) != value)
        ApplyDeckCommand(session, {.kind = DeckCommand::kStateVariable, .name = name, .text = value});
}

void SetUpDisplay(Session& session) {
    SetVariable(session, "du_fo_inb_mode", std::to_string(kEicasAndNd).c_str());
    SetVariable(session, "fo_nd_mode", "3");
    SetVariable(session, "fo.nd_ctr", "0");
    SetVariable(session, "fo.nd_vsd", "0");
    SetVariable(session, "du_fo_rng_knob", "5");
    SetVariable(session, "du_fo_rng_nm", "20");
}

// What is drawn at x, y of the display, `up` being the true direction of its top.
PlotPoint PlaceOf(double x, double y, PlotPoint aircraft, double up) {
    const double right = (x - kCentreX) / kRangeUnits * kRangeNm,
                 ahead = (kCentreY - y) / kRangeUnits * kRangeNm;
    const double north = ahead * std::cos(up * kRad) - right * std::sin(up * kRad);
    const double east = ahead * std::sin(up * kRad) + right * std::cos(up * kRad);
    const double lat = aircraft.lat + north / kNmPerDegree;
    return {lat, aircraft.lon + east / kNmPerDegree / std::cos((aircraft.lat + lat) / 2 * kRad)};
}

// The route as the picture has it.
PlotLine ReadDrawnPath(const Session& session, PlotPoint aircraft, double up) {
    const InspectionAnswer answer =
        Ask(session.linkage->inspection->print_list, "draws", GaugeOfScreen("fo_inb").c_str());
    PlotLine line;
    for (const auto& [name, text] : answer.results) {
        if (!text.starts_with(kRoutePen)) continue;
        std::istringstream words(text.substr(std::string_view(kRoutePen).size()));
        double x = 0, y = 0;
        for (std::string verb; words >> x >> y; words >> verb) line.push_back(PlaceOf(x, y, aircraft, up));
        break;
    }
    return line;
}

// From a point, in nm east and north.
struct Offset {
    double east, north;
};
Offset OffsetFrom(PlotPoint origin, PlotPoint p) {
    return {(p.lon - origin.lon) * kNmPerDegree * std::cos(origin.lat * kRad),
            (p.lat - origin.lat) * kNmPerDegree};
}

double DistanceToLine(PlotPoint p, const PlotLine& line) {
    double least = 1e9;
    for (std::size_t i = 1; i < line.size(); ++i) {
        const Offset a = OffsetFrom(p, line[i - 1]), b = OffsetFrom(p, line[i]);
        const double dx = b.east - a.east, dy = b.north - a.north, length = dx * dx + dy * dy;
        const double t = length > 0 ? std::clamp(-(a.east * dx + a.north * dy) / length, 0.0, 1.0) : 0;
        least = std::min(least, std::hypot(a.east + t * dx, a.north + t * dy));
    }
    return least;
}

struct Apart {
    double most = 0;
    double mean = 0;
    int seconds = 0;
};

// How far the track lies from the path drawn for a turn, until the next turn or the end of the drawing, and
// while LNAV flies it.
Apart MeasureTurn(const PathPlot& plot, std::size_t turn) {
    constexpr std::size_t kLongest = 150;
    constexpr double kEnd = 1;
    Apart apart;
    const PlottedTurn& at = plot.turns[turn];
    const std::size_t next = turn + 1 < plot.turns.size() ? plot.turns[turn + 1].flown_at : plot.flown.size();
    const std::size_t end = std::min(at.left_at > 0 ? at.left_at : next, at.flown_at + kLongest);
    for (std::size_t i = at.flown_at; i < end; ++i) {
        const Offset to_end = OffsetFrom(plot.flown[i], at.drawn.back());
        if (std::hypot(to_end.east, to_end.north) < kEnd) break;
        const double distance = DistanceToLine(plot.flown[i], at.drawn);
        apart.most = std::max(apart.most, distance);
        apart.mean += distance;
        ++apart.seconds;
    }
    if (apart.seconds > 0) apart.mean /= apart.seconds;
    return apart;
}

void PrintTurns(const PathPlot& plot) {
    std::printf("\nDrawn and flown paths, greatest and mean distance:\n");
    for (std::size_t i = 0; i < plot.turns.size(); ++i) {
        const PlottedTurn& turn = plot.turns[i];
        if (turn.drawn.size() < 2 || turn.direct) continue;
        const Apart apart = MeasureTurn(plot, i);
        if (apart.seconds == 0) continue;
        std::printf("%-8s turn of %3.0f degrees  %5.2f nm  %5.2f nm  in %3d s\n", turn.ident.c_str(),
                    turn.angle, apart.most, apart.mean, apart.seconds);
    }
}

void WriteLine(std::ofstream& svg, const PlotLine& line, PlotPoint origin, const char* colour, double width) {
    svg << "<polyline fill=\"none\" vector-effect=\"non-scaling-stroke\" stroke=\"" << colour
        << "\" stroke-width=\"" << width << "\" points=\"";
    char text[64];
    for (const PlotPoint& p : line) {
        const Offset at = OffsetFrom(origin, p);
        std::snprintf(text, sizeof text, "%.3f,%.3f ", at.east, -at.north);
        svg << text;
    }
    svg << "\"/>\n";
}

bool WriteSvg(const PathPlot& plot, const std::string& file) {
    std::ofstream svg(file);
    if (plot.flown.empty()) return false;
    const PlotPoint origin = plot.flown[plot.flown.size() / 2];
    double left = 1e9, right = -1e9, top = 1e9, foot = -1e9;
    for (const PlotPoint& p : plot.flown) {
        const Offset at = OffsetFrom(origin, p);
        left = std::min(left, at.east);
        right = std::max(right, at.east);
        top = std::min(top, -at.north);
        foot = std::max(foot, -at.north);
    }
    constexpr double kMargin = 10;
    svg << "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"" << left - kMargin << ' ' << top - kMargin
        << ' ' << right - left + 2 * kMargin << ' ' << foot - top + 2 * kMargin
        << "\">\n<!-- 1 unit is 1 nm. Grey the route, magenta the path drawn before each turn, green the "
           "track. -->\n"
        << "<rect x=\"" << left - kMargin << "\" y=\"" << top - kMargin
        << "\" width=\"100%\" height=\"100%\"/>\n";
    PlotLine route;
    for (const PlottedTurn& turn : plot.turns) route.push_back(turn.fix);
    WriteLine(svg, route, origin, "#777", 1);
    for (const PlottedTurn& turn : plot.turns) WriteLine(svg, turn.drawn, origin, "#ff13d5", 2);
    WriteLine(svg, plot.flown, origin, "#00fa00", 1);
    for (const PlottedTurn& turn : plot.turns) {
        const Offset at = OffsetFrom(origin, turn.fix);
        svg << "<text fill=\"#fff\" font-size=\"1.5\" x=\"" << at.east + 0.5 << "\" y=\"" << -at.north
            << "\">" << turn.ident << "</text>\n";
    }
    svg << "</svg>\n";
    return svg.good();
}

}  // namespace

void StepPlot(Session& session, PathPlot& plot) {
    SetUpDisplay(session);
    const PlotPoint aircraft{AircraftNumber("lat"), AircraftNumber("lon")};
    const int to = static_cast<int>(ModuleNumber(session, "stpos"));
    const std::string leg = "FlightPlan[" + std::to_string(to) + "].";
    const double course = ModuleNumber(session, "course_here");
    if (to != plot.to && plot.to > 0)
        plot.turns.push_back({plot.ident, std::fabs(std::remainder(course - plot.course, 360)), plot.fix,
                              plot.drawn, plot.flown.size(), 0, to != plot.to + 1});
    constexpr int kLnav = 6;
    if (!plot.turns.empty() && plot.turns.back().left_at == 0 &&
        ModuleNumber(session, "ap_lat_mode") != kLnav)
        plot.turns.back().left_at = plot.flown.size();
    plot.to = to;
    plot.course = course;
    plot.flown.push_back(aircraft);
    plot.ident = ReadVariable(session, leg + "ident");
    plot.fix = {ModuleNumber(session, leg + "lat"), ModuleNumber(session, leg + "lon")};
    PaintGauges(session);
    plot.drawn =
        ReadDrawnPath(session, {ModuleNumber(session, "plane_lat"), ModuleNumber(session, "plane_lon")},
                      ModuleNumber(session, "mag_hdg") + ModuleNumber(session, "mgvar"));
}

bool FinishPlot(const PathPlot& plot, const std::string& file) {
    PrintTurns(plot);
    return WriteSvg(plot, file);
}

}  // namespace host
