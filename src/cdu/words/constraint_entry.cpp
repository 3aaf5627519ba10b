#include "cdu/words/constraint_entry.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>

#include "base/text.h"
#include "state/leg_words.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/vnav.h"

namespace {

constexpr int kMaxEntered = 99000, kMaxAltitude = 50000;
constexpr int kMinSpeed = 100, kMaxSpeed = 400;
constexpr int kCrewEntered = 2;  // mod_flag

struct Token {
    std::string_view digits;
    char suffix = 0;  // 'A', 'B' or none
};

struct Tokens {
    std::array<Token, 3> list = {};
    int count = 0;
    bool good = true;
    bool speed_first = false;  // a slash stands behind the first token
};

// Numbers with a suffix each; "/", "F", "L" and blanks part them, and so does a suffix.
Tokens Split(std::string_view text) {
    Tokens tokens;
    std::size_t at = 0;
    while (at < text.size()) {
        const char c = text[at];
        if (c == '/' && tokens.count == 1) tokens.speed_first = true;
        if (c == '/' || c == 'F' || c == 'L' || c == ' ') {
            ++at;
            continue;
        }
        std::size_t end = at;
        while (end < text.size() && IsDigit(text[end])) ++end;
        if (end == at || tokens.count == 3) return {.good = false};
        Token& token = tokens.list[static_cast<std::size_t>(tokens.count++)];
        token.digits = text.substr(at, end - at);
        if (end < text.size() && (text[end] == 'A' || text[end] == 'B')) token.suffix = text[end++];
        at = end;
    }
    return tokens;
}

int NumberOf(std::string_view digits) {
    int value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return error == std::errc() ? value : -1;
}

// Feet; 0 for what is no altitude.
int AltitudeOf(const Token& token, bool flight_level) {
    int value = NumberOf(token.digits);
    if (value <= 0 || value > kMaxEntered) return 0;
    if (value < 1000 && (flight_level || token.digits.front() != '0')) value *= 100;
    return value <= kMaxAltitude ? value : 0;
}

bool IsWindow(const Token& a, const Token& b) {
    return a.suffix != 0 && b.suffix != 0 && a.suffix != b.suffix;
}

bool TakeSpeed(const Token& token, ConstraintEntry& entry) {
    const int speed = NumberOf(token.digits);
    if (token.suffix != 0 || speed < kMinSpeed || speed > kMaxSpeed) return false;
    entry.speed = speed;
    return true;
}

bool TakeAltitude(const Token& token, bool flight_level, ConstraintEntry& entry) {
    entry.alt = AltitudeOf(token, flight_level);
    entry.alt_type = token.suffix == 'A' ? 1 : token.suffix == 'B' ? 2 : 0;
    return entry.alt > 0;
}

bool TakeWindow(const Token& a, const Token& b, bool flight_level, ConstraintEntry& entry) {
    const int first = AltitudeOf(a, flight_level), second = AltitudeOf(b, flight_level);
    if (first == 0 || second == 0) return false;
    entry.alt_type = 3;
    entry.above = std::min(first, second);
    entry.below = std::max(first, second);
    return true;
}

bool IsOnDescent(int leg) {
    const FlightPlanLeg& at = plan.mod.legs[leg];
    const bool of_arrival = at.via_type == kStarViaType || at.via_type == kApproachViaType;
    return of_arrival || (vnav.tod_stpos > 0 && leg >= vnav.tod_stpos);
}

// A speed without its bit is a prediction.
void SetCode(FlightPlanLeg& leg, bool speed_entered) {
    const bool altitude = leg.alt_restr > 0 || leg.restr_type == kBetween;
    const bool speed = speed_entered || HasSpeedRestr(leg);
    leg.restr_code = (altitude ? kAltitudeRestr : kFree) | (speed ? kSpeedRestr : kFree);
}

// Legs behind that carried the leg's old altitude follow it, until one differs.
void Propagate(int leg, double old_altitude) {
    const double altitude = plan.mod.legs[leg].alt_restr;
    if (old_altitude <= 0 || altitude >= perf.cruise_alt || !IsOnDescent(leg)) return;
    for (int i = leg + 1; i < plan.mod.leg_cnt; ++i) {
        FlightPlanLeg& next = plan.mod.legs[i];
        if (!HasAltitudeRestr(next) || next.restr_type == kBetween || next.alt_restr != old_altitude) return;
        next.alt_restr = altitude;
        next.mod_flag = kCrewEntered;
    }
}

}  // namespace

std::optional<ConstraintEntry> ParseConstraint(std::string_view text) {
    const Tokens tokens = Split(text);
    if (!tokens.good || tokens.count == 0) return {};
    const bool flight_level = text.find('L') != std::string_view::npos;
    const auto& [first, second, third] = tokens.list;
    ConstraintEntry entry;
    bool good = false;
    if (tokens.count == 3)
        good = IsWindow(second, third) && TakeSpeed(first, entry) &&
               TakeWindow(second, third, flight_level, entry);
    else if (tokens.count == 2 && IsWindow(first, second))
        good = TakeWindow(first, second, flight_level, entry);
    else if (tokens.count == 2)
        good = TakeSpeed(first, entry) && TakeAltitude(second, flight_level, entry);
    else
        good = tokens.speed_first ? TakeSpeed(first, entry) : TakeAltitude(first, flight_level, entry);
    if (!good) return {};
    return entry;
}

void StoreConstraint(int leg, const ConstraintEntry& entry) {
    FlightPlanLeg& at = plan.mod.legs[leg];
    const double old_altitude = HasAltitudeRestr(at) && at.restr_type != kBetween ? at.alt_restr : 0;
    if (entry.speed > 0) at.ias_restr = entry.speed;
    if (entry.alt_type == kBetween) {
        at.alt_restr = 0;
        at.block_above = entry.above;
        at.block_below = entry.below;
        at.restr_type = kBetween;
    } else if (entry.alt > 0) {
        at.alt_restr = entry.alt;
        at.block_above = at.block_below = kNone;
        at.restr_type = entry.alt_type;
        if (perf.cruise_alt > 0 && entry.alt > perf.cruise_alt) {
            perf.fms_step_to_alt = perf.entered_step_to_alt = entry.alt;
            perf.fms_step_size = 0;
        }
        if (entry.alt_type != kAtOrBelow) Propagate(leg, old_altitude);
    }
    SetCode(at, entry.speed > 0);
    at.mod_flag = kCrewEntered;
}

bool RemoveConstraint(int leg) {
    FlightPlanLeg& at = plan.mod.legs[leg];
    if (at.restr_code == kFree) return false;
    at.alt_restr = at.block_above = at.block_below = at.ias_restr = at.mach_restr = kNone;
    at.restr_code = kFree;
    at.restr_type = kAt;
    at.mod_flag = kCrewEntered;
    return true;
}
