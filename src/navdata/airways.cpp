#include "navdata/airways.h"

#include <string>
#include <unordered_set>

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

// Calls `visit` with each fix of one of the airway's runs of lines, counted from 1.
template <class Visit>
void VisitAirway(std::string_view name, int run_wanted, Visit visit) {
    std::string_view lines;
    VisitIdent(nav_tables.airway_index, name, [&](int number) {
        const AirwayRun& run = nav_tables.airway_runs[number];
        if (run.name != name || --run_wanted > 0) return true;
        lines = run.lines;
        return false;
    });
    while (auto line = NextDataLine(lines, kAirwayBound)) {
        NextField(*line);
        NextField(*line);
        AirwayFix fix{NextField(*line), 0, 0};
        if (NextNumber(*line, fix.lat) && NextNumber(*line, fix.lon)) visit(fix);
    }
}

}  // namespace

int LoadAirway(std::string_view name, std::string_view from_ident, int run) {
    if (name.starts_with('#')) name.remove_prefix(1);
    nav.EntryCandidates.clear();
    nav.entry_cnt = nav.entry_list_pos = 0;
    VisitAirway(name, run, [&](const AirwayFix& fix) {
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
    std::unordered_set<std::string_view> second;
    VisitAirway(airway2, 1, [&](const AirwayFix& fix) { second.insert(fix.ident); });
    AirwayCrossing crossing;
    int place = 0;
    VisitAirway(airway1, 1, [&](const AirwayFix& fix) {
        ++place;
        if (second.contains(fix.ident)) crossing.index = place;
        if (crossing.context == 0 && fix.ident == context) crossing.context = place;
    });
    return crossing;
}
