#include "fmc/files/route_files.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <string>

#include "base/text.h"
#include "base/text_fields.h"
#include "fmc/files/loaded_route.h"
#include "fmc/files/plan_files.h"
#include "fmc/files/route_folder.h"
#include "fmc/legs/leg_type.h"
#include "fmc/legs/route_state.h"
#include "state/cfg.h"
#include "state/leg_words.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/route_files.h"

namespace {

constexpr std::size_t kMaxLine = 499;
constexpr std::string_view kRowsBegin = "[FlightPlan]";
constexpr std::string_view kEmpty = "---";
constexpr std::string_view kMissedInFile = "MISSED_APPR";

bool EndsWith(std::string_view name, std::string_view ending) {
    return name.size() >= ending.size() &&
           EqualIgnoringCase(name.substr(name.size() - ending.size()), ending);
}

// --- reading

constexpr int kFields = 31;
using Row = std::array<std::string_view, kFields + 1>;  // from 1, as the columns are counted

// Idents with blanks in them, "HOLD PPOS", make a full row longer: the position tells where they end. Their
// parts stand together in the line.
Row SplitRow(std::string_view line) {
    constexpr int kMostExtra = 3;
    std::array<std::string_view, kFields + kMostExtra> tokens;
    int count = 0;
    for (std::string_view token = NextField(line); !token.empty(); token = NextField(line)) {
        if (count == static_cast<int>(tokens.size())) break;
        tokens[static_cast<std::size_t>(count++)] = token;
    }
    auto extra = static_cast<std::size_t>(std::max(0, count - kFields));
    if (extra > 0 && (IsNumber(tokens[1]) || !IsNumber(tokens[extra + 1]) || !IsNumber(tokens[extra + 2])))
        extra = 0;
    Row row;
    row[1] = {tokens[0].data(),
              static_cast<std::size_t>(tokens[extra].data() + tokens[extra].size() - tokens[0].data())};
    for (std::size_t i = 2; i <= kFields; ++i) row[i] = tokens[i - 1 + extra];
    return row;
}

std::string ReadText(std::string_view token) {
    return token == kEmpty ? std::string() : std::string(token);
}

std::string WriteText(std::string_view text) {
    return std::string(text.empty() ? kEmpty : text);
}

// What doesn't lie within -limit to limit is no number of ours.
double ReadNumber(std::string_view token, double limit = 1e6) {
    const double value = LeadingDouble(token);
    return std::fabs(value) <= limit ? value : 0;
}

std::string WriteNumber(double value, int decimals = 0) {
    return Format("%.*f", decimals, value);
}

// --- the columns of a row, each with its reading and its writing

struct Column {
    std::size_t width;  // right-aligned
    void (*read)(FlightPlanLeg& leg, std::string_view token);
    std::string (*write)(const FlightPlanLeg& leg);
};

template <std::string FlightPlanLeg::*kField>
constexpr Column TextColumn(std::size_t width) {
    return {width, [](FlightPlanLeg& leg, std::string_view token) { leg.*kField = ReadText(token); },
            [](const FlightPlanLeg& leg) { return WriteText(leg.*kField); }};
}

template <double FlightPlanLeg::*kField, int kDecimals, int kLimit = 1'000'000>
constexpr Column NumberColumn(std::size_t width) {
    return {width,
            [](FlightPlanLeg& leg, std::string_view token) { leg.*kField = ReadNumber(token, kLimit); },
            [](const FlightPlanLeg& leg) { return WriteNumber(leg.*kField, kDecimals); }};
}

// A constraint that is none is empty in the file, and reads back as 0.
template <double FlightPlanLeg::*kField>
constexpr Column LimitColumn(std::size_t width) {
    return {width, [](FlightPlanLeg& leg, std::string_view token) { leg.*kField = ReadNumber(token); },
            [](const FlightPlanLeg& leg) {
                return leg.*kField > 0 ? WriteNumber(leg.*kField) : std::string(kEmpty);
            }};
}

template <int FlightPlanLeg::*kField, int kMost>
constexpr Column CodeColumn(std::size_t width) {
    return {width,
            [](FlightPlanLeg& leg, std::string_view token) {
                const int value = LeadingInt(token);
                leg.*kField = value >= 0 && value <= kMost ? value : 0;
            },
            [](const FlightPlanLeg& leg) { return Format("%d", leg.*kField); }};
}

using Leg = FlightPlanLeg;

constexpr Column kVia = {
    12,
    [](Leg& leg, std::string_view token) {
        leg.via = token == kMissedInFile ? std::string(kMissedVia) : ReadText(token);
    },
    [](const Leg& leg) { return IsMissedApproach(leg) ? std::string(kMissedInFile) : WriteText(leg.via); }};
constexpr Column kViaType = {
    5, [](Leg& leg, std::string_view token) { leg.via_type = ReadText(token); },
    [](const Leg& leg) { return leg.via.empty() ? std::string(kEmpty) : WriteText(leg.via_type); }};
constexpr Column kAltitude = {5,
                              [](Leg& leg, std::string_view token) {
                                  if (!token.empty() && token != kEmpty) leg.alt = ReadNumber(token);
                              },
                              [](const Leg& leg) { return WriteNumber(leg.alt); }};
constexpr Column kSpeed = {6,
                           [](Leg& leg, std::string_view token) {
                               if (const double speed = ReadNumber(token); speed >= 1) leg.ias_restr = speed;
                           },
                           [](const Leg& leg) { return WriteNumber(leg.ias_restr); }};
constexpr Column kRadial = {4,
                            [](Leg& leg, std::string_view token) {
                                if (!token.empty()) leg.rad_int = std::clamp(ReadNumber(token), -1.0, 360.0);
                            },
                            [](const Leg& leg) { return WriteNumber(leg.rad_int); }};
constexpr Column kStep = {
    7, [](Leg& leg, std::string_view token) { leg.step_alt = std::max(ReadNumber(token), 0.0); },
    [](const Leg& leg) { return WriteNumber(leg.step_alt); }};
constexpr Column kHeading = {5,
                             [](Leg& leg, std::string_view token) { leg.from_hdg = ReadNumber(token, 360); },
                             [](const Leg& leg) { return Format("%03.0f", leg.from_hdg); }};

constexpr Column kColumns[kFields] = {
    TextColumn<&Leg::ident>(16),
    NumberColumn<&Leg::lat, 5, 90>(11),
    NumberColumn<&Leg::lon, 5, 180>(12),
    TextColumn<&Leg::type>(3),
    TextColumn<&Leg::freq>(6),
    kVia,
    kViaType,
    kAltitude,
    LimitColumn<&Leg::alt_restr>(5),
    LimitColumn<&Leg::block_above>(6),
    LimitColumn<&Leg::block_below>(6),
    CodeColumn<&Leg::restr_code, 3>(5),
    CodeColumn<&Leg::restr_type, 3>(5),
    kSpeed,
    NumberColumn<&Leg::mach_restr, 3>(9),
    kRadial,
    CodeColumn<&Leg::flyover, 1>(6),
    CodeColumn<&Leg::dep_turn, 2>(7),
    CodeColumn<&Leg::hold_pos, 8>(4),
    kStep,
    TextColumn<&Leg::rwy>(8),
    TextColumn<&Leg::appr_wpt_type>(4),
    TextColumn<&Leg::vector>(10),
    NumberColumn<&Leg::until_alt, 0>(7),
    kHeading,
    NumberColumn<&Leg::anchor_lat, 5, 90>(11),
    NumberColumn<&Leg::anchor_lon, 5, 180>(12),
    NumberColumn<&Leg::vector_lat, 5, 90>(11),
    NumberColumn<&Leg::vector_lon, 5, 180>(12),
    NumberColumn<&Leg::vector_trk_lat, 5, 90>(11),
    NumberColumn<&Leg::vector_trk_lon, 5, 180>(12),
};

FlightPlanLeg LegOf(const Row& row) {
    FlightPlanLeg leg;
    for (std::size_t i = 0; i < kFields; ++i) kColumns[i].read(leg, row[i + 1]);
    // older files: both limits of a window in one field
    constexpr std::size_t kRestriction = 9, kWindow = 10, kLimit = 5;
    if (row[kRestriction].size() == kWindow) {
        leg.block_above = ReadNumber(row[kRestriction].substr(0, kLimit));
        leg.block_below = ReadNumber(row[kRestriction].substr(kLimit));
        leg.alt_restr = 0;
        leg.restr_code = kAltitudeRestr;
        leg.restr_type = kAt;
    }
    return leg;
}

void AppendRow(std::string& text, const FlightPlanLeg& leg) {
    for (const Column& column : kColumns) {
        const std::string field = column.write(leg);
        if (field.size() < column.width) text.append(column.width - field.size(), ' ');
        text.append(field).append(" ");
    }
    text += '\n';
}

class RouteReader {
  public:
    void ReadLine(std::string_view line) {
        std::string_view rest = line;
        const std::string_view first = NextField(rest);
        if (first.empty() || first.starts_with(';')) return;
        if (EqualIgnoringCase(first, kRowsBegin)) {
            reads_rows_ = true;
            MarkLoadedRouteNew();
        } else if (!reads_rows_ || first.find('=') != std::string_view::npos) {
            ReadKey(line);
        } else {
            ReadRow(line);
        }
    }

  private:
    static void ReadKey(std::string_view line) {
        constexpr double kMostFuel = 1e6, kHighest = 99999;
        const auto next = [&line] { return NextPart(line, [](char c) { return c == '=' || IsBlank(c); }); };
        const std::string_view key = next(), text = next();
        const double value = LeadingDouble(text);
        const double fuel = value >= 0 && value <= kMostFuel ? value : 0;
        if (EqualIgnoringCase(key, "CruiseAlt")) {
            if (value >= 0 && value <= kHighest) plan.mod.entries.cruise_alt = value;
        } else if (EqualIgnoringCase(key, "CostIndex")) {
            PlanCostIndex(value);
        } else if (EqualIgnoringCase(key, "TripFuel")) {
            perf.planned_fuel += fuel;
        } else if (EqualIgnoringCase(key, "ResvFuel")) {
            perf.resv_fuel = fuel;
            perf.planned_fuel += fuel;
        } else if (EqualIgnoringCase(key, "Fuel")) {
            perf.planned_fuel = fuel;
        }
        perf.planned_fuel = std::min(perf.planned_fuel, kMostFuel);
    }

    void ReadRow(std::string_view line) {
        FlightPlanLeg leg = LegOf(SplitRow(line));
        if (IsLeftOut(leg)) return;
        if (leg.freq.empty() && !IsAirport(leg) && IsPlace(leg)) LookUpLegType(leg);
        AddLoadedLeg(std::move(leg));
    }

    // The hold that ends a missed approach goes with it.
    bool IsLeftOut(const FlightPlanLeg& leg) {
        const bool is_missed = IsMissedApproach(leg);
        missed_ = is_missed || (missed_ && IsHoldLeg(leg) && leg.via_type == kApproachViaType);
        return missed_ && cfg.IncludeMissedApproach == 0;
    }

    bool reads_rows_ = false;
    bool missed_ = false;  // the last row was of a missed approach
};

// --- writing

constexpr std::string_view kHeaders[] = {
    ";-----------  Id         Lat          Lon Type  Freq         Via  Via    Alt   Alt   Block"
    " Restr   Restr Restr  Ias    Mach     Rad           Dep   Hold    Step    Rwy  Appr      V"
    "ector   until From     Anchor       Anchor       Vector       Vector   Vector-Trk   Vector"
    "-Trk",
    ";-----------                                                      Type        Restr Above "
    "/ Below  Code  Type   Restr   Restr   int flyover   Turn  pos     Alt          WptType    "
    "         Alt  Hdg       Lat          lon          Lat          Lon        Lat          Lon"};

std::string RouteHead() {
    std::string text =
        Format("CruiseAlt=%d\nCostIndex=%d\n", static_cast<int>(perf.cruise_alt), perf.cost_index);
    text.append(kRowsBegin).append("\n");
    std::size_t width = 0;
    for (const std::string_view header : kHeaders) {
        text.append(header).append("\n");
        width = std::max(width, header.size());
    }
    return text.append(";").append(width - 1, '-').append("\n");
}

}  // namespace

void ListRouteFiles() {
    for (int i = 1; i <= route_files.route_file_cnt; ++i) route_files.RouteFiles[i].clear();
    route_files.route_file_cnt = 0;
    route_files.route_files_listed = 1;
    for (const FolderEntry& entry : ListRouteFolder()) {
        const bool is_plan = EndsWith(entry.name, ".PLN") || EndsWith(entry.name, ".RTE");
        if (entry.is_folder || !is_plan || EqualIgnoringCase(entry.name, kConvertedName)) continue;
        route_files.RouteFiles[++route_files.route_file_cnt] = entry.name;
    }
}

int FindRouteFile(std::string_view prefix) {
    for (int i = 1; i <= route_files.route_file_cnt; ++i) {
        const std::string_view name = route_files.RouteFiles[i];
        if (EqualIgnoringCase(name.substr(0, prefix.size()), prefix)) return i;
    }
    return 0;
}

int LoadCompanyRoute(std::string_view given) {
    const std::string name = UpperCase(given);
    const bool is_plan = name.find(".PLN") != std::string::npos;
    if (is_plan && ConvertPlanFile(name) == kNotConverted) return 0;
    const auto file =
        is_plan ? ReadFile(kConvertedFile, FileRoot::kSimulator, kMaxRouteFileBytes) : ReadRouteFile(name);
    BeginLoadedRoute();
    if (!file) {
        FinishLoadedRoute({});
        return 0;
    }
    std::string_view rest = WithoutByteOrderMark(file->Text());
    RouteReader reader;
    while (const auto line = NextLine(rest)) reader.ReadLine(line->substr(0, kMaxLine));
    FinishLoadedRoute(std::string_view(name).substr(0, name.find('.')));
    return plan.mod.leg_cnt >= 0 ? 1 : 0;
}

int SaveCompanyRoute(std::string_view name) {
    std::string text = RouteHead();
    for (int i = 0; i <= plan.active.leg_cnt; ++i) {
        FlightPlanLeg& leg = plan.active.legs[i];
        constexpr std::string_view kKept[] = {"APT", "VOR", "NDB", "INT"};
        if (std::find(std::begin(kKept), std::end(kKept), leg.type) == std::end(kKept)) leg.type = "WPT";
        AppendRow(text, leg);
    }
    return WriteRouteFile(name, text) ? 1 : 0;
}
