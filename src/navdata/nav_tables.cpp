#include "navdata/nav_tables.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string>
#include <string_view>

#include "base/text_fields.h"
#include "frame/crew_messages.h"
#include "navdata/airways.h"
#include "navdata/ident_index.h"
#include "navdata/navdata_file.h"
#include "platform/host.h"
#include "state/cfg.h"
#include "state/nav.h"
#include "state/nav_tables.h"
#include "state/nearest.h"

namespace {

constexpr std::size_t kTableBound = 1698;
constexpr std::size_t kHeaderBound = 299;

// One file while it is read: its text, which stays where the rows' texts point, and what came of it.
struct FileReading {
    std::string_view text;
    NavdataFile& told;

    void Skip(std::string_view line, std::string_view why) {
        std::string_view rest = line;
        if (NextField(rest).empty() || told.skipped++ > 0) return;
        told.first_skipped = static_cast<int>(std::count(text.data(), line.data(), '\n')) + 1;
        told.why = why;
    }

    // Takes the place that the next two fields tell; a line without one on the globe is skipped.
    bool TakePlace(std::string_view line, std::string_view& fields, double& lat, double& lon) {
        if (!NextNumber(fields, lat) || !NextNumber(fields, lon))
            Skip(line, "no position");
        else if (!(lat >= -90 && lat <= 90))
            Skip(line, "latitude beyond 90");
        else if (!(lon >= -180 && lon <= 180))
            Skip(line, "longitude beyond 180");
        else
            return true;
        return false;
    }
};

FileReading ReadInto(NavTables& t, std::string_view name, FileBytes& file) {
    file = ReadNavdata(name);
    NavdataFile& told = t.navdata_files[++t.navdata_file_cnt];
    told = {.name = name, .size = static_cast<int>(file.size), .why = {}};
    return {file.Text(), told};
}

// Room for the rows that a file of this size may hold, so that a table doesn't move while it grows. What
// isn't used is never touched and costs nothing.
template <class Row>
void ReserveRows(GrowingList<Row>& table, std::string_view text) {
    constexpr std::size_t kShortLine = 24;
    table.reserve(static_cast<int>(text.size() / kShortLine) + 2 * GrowingList<Row>::kSlack);
    table[0] = {};  // the empty record stands in an empty table too
}

constexpr auto kIdentOf = [](const auto& row) { return row.ident; };

void LoadIntersections(NavTables& t) {
    FileReading reading = ReadInto(t, "ints.txt", t.ints_file);
    std::string_view rest = reading.text;
    ReserveRows(t.IntersectionTable, rest);
    while (const auto line = NextDataLine(rest, kTableBound)) {
        std::string_view fields = *line;
        const std::string_view ident = NextField(fields), name = NextField(fields);
        double lat = 0, lon = 0;
        if (!reading.TakePlace(*line, fields, lat, lon)) continue;
        t.IntersectionTable[++t.int_cnt] = {ident, name, lat, lon};
    }
    reading.told.rows = t.int_cnt;
    BuildIdentIndex(t.int_index, t.IntersectionTable, t.int_cnt, kIdentOf);
}

void AddAirwayFix(NavTables& t, std::string_view line, FileReading& reading) {
    constexpr std::size_t kShortestFix = 4;  // shorter idents are navaids, which have a table of their own
    std::string_view fields = line;
    NextField(fields);
    NextField(fields);
    const std::string_view ident = NextField(fields);
    double lat = 0, lon = 0;
    if (!reading.TakePlace(line, fields, lat, lon)) return;
    ++reading.told.rows;
    if (ident.size() < kShortestFix) return;
    t.AirwayFixTable[++t.awy_fix_cnt] = {ident, lat, lon};
}

void ExtendAirwayRun(NavTables& t, std::string_view line) {
    std::string_view fields = line;
    const std::string_view name = NextField(fields);
    if (name.empty()) return;
    if (t.airway_run_cnt == 0 || t.airway_runs[t.airway_run_cnt].name != name)
        t.airway_runs[++t.airway_run_cnt] = {name, line};
    std::string_view& lines = t.airway_runs[t.airway_run_cnt].lines;
    lines = {lines.data(), static_cast<std::size_t>(line.data() + line.size() - lines.data())};
}

void LoadAirways(NavTables& t) {
    FileReading reading = ReadInto(t, "awys.txt", t.awys_file);
    std::string_view rest = reading.text;
    ReserveRows(t.AirwayFixTable, rest);
    while (const auto line = NextBoundedLine(rest, rest.size())) {
        // The table and the later reading of one airway divide a line that is too long at different places.
        std::string_view for_table = *line, for_runs = *line;
        while (const auto piece = NextDataLine(for_table, kTableBound)) AddAirwayFix(t, *piece, reading);
        while (const auto piece = NextDataLine(for_runs, kAirwayBound)) ExtendAirwayRun(t, *piece);
    }
    BuildIdentIndex(t.airway_index, t.airway_runs, t.airway_run_cnt,
                    [](const AirwayRun& run) { return run.name; });
}

double LongestRunway(std::string_view tokens) {
    constexpr int kTokensLookedAt = 10;
    double longest = 0;
    for (int i = 0; i < kTokensLookedAt; ++i) {
        std::string_view token = NextField(tokens);
        if (token.empty()) break;
        NextTokenPart(token);
        longest = std::max(longest, ToNumber(NextTokenPart(token)));
    }
    return longest;
}

void LoadAirports(NavTables& t) {
    FileReading reading = ReadInto(t, "apts.txt", t.apts_file);
    std::string_view rest = reading.text;
    ReserveRows(t.AirportTable, rest);
    ReserveRows(t.airport_lines, rest);
    while (auto line = NextDataLine(rest, kTableBound)) {
        std::string_view fields = *line;
        const std::string_view ident = NextField(fields), name = NextField(fields);
        const std::string_view elevation = NextField(fields);
        double lat = 0, lon = 0;
        if (!reading.TakePlace(*line, fields, lat, lon)) continue;
        t.airport_lines[++t.airport_line_cnt] = *line;
        const double longest = LongestRunway(fields);
        if (longest < cfg.MinAptRwyLen) continue;
        t.AirportTable[++t.apt_cnt] = {ident, name, lat, lon, longest, elevation};
    }
    reading.told.rows = t.airport_line_cnt;
    BuildIdentIndex(t.apt_index, t.AirportTable, t.apt_cnt, kIdentOf);
    BuildIdentIndex(t.airport_line_index, t.airport_lines, t.airport_line_cnt, AirportLineIdent);
}

void LoadNavaids(NavTables& t) {
    FileReading reading = ReadInto(t, "navs.txt", t.navs_file);
    std::string_view rest = reading.text;
    ReserveRows(t.NavaidTable, rest);
    while (const auto line = NextDataLine(rest, kTableBound)) {
        std::string_view fields = *line;
        const std::string_view ident = NextField(fields), name = NextField(fields);
        double lat = 0, lon = 0;
        if (!reading.TakePlace(*line, fields, lat, lon)) continue;
        const std::string_view kind = NextField(fields), freq = NextField(fields);
        if (kind.empty()) {
            reading.Skip(*line, "no kind");
            continue;
        }
        const std::string_view type = EqualIgnoringCase(kind, "VOR") ? "V" : "N";
        t.NavaidTable[++t.nav_cnt] = {ident, name, lat, lon, type, freq};
    }
    reading.told.rows = t.nav_cnt;
    BuildIdentIndex(t.nav_index, t.NavaidTable, t.nav_cnt, kIdentOf);
}

void LoadLandmarks(NavTables& t) {
    FileReading reading = ReadInto(t, "landmarks.txt", t.landmarks_file);
    std::string_view rest = reading.text;
    ReserveRows(t.LandmarkTable, rest);
    char* const text = t.landmarks_file.data.get();
    while (auto line = NextDataLine(rest, kTableBound)) {
        double lat = 0, lon = 0;
        NextNumber(*line, lat);
        NextNumber(*line, lon);
        const std::string_view name = NextField(*line);
        char* const first = text + (name.data() - text);
        std::replace(first, first + name.size(), '_', ' ');
        t.LandmarkTable[++t.landmark_cnt] = {name, lat, lon};
    }
    reading.told.rows = t.landmark_cnt;
}

// "05-NOV-2026".
struct CycleDate {
    int number = 0;  // YYYYMMDD, 0 for a text that is no date
    std::string day, month, year;
};

CycleDate ParseCycleDate(std::string_view text) {
    constexpr std::array<std::string_view, 12> kMonths = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN",
                                                          "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};
    constexpr std::size_t kLength = 11;
    if (text.size() != kLength || text[2] != '-' || text[6] != '-') return {};
    const std::string_view day = text.substr(0, 2), month = text.substr(3, 3), year = text.substr(7);
    const auto found = std::find(kMonths.begin(), kMonths.end(), month);
    if (found == kMonths.end()) return {};
    const int month_number = static_cast<int>(found - kMonths.begin()) + 1;
    return {ToWholeNumber(year) * 10000 + month_number * 100 + ToWholeNumber(day), std::string(day),
            std::string(month), std::string(year)};
}

}  // namespace

void LoadNavTables() {
    nav_tables = {};
    nearest.around = {};  // their rows are views into what was just freed
    nearest.around_plan = {};
    nearest.vors = {};
    LoadIntersections(nav_tables);
    LoadAirways(nav_tables);
    LoadAirports(nav_tables);
    LoadNavaids(nav_tables);
    LoadLandmarks(nav_tables);
    nav.nearest_refresh_due = 1;
}

void CheckNavdataDates() {
    nav.airac_cycle_text.clear();
    nav.airac_range_text.clear();
    nav.airac_range_short.clear();
    nav.navdata_out_of_date = 0;
    const FileBytes file = ReadNavdata("navs.txt");
    std::string_view rest = file.Text();
    while (auto line = NextBoundedLine(rest, kHeaderBound)) {
        if (NextField(*line) != ";AIRAC") continue;
        const std::string_view cycle = NextField(*line);
        NextField(*line);
        std::string_view first_text = NextField(*line);
        if (!first_text.empty()) first_text.remove_prefix(1);  // "("
        NextField(*line);
        const CycleDate first = ParseCycleDate(first_text), last = ParseCycleDate(NextField(*line));
        nav.airac_cycle_text = std::string("AIRAC ").append(cycle);
        if (first.number != 0 && last.number != 0) {
            nav.airac_range_text =
                first.month + first.day + last.month + last.day + "/" + last.year.substr(2);
            nav.airac_range_short = first.day + first.month + " - " + last.day + last.month;
        }
        const int today = Host().machine_date();
        const bool valid = today == 0 || (first.number <= today && today <= last.number);  // 0: not known
        nav.navdata_out_of_date = !valid && cfg.CheckNavdataStatus == 1;
        return;
    }
}

void TellNavdataOutOfDate() {
    if (nav.navdata_out_of_date == 1)
        PostCduMessage("NAV DATA OUT OF DATE", kAdvisory, kHelpNavdataDate, kBothSides);
}
