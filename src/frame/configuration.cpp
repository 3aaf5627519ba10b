#include "frame/configuration.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <string>
#include <string_view>

#include "base/text.h"
#include "frame/fuel_loader.h"
#include "frame/tokens.h"
#include "paint/fonts.h"
#include "platform/files.h"
#include "platform/host.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/sim.h"
#include "state/variable_directory.h"

namespace {

constexpr std::string_view kConfigFile = "\\Velarion\\tz900.cfg";
constexpr std::string_view kFuelFile = "\\Velarion\\tz900_fuel.cfg";
constexpr std::size_t kMaxConfigBytes = 1 << 20;
constexpr std::size_t kMaxLine = 299;
constexpr std::size_t kMaxFontName = 20;
constexpr double kFileFeetPerNm = 6076;

struct KeyValue {
    std::string_view key, value;
};

// Takes lines off the text until one is a "key=value"; blanks round the key don't count.
bool NextKeyValue(std::string_view& rest, KeyValue& pair) {
    while (const auto line = NextLine(rest)) {
        const std::string_view text = line->substr(0, kMaxLine);
        const std::size_t equals = text.find('=');
        if (text.starts_with(';') || equals == std::string_view::npos) continue;
        pair = {Trimmed(text.substr(0, equals)), text.substr(equals + 1)};
        return true;
    }
    return false;
}

void StoreText(std::string_view text, int& value) {
    value = LeadingInt(text);
}
void StoreText(std::string_view text, double& value) {
    value = LeadingDouble(text);
}
void StoreText(std::string_view text, std::string& value) {
    value = text;
}
void StoreText(std::string_view text, std::array<int, 3>& colour) {
    for (int& channel : colour) {
        const std::size_t comma = std::min(text.find(','), text.size());
        channel = LeadingInt(text.substr(0, comma));
        text.remove_prefix(std::min(comma + 1, text.size()));
    }
}

void ApplyReadRule(const ConfigKey& key) {
    switch (key.read) {
        case ReadRule::kPlain:
            break;
        case ReadRule::kUpperCase: {
            std::string& text = cfg.*std::get<std::string ConfigState::*>(key.member);
            text = UpperCase(text);
            break;
        }
        case ReadRule::kFeetToNm:
            cfg.*std::get<double ConfigState::*>(key.member) /= kFileFeetPerNm;
            break;
        case ReadRule::kArmsPauseAtTod:
            cfg.ArmPauseAtTod = 1;
            break;
        case ReadRule::kArms1xAtTod:
            cfg.Arm1xAtTod = 1;
            break;
        case ReadRule::kPfcSwitch:
            if (cfg.PfcSwitch == 0 || cfg.PfcSwitch == 1) {
                cfg.pfc_switch_off = cfg.PfcSwitch == 0 ? 1 : 0;
                cfg.PfcSwitch = cfg.PfcSwitch == 0 ? 4 : 7;
            }
            break;
        case ReadRule::kWeatherFolder: {
            if (cfg.HiFiSnapshotDir.empty()) break;
            cfg.HiFiSnapshotDir += "\\Weather";
            const std::size_t doubled = cfg.HiFiSnapshotDir.find("Weather\\Weather");
            if (doubled != std::string::npos) cfg.HiFiSnapshotDir.erase(doubled, 8);
            break;
        }
        case ReadRule::kChartSource:
            cfg.chart_source = cfg.chart_source == 2 ? 2 : 1;
            break;
        case ReadRule::kHostVersion:
            cfg.simver = std::clamp(cfg.simver, 10, 11);
            break;
        case ReadRule::kPresence:
            cfg.*std::get<int ConfigState::*>(key.member) = 1;
            break;
        case ReadRule::kFontName:
            cfg.DuFont.resize(std::min(cfg.DuFont.size(), kMaxFontName));
            if (!IsFamily(cfg.DuFont))
                std::fprintf(stderr, "tz900: the screens have no font %s; %s stands in\n", cfg.DuFont.c_str(),
                             std::string(FamilyName(0)).c_str());
            break;
        case ReadRule::kDescentIas:
            plan.mod.entries.speeds.descent_ias = cfg.ClimbIas;
            break;
        case ReadRule::kCruiseIas:
            plan.mod.entries.speeds.cruise_ias = cfg.ClimbIas;
            break;
    }
}

template <class T>
bool MeetsWriteTest(WriteTest test, const T& value, const T& start_value) {
    switch (test) {
        case WriteTest::kNever:
            return false;
        case WriteTest::kIfChanged:
            return value != start_value;
        default:
            break;
    }
    if constexpr (std::is_arithmetic_v<T>) {
        switch (test) {
            case WriteTest::kIfZero:
                return value == 0;
            case WriteTest::kIfOne:
                return value == 1;
            case WriteTest::kIfPositive:
                return value > 0;
            case WriteTest::kIfAbove1:
                return value > 1;
            case WriteTest::kIfAbove999:
                return value > 999;
            default:
                return false;
        }
    } else if constexpr (std::is_same_v<T, std::string>) {
        return test == WriteTest::kIfC && value == "C";
    } else {
        return false;
    }
}

std::string FileForm(const ConfigKey&, int value) {
    return std::to_string(value);
}
std::string FileForm(const ConfigKey& key, double value) {
    if (key.read == ReadRule::kFeetToNm) {
        // To a thousandth of a foot: the way there and back must not show.
        constexpr double kSteps = 1000;
        return FormatNumber(std::round(value * kFileFeetPerNm * kSteps) / kSteps);
    }
    return FormatNumber(value);
}
std::string FileForm(const ConfigKey&, const std::string& value) {
    return value;
}
std::string FileForm(const ConfigKey&, const std::array<int, 3>& colour) {
    return std::to_string(colour[0]) + "," + std::to_string(colour[1]) + "," + std::to_string(colour[2]);
}

bool WriteFuelFile() {
    char text[200];
    std::snprintf(text, sizeof text,
                  "[Config]\nUnits=%d\n[fuel.0]\nLeftMain=%.0f\nRightMain=%.0f\nCenter=%.0f\n",
                  cfg.WeightUnit == "KGS" ? 1 : 0, sim.left_fuel, sim.right_fuel, sim.centre_fuel);
    return WriteFile(kFuelFile, text, FileRoot::kAppData);
}

void ApplyLines(std::string_view text) {
    KeyValue pair;
    while (NextKeyValue(text, pair)) {
        const auto same_name = [&](const ConfigKey& key) { return EqualIgnoringCase(key.name, pair.key); };
        const auto key = std::ranges::find_if(ConfigKeys(), same_name);
        if (key == ConfigKeys().end()) continue;
        std::visit([&](auto member) { StoreText(pair.value, cfg.*member); }, key->member);
        ApplyReadRule(*key);
    }
}

}  // namespace

void ReadConfig() {
    cfg.config_read = 1;
    if (const auto file = ReadFile(kConfigFile, FileRoot::kSimulator, kMaxConfigBytes))
        ApplyLines(file->Text());
    ApplyLines(Host().config_lines());
    cockpit.battery_button = cfg.Battery;
    cockpit.TZ_OH_PFC_G_Switch = cfg.PfcSwitch == kPfcDisconnected ? 1 : 0;
}

bool WriteConfig() {
    const ConfigState start;
    std::string text;
    for (const ConfigKey& key : ConfigKeys())
        std::visit(
            [&](auto member) {
                if (MeetsWriteTest(key.write, cfg.*member, start.*member))
                    text.append(key.name).append("=").append(FileForm(key, cfg.*member)).append("\n");
            },
            key.member);
    const bool config_written = WriteFile(kConfigFile, text);
    return WriteFuelFile() && config_written;
}

void LoadStoredFuel() {
    const auto file = ReadFile(kFuelFile, FileRoot::kAppData, kMaxConfigBytes);
    if (!file) return;
    int units = 0;
    double left_lb = 0, right_lb = 0, centre_lb = 0;
    std::string_view rest = file->Text();
    KeyValue pair;
    while (NextKeyValue(rest, pair)) {
        if (EqualIgnoringCase(pair.key, "Units")) units = LeadingInt(pair.value);
        if (EqualIgnoringCase(pair.key, "LeftMain")) left_lb = LeadingDouble(pair.value);
        if (EqualIgnoringCase(pair.key, "RightMain")) right_lb = LeadingDouble(pair.value);
        if (EqualIgnoringCase(pair.key, "Center")) centre_lb = LeadingDouble(pair.value);
    }
    if ((units == 1 && cfg.WeightUnit != "KGS") || (units == 2 && cfg.WeightUnit == "LBS")) {
        cfg.WeightUnit = units == 1 ? "KGS" : "LBS";
        WriteConfig();
    }
    if (left_lb > 0 || right_lb > 0 || centre_lb > 0) LoadFuel(left_lb, right_lb, centre_lb);
}

void LoadFuelAtStart() {
    if (cfg.LoadFuelonAircraftLoad == 1 && ReadToken(kTokenOnGround) != 0) LoadStoredFuel();
}
