#include "frame/aircraft.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>
#include <string_view>

#include "base/text.h"
#include "platform/files.h"
#include "platform/host.h"
#include "state/cfg.h"
#include "state/identity.h"
#include "state/perf.h"
#include "state/sim.h"
#include "state/takeoff_approach.h"
#include "state/weights.h"

namespace {

constexpr int kMaxAirframes = 8000;
constexpr std::size_t kMaxAircraftCfgLine = 500;
constexpr std::size_t kMaxCfgBytes = 4 << 20;
constexpr int kAircraftStations = 20;

constexpr FlapSpeedRow kFlapSpeeds[] = {
    {500000, 245, 226, 205, 178, 173, 169, 165}, {480000, 242, 222, 202, 177, 172, 165, 162},
    {460000, 238, 218, 198, 176, 171, 161, 158}, {440000, 235, 214, 195, 175, 169, 158, 155},
    {420000, 231, 209, 191, 171, 166, 154, 151}, {400000, 227, 204, 185, 167, 162, 150, 147},
    {380000, 223, 199, 183, 163, 158, 146, 143}, {360000, 221, 196, 181, 161, 156, 144, 140},
    {340000, 217, 192, 177, 157, 152, 139, 136}, {320000, 213, 188, 173, 153, 148, 135, 132},
    {300000, 209, 184, 169, 149, 144, 131, 128}, {280000, 205, 180, 165, 145, 140, 126, 124},
    {260000, 201, 176, 161, 141, 136, 124, 120}, {240000, 200, 175, 160, 140, 135, 124, 119},
};

// One [fltsim.N] section of an Aircraft.cfg, folded to lower case.
struct AirframeSection {
    std::string title, sim, model, panel, parking_codes;
};

// Stores "key=value" into the section if it is one of its keys.
void StoreLine(std::string_view line, AirframeSection& section) {
    struct Key {
        std::string_view name;
        std::string AirframeSection::*value;
    };
    constexpr Key kKeys[] = {{"title", &AirframeSection::title},
                             {"sim", &AirframeSection::sim},
                             {"model", &AirframeSection::model},
                             {"panel", &AirframeSection::panel},
                             {"atc_parking_codes", &AirframeSection::parking_codes}};
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) return;
    const std::string_view name = Trimmed(line.substr(0, equals));
    const auto* key = std::ranges::find(kKeys, name, &Key::name);
    if (key != std::end(kKeys)) section.*key->value = Trimmed(line.substr(equals + 1));
}

// Finds the section with the aircraft's title; false when the file has none.
bool FindTitle(std::string_view text, AirframeSection& section) {
    bool in_airframe = false;
    while (const auto next = NextLine(text)) {
        const std::string line = LowerCase(Trimmed(next->substr(0, kMaxAircraftCfgLine)));
        if (line.starts_with('[')) {
            if (in_airframe && section.title == identity.aircraft) return true;
            in_airframe = line.starts_with("[fltsim.");
            section = {};
        } else if (in_airframe) {
            StoreLine(line, section);
        }
    }
    return in_airframe && section.title == identity.aircraft;
}

void TakeIdentity(const AirframeSection& section) {
    identity.airline_code = UpperCase(section.parking_codes);
    const std::string voices = "\\Velarion\\TZ900\\Sounds\\TZPAS\\" + identity.airline_code;
    if (!identity.airline_code.empty() && FolderExists(voices))
        identity.airline_voice_folder = identity.airline_code;
    identity.panel_hires = section.panel == "hires" ? 1 : 0;
    for (const char* model : {"900-8", "900-9", "900-10"}) {
        if (section.sim.find(model) == std::string::npos) continue;
        identity.aircraft_model = model;
        identity.aircraft_sim_name = std::string("TZ") + model;
        break;
    }
    if (section.model == "rr") identity.engine_model = "TRENT 1000";
    if (section.model == "ge")
        identity.engine_model = identity.aircraft_model == "900-10"  ? "GENX-1B76"
                                : identity.aircraft_model == "900-9" ? "GENX-1B70"
                                                                     : "GENX-1B67";
}

double SumOfPayloadStations() {
    double sum = 0;
    for (int station = 1; station <= kAircraftStations; ++station) {
        char expression[64];
        std::snprintf(expression, sizeof expression, "(A:Payload Station Weight:%d,pounds)", station);
        const double weight = EvalCalc(expression);
        weights.payload_stations[static_cast<std::size_t>(station)] = weight;
        sum += weight;
    }
    return sum;
}

}  // namespace

void DetectHost() {
    constexpr int kOlderHostFiles = 3;
    constexpr std::string_view kOlderHost[] = {"fsx.exe", "ace.exe", "simobjects", "Missions"};
    int older = 0;
    bool newer = false;
    for (const FolderEntry& entry : ListFolder("\\")) {
        for (const std::string_view name : kOlderHost) older += EqualIgnoringCase(entry.name, name) ? 1 : 0;
        newer = newer || EqualIgnoringCase(entry.name, "Prepar3D.exe");
    }
    if (older >= kOlderHostFiles) cfg.simver = 10;
    if (newer) cfg.simver = 11;
    // A root that looks like neither is taken for the older generation.
    cfg.simver = std::clamp(cfg.simver, 10, 11);
}

void ReadAircraftTitle() {
    const std::string title = LowerCase(EvalCalcText("(A:TITLE,string)"));
    // Another aircraft of the family has been loaded: what is known of the last one no longer holds.
    if (!title.empty() && title != identity.aircraft) {
        const int attempts = identity.identify_attempts;
        identity = {};
        identity.aircraft = title;
        identity.identify_attempts = attempts;
    }
    const std::string registration = EvalCalcText("(A:ATC ID,string)");
    if (!registration.empty()) identity.registration = registration;
}

bool ScanAircraftCfg() {
    if (identity.aircraft.empty() || identity.title_unknown == 1) return false;
    const std::string folder = cfg.simver == 9 ? "\\Aircraft\\" : "\\SimObjects\\Airplanes\\";
    int airframes = 0;
    for (const FolderEntry& entry : ListFolder(folder)) {
        if (!entry.is_folder) continue;
        if (++airframes > kMaxAirframes) break;
        const auto file =
            ReadFile(folder + entry.name + "\\Aircraft.cfg", FileRoot::kSimulator, kMaxCfgBytes);
        AirframeSection section;
        if (!file || !FindTitle(file->Text(), section)) continue;
        TakeIdentity(section);
        identity.aircraft_identified = 1;
        return true;
    }
    identity.title_unknown = 1;
    return false;
}

void LoadAircraft() {
    std::ranges::copy(kFlapSpeeds, weights.flap_speeds.begin() + 1);
    if (weights.zfw == 0 && cfg.CduAutoCalcZfw == 0)
        weights.zfw = EvalCalc("(A:EMPTY WEIGHT,pounds)") + SumOfPayloadStations();
}

double ZeroFuelWeight() {
    return perf.ZfwEntry > 0 ? perf.ZfwEntry : weights.zfw;
}

void UpdateWeights() {
    sim.payload_weight = SumOfPayloadStations();
    if (perf.ZfwEntry == 0 && cfg.calcpayload == 1)
        weights.zfw = EvalCalc("(A:EMPTY WEIGHT,pounds)") + sim.payload_weight;
    weights.gross_weight = sim.total_fuel + perf.FuelEntry + ZeroFuelWeight();
}

void UpdateFlapSpeedRow() {
    constexpr double kLeastLoss = 1000;
    const double weight = sim.total_fuel + sim.payload_weight + ZeroFuelWeight();
    if (weights.flap_speed_ref_weight - weight < kLeastLoss) return;
    const auto* nearest =
        std::ranges::min_element(weights.flap_speeds.begin() + 1, weights.flap_speeds.end(), {},
                                 [&](const FlapSpeedRow& row) { return std::fabs(row.weight - weight); });
    weights.flap_speed_row = static_cast<int>(nearest - weights.flap_speeds.begin());
    weights.flap_speed_ref_weight = weight;
}

void IdentifyLateAircraft() {
    constexpr int kMaxAttempts = 10;
    if (identity.aircraft_identified == 1 || identity.identify_attempts >= kMaxAttempts) return;
    ++identity.identify_attempts;
    ReadAircraftTitle();
    ScanAircraftCfg();
}

void ChooseTakeoffFlaps() {
    if (identity.aircraft_model == "900-9" || identity.aircraft_model == "900-10")
        takeoff_approach.takeoff_flap_list = ",5,10,15,17,18,20,";
}
