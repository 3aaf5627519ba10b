#include "navdata/vor_autotune.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <tuple>
#include <utility>

#include "base/bcd.h"
#include "frame/key_events.h"
#include "frame/tokens.h"
#include "navdata/from_aircraft.h"
#include "navdata/geodesy.h"
#include "platform/host.h"
#include "state/leg_words.h"
#include "state/nav.h"
#include "state/nearest.h"
#include "state/plan.h"
#include "state/sim.h"

namespace {

constexpr int kModeAuto = 1;

// A radio of the host: the token that reads its active frequency, the event that sets it.
struct NavRadio {
    int token, event;
};
constexpr NavRadio kNav1 = {kTokenNav1Freq, kKeyNav1FreqSet}, kNav2 = {kTokenNav2Freq, kKeyNav2FreqSet};

// The nine nearest, found by insertion: few rows get past the ninth.
void FindNearestVors() {
    struct Place {
        double dist;
        int row;
    };
    std::array<Place, std::tuple_size_v<decltype(nearest.NearestVors)> - 1> places;
    std::size_t count = 0;
    for (int i = 1; i <= nearest.vors.cnt; ++i) {
        const NavaidRow& row = std::as_const(nearest.vors.rows)[i];
        const double dist = FromAircraft(row.lat, row.lon).dist;
        if (count == places.size() && dist >= places.back().dist) continue;
        if (count < places.size()) ++count;
        std::size_t at = count - 1;
        for (; at > 0 && places[at - 1].dist > dist; --at) places[at] = places[at - 1];
        places[at] = {dist, i};
    }
    for (std::size_t i = 0; i < count; ++i) {
        const NavaidRow& row = std::as_const(nearest.vors.rows)[places[i].row];
        TunedVor& vor = nearest.NearestVors[i + 1];
        vor.ident = row.ident;
        vor.freq = row.freq;
        vor.lat = row.lat;
        vor.lon = row.lon;
        vor.dist = places[i].dist;
        vor.bearing = FromAircraft(row.lat, row.lon).bearing;
    }
    nearest.nearest_vor_cnt = static_cast<int>(count);
}

void PickRadios() {
    constexpr double kAheadDeg = 91;
    const bool on_route = IsRouteActive() && plan.active.stpos >= 1 && plan.active.stpos != kNoPlan;
    double course = sim.true_track_deg, lat = sim.plane_lat, lon = sim.plane_lon;
    if (on_route) {
        int before = plan.active.stpos - 1;
        while (before > 0 && IsDisco(std::as_const(plan.active.legs)[before])) --before;
        const FlightPlanLeg& from = std::as_const(plan.active.legs)[before];
        const FlightPlanLeg& to = std::as_const(plan.active.legs)[plan.active.stpos];
        lat = from.lat;
        lon = from.lon;
        course = GreatCircle(from.lat, from.lon, to.lat, to.lon).bearing;
    }
    TunedVor* slots[] = {&nearest.vor_left, &nearest.vor_right};
    std::size_t filled = 0;
    for (int i = 1; i <= nearest.nearest_vor_cnt && filled < std::size(slots); ++i) {
        const TunedVor& vor = nearest.NearestVors[static_cast<std::size_t>(i)];
        const double bearing = GreatCircle(lat, lon, vor.lat, vor.lon).bearing;
        const double off_course = std::fabs(std::remainder(bearing - course, 360));
        if (off_course < kAheadDeg) *slots[filled++] = vor;
    }
}

void Tune(const NavRadio& radio, int mode, const TunedVor& vor) {
    if (mode != kModeAuto || vor.freq.empty()) return;
    const int wanted = FrequencyToBcd(vor.freq);
    // The host reads back the last four digits; a radio that stands right is left in peace.
    if (ReadToken(radio.token) != (wanted & 0xffff)) SendKeyEvent(radio.event, wanted);
}

}  // namespace

void AutoTuneRadios() {
    FindNearestVors();
    PickRadios();
    if (nav.autotuned == 0 && nav.ilsfreq == 0) Tune(kNav1, nearest.VorLeftMode, nearest.vor_left);
    Tune(kNav2, nearest.VorRightMode, nearest.vor_right);
}
