#include "cdu/pages/descent_forecast_page.h"

#include "base/text.h"
#include "cdu/words/constraint_text.h"
#include "cdu/words/page.h"
#include "cdu/words/perf_lines.h"
#include "cdu/words/typed_values.h"
#include "fmc/performance/winds.h"
#include "frame/crew_messages.h"
#include "state/cfg.h"
#include "state/leg_words.h"
#include "state/winds.h"

namespace {

constexpr int kLowest = 1000, kHighest = 43100;
constexpr int kLastRow = 5;

WindLevel& LevelOfRow(int row) {
    return winds.DescentForecast[static_cast<std::size_t>(row - 2)];
}

// The row's altitude in the configuration: it stays from flight to flight.
int& ConfiguredLevel(int row) {
    int* const levels[] = {&cfg.DescForecastAlt1, &cfg.DescForecastAlt2, &cfg.DescForecastAlt3,
                           &cfg.DescForecastAlt4};
    return *levels[row - 2];
}

void TakeConfiguredLevels() {
    for (int row = 2; row <= kLastRow; ++row)
        if (LevelOfRow(row).alt == 0 && ConfiguredLevel(row) >= kLowest)
            LevelOfRow(row).alt = ConfiguredLevel(row);
}

// Three digits are hundreds of feet; nothing outside the range.
std::optional<int> TypedLevel(std::string_view text) {
    constexpr std::size_t kHundreds = 3;
    const bool level = text.starts_with("FL");
    if (level) text.remove_prefix(2);
    const int scale = level || text.size() == kHundreds ? 100 : 1;
    const auto value = TypedInteger(text, 0, kHighest);
    if (!value || *value * scale < kLowest || *value * scale > kHighest) return {};
    return *value * scale;
}

void EnterLevel(PageCall& call, int& altitude, int help_id) {
    if (IsDelete(call)) {
        altitude = 0;
        return call.unit.ScratchMessage.clear();
    }
    if (Entry(call).empty()) return;
    const auto typed = TypedLevel(Entry(call));
    if (!typed) return Refuse(call, "INVALID ENTRY", help_id);
    altitude = *typed;
    ClearEntry(call);
}

void OnAltitude(PageCall& call, int row) {
    EnterLevel(call, LevelOfRow(row).alt, kHelpWindAltitude);
    if (LevelOfRow(row).alt == 0) LevelOfRow(row) = {};
    ConfiguredLevel(row) = LevelOfRow(row).alt;
    RefreshProfile();
}

void OnWind(PageCall& call, int row) {
    WindLevel& level = LevelOfRow(row);
    if (IsDelete(call)) {
        level.dir = level.spd = 0;
        call.unit.ScratchMessage.clear();
        return RefreshProfile();
    }
    if (Entry(call).empty()) return;
    const auto wind = ParseWind(Entry(call));
    if (!wind || level.alt == 0) return Refuse(call, "INVALID WIND ENTRY", kHelpWindEntry);
    level.dir = wind->direction;
    level.spd = wind->speed;
    ClearEntry(call);
    RefreshProfile();
}

void RequestWinds(PageCall& call) {
    if (!IsRouteActive()) return;
    if (!RequestDescentWinds()) return Refuse(call, "INVALID WIND DATA UPLINK", kHelpWeatherMissing);
    RefreshProfile();
}

void OnLine(PageCall& call) {
    if (call.line == 0) return;
    if (call.line == kL1) return EnterLevel(call, winds.TransLvl, kHelpTransitionLevel);
    if (call.line == kR1) return EnterLevel(call, winds.AntiIceAlt, kHelpAntiIce);
    if (call.line == kL6) return RequestWinds(call);
    if (call.line == kR6) {
        call.unit.fms_vnav_page = kVnavDesPage;
        return GoToPage(call.side, kPageVnav);
    }
    LeftLine(call.line) > 0 ? OnAltitude(call, LineRow(call.line)) : OnWind(call, LineRow(call.line));
}

void DrawRow(PageCall& call, int row) {
    const WindLevel& level = LevelOfRow(row);
    MarkSelectable(call, kL1 + row - 1);
    if (level.alt == 0) {
        LeftData(call, row, "-----");
        return RightData(call, row, "---/---KT");
    }
    MarkSelectable(call, kR1 + row - 1);
    LeftData(call, row, level.alt > cfg.TransAlt ? Format("FL%d", level.alt / 100) : Format("%d", level.alt));
    RightData(call, row, Format("%03.0f/%.0fKT", level.dir, level.spd));
}

}  // namespace

void DescentForecastPage(PageCall& call) {
    TakeConfiguredLevels();
    OnLine(call);

    Title(call, 88, "DESCENT FORECAST");
    LeftLabel(call, 1, "TRANS LVL");
    LeftData(call, 1, Format("FL%03d", (winds.TransLvl > 0 ? winds.TransLvl : cfg.TransAlt) / 100));
    RightLabel(call, 1, "TAI/ON ALT");
    RightData(call, 1, winds.AntiIceAlt > 0 ? Format("%d", winds.AntiIceAlt) : "-----");
    LeftLabel(call, 2, "ALT");
    RightLabel(call, 2, "WIND DIR/SPD");
    for (int row = 2; row <= kLastRow; ++row) DrawRow(call, row);
    PreflightLine(call);
    LeftData(call, 6, "<REQUEST");
    RightData(call, 6, "DES>");
    for (const int line : {kL1, kR1, kR6}) MarkSelectable(call, line);
    if (IsRouteActive()) MarkSelectable(call, kL6);
}
