#include "panels/panel_legs.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"

namespace {

using Leg = FlightPlanLeg;

struct Column {
    void (*read)(Leg& leg, std::string_view text);
    std::string (*write)(const Leg& leg);
};

double ReadLimited(std::string_view text, double limit) {
    const double value = LeadingDouble(text);
    return std::fabs(value) <= limit ? value : 0;
}

template <std::string Leg::*kField>
constexpr Column Words() {
    return {[](Leg& leg, std::string_view text) { leg.*kField = text; },
            [](const Leg& leg) { return leg.*kField; }};
}

template <double Leg::*kField, int kDecimals, int kLimit = 1'000'000>
constexpr Column Number() {
    return {[](Leg& leg, std::string_view text) { leg.*kField = ReadLimited(text, kLimit); },
            [](const Leg& leg) { return Format("%.*f", kDecimals, leg.*kField); }};
}

template <int Leg::*kField, int kMost>
constexpr Column Code() {
    return {[](Leg& leg, std::string_view text) {
                const int value = LeadingInt(text);
                leg.*kField = value >= 0 && value <= kMost ? value : 0;
            },
            [](const Leg& leg) { return Format("%d", leg.*kField); }};
}

template <std::size_t kLevel, auto kMember>
constexpr Column Wind() {
    return {[](Leg& leg, std::string_view text) {
                auto& field = leg.wind[kLevel].*kMember;
                field = static_cast<std::remove_reference_t<decltype(field)>>(ReadLimited(text, 1e6));
            },
            [](const Leg& leg) { return Format("%.0f", static_cast<double>(leg.wind[kLevel].*kMember)); }};
}

constexpr int kMostHoldPlace = 8, kMostFeet = 100'000;

constexpr Column kColumns[] = {
    Words<&Leg::ident>(),
    Number<&Leg::lat, 6, 90>(),
    Number<&Leg::lon, 6, 180>(),
    Words<&Leg::type>(),
    Words<&Leg::freq>(),
    Words<&Leg::via>(),
    Words<&Leg::via_type>(),
    Number<&Leg::alt, 0>(),
    Number<&Leg::alt_restr, 0>(),
    Number<&Leg::block_below, 0>(),
    Number<&Leg::block_above, 0>(),
    Code<&Leg::restr_code, 3>(),
    Number<&Leg::ias_restr, 0>(),
    Number<&Leg::mach_restr, 3>(),
    Number<&Leg::rad_int, 0, 360>(),
    Code<&Leg::flyover, 1>(),
    Code<&Leg::dep_turn, 2>(),
    Code<&Leg::hold_pos, kMostHoldPlace>(),
    Number<&Leg::step_alt, 0>(),
    Words<&Leg::rwy>(),
    Words<&Leg::appr_wpt_type>(),
    Words<&Leg::vector>(),
    Number<&Leg::until_alt, 0>(),
    Number<&Leg::from_hdg, 0, 360>(),
    Number<&Leg::anchor_lat, 5, 90>(),
    Number<&Leg::anchor_lon, 5, 180>(),
    Number<&Leg::vector_lat, 5, 90>(),
    Number<&Leg::vector_lon, 5, 180>(),
    Number<&Leg::vector_trk_lat, 5, 90>(),
    Number<&Leg::vector_trk_lon, 5, 180>(),
    Words<&Leg::ata>(),
    Wind<0, &WindLevel::alt>(),
    Wind<0, &WindLevel::dir>(),
    Wind<0, &WindLevel::spd>(),
    Wind<1, &WindLevel::alt>(),
    Wind<1, &WindLevel::dir>(),
    Wind<1, &WindLevel::spd>(),
    Wind<2, &WindLevel::alt>(),
    Wind<2, &WindLevel::dir>(),
    Wind<2, &WindLevel::spd>(),
    Wind<3, &WindLevel::alt>(),
    Wind<3, &WindLevel::dir>(),
    Wind<3, &WindLevel::spd>(),
    Number<&Leg::along_wind, 0>(),
    Code<&Leg::temp_alt, kMostFeet>(),
    Number<&Leg::temp, 0>(),
    Code<&Leg::restr_type, 3>(),  // readers that count fields don't know it
};

}  // namespace

std::string PanelLegText(const FlightPlanLeg& leg) {
    std::string text;
    for (const Column& column : kColumns) {
        if (&column != kColumns) text += ',';
        text += column.write(leg);
    }
    return text;
}

FlightPlanLeg PanelLegOf(std::string_view text) {
    FlightPlanLeg leg;
    for (const Column& column : kColumns) {
        const std::size_t end = text.find(',');
        column.read(leg, text.substr(0, end));
        if (end == std::string_view::npos) break;
        text.remove_prefix(end + 1);
    }
    return leg;
}
