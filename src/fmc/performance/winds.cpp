#include "fmc/performance/winds.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "base/angles.h"
#include "base/text.h"
#include "base/text_fields.h"
#include "fmc/legs/find_leg.h"
#include "fmc/legs/route_state.h"
#include "frame/crew_messages.h"
#include "navdata/from_aircraft.h"
#include "navdata/geodesy.h"
#include "platform/files.h"
#include "platform/host.h"
#include "state/airports.h"
#include "state/cfg.h"
#include "state/leg_words.h"
#include "state/module_life.h"
#include "state/perf.h"
#include "state/sim.h"
#include "state/winds.h"

namespace {

constexpr std::size_t kLineBound = 800;
constexpr std::size_t kSnapshotBound = 4000;  // a line holds a whole METAR and TAF

const WindLevel* NearestLevel(std::span<const WindLevel> levels, double altitude) {
    const WindLevel* nearest = nullptr;
    for (const WindLevel& level : levels) {
        if (level.alt <= 0) continue;
        if (nearest == nullptr || std::abs(level.alt - altitude) < std::abs(nearest->alt - altitude))
            nearest = &level;
    }
    return nearest;
}

double AlongTrack(std::span<const WindLevel> levels, double altitude, double bearing) {
    const WindLevel* level = NearestLevel(levels, altitude);
    return level == nullptr ? 0 : -std::cos((level->dir - bearing) * kRadPerDeg) * level->spd;
}

// Along the leg, from the aircraft when it is the one that is flown.
double LegBearing(int prev_leg, int leg) {
    const FlightPlanLeg& to = FlightPlanLegAt(leg);
    if (leg == plan.active.stpos) return FromAircraft(to.lat, to.lon).bearing;
    const FlightPlanLeg& from = FlightPlanLegAt(prev_leg);
    return GreatCircle(from.lat, from.lon, to.lat, to.lon).bearing;
}

std::optional<FileBytes> ReadWeatherFile(const ConfiguredFolder& folder, std::string_view name) {
    return ReadFile(folder.File(name), folder.root);
}

constexpr char kStationList[] = "wx_station_list.txt";
constexpr char kSnapshot[] = "current_wx_snapshot.txt";

struct Station {
    std::string_view ident, lat_text, lon_text;
    double lat, lon;
};

std::vector<Station> ReadStations(std::string& text) {
    std::replace(text.begin(), text.end(), ',', ' ');
    std::vector<Station> stations;
    std::string_view rest = text;
    while (auto line = NextBoundedLine(rest, kLineBound)) {
        Station station{NextField(*line), NextField(*line), NextField(*line), 0, 0};
        if (station.lon_text.empty()) continue;
        station.lat = ToNumber(station.lat_text);
        station.lon = ToNumber(station.lon_text);
        stations.push_back(station);
    }
    return stations;
}

const Station* NearestStation(std::span<const Station> stations, double lat, double lon) {
    const Station* nearest = nullptr;
    double best = std::numeric_limits<double>::max();
    for (const Station& station : stations) {
        const double dist = GreatCircle(lat, lon, station.lat, station.lon).dist;
        if (dist < best) {
            best = dist;
            nearest = &station;
        }
    }
    return nearest;
}

// The part of a text up to a divider, which goes with it.
std::string_view CutAt(std::string_view& text, std::string_view divider) {
    const std::size_t end = text.find(divider);
    const std::string_view part = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + divider.size());
    return part;
}

// What one request reads.
struct WeatherFiles {
    std::string list;
    FileBytes snapshot;
    std::vector<Station> stations;  // in `list`, once ReadStations has gone through it
    std::unordered_map<std::string_view, std::string_view>
        snapshots;  // first line of each ident's four letters
};

std::optional<WeatherFiles> ReadWeatherFiles() {
    constexpr std::size_t kIdent = 4;
    const ConfiguredFolder folder = FindConfiguredFolder(winds.ActiveSkyFolder);
    const auto list = ReadWeatherFile(folder, kStationList);
    auto snapshot = ReadWeatherFile(folder, kSnapshot);
    if (!list || !snapshot) return {};
    WeatherFiles files{std::string(list->Text()), std::move(*snapshot), {}, {}};
    std::string_view rest = files.snapshot.Text();
    while (auto line = NextBoundedLine(rest, kSnapshotBound))
        if (line->size() > kIdent) files.snapshots.emplace(line->substr(0, kIdent), *line);
    return files;
}

// What a line of the snapshot tells: ident, METAR, TAF, then the winds, nine groups between slashes. Empty
// for a station that has none.
struct Weather {
    std::string_view metar, winds;
};

Weather FindWeather(const WeatherFiles& files, std::string_view ident) {
    const auto found = files.snapshots.find(ident);
    if (found == files.snapshots.end()) return {};
    std::string_view line = found->second;
    CutAt(line, "::");
    Weather weather;
    weather.metar = CutAt(line, "::");
    CutAt(line, "::");
    weather.winds = CutAt(line, "::");
    return weather;
}

WxStation MakeWxStation(const Station& from, int leg, const FlightPlanLeg& at, std::string_view groups) {
    WxStation station{
        std::string(from.ident), Format("%.6f", from.lat), Format("%.6f", from.lon), leg, at.lat, at.lon, {}};
    for (std::string& level : station.levels) level = Trimmed(CutAt(groups, "/"));
    return station;
}

// A METAR tells temperature and dew point as "12/06" or "M05/M12"; degrees Celsius.
std::optional<double> MetarTemperature(std::string_view metar) {
    constexpr std::string_view kDigits = "0123456789";
    for (std::string_view word = NextField(metar); !word.empty(); word = NextField(metar)) {
        const bool below_zero = word.starts_with('M');
        if (below_zero) word.remove_prefix(1);
        if (word.find_first_not_of(kDigits) != 2 || word[2] != '/') continue;
        const double temperature = ToNumber(word.substr(0, 2));
        return below_zero ? -temperature : temperature;
    }
    return {};
}

// "270,45": direction in three characters, the speed behind the comma. Nothing when the group tells no wind.
std::optional<WindLevel> ReadGroup(std::string_view group) {
    const std::size_t comma = group.find(',');
    if (comma == std::string_view::npos) return {};
    const WindLevel wind{0, ToNumber(group.substr(0, 3)), ToNumber(group.substr(comma + 1))};
    if (wind.dir < 0 || wind.dir > 360 || wind.spd <= 0 || wind.spd >= 360) return {};
    return wind;
}

void FillLevel(WindLevel& level, const WxStation& station) {
    std::size_t nearest = 0;
    for (std::size_t i = 1; i < std::size(kWxLevels); ++i)
        if (std::abs(kWxLevels[i] - level.alt) < std::abs(kWxLevels[nearest] - level.alt)) nearest = i;
    const auto wind = ReadGroup(station.levels[nearest]);
    if (!wind) return;
    level.dir = wind->dir;
    level.spd = wind->spd;
}

bool IsEmpty(std::span<const WindLevel> levels) {
    return NearestLevel(levels, 0) == nullptr;
}

// Hours since the snapshot was written, by the simulator's clock: 0 to 100000.
int SnapshotAgeHours() {
    constexpr double kSecondsToUnixTime = 719162.0 * 86400;  // from the first day of year 1
    constexpr double kMostHours = 100000;
    const ConfiguredFolder folder = FindConfiguredFolder(winds.ActiveSkyFolder);
    const auto written = LastWriteTime(folder.File(kSnapshot), folder.root);
    if (!written) return 0;
    const double seconds = sim.abs_time - kSecondsToUnixTime - static_cast<double>(*written);
    return static_cast<int>(std::clamp(std::floor(seconds / 3600), 0.0, kMostHours));
}

// The station that was chosen for the leg; null for a leg that came in since.
const WxStation* FindWxStation(const FlightPlanLeg& leg) {
    constexpr double kSamePlace = 1;  // nm; coded legs are computed anew
    for (int i = 1; i <= winds.wx_station_cnt; ++i) {
        const WxStation& station = winds.WxStations[i];
        if (GreatCircle(leg.lat, leg.lon, station.leg_lat, station.leg_lon).dist < kSamePlace)
            return &station;
    }
    return nullptr;
}

// The altitude of a level that nobody has given: the cruise altitude, as entered last.
int CruiseLevel() {
    const double entered = plan.mod.entries.cruise_alt;
    return static_cast<int>(entered > 0 ? entered : perf.cruise_alt);
}

// A forecast that is still empty: the configured altitudes, else the cruise altitude.
void BeginForecast(std::array<WindLevel, 4>& levels) {
    constexpr int kLowest = 1000;
    const int configured[] = {cfg.DescForecastAlt1, cfg.DescForecastAlt2, cfg.DescForecastAlt3,
                              cfg.DescForecastAlt4};
    for (std::size_t i = 0; i < levels.size(); ++i)
        if (configured[i] >= kLowest) levels[i].alt = configured[i];
    if (IsEmpty(levels)) levels[0].alt = CruiseLevel();
}

void SetTemperature(FlightPlanLeg& destination, double temperature) {
    destination.temp_alt = std::max(1, airports.dest_airport.elevation_ft);  // 0 would be none
    destination.temp = temperature;
}

}  // namespace

double LegWind(int prev_leg, int leg) {
    const FlightPlanLeg& from = FlightPlanLegAt(prev_leg);
    const double altitude = leg == plan.active.stpos ? sim.ind_alt_ft : from.alt;
    return AlongTrack(from.wind, altitude, LegBearing(prev_leg, leg));
}

double DescentWind(int leg) {
    const int prev_leg = std::max(0, PlaceBefore(plan.active.legs, leg));
    if (IsEmpty(winds.DescentForecast)) return LegWind(prev_leg, leg);
    return AlongTrack(winds.DescentForecast, FlightPlanLegAt(leg).alt, LegBearing(prev_leg, leg));
}

bool RequestRouteWinds() {
    auto files = ReadWeatherFiles();
    if (!files) return false;
    if (plan.mod.leg_cnt < 1) return true;
    files->stations = ReadStations(files->list);
    winds.WxStations = {};
    winds.wx_station_cnt = 0;
    for (int leg = 1; leg <= plan.mod.leg_cnt; ++leg) {
        const FlightPlanLeg& at = plan.mod.legs[leg];
        if (!IsPlace(at)) continue;
        if (const Station* station = NearestStation(files->stations, at.lat, at.lon))
            winds.WxStations[++winds.wx_station_cnt] =
                MakeWxStation(*station, leg, at, FindWeather(*files, station->ident).winds);
    }
    return true;
}

void ApplyRouteWinds(int side) {
    OpenModification();
    std::array<WindLevel, 4> altitudes = {};  // of the last leg that had some
    altitudes[0].alt = CruiseLevel();
    for (int i = 1; i <= plan.mod.leg_cnt; ++i) {
        FlightPlanLeg& leg = plan.mod.legs[i];
        const WxStation* station = IsPlace(leg) ? FindWxStation(leg) : nullptr;
        if (station == nullptr) continue;
        const bool is_new = IsEmpty(leg.wind);
        std::array<WindLevel, 4> levels = is_new ? altitudes : leg.wind;
        for (WindLevel& level : levels)
            if (level.alt > 0) FillLevel(level, *station);
        const bool told =
            std::any_of(levels.begin(), levels.end(), [](const WindLevel& w) { return w.spd > 0; });
        if (is_new && !told) continue;
        leg.wind = levels;
        for (std::size_t n = 0; n < levels.size(); ++n) altitudes[n] = {levels[n].alt, 0, 0};
    }
    constexpr int kOld = 7, kTooOld = 13;
    const int hours = SnapshotAgeHours();
    if (hours >= kOld)
        PostCduMessage(Format("WIND DATA IS %d HOURS OLD", hours),
                       hours >= kTooOld ? kRedAdvisory : kAmberAdvisory, kHelpWindsLoaded, side);
}

bool RequestDescentWinds() {
    auto files = ReadWeatherFiles();
    if (!files) return false;
    if (plan.active.leg_cnt < 1) return true;
    files->stations = ReadStations(files->list);
    FlightPlanLeg& destination = plan.active.legs[plan.active.leg_cnt];
    const Station* nearest = NearestStation(files->stations, destination.lat, destination.lon);
    if (nearest == nullptr) return true;
    const Weather weather = FindWeather(*files, nearest->ident);
    const WxStation station = MakeWxStation(*nearest, plan.active.leg_cnt, destination, weather.winds);
    if (IsEmpty(winds.DescentForecast)) BeginForecast(winds.DescentForecast);
    for (WindLevel& level : winds.DescentForecast)
        if (level.alt > 0) FillLevel(level, station);
    if (const auto temperature = MetarTemperature(weather.metar)) {
        SetTemperature(destination, *temperature);
        FlightPlanLeg& pending = plan.mod.legs[plan.mod.leg_cnt];  // else EXEC would take it back
        if (pending.ident == destination.ident) SetTemperature(pending, *temperature);
    }
    return true;
}

void StepWindUplink() {
    if (winds.wind_uplink_timer == 0 || --winds.wind_uplink_timer > 0) return;
    winds.wind_uplink_pending = 1;
    PostCduMessage("", kAdvisory, kHelpWindsReady, winds.wind_uplink_side);
}

void FindWeatherProgram() {
    winds.ActiveSkyFolder = AppDataFolder() + "\\Hifi\\AS_P3Dv4\\Weather";
    const std::string weather_module = RootFolder() + "\\as_srv\\as_connect_64.dll";
    winds.activesky_loaded = Host().is_library_loaded(weather_module.c_str());
}

void ChooseWeatherFolder() {
    if (!cfg.HiFiSnapshotDir.empty()) winds.ActiveSkyFolder = cfg.HiFiSnapshotDir;
}
