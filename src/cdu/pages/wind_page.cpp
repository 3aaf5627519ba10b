#include "cdu/pages/wind_page.h"

#include <algorithm>
#include <array>

#include "base/text.h"
#include "cdu/words/page.h"
#include "cdu/words/shown_plan.h"
#include "cdu/words/typed_values.h"
#include "fmc/legs/route_state.h"
#include "frame/crew_messages.h"
#include "state/cfg.h"
#include "state/leg_words.h"

namespace {

constexpr int kMinAltitude = 100, kMaxAltitude = 43100;
constexpr int kMinTemperature = -99, kTemperatureLimit = 60;
constexpr int kWindRows = 4;

using Winds = std::array<WindLevel, 4>;

/// ISA, with the tropopause at 36000 ft.
double StandardTemperature(double altitude_ft) {
    return 15 - std::min(altitude_ft, 36000.0) * 0.00198119994;
}

std::string AltitudeText(int altitude) {
    return altitude < cfg.TransAlt ? Format("%d", altitude) : Format("FL%d", altitude / 100);
}

// What the page shows, and what an entry changes once a modification is open.
const FlightPlanLeg& LegShown(const PageCall& call) {
    return ShownLeg(call.unit.wind_leg);
}
FlightPlanLeg& EditedLeg(const PageCall& call) {
    return plan.mod.legs[call.unit.wind_leg];
}

// Rows in the order of their altitudes, the empty ones last.
void SortWinds(Winds& winds) {
    std::stable_sort(winds.begin(), winds.end(), [](const WindLevel& a, const WindLevel& b) {
        return a.alt != 0 && (b.alt == 0 || a.alt < b.alt);
    });
}

int CountWinds(const Winds& winds) {
    return static_cast<int>(
        std::count_if(winds.begin(), winds.end(), [](const WindLevel& w) { return w.alt != 0; }));
}

bool IsFlightLevel(std::string_view text) {
    return text.starts_with("FL");
}

void StoreWinds(PageCall& call, const Winds& winds) {
    OpenModification();
    EditedLeg(call).wind = winds;
}

void OnAltitude(PageCall& call, int row) {
    Winds winds = LegShown(call).wind;
    WindLevel& level = winds[static_cast<std::size_t>(row - 1)];
    if (IsDelete(call)) {
        if (level.alt == 0) return RefuseDelete(call);
        level = {};
        SortWinds(winds);
        StoreWinds(call, winds);
        return call.unit.ScratchMessage.clear();
    }
    if (Entry(call).empty()) return;
    const std::string_view text = Entry(call);
    const double altitude = IsFlightLevel(text) ? LeadingInt(text.substr(2)) * 100.0 : LeadingInt(text);
    if (altitude < kMinAltitude || altitude > kMaxAltitude)
        return Refuse(call, "INVALID WIND ALTITUDE", kHelpWindAltitude);
    if (CountWinds(winds) == kWindRows) return Refuse(call, "INVALID ENTRY", kHelpFourWinds);
    winds[static_cast<std::size_t>(CountWinds(winds))] = {static_cast<int>(altitude), 0, 0};
    SortWinds(winds);
    StoreWinds(call, winds);
    ClearEntry(call);
}

void OnWind(PageCall& call, int row) {
    Winds winds = LegShown(call).wind;
    WindLevel& level = winds[static_cast<std::size_t>(row - 1)];
    if (IsDelete(call)) {
        if (level.alt == 0) return RefuseDelete(call);
        level.dir = level.spd = 0;
        StoreWinds(call, winds);
        return call.unit.ScratchMessage.clear();
    }
    if (Entry(call).empty()) return;
    const auto wind = ParseWind(Entry(call));
    if (level.alt == 0 || !wind) return Refuse(call, "INVALID WIND ENTRY", kHelpWindEntry);
    level.dir = wind->direction;
    level.spd = wind->speed;
    StoreWinds(call, winds);
    ClearEntry(call);
}

void OnTemperature(PageCall& call) {
    if (Entry(call).empty()) return;
    const auto parts = SplitAtSlash(Entry(call));
    if (!parts || !IsNumber(parts->second)) return Refuse(call, "INVALID ALT/OAT ENTRY", kHelpAltOat);
    const std::string_view altitude_text =
        IsFlightLevel(parts->first) ? parts->first.substr(2) : parts->first;
    double altitude = IsNumber(altitude_text) ? LeadingInt(altitude_text) : 0;
    if (altitude < 1000 && !altitude_text.starts_with('0')) altitude *= 100;  // "0800" is feet
    const double temperature = LeadingDouble(parts->second);
    if (altitude <= 0 || altitude > kMaxAltitude || temperature < kMinTemperature ||
        temperature >= kTemperatureLimit)
        return Refuse(call, "INVALID ALT/OAT ENTRY", kHelpAltOat);
    OpenModification();
    EditedLeg(call).temp_alt = static_cast<int>(altitude);
    EditedLeg(call).temp = temperature;
    ClearEntry(call);
}

void OnLastLine(PageCall& call) {
    if (call.line == kR6) return GoToPage(call.side, kPageRteData);
    if (!TakeErase(call)) GoToPage(call.side, kPageLegs);
}

void DrawWinds(PageCall& call, const FlightPlanLeg& leg) {
    const double deviation = leg.temp_alt > 0 ? leg.temp - StandardTemperature(leg.temp_alt) : 0;
    for (int row = 1; row <= kWindRows; ++row) {
        const WindLevel& level = leg.wind[static_cast<std::size_t>(row - 1)];
        MarkSelectable(call, kL1 + row - 1);
        if (level.alt == 0) {
            LeftData(call, row, "----");
            continue;
        }
        MarkSelectable(call, kR1 + row - 1);
        LeftData(call, row, AltitudeText(level.alt));
        PageText(call, 110, DataY(row),
                 Format("%.0f\xb0"
                        "c",
                        StandardTemperature(level.alt) + deviation));
        RightData(call, row, Format("%03.0f/%.0fKT", level.dir, level.spd));
    }
}

void DrawTemperature(PageCall& call, const FlightPlanLeg& leg) {
    RightLabel(call, 5, "ALT/OAT");
    RightData(call, 5,
              leg.temp_alt == 0 ? "----/---" : AltitudeText(leg.temp_alt) + Format("/%.0f", leg.temp));
    MarkSelectable(call, kR5);
}

}  // namespace

void WindPage(PageCall& call) {
    const int first = FirstShownLeg();
    const int count = std::max(1, ShownCount() - first + 1);
    int place = std::clamp(call.unit.wind_leg - first + 1, 1, count);
    // A discontinuity has no wind: the page goes on past it.
    const int step = call.unit.PrevPagePending == 1 ? count - 1 : 1;
    TurnPages(call, place, count);
    for (int tries = 0; tries < count && !IsPlace(ShownLeg(first + place - 1)); ++tries)
        place = (place - 1 + step) % count + 1;
    call.unit.wind_leg = first + place - 1;
    if (!IsPlace(LegShown(call)) && LineRow(call.line) != 6) call.line = 0;
    const int left = LeftLine(call.line), right = RightLine(call.line);
    if (LineRow(call.line) == 6)
        OnLastLine(call);
    else if (left >= 1 && left <= kWindRows)
        OnAltitude(call, left);
    else if (right >= 1 && right <= kWindRows)
        OnWind(call, right);
    else if (right == 5)
        OnTemperature(call);

    const FlightPlanLeg& leg = LegShown(call);
    Title(call, 105, leg.ident, call.unit.wind_leg == ShownActiveLeg() ? kMagenta : kWhite);
    // A long ident takes the place of the title's first letters, which moves on.
    const double behind_ident = 105 + 7.0 * (static_cast<double>(leg.ident.size()) + 0.5);
    Title(call, std::max(140.0, behind_ident), "WIND");
    PageText(call, 228, 23, Format("%d/%d", place, count), kWhite, kLabelSize);
    LeftLabel(call, 1, "ALT");
    PageText(call, 110, LabelY(1), "OAT", kCyan, kLabelSize);
    RightLabel(call, 1, "DIR/SPD");
    DrawWinds(call, leg);
    DrawTemperature(call, leg);
    DashLine(call);
    ErasePrompt(call, "<LEGS");
    RightData(call, 6, "RTE DATA>");
    MarkSelectable(call, kL6);
    MarkSelectable(call, kR6);
}
