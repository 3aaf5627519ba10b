#include "fmc/route_files.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <iterator>
#include <string>

#include "fmc/leg_list.h"
#include "fmc/leg_type.h"
#include "fmc/loaded_route.h"
#include "fmc/plan_files.h"
#include "fmc/route.h"
#include "fmc/route_folder.h"
#include "navdata/text_fields.h"
#include "platform/text.h"
#include "state/cfg.h"
#include "state/perf.h"
#include "state/plan.h"
#include "state/route_files.h"

namespace {

constexpr std::size_t kMaxLine = 499;
constexpr std::string_view kRowsBegin = "[FlightPlan]";
constexpr std::string_view kEmpty = "---";
constexpr std::string_view kMissed = "MISSED APPR", kMissedInFile = "MISSED_APPR";

bool EndsWith(std::string_view name, std::string_view ending) {
    return name.size() >= ending.size() &&
           EqualIgnoringCase(name.substr(name.size() - ending.size()), ending);
}

// --- reading

constexpr int kFields = 31;
using Row = std::array<std::string_view, kFields + 1>;  // from 1, as the columns are counted

bool IsNumber(std::string_view text) {
    if (text.starts_with('-') || text.starts_with('+')) text.remove_prefix(1);
    return !text.empty() && text.find_first_not_of("0123456789.") == std::string_view::npos;
}

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

std::string Text(std::string_view token) {
    return token == kEmpty ? std::string() : std::string(token);
}

// What doesn't lie within -limit to limit is no number of ours.
double Number(std::string_view token, double limit = 1e6) {
    const double value = LeadingDouble(token);
    return std::fabs(value) <= limit ? value : 0;
}

int Code(std::string_view token, int most) {
    const int value = LeadingInt(token);
    return value >= 0 && value <= most ? value : 0;
}

FlightPlanLeg LegOf(const Row& row) {
    FlightPlanLeg leg;
    leg.ident = Text(row[1]);
    leg.lat = Number(row[2], 90);
    leg.lon = Number(row[3], 180);
    leg.type = Text(row[4]);
    leg.freq = Text(row[5]);
    leg.via = row[6] == kMissedInFile ? std::string(kMissed) : Text(row[6]);
    leg.via_type = Text(row[7]);
    if (!row[8].empty() && row[8] != kEmpty) leg.alt = Number(row[8]);
    leg.alt_restr = Number(row[9]);
    leg.block_above = Number(row[10]);
    leg.block_below = Number(row[11]);
    leg.restr_code = Code(row[12], 3);
    leg.restr_type = Code(row[13], 3);
    if (const double speed = Number(row[14]); speed >= 1) leg.ias_restr = speed;
    leg.mach_restr = Number(row[15]);
    if (!row[16].empty()) leg.rad_int = std::clamp(Number(row[16]), -1.0, 360.0);
    leg.flyover = Code(row[17], 1);
    leg.dep_turn = Code(row[18], 2);
    leg.hold_pos = Code(row[19], 8);
    leg.step_alt = std::max(Number(row[20]), 0.0);
    leg.rwy = Text(row[21]);
    leg.appr_wpt_type = Text(row[22]);
    leg.vector = Text(row[23]);
    leg.until_alt = Number(row[24]);
    leg.from_hdg = Number(row[25], 360);
    leg.anchor_lat = Number(row[26], 90);
    leg.anchor_lon = Number(row[27], 180);
    leg.vector_lat = Number(row[28], 90);
    leg.vector_lon = Number(row[29], 180);
    leg.vector_trk_lat = Number(row[30], 90);
    leg.vector_trk_lon = Number(row[31], 180);
    // older files: both limits of a window in one field
    constexpr std::size_t kWindow = 10, kLimit = 5;
    if (row[9].size() == kWindow) {
        leg.block_above = Number(row[9].substr(0, kLimit));
        leg.block_below = Number(row[9].substr(kLimit));
        leg.alt_restr = 0;
        leg.restr_code = 1;
        leg.restr_type = 0;
    }
    return leg;
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
        constexpr int kMostCostIndex = 999;
        const auto next = [&line] { return NextPart(line, [](char c) { return c == '=' || IsBlank(c); }); };
        const std::string_view key = next(), text = next();
        const double value = LeadingDouble(text);
        const double fuel = value >= 0 && value <= kMostFuel ? value : 0;
        if (EqualIgnoringCase(key, "CruiseAlt")) {
            if (value >= 0 && value <= kHighest) perf.pending_cruise_alt = value;
        } else if (EqualIgnoringCase(key, "CostIndex")) {
            if (value < -1 || value > kMostCostIndex) return;
            const int index = static_cast<int>(value);
            (plan.fms_fpln_active >= kRouteActive ? perf.pending_cost_index : perf.cost_index) = index;
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
        if (leg.freq.empty() && leg.type != "APT" && IsPlace(leg)) LookUpLegType(leg);
        AddLoadedLeg(std::move(leg));
    }

    // The hold that ends a missed approach goes with it.
    bool IsLeftOut(const FlightPlanLeg& leg) {
        const bool is_missed = leg.via == kMissed;
        missed_ = is_missed || (missed_ && leg.via == "HOLD" && leg.via_type == "APPR");
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

std::string Field(std::string_view text) {
    return std::string(text.empty() ? kEmpty : text);
}

// A constraint that is none; it reads back as 0.
std::string Limit(double value) {
    return value > 0 ? Format("%.0f", value) : std::string(kEmpty);
}

void AppendRow(std::string& text, const FlightPlanLeg& leg) {
    const auto add = [&text](std::size_t width, std::string_view field) {
        if (field.size() < width) text.append(width - field.size(), ' ');
        text.append(field).append(" ");
    };
    const auto number = [&add](std::size_t width, const char* format, double value) {
        char field[400];
        std::snprintf(field, sizeof field, format, value);
        add(width, field);
    };
    add(16, Field(leg.ident));
    number(11, "%.5f", leg.lat);
    number(12, "%.5f", leg.lon);
    add(3, Field(leg.type));
    add(6, Field(leg.freq));
    add(12, leg.via == kMissed ? std::string(kMissedInFile) : Field(leg.via));
    add(5, leg.via.empty() ? std::string(kEmpty) : Field(leg.via_type));
    number(5, "%.0f", leg.alt);
    add(5, Limit(leg.alt_restr));
    add(6, Limit(leg.block_above));
    add(6, Limit(leg.block_below));
    number(5, "%.0f", leg.restr_code);
    number(5, "%.0f", leg.restr_type);
    number(6, "%.0f", leg.ias_restr);
    number(9, "%.3f", leg.mach_restr);
    number(4, "%.0f", leg.rad_int);
    number(6, "%.0f", leg.flyover);
    number(7, "%.0f", leg.dep_turn);
    number(4, "%.0f", leg.hold_pos);
    number(7, "%.0f", leg.step_alt);
    add(8, Field(leg.rwy));
    add(4, Field(leg.appr_wpt_type));
    add(10, Field(leg.vector));
    number(7, "%.0f", leg.until_alt);
    number(5, "%03.0f", leg.from_hdg);
    number(11, "%.5f", leg.anchor_lat);
    number(12, "%.5f", leg.anchor_lon);
    number(11, "%.5f", leg.vector_lat);
    number(12, "%.5f", leg.vector_lon);
    number(11, "%.5f", leg.vector_trk_lat);
    number(12, "%.5f", leg.vector_trk_lon);
    text += '\n';
}

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
    std::string name(given);
    UpperCase(name);
    const bool is_plan = name.find(".PLN") != std::string::npos;
    if (is_plan && ConvertPlanFile(name) == kNotConverted) return 0;
    const auto file =
        is_plan ? ReadFile(kConvertedFile, FileRoot::kSimulator, kMaxRouteFileBytes) : ReadRouteFile(name);
    BeginLoadedRoute();
    if (!file) {
        if (plan.fms_fpln_active == kRouteActive) AdvanceRouteState();
        return 0;
    }
    std::string_view rest = file->Text();
    RouteReader reader;
    while (const auto line = NextLine(rest)) reader.ReadLine(line->substr(0, kMaxLine));
    FinishLoadedRoute(std::string_view(name).substr(0, name.find('.')));
    return plan.mod_cnt >= 0 ? 1 : 0;
}

int SaveCompanyRoute(std::string_view name) {
    std::string text = RouteHead();
    for (int i = 0; i <= plan.fp_cnt; ++i) {
        FlightPlanLeg& leg = plan.FlightPlan[i];
        constexpr std::string_view kKept[] = {"APT", "VOR", "NDB", "INT"};
        if (std::find(std::begin(kKept), std::end(kKept), leg.type) == std::end(kKept)) leg.type = "WPT";
        AppendRow(text, leg);
    }
    return WriteRouteFile(name, text) ? 1 : 0;
}
