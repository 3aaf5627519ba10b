#include "navdata/airways.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <unordered_map>

#include "base/text_fields.h"
#include "navdata/ident_index.h"
#include "state/nav.h"
#include "state/nav_tables.h"

namespace {

constexpr int kMaxAirwayFixes = 250;
constexpr int kFixesOfPage = 16;

struct AirwayFix {
    std::string_view ident;
    double lat, lon;
};

// Calls `visit` with each fix of one of the airway's runs of lines, counted from 1. False without such a run.
template <class Visit>
bool VisitRun(std::string_view name, int run_wanted, Visit visit) {
    std::string_view lines;
    VisitIdent(nav_tables.airway_index, name, [&](int number) {
        const AirwayRun& run = nav_tables.airway_runs[number];
        if (run.name != name || --run_wanted > 0) return true;
        lines = run.lines;
        return false;
    });
    const bool found = !lines.empty();
    while (auto line = NextDataLine(lines, kAirwayBound)) {
        NextField(*line);
        NextField(*line);
        AirwayFix fix{NextField(*line), 0, 0};
        if (!NextNumber(*line, fix.lat) || !NextNumber(*line, fix.lon)) continue;
        if (std::fabs(fix.lat) <= 90 && std::fabs(fix.lon) <= 180) visit(fix);
    }
    return found;
}

using FixPlaces = std::unordered_multimap<std::string_view, LatLon>;

FixPlaces FixesOfAllRuns(std::string_view name) {
    FixPlaces places;
    const auto add = [&](const AirwayFix& fix) { places.emplace(fix.ident, LatLon{fix.lat, fix.lon}); };
    for (int run = 1; VisitRun(name, run, add); ++run) continue;
    return places;
}

bool HasFix(const FixPlaces& places, const AirwayFix& fix) {
    constexpr double kSamePlace = 5;  // nm; navaids may be surveyed apart
    const auto [first, last] = places.equal_range(fix.ident);
    return std::any_of(first, last, [&](const auto& place) {
        return GreatCircle(fix.lat, fix.lon, place.second.lat, place.second.lon).dist < kSamePlace;
    });
}

std::string_view WithoutMark(std::string_view name) {
    if (name.starts_with('#')) name.remove_prefix(1);
    return name;
}

// Where no run bears the fix, it is the first that leads there.
int RunOf(std::string_view name, std::string_view from_ident, std::string_view towards) {
    const int run = ChooseAirwayRun(name, {.ident = from_ident}, towards);
    return run > 0 ? run : ChooseAirwayRun(name, {}, towards);
}

}  // namespace

int ChooseAirwayRun(std::string_view name, const AirwayStart& start, std::string_view towards) {
    constexpr double kSamePlace = 1;  // nm; the files of one cycle round their positions alike
    name = WithoutMark(name);
    const FixPlaces next = towards.empty() ? FixPlaces{} : FixesOfAllRuns(towards);
    struct Rank {
        bool passes_place = false, leads_there = false;
        double nearness = 0;
        auto operator<=>(const Rank&) const = default;
    };
    int best = 0;
    Rank best_rank;
    for (int run = 1;; ++run) {
        std::optional<AirwayFix> joined;
        bool leads_there = false;
        const bool found = VisitRun(name, run, [&](const AirwayFix& fix) {
            if (!joined && (start.ident.empty() || fix.ident == start.ident)) joined = fix;
            if (fix.ident != start.ident)
                leads_there = leads_there || fix.ident == towards || HasFix(next, fix);
        });
        if (!found) return best;
        if (!joined) continue;
        const double dist =
            start.place ? GreatCircle(joined->lat, joined->lon, start.place->lat, start.place->lon).dist : 0;
        const Rank rank{start.place && dist < kSamePlace, leads_there, -dist};
        if (best != 0 && !(rank > best_rank)) continue;
        best = run;
        best_rank = rank;
    }
}

int LoadAirway(std::string_view name, std::string_view from_ident, int run) {
    name = WithoutMark(name);
    if (run == 0) run = RunOf(name, from_ident, {});
    nav.EntryCandidates.clear();
    nav.entry_cnt = nav.entry_list_pos = 0;
    VisitRun(name, run, [&](const AirwayFix& fix) {
        if (nav.entry_cnt == kMaxAirwayFixes) return;
        nav.EntryCandidates[++nav.entry_cnt] = {.ident = std::string(fix.ident),
                                                .name = std::string(fix.ident),
                                                .lat = fix.lat,
                                                .lon = fix.lon,
                                                .type = "I",
                                                .airway = std::string(name)};
        if (nav.entry_list_pos == 0 && fix.ident == from_ident) nav.entry_list_pos = nav.entry_cnt;
    });
    nav.entry_list_page = (nav.entry_list_pos + kFixesOfPage - 1) / kFixesOfPage;
    return nav.entry_cnt;
}

AirwayCrossing FindAirwayCrossing(std::string_view airway1, std::string_view airway2,
                                  std::string_view context) {
    const FixPlaces second = FixesOfAllRuns(airway2);
    AirwayCrossing crossing;
    int place = 0;
    VisitRun(airway1, RunOf(airway1, context, airway2), [&](const AirwayFix& fix) {
        ++place;
        if (HasFix(second, fix)) crossing.index = place;
        if (crossing.context == 0 && fix.ident == context) crossing.context = place;
    });
    return crossing;
}
