#include "host/world/receivers.h"
#include "host/aircraft/air.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <fstream>
#include <string_view>
#include <vector>

#include "host/aircraft/angles.h"
#include "host/aircraft/magnetic_variation.h"
#include "host/aircraft/sphere.h"
#include "host/world/world.h"

namespace host {
namespace {

constexpr double kNmPerRadian = 3437.7467707849396;
constexpr double kNeedleFull = 127;

struct Station {
    int frequency;  // hundredths of a MHz
    std::string ident;
    Vector3 place;  // VOR or localizer antenna
    bool is_localizer = false;
    // of a landing system
    double course = 0;         // degrees true, of the front beam
    double shown_course = 0;   // degrees magnetic, as published
    double full_degrees = 0;   // of the localizer's needle
    Vector3 glide_slope = {};  // its antenna, abeam which the beam leaves the ground
    double elevation = 0;      // ft
};

struct Receiver {
    int frequency = 0;
    const Station* station = nullptr;  // received now
};

struct Radio {
    std::vector<Station> stations;  // by frequency
    Receiver receivers[2];
};

Radio radio;

struct ReceiverTokens {
    int frequency, radial, deviation, dme, codes, signal, course;
    const char* ident;
};
constexpr ReceiverTokens kTokens[] = {{24, 25, 31, 45, 46, 49, 550, "(A:NAV IDENT:1,string)"},
                                      {27, 28, 35, 54, 55, 58, 59, "(A:NAV IDENT:2,string)"}};
constexpr int kLocalizerNeedle = 40, kGlideSlopeNeedle = 41;

double DistanceNm(Vector3 a, Vector3 b) {
    return std::asin(std::min(Length(a + b * -1) / 2, 1.0)) * 2 * kNmPerRadian;
}

Vector3 Ahead(Vector3 place, double bearing, double nm) {
    const double angle = nm / kNmPerRadian;
    return place * std::cos(angle) + DirectionOf(bearing, place) * std::sin(angle);
}

double NumberOf(std::string_view text) {
    double value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return std::isfinite(value) ? value : 0;
}

double BearingTo(Vector3 from, Vector3 to) {
    return BearingOf(to + from * -Dot(to, from), from);
}

int FrequencyOf(std::string_view text) {
    const double mhz = NumberOf(text);
    return mhz > 100 && mhz < 200 ? static_cast<int>(std::round(mhz * 100)) : 0;
}

// One runway of an airport: NUMBER_LENGTH_LAT_LON_COURSE_FREQUENCY_IDENT_...
struct Runway {
    std::string_view number, ident;
    double length = 0, lat = 0, lon = 0, course = 0;
    int frequency = 0;
};

Runway RunwayOf(std::string_view token) {
    std::array<std::string_view, 7> fields;
    for (std::string_view& field : fields) {
        field = token.substr(0, token.find('_'));
        token.remove_prefix(std::min(field.size() + 1, token.size()));
    }
    Runway runway{fields[0],           fields[6],           NumberOf(fields[1]),
                  NumberOf(fields[2]), NumberOf(fields[3]), NumberOf(fields[4])};
    const bool somewhere = std::fabs(runway.lat) <= 90 && std::fabs(runway.lon) <= 180;
    runway.frequency = somewhere ? FrequencyOf(fields[5]) : 0;
    return runway;
}

std::string OppositeNumber(std::string_view number) {
    const int value = static_cast<int>(NumberOf(number));
    std::string opposite = std::to_string(value > 18 ? value - 18 : value + 18);
    if (opposite.size() == 1) opposite.insert(0, "0");
    for (const char side : number.substr(std::min<std::size_t>(2, number.size())))
        opposite += side == 'L' ? 'R' : side == 'R' ? 'L' : side;
    return opposite;
}

Station LandingSystemOf(const Runway& runway, const Runway* opposite, double elevation) {
    constexpr double kBehindEndFt = 1000, kHalfWidthAtThresholdFt = 350, kLeast = 1, kMost = 3;
    const Vector3 threshold = PlaceAt(runway.lat, runway.lon);
    Station station{runway.frequency, std::string(runway.ident), {}, true};
    station.shown_course = runway.course;
    double length = runway.length;
    if (opposite == nullptr) {
        station.course = FoldDegrees(runway.course + MagneticVariation(runway.lat, runway.lon));
    } else {
        const Vector3 end = PlaceAt(opposite->lat, opposite->lon);
        station.course = BearingTo(threshold, end);
        length = DistanceNm(threshold, end) * kFeetPerNm;
    }
    const double reach = length + kBehindEndFt;
    station.place = Ahead(threshold, station.course, reach / kFeetPerNm);
    station.full_degrees = std::clamp(std::atan(kHalfWidthAtThresholdFt / reach) / kRad, kLeast, kMost);
    const double from_threshold = kThresholdCrossing / std::tan(kGlideSlopeDegrees * kRad);
    station.glide_slope = Ahead(threshold, station.course, from_threshold / kFeetPerNm);
    station.elevation = elevation;
    return station;
}

// The next word of a line, which loses it; an empty one at the end.
std::string_view TakeWord(std::string_view& line) {
    line.remove_prefix(std::min(line.find_first_not_of(" \t\r"), line.size()));
    const std::string_view word = line.substr(0, line.find_first_of(" \t\r"));
    line.remove_prefix(word.size());
    return word;
}

// ICAO NAME ELEVATION LAT LON RUNWAY...
void LoadLandingSystems(const std::string& file) {
    std::ifstream lines(file);
    std::string text;
    std::vector<Runway> runways;
    while (std::getline(lines, text)) {
        std::string_view line = text;
        if (line.starts_with(";")) continue;
        TakeWord(line);
        TakeWord(line);
        const double elevation = NumberOf(TakeWord(line));
        TakeWord(line);
        TakeWord(line);
        runways.clear();
        for (std::string_view word = TakeWord(line); !word.empty(); word = TakeWord(line))
            runways.push_back(RunwayOf(word));
        for (const Runway& runway : runways) {
            if (runway.frequency == 0) continue;
            const std::string number = OppositeNumber(runway.number);
            const auto opposite = std::find_if(runways.begin(), runways.end(), [&](const Runway& other) {
                return other.number == number && (other.lat != runway.lat || other.lon != runway.lon);
            });
            radio.stations.push_back(
                LandingSystemOf(runway, opposite == runways.end() ? nullptr : &*opposite, elevation));
        }
    }
}

// IDENT NAME LAT LON TYPE FREQUENCY
void LoadVors(const std::string& file) {
    std::ifstream lines(file);
    std::string text;
    while (std::getline(lines, text)) {
        std::string_view line = text;
        if (line.starts_with(";")) continue;
        const std::string_view ident = TakeWord(line);
        TakeWord(line);
        const double lat = NumberOf(TakeWord(line)), lon = NumberOf(TakeWord(line));
        const std::string_view type = TakeWord(line);
        const int frequency = FrequencyOf(TakeWord(line));
        if (type != "VOR" || frequency == 0 || std::fabs(lat) > 90 || std::fabs(lon) > 180) continue;
        radio.stations.push_back({frequency, std::string(ident), PlaceAt(lat, lon)});
    }
}

// BCD of the last four digits, as 11030 for 110.30 MHz.
int TunedFrequency(int token) {
    const double raw = TokenOf(token);
    if (!(raw >= 0 && raw < 0x10000)) return 0;
    int value = static_cast<int>(raw), digits = 0;
    for (int place = 1; value > 0; value >>= 4, place *= 10) digits += (value & 0xf) * place;
    return 10000 + digits;
}

// Degrees that a localizer's antenna sees the aircraft off its front beam, to the beam's right seen from the
// aircraft positive: fly right then.
double OffBeam(const Station& station, Vector3 place) {
    return std::remainder(BearingTo(station.place, place) - (station.course + 180), 360);
}

bool IsReceived(const Station& station, Vector3 place, double altitude) {
    const double distance = DistanceNm(place, station.place);
    if (station.is_localizer) {
        constexpr double kReach = 25, kSector = 35;
        return distance < kReach && std::fabs(OffBeam(station, place)) < kSector;
    }
    constexpr double kMostReach = 200;
    return distance < std::min(1.23 * std::sqrt(std::max(altitude, 100.0)) + 20, kMostReach);
}

// The nearest station on the frequency that comes in. Of the systems of both ends of a runway, which may
// share one, that is on which the aircraft is headed for.
const Station* FindStation(int frequency, const ReceiverPlace& at) {
    const Vector3 place = PlaceAt(at.lat, at.lon);
    const auto [first, last] =
        std::equal_range(radio.stations.begin(), radio.stations.end(), Station{frequency, "", {}},
                         [](const Station& a, const Station& b) { return a.frequency < b.frequency; });
    const Station* nearest = nullptr;
    double best = -3;
    for (auto station = first; station != last; ++station) {
        const bool behind =
            station->is_localizer && std::fabs(std::remainder(at.heading - station->course, 360)) > 90;
        const double closeness = Dot(station->place, place) - (behind ? 2 : 0);
        if (closeness <= best || !IsReceived(*station, place, at.altitude)) continue;
        best = closeness;
        nearest = &*station;
    }
    return nearest;
}

bool StillComesIn(const Receiver& receiver, const ReceiverPlace& at) {
    return receiver.station != nullptr && receiver.station->is_localizer &&
           IsReceived(*receiver.station, PlaceAt(at.lat, at.lon), at.altitude);
}

double Needle(double degrees, double full) {
    return std::clamp(degrees / full, -1.0, 1.0) * kNeedleFull;
}

double GlideSlopeNeedle(const Station& station, Vector3 place, double altitude) {
    const double run = std::max(DistanceNm(place, station.glide_slope) * kFeetPerNm, 1.0);
    const double angle = std::atan((altitude - station.elevation) / run) / kRad;
    return Needle(angle - kGlideSlopeDegrees, kGlideSlopeFullNeedle);
}

void ShowNothing(const ReceiverTokens& tokens, bool first) {
    for (const int token : {tokens.radial, tokens.deviation, tokens.dme, tokens.codes, tokens.signal})
        SetToken(token, 0);
    if (first)
        for (const int needle : {kLocalizerNeedle, kGlideSlopeNeedle}) SetToken(needle, 0);
    SetCalcText(tokens.ident, "");
}

void ShowStation(const ReceiverTokens& tokens, const Station& station, const ReceiverPlace& at, bool first) {
    constexpr double kStrongest = 255, kCodeLocalizer = 0x80, kCodeGlideSlope = 0x40;
    constexpr double kVorFullNeedle = 10;  // degrees
    const Vector3 place = PlaceAt(at.lat, at.lon);
    const double radial = FoldDegrees(BearingTo(place, station.place) + 180 - at.variation);
    const double up = (at.altitude - station.elevation) / kFeetPerNm;
    const Vector3& dme = station.is_localizer ? station.glide_slope : station.place;
    SetToken(tokens.radial, radial * 16384 / 360);
    SetToken(tokens.dme, std::hypot(DistanceNm(place, dme), up));
    SetToken(tokens.signal, std::max(1.0, std::round(kStrongest - DistanceNm(place, station.place))));
    SetToken(tokens.codes, station.is_localizer ? kCodeLocalizer + kCodeGlideSlope : 0);
    double deviation = 0, glide_slope = 0;
    if (station.is_localizer) {
        SetToken(tokens.course, station.shown_course);
        deviation = Needle(OffBeam(station, place), station.full_degrees);
        glide_slope = GlideSlopeNeedle(station, place, at.altitude);
    } else {
        // Towards the station or away from it, the needle shows where the course lies.
        const double off = std::asin(std::sin((TokenOf(tokens.course) - radial) * kRad)) / kRad;
        deviation = Needle(off, kVorFullNeedle);
    }
    SetToken(tokens.deviation, deviation);
    if (!first) return;
    SetToken(kLocalizerNeedle, deviation);
    SetToken(kGlideSlopeNeedle, glide_slope);
}

}  // namespace

void LoadNavStations(const std::string& apts_file, const std::string& navs_file) {
    radio = {};
    LoadLandingSystems(apts_file);
    LoadVors(navs_file);
    std::stable_sort(radio.stations.begin(), radio.stations.end(),
                     [](const Station& a, const Station& b) { return a.frequency < b.frequency; });
}

void StepReceivers(const ReceiverPlace& place) {
    constexpr long long kLookEvery = 18;  // ticks
    for (std::size_t i = 0; i < std::size(radio.receivers); ++i) {
        Receiver& receiver = radio.receivers[i];
        const ReceiverTokens& tokens = kTokens[i];
        const int tuned = TunedFrequency(tokens.frequency);
        const bool look = world.ticks % kLookEvery == 0 && !StillComesIn(receiver, place);
        if (tuned != receiver.frequency || look) {
            receiver = {tuned, FindStation(tuned, place)};
            if (receiver.station == nullptr)
                ShowNothing(tokens, i == 0);
            else
                SetCalcText(tokens.ident, receiver.station->ident);
        }
        if (receiver.station != nullptr) ShowStation(tokens, *receiver.station, place, i == 0);
    }
}

}  // namespace host
