#include "fmc/route/route_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <tuple>
#include <vector>

#include "base/text_fields.h"
#include "fmc/legs/find_leg.h"
#include "fmc/legs/insert_fix.h"
#include "fmc/legs/route_airway.h"
#include "fmc/legs/route_rows.h"
#include "fmc/legs/route_state.h"
#include "fmc/procedures/end_airports.h"
#include "fmc/procedures/select_procedures.h"
#include "fmc/route/endpoints.h"
#include "fmc/route/execute_route.h"
#include "navdata/airways.h"
#include "navdata/geodesy.h"
#include "navdata/parse_entry.h"
#include "state/airports.h"
#include "state/leg_words.h"
#include "state/lnav.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/procedure_lists.h"
#include "state/side.h"
#include "state/vnav.h"

namespace {

constexpr double kSamePlace = 5;  // nm; navaids and airways may be surveyed apart

struct RouteWords {
    std::vector<std::string> text;  // the ends included, speeds and levels taken off
    std::vector<int> number;        // place of each in the text, from 1, for what is told
    double cruise_alt = 0;          // ft, from the first level; 0 = none
};

std::string Told(const RouteWords& words, std::size_t i, std::string_view what) {
    std::string told = "word ";
    told.append(std::to_string(words.number[i])).append(" \"").append(words.text[i]).append("\": ");
    return told.append(what);
}

// Takes a letter of `letters` and the digits behind it off the front; -1 when they aren't there.
int TakeLetterAndNumber(std::string_view& text, std::string_view letters, std::size_t least,
                        std::size_t most) {
    if (text.empty() || letters.find(text[0]) == std::string_view::npos) return -1;
    std::size_t end = 1;
    while (end < text.size() && IsDigit(text[end])) ++end;
    if (end - 1 < least || end - 1 > most) return -1;
    int number = 0;
    std::from_chars(text.data() + 1, text.data() + end, number);
    text.remove_prefix(end);
    return number;
}

// The altitude (ft) of a filed speed and level, "N0480F350"; -1 for any other text.
double FiledLevel(std::string_view text) {
    if (TakeLetterAndNumber(text, "NKM", 3, 4) < 0) return -1;
    constexpr double kFeetPerTenMetres = 32.8084;
    const char unit = text.empty() ? ' ' : text[0];
    const int level = TakeLetterAndNumber(text, "FASM", 3, 4);
    if (level < 0 || !text.empty()) return -1;
    if (unit == 'F' || unit == 'A') return level * 100.0;
    return std::round(level * kFeetPerTenMetres / 100) * 100;
}

RouteWords SplitRoute(std::string_view text) {
    RouteWords words;
    int number = 0;
    while (true) {
        std::string word = UpperCase(NextField(text));
        if (word.empty()) return words;
        ++number;
        const std::size_t slash = word.find('/');
        const std::size_t level_at = slash == std::string::npos ? 0 : slash + 1;
        if (const double level = FiledLevel(std::string_view(word).substr(level_at)); level >= 0) {
            if (words.cruise_alt == 0) words.cruise_alt = level;
            word.erase(slash == std::string::npos ? 0 : slash);
            if (word.empty()) continue;
        }
        words.text.push_back(std::move(word));
        words.number.push_back(number);
    }
}

// "KSEA/16L" and "KSEA/RW16L" in airport and runway; behind the destination an approach may stand for the
// runway, "KLAX/ILS24R".
struct EndWord {
    std::string_view airport, runway;
};
EndWord SplitEnd(std::string_view word) {
    const std::size_t slash = word.find('/');
    if (slash == std::string_view::npos) return {word, {}};
    std::string_view runway = word.substr(slash + 1);
    if (runway.starts_with("RW")) runway.remove_prefix(2);
    return {word.substr(0, slash), runway};
}

bool EnterEnds(const RouteWords& words, std::string& error) {
    const std::size_t last = words.text.size() - 1;
    const EndWord origin = SplitEnd(words.text[0]), dest = SplitEnd(words.text[last]);
    const auto wrong = [&](std::size_t i, std::string_view what) {
        error = Told(words, i, what);
        return false;
    };
    if (EnterOrigin(origin.airport) == 0) return wrong(0, "no such airport");
    if (!origin.runway.empty() && SelectOriginRunway(origin.runway) == 0)
        return wrong(0, "the airport has no such runway");
    if (EnterDestination(dest.airport) == 0) return wrong(last, "no such airport");
    if (!dest.runway.empty() && SelectDestinationRunway(dest.runway) == 0 && !HasApproach(dest.runway))
        return wrong(last, "the airport has no such runway");
    return true;
}

bool IsAirway(const std::string& word) {
    return LoadAirway(word, "") > 0;
}

// The last fix entered so far, the origin at first.
int LastFix() {
    return std::max(PlaceBefore(plan.mod.legs, plan.mod.leg_cnt), 0);
}

double DistanceFrom(const LatLon& point, const NavRecord& record) {
    return GreatCircle(point.lat, point.lon, record.lat, record.lon).dist;
}

int NearestCandidate(const LatLon& point) {
    int best = 1;
    for (int i = 2; i <= nav.entry_cnt; ++i)
        if (DistanceFrom(point, nav.EntryCandidates[i]) < DistanceFrom(point, nav.EntryCandidates[best]))
            best = i;
    return best;
}

// ABC090025, as flight plans are filed, for ABC090/25.
bool ParseFiledEntry(const std::string& word) {
    constexpr std::size_t kDigits = 6, kDistanceDigits = 3;
    ParseEntry(word);
    if (nav.entry_cnt > 0) return true;
    if (word.size() < kDigits + 2 || word.size() > kDigits + 5) return false;
    if (!std::all_of(word.end() - kDigits, word.end(), IsDigit)) return false;
    std::string entry = word;
    entry.insert(entry.size() - kDistanceDigits, "/");
    ParseEntry(entry);
    return nav.entry_cnt > 0;
}

std::string_view WhyNoFix(const std::string& word, bool is_first, bool is_last) {
    if (IsAirway(word))
        return is_last ? "the airway needs a fix where it is left"
                       : "the airway needs a fix where it is joined";
    if (is_first) return "no such fix, airway or departure";
    return is_last ? "no such fix, airway or arrival" : "no such fix or airway";
}

// The fix where an airway is joined that stands behind it: its place is that on the airway.
bool LoadJoinedAirway(const RouteWords& words, std::size_t i, const LatLon& from) {
    const std::size_t last = words.text.size() - 1;
    if (i + 1 >= last || !IsAirway(words.text[i + 1])) return false;
    const std::string& airway = words.text[i + 1];
    const std::string_view towards = i + 2 < last ? std::string_view(words.text[i + 2]) : std::string_view();
    const int run = ChooseAirwayRun(airway, {words.text[i], from}, towards);
    return run > 0 && LoadAirway(airway, words.text[i], run) > 0;
}

bool EnterFix(const RouteWords& words, std::size_t i, std::string& error) {
    const std::string& word = words.text[i];
    const FlightPlanLeg& before = plan.mod.legs[LastFix()];
    const LatLon from{before.lat, before.lon};
    LatLon place = from;
    const bool joins_airway = LoadJoinedAirway(words, i, from);
    if (joins_airway) {
        const NavRecord& record = nav.EntryCandidates[nav.entry_list_pos];
        place = {record.lat, record.lon};
    }
    if (ParseFiledEntry(word)) {
        const int nearest = NearestCandidate(place);
        if (!joins_airway || DistanceFrom(place, nav.EntryCandidates[nearest]) < kSamePlace) {
            InsertDirectRow(nearest, 0);
            return true;
        }
    }
    if (joins_airway && LoadJoinedAirway(words, i, from)) {  // a fix that stands in the airway's file only
        InsertDirectRow(nav.entry_list_pos, 0);
        return true;
    }
    error = Told(words, i, WhyNoFix(word, i == 1, i + 1 == words.text.size() - 1));
    return false;
}

// The place on AirwayFixList where a second airway is joined, 0 when the two don't meet. Where they share
// more than one fix, the last of those that make the way short: FindAirwayCrossing gives the last of all,
// which may lie beyond the turn-off.
int FindTurnOff(const std::string& second, const std::string& end) {
    int best = 0, best_legs = 0;
    for (int run = 1; LoadAirway(second, end, run) > 0; ++run) {
        for (int i = 1; i <= plan.awy_list_cnt; ++i) {
            const FlightPlanLeg& fix = plan.AirwayFixList[i];
            for (int j = 1; j <= nav.entry_cnt; ++j) {
                const NavRecord& other = nav.EntryCandidates[j];
                if (i == plan.awy_start_pos || fix.ident != other.ident) continue;
                if (DistanceFrom({fix.lat, fix.lon}, other) > kSamePlace) continue;  // a namesake elsewhere
                const int on_second = nav.entry_list_pos > 0 ? std::abs(j - nav.entry_list_pos) : 0;
                const int legs = std::abs(i - plan.awy_start_pos) + on_second;
                if (best != 0 && legs > best_legs) continue;
                best = i;
                best_legs = legs;
            }
        }
    }
    return best;
}

void EnterSegment(const std::string& airway, int end) {
    InsertAirwayPlaceholder(plan.awy_start_leg + 1, airway);
    InsertAirwaySegment(end);
}

// Enters the airway at word i as far as the next word tells; `i` moves on to a fix that has been used up.
bool EnterAirway(const RouteWords& words, std::size_t& i, std::string& error) {
    const std::string& airway = words.text[i];
    const std::size_t last = words.text.size() - 1;
    const int start = LastFix();
    const std::string start_ident = plan.mod.legs[start].ident;
    const auto wrong = [&](std::size_t at, std::string what, std::string_view name = {}) {
        error = Told(words, at, what.append(name));
        return false;
    };
    const std::string& next = words.text[i + 1];
    LoadAirwayTowards(airway, start, next);
    if (plan.awy_list_cnt == 0) return wrong(i, "the airway doesn't hold ", start_ident);
    if (const int end = FindFixOnAirway(next); end > 0) {
        if (end == plan.awy_start_pos) return wrong(i + 1, "the airway is joined at the same fix");
        EnterSegment(airway, end);
        ++i;
        return true;
    }
    if (IsAirway(next)) {
        const int end =
            next == airway ? 0 : FindTurnOff(next, i + 2 < last ? words.text[i + 2] : std::string());
        if (end == 0) return wrong(i + 1, "the airway doesn't cross ", airway);
        EnterSegment(airway, end);
        return true;
    }
    return wrong(i + 1,
                 ParseFiledEntry(next) ? "the fix isn't on airway " + airway : "no such fix or airway");
}

// A procedure's name with an optional transition, "ALDER1.DMAAB".
struct ProcedureWord {
    std::string_view name, transition;
};
ProcedureWord SplitProcedure(std::string_view word) {
    const std::size_t point = word.find('.');
    if (point == std::string_view::npos) return {word, {}};
    return {word.substr(0, point), word.substr(point + 1)};
}

// The departure at word 1, where one stands, with the fix behind it that is its transition or its end. Gives
// the number of words used up.
std::size_t EnterDeparture(const RouteWords& words) {
    const ProcedureWord word = SplitProcedure(words.text[1]);
    if (!SelectSidByName(word.name)) return 0;
    if (SelectDepartureTransitionByName(word.transition)) return 1;
    const std::string& next = words.text[2];
    const bool used = words.text.size() > 3 &&
                      (plan.mod.legs[LastFix()].ident == next || SelectDepartureTransitionByName(next));
    return used ? 2 : 1;
}

// The arrival that is the last word before the destination, as soon as the words reach it: joined by the
// transition that is named, that stands before it, or that the route has come to.
bool EnterArrival(const RouteWords& words, std::size_t& i) {
    const std::size_t star_at = words.text.size() - 2;
    const ProcedureWord word = SplitProcedure(words.text[star_at]);
    if (i + 1 == star_at && IsArrivalTransition(std::string(word.name), words.text[i])) {
        SelectStarByName(word.name);
        SelectArrivalTransitionByName(words.text[i++]);
        return true;
    }
    const std::string last_fix = plan.mod.legs[LastFix()].ident;
    if (i != star_at || !SelectStarByName(word.name)) return false;
    SelectArrivalTransitionByName(word.transition.empty() ? std::string_view(last_fix) : word.transition);
    return true;
}

bool EnterWords(const RouteWords& words, std::string& error) {
    if (words.text.size() < 2) {
        error = "a route needs an origin and a destination";
        return false;
    }
    if (!EnterEnds(words, error)) return false;
    if (words.cruise_alt > 0) plan.mod.entries.cruise_alt = words.cruise_alt;
    const std::size_t last = words.text.size() - 1;
    const std::size_t of_departure = last > 1 ? EnterDeparture(words) : 0;
    for (std::size_t i = 1 + of_departure; i < last; ++i) {
        const bool direct = words.text[i - 1] == "DCT" || i == 1 || i + 1 == last;
        if (words.text[i] == "DCT" || EnterArrival(words, i)) continue;
        const bool entered =
            !direct && IsAirway(words.text[i]) ? EnterAirway(words, i, error) : EnterFix(words, i, error);
        if (!entered) return false;
    }
    SelectApproachByName(SplitEnd(words.text[last]).runway);
    OpenModification();  // when all is right, for it may load fuel and set the MCP
    return true;
}

}  // namespace

int EnterRouteText(std::string_view text, std::string& error) {
    const auto before = std::tuple(plan, perf, vnav, lnav, airports, procedure_lists);
    if (EnterWords(SplitRoute(text), error)) return 1;
    std::tie(plan, perf, vnav, lnav, airports, procedure_lists) = before;
    return 0;
}

int ExecuteEnteredRoute(std::string& error) {
    if (plan.mod.leg_cnt < 1 || !IsPlace(plan.mod.legs[plan.mod.leg_cnt])) {
        error = "no route has been entered";
        return 0;
    }
    while (plan.fms_fpln_active < kRouteActivated) AdvanceRouteState();
    ExecuteRoute();
    return 1;
}
