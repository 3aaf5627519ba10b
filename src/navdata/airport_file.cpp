#include "navdata/airport_file.h"

#include "base/text_fields.h"
#include "navdata/geodesy.h"
#include "navdata/ident_index.h"
#include "navdata/navdata_file.h"
#include "state/identity.h"
#include "state/nav_tables.h"

namespace {

constexpr std::size_t kSelcalBound = 299;
constexpr std::size_t kCommsBound = 498;
constexpr std::size_t kAdditionalInfoBound = 1498;
constexpr int kMaxRunways = 20;

// A runway without a landing system bears "0" as its frequency and "-" as its ident.
std::string TextOrNone(std::string_view text) {
    return text == "0" || text == "-" ? std::string() : std::string(text);
}

// The ident of the other end of a runway, "27R" for "09L"; empty for one that bears no number.
std::string OppositeRunway(std::string_view ident) {
    const int number = ToWholeNumber(ident);
    if (number < 1 || number > 36) return {};
    const std::string opposite = Format("%02d", number < 19 ? number + 18 : number - 18);
    const std::string_view sides = ident.substr(1, 2);
    if (sides.find('L') != std::string_view::npos) return opposite + "R";
    if (sides.find('R') != std::string_view::npos) return opposite + "L";
    if (sides.find('C') != std::string_view::npos) return opposite + "C";
    return opposite;
}

bool ParseRunway(std::string_view token, RunwayData& runway) {
    const std::string_view ident = NextTokenPart(token), length = NextTokenPart(token);
    const std::string_view lat = NextTokenPart(token), lon = NextTokenPart(token);
    const std::string_view course = NextTokenPart(token);
    const std::string_view freq = NextTokenPart(token), ils = NextTokenPart(token);
    if (course.empty()) return false;
    runway.ident = ident;
    runway.length_ft = ToWholeNumber(length);
    runway.lat = ToNumber(lat);
    runway.lon = ToNumber(lon);
    runway.course = ToNumber(course);
    runway.ils_freq = TextOrNone(freq);
    runway.ils_ident = TextOrNone(ils);
    runway.sub7 = ToNumber(NextTokenPart(token));
    runway.recip_course = runway.course + 180 >= 360 ? runway.course - 180 : runway.course + 180;
    runway.recip_ident = OppositeRunway(ident);
    return true;
}

void PairOppositeRunways(AirportData& airport) {
    for (int i = 1; i <= airport.runway_cnt; ++i) {
        RunwayData& runway = airport.runways[i];
        for (int j = 1; j <= airport.runway_cnt; ++j) {
            const RunwayData& other = airport.runways[j];
            if (other.ident != runway.recip_ident) continue;
            runway.recip_lat = other.lat;
            runway.recip_lon = other.lon;
            break;
        }
    }
}

// Sections "[ICAO]" with lines "RWY<ident>=RIGHTPATTERN".
void ReadRightPatterns(AirportData& airport) {
    const FileBytes file = ReadNavdata("apt_additional_info.txt");
    const std::string heading = "[" + airport.ident + "]";
    constexpr std::size_t kHeadingLength = 6;
    std::string_view rest = file.Text();
    bool inside = false;
    while (auto line = NextDataLine(rest, kAdditionalInfoBound)) {
        const std::string word = UpperCase(NextField(*line));
        if (word.starts_with('[')) {
            if (inside) return;
            inside = std::string_view(word).substr(0, kHeadingLength) ==
                     std::string_view(heading).substr(0, kHeadingLength);
        }
        const std::size_t equals = word.find('=');
        if (!inside || !word.starts_with("RWY") || equals == std::string::npos) continue;
        if (std::string_view(word).substr(equals + 1) != "RIGHTPATTERN") continue;
        const std::string ident = word.substr(3, equals - 3);
        for (int i = 1; i <= airport.runway_cnt; ++i) {
            RunwayData& runway = airport.runways[i];
            if (runway.ident == ident || runway.ident == "0" + ident) runway.right_pattern = 1;
        }
    }
}

AirportData ParseAirport(const std::string& line) {
    std::string_view fields = line;
    AirportData airport;
    airport.ident = NextField(fields);
    airport.name = NextField(fields);
    airports.elevation_text = NextField(fields);
    airport.elevation_ft = ToWholeNumber(airports.elevation_text);
    airport.lat = ToNumber(NextField(fields));
    airport.lon = ToNumber(NextField(fields));
    airport.lat_text = FormatLatitude(airport.lat);
    airport.lon_text = FormatLongitude(-airport.lon);
    for (int token = 0; token < kMaxRunways; ++token) {
        RunwayData runway;
        if (ParseRunway(NextField(fields), runway)) airport.runways[++airport.runway_cnt] = runway;
    }
    PairOppositeRunways(airport);
    ReadRightPatterns(airport);
    return airport;
}

}  // namespace

int LoadAirport(std::string_view ident, AirportData& target) {
    constexpr int kBusy = 99;
    if (airports.loading != 0) return kBusy;
    int found = 0;
    VisitIdent(nav_tables.airport_line_index, ident, [&](int number) {
        if (AirportLineIdent(nav_tables.airport_lines[number]) != ident) return true;
        found = number;
        return false;
    });
    if (found == 0 || ident.empty()) return 0;
    airports.loading = 1;
    target = ParseAirport(UpperCase(nav_tables.airport_lines[found]));
    airports.loading = 0;
    return 1;
}

std::vector<AirportComm> LoadAirportComms(std::string_view ident) {
    std::vector<AirportComm> comms;
    const FileBytes file = ReadNavdata("aptcomms.txt");
    std::string_view rest = file.Text();
    while (auto line = NextDataLine(rest, kCommsBound)) {
        const std::string_view airport = NextField(*line);
        if (airport != ident) {
            if (!comms.empty() && !airport.empty()) break;
            continue;
        }
        const std::string_view kind = NextField(*line), freq = NextField(*line);
        if (!freq.empty()) comms.push_back({std::string(kind), std::string(freq)});
    }
    return comms;
}

std::string FindSelcal(std::string_view registration) {
    const FileBytes file = ReadNavdata("selcal.txt");
    std::string_view rest = file.Text();
    while (auto line = NextDataLine(rest, kSelcalBound)) {
        const std::string_view owner = NextField(*line);
        if (owner.empty() || owner != registration) continue;
        const std::string code = UpperCase(NextField(*line));
        return code.size() == 4 ? code.substr(0, 2) + "-" + code.substr(2) : std::string();
    }
    return {};
}

void ReadSelcal() {
    identity.selcal = FindSelcal(identity.registration);
}
