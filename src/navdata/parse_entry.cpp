#include "navdata/parse_entry.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "base/text_fields.h"
#include "navdata/from_aircraft.h"
#include "navdata/geodesy.h"
#include "navdata/ident_index.h"
#include "state/nav.h"
#include "state/nav_tables.h"
#include "state/plan.h"

namespace {

constexpr std::size_t kMaxCandidates = 250;
constexpr std::size_t kBearingDigits = 3;

// A number of digits only; nothing for an empty text, so that a cut entry is no position.
std::optional<int> Digits(std::string_view text) {
    int number = 0;
    if (text.empty() || text[0] == '-') return {};
    const auto [rest, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || rest != text.data() + text.size()) return {};
    return number;
}

bool IsNorthSouth(char c) {
    return c == 'N' || c == 'S';
}
bool IsEastWest(char c) {
    return c == 'E' || c == 'W';
}

void AddCandidate(NavRecord record) {
    nav.EntryCandidates[++nav.entry_cnt] = std::move(record);
}

// One angle of a position: degrees, minutes and tenths of a minute, and the letter that gives the sign.
struct AngleText {
    char letter;
    std::string_view deg, min, tenths;
};

std::optional<double> ToAngle(const AngleText& text, double limit) {
    const auto deg = Digits(text.deg);
    const auto min = text.min.empty() ? 0 : Digits(text.min);
    const auto tenths = text.tenths.empty() ? 0 : Digits(text.tenths);
    if (!deg || !min || !tenths || *min > 59) return {};
    const double angle = *deg + (*tenths * 6 / 60.0 + *min) / 60.0;
    if (angle > limit) return {};
    return text.letter == 'S' || text.letter == 'W' ? -angle : angle;
}

// The two angles as they stand in the entry, and how the place is called.
struct PositionText {
    AngleText lat, lon;
    enum { kAsEntered, kWholeDegrees, kNumbered } name;
};

std::optional<PositionText> SplitPosition(std::string_view e) {
    const auto part = [e](std::size_t at, std::size_t length) { return e.substr(at, length); };
    using P = PositionText;
    if (e.size() == 7 && IsNorthSouth(e[0]) && IsEastWest(e[3]))
        return P{{e[0], part(1, 2), {}, {}}, {e[3], part(4, 3), {}, {}}, P::kAsEntered};
    if (e.size() == 7 && IsNorthSouth(e[2]) && IsEastWest(e[6]))
        return P{{e[2], part(0, 2), {}, {}}, {e[6], part(3, 3), {}, {}}, P::kAsEntered};
    if (e.size() >= 14 && e.size() <= 29 && IsNorthSouth(e[0]) && IsEastWest(e[7]) && e[5] == '.' &&
        e[13] == '.')
        return P{{e[0], part(1, 2), part(3, 2), part(6, 1)},
                 {e[7], part(8, 3), part(11, 2), part(14, 1)},
                 P::kNumbered};
    if (e.size() == 11 && IsNorthSouth(e[0]) && IsEastWest(e[5]))
        return P{{e[0], part(1, 2), part(3, 2), {}}, {e[5], part(6, 3), part(9, 2), {}}, P::kWholeDegrees};
    if (e.size() == 11 && IsNorthSouth(e[4]) && IsEastWest(e[10]))
        return P{{e[4], part(0, 2), part(2, 2), {}}, {e[10], part(5, 3), part(8, 2), {}}, P::kWholeDegrees};
    if (e.size() == 12 && IsNorthSouth(e[0]) && IsEastWest(e[6]))
        return P{{e[0], part(1, 3), part(4, 2), {}}, {e[6], part(7, 3), part(10, 2), {}}, P::kWholeDegrees};
    return {};
}

// The highest number among legs named "WPTnn"; both copies of the route count, so that a name made while a
// modification is pending is not made again.
int HighestWptNumber(const GrowingList<FlightPlanLeg>& legs, int last) {
    int highest = 0;
    for (int i = 0; i <= last; ++i) {
        const std::string_view ident = legs[i].ident;
        if (ident.size() == 5 && ident.starts_with("WPT"))
            highest = std::max(highest, Digits(ident.substr(3)).value_or(0));
    }
    return highest;
}

std::string PositionName(const PositionText& position, std::string_view entry) {
    if (position.name == PositionText::kAsEntered) return std::string(entry);
    if (position.name == PositionText::kWholeDegrees)
        return Format("%c%02d%c%03d", position.lat.letter, *Digits(position.lat.deg), position.lon.letter,
                      *Digits(position.lon.deg));
    return Format("WPT%02d",
                  1 + std::max(HighestWptNumber(std::as_const(plan.active.legs), plan.active.leg_cnt),
                               HighestWptNumber(std::as_const(plan.mod.legs), plan.mod.leg_cnt)));
}

void AddPosition(const std::string& ident, double lat, double lon, const char* type) {
    AddCandidate({.ident = ident, .name = ident, .lat = lat, .lon = lon, .type = type});
}

bool ResolvePosition(std::string_view entry) {
    const auto text = SplitPosition(entry);
    if (!text) return false;
    const auto lat = ToAngle(text->lat, 90), lon = ToAngle(text->lon, 180);
    if (!lat || !lon) return false;
    AddPosition(PositionName(*text, entry), *lat, *lon, "I");
    return true;
}

// 5060N and 50N60: the letter gives both signs, its place whether the longitude passes 99 degrees.
void ResolveCodedPosition(std::string_view entry) {
    constexpr std::string_view kLetters = "NESW";
    if (entry.size() != 5) return;
    const bool at_end = kLetters.find(entry[4]) != std::string_view::npos;
    const char letter = at_end ? entry[4] : entry[2];
    if (kLetters.find(letter) == std::string_view::npos) return;
    const auto lat = Digits(entry.substr(0, 2));
    const auto lon = Digits(at_end ? entry.substr(2, 2) : entry.substr(3, 2));
    if (!lat || !lon || *lat > 90) return;
    const int full_lon = *lon + (at_end ? 0 : 100);
    if (full_lon > 180) return;
    const bool south = letter == 'S' || letter == 'W', west = letter == 'N' || letter == 'W';
    AddPosition(std::string(entry), south ? -*lat : *lat, west ? -full_lon : full_lon, "O");
}

NavRecord ToRecord(const FixRow& row) {
    return {.ident = std::string(row.ident),
            .name = std::string(row.name),
            .lat = row.lat,
            .lon = row.lon,
            .type = "I"};
}
NavRecord ToRecord(const NavaidRow& row) {
    return {.ident = std::string(row.ident),
            .name = std::string(row.name),
            .lat = row.lat,
            .lon = row.lon,
            .type = std::string(row.type),
            .freq = std::string(row.freq)};
}
NavRecord ToRecord(const AirportRow& row) {
    return {.ident = std::string(row.ident),
            .name = std::string(row.name),
            .lat = row.lat,
            .lon = row.lon,
            .type = "APT",
            .longest_runway = row.longest_runway,
            .elevation_text = std::string(row.elevation_text)};
}

// A row that bears the ident, and how far it is: rows are put in order before they become records.
struct Match {
    double dist;  // nm from the aircraft
    std::variant<const NavaidRow*, const FixRow*, const AirportRow*> row;
};

template <class Row>
void FindMatches(std::vector<Match>& matches, const IdentIndex& index, const GrowingList<Row>& table,
                 std::string_view ident) {
    VisitIdent(index, ident, [&](int number) {
        const Row& row = table[number];
        if (matches.size() == kMaxCandidates) return false;
        if (row.ident != ident) return true;
        const double dist = FromAircraft(row.lat, row.lon).dist;
        matches.push_back({std::isnan(dist) ? 0 : dist, &row});  // a NaN has no place in an order
        return true;
    });
}

// The first 250 rows of that ident, nearest first; at the same distance navaid before fix before airport, and
// file order in a table.
std::vector<Match> FindIdent(std::string_view ident) {
    std::vector<Match> matches;
    if (ident.empty()) return matches;
    FindMatches(matches, nav_tables.nav_index, nav_tables.NavaidTable, ident);
    FindMatches(matches, nav_tables.int_index, nav_tables.IntersectionTable, ident);
    FindMatches(matches, nav_tables.apt_index, nav_tables.AirportTable, ident);
    std::stable_sort(matches.begin(), matches.end(),
                     [](const Match& a, const Match& b) { return a.dist < b.dist; });
    return matches;
}

NavRecord RecordOf(const Match& match) {
    return std::visit([](const auto* row) { return ToRecord(*row); }, match.row);
}

void ResolveIdent(std::string_view ident) {
    for (const Match& match : FindIdent(ident)) AddCandidate(RecordOf(match));
}

std::optional<int> ParseBearing(std::string_view text) {
    const auto bearing = Digits(text);
    return bearing && *bearing <= 360 ? bearing : std::nullopt;
}

void ResolvePlaceWithBearing(std::string_view entry, std::size_t slash) {
    if (slash < kBearingDigits) return;
    const std::string_view place = entry.substr(0, slash - kBearingDigits);
    const auto bearing = ParseBearing(entry.substr(slash - kBearingDigits, kBearingDigits));
    if (!bearing) return;
    std::string_view behind = entry.substr(slash + 1);
    nav.entry_bearing = *bearing;
    if (ToNumber(behind) > 0) {
        nav.entry_distance = ToWholeNumber(behind);
        return ResolveIdent(place);
    }
    if (behind.size() < kBearingDigits) return;
    const auto bearing2 = ParseBearing(behind.substr(behind.size() - kBearingDigits));
    if (!bearing2) return;
    nav.entry_bearing2 = *bearing2;
    behind.remove_suffix(kBearingDigits);
    const std::vector<Match> seconds = FindIdent(behind), firsts = FindIdent(place);
    if (seconds.empty() || firsts.empty()) return;
    NavRecord crossing = RecordOf(firsts[0]);
    const NavRecord second = RecordOf(seconds[0]);
    if (IntersectBearings(crossing.lat, crossing.lon, *bearing, second.lat, second.lon, *bearing2,
                          crossing.lat, crossing.lon) == 0)
        AddCandidate(std::move(crossing));
}

}  // namespace

void ParseEntry(std::string_view text) {
    nav.EntryCandidates.clear();
    nav.EntryCandidates[0] = {};
    nav.entry_cnt = 0;
    nav.entry_bearing = nav.entry_bearing2 = nav.entry_distance = 0;
    if (ResolvePosition(text)) return;
    const std::size_t slash = text.find('/');
    if (slash != std::string_view::npos && slash > 0) return ResolvePlaceWithBearing(text, slash);
    ResolveIdent(text);
    if (nav.entry_cnt == 0) ResolveCodedPosition(text);
}
