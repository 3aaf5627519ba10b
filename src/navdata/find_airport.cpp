#include "navdata/find_airport.h"

#include <utility>

#include "base/text_fields.h"
#include "navdata/from_aircraft.h"
#include "navdata/ident_index.h"
#include "navdata/navdata_file.h"

namespace {

constexpr std::size_t kParkingBound = 499;

const AirportRow& RowAt(int row) {
    return std::as_const(nav_tables.AirportTable)[row];
}

}  // namespace

const AirportRow* FindAirport(std::string_view text) {
    if (text.empty()) return nullptr;
    const AirportRow* found = nullptr;
    VisitIdent(nav_tables.apt_index, text, [&](int row) {
        if (RowAt(row).ident == text) found = &RowAt(row);
        return found == nullptr;
    });
    const std::string upper = UpperCase(text);
    for (int row = 1; row <= nav_tables.apt_cnt && found == nullptr; ++row)
        if (UpperCase(RowAt(row).name).find(upper) != std::string::npos) found = &RowAt(row);
    return found;
}

const AirportRow* FindNearestAirport() {
    const AirportRow* found = nullptr;
    double least = 99999;
    for (int row = 1; row <= nav_tables.apt_cnt; ++row) {
        const AirportRow& airport = RowAt(row);
        const double dist = FromAircraft(airport.lat, airport.lon).dist;
        if (dist >= least) continue;
        least = dist;
        found = &airport;
    }
    return found;
}

std::optional<LatLon> FindGatePosition(std::string_view airport, std::string_view gate) {
    const FileBytes file = ReadNavdata("Parking.txt");
    std::string_view rest = file.Text();
    bool inside = false;
    while (auto line = NextDataLine(rest, kParkingBound)) {
        std::string_view word = NextField(*line);
        if (word.starts_with('[')) {
            if (inside) return {};
            const auto is_bracket = [](char c) { return c == '[' || c == ']' || IsBlank(c); };
            inside = EqualIgnoringCase(NextPart(word, is_bracket), airport);
        } else if (inside && EqualIgnoringCase(word, gate)) {
            double lat = 0, lon = 0;
            if (!NextNumber(*line, lat) || !NextNumber(*line, lon)) return {};
            return LatLon{lat, lon};
        }
    }
    return {};
}
