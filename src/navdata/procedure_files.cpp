#include "navdata/procedure_files.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "base/text.h"
#include "base/text_fields.h"
#include "navdata/geodesy.h"
#include "navdata/leg_codes.h"
#include "navdata/magnetic_model.h"
#include "navdata/navdata_file.h"
#include "state/perf.h"

namespace {

constexpr std::size_t kLineBound = 499;
constexpr double kStartOfClimbNm = 0.4937458854509546;                 // 3000 ft
constexpr double kProcedureTurnOut = 3.0, kProcedureTurnAcross = 1.5;  // nm
constexpr std::size_t kMostFields = 12;

using Fields = std::array<std::string_view, kMostFields>;

Fields SplitFields(std::string_view line) {
    Fields fields;
    for (std::string_view& field : fields) field = NextField(line);
    return fields;
}

// The line's fields from `place` on lose one, so that those behind stand where they belong.
void TakeOut(Fields& fields, std::size_t place) {
    for (std::size_t i = place; i + 1 < fields.size(); ++i) fields[i] = fields[i + 1];
    fields.back() = {};
}

// One field is missing before `place`.
void OpenGap(Fields& fields, std::size_t place) {
    for (std::size_t i = fields.size() - 1; i > place; --i) fields[i] = fields[i - 1];
    fields[place] = {};
}

bool IsAltitude(std::string_view text) {
    if (text.ends_with('+') || text.ends_with('-') || IsAltitudeWindow(text)) text.remove_suffix(1);
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

int TurnOf(std::string_view field) {
    if (field == "/LT" || field == "LT") return 1;
    return field == "/RT" || field == "RT" ? 2 : 0;
}

bool IsTurnField(std::string_view field) {
    return field == "/LT" || field == "/RT";
}

bool IsRunwayFix(std::string_view ident) {
    return ident.starts_with("RW") && (ident.size() == 4 || ident.size() == 5) && ident[2] >= '0' &&
           ident[2] <= '9';
}

std::string_view FirstOfList(std::string_view list) {
    return list.substr(0, list.find(','));
}

bool IsForAll(std::string_view list) {
    return list.empty() || list.starts_with('-');
}

bool ListsShareAName(std::string_view list, std::string_view other) {
    for (std::string_view name = NextListed(list); !name.empty(); name = NextListed(list))
        if (ListNames(other, name)) return true;
    return false;
}

// What stands behind the heading "[ICAO]"; empty when there is none.
std::string_view FindSection(std::string_view text, std::string_view airport) {
    for (std::size_t at = text.find('['); at != std::string_view::npos; at = text.find('[', at + 1)) {
        const std::size_t before = text.rfind('\n', at);
        const std::size_t start = before == std::string_view::npos ? 0 : before + 1;
        if (!Trimmed(text.substr(start, at - start)).empty()) continue;
        std::string_view rest = text.substr(at);
        std::string heading(NextBoundedLine(rest, kLineBound).value_or(""));
        std::replace_if(
            heading.begin(), heading.end(), [](char c) { return c == '[' || c == ']'; }, ' ');
        if (EqualIgnoringCase(Trimmed(heading), airport)) return rest;
    }
    return {};
}

// Goes through the lines of the airport's section; `take` gets those with data, `close` hears of the others,
// which end the procedure being read.
template <class Take, class Close>
void ReadSection(const char* file_name, std::string_view airport, Take take, Close close) {
    const FileBytes file = ReadNavdata(file_name);
    std::string_view rest = FindSection(file.Text(), airport);
    while (auto line = NextBoundedLine(rest, kLineBound)) {
        std::string_view look = *line;
        const std::string_view first = NextField(look);
        if (first.starts_with('[')) break;
        if (first.empty()) continue;
        if (first.starts_with(';') || first.starts_with('*'))
            close();
        else
            take(SplitFields(*line));
    }
    close();
}

// Where a leg begins, and on which course (degrees magnetic) the aircraft comes there.
struct Approach {
    LatLon at = {};
    double course = 0;
};

// What loading knows while it reads one airport's procedures.
struct Reading {
    AirportData& airport;
    GrowingList<ProcedureRecord>& list;
    int& count;
    int variation;   // degrees, at the airport; holds for all legs of this load
    int record = 0;  // the one that the last line belonged to
    Approach start = {{airport.lat, airport.lon}, 0};  // of the last procedure whose runway is known
};

void StartAtRunway(const Reading& reading, std::string_view runway, Approach& start) {
    StartOfClimb(reading.airport, runway, reading.variation, start.at.lat, start.at.lon, start.course);
}

int VariationAt(const AirportData& airport) {
    return MagVarAt(airport.lat, airport.lon);
}

int FindRecord(const Reading& reading, std::string_view name) {
    if (reading.record > 0 && reading.list[reading.record].name == name) return reading.record;
    for (int i = 1; i <= reading.count; ++i)
        if (reading.list[i].name == name) return i;
    return 0;
}

ProcedureRecord& OpenRecord(Reading& reading, std::string_view name) {
    reading.record = ++reading.count;
    ProcedureRecord& record = reading.list[reading.record];
    record = {};
    record.name = name;
    record.base_name = name.substr(0, name.find('.'));
    return record;
}

// A last leg without an ident is the fix of the leg before it once more.
void CloseRecord(Reading& reading) {
    if (reading.record == 0) return;
    ProcedureRecord& record = reading.list[reading.record];
    ProcedureLeg& last = record.legs[record.leg_cnt];
    if (record.leg_cnt == 0 || !last.ident.empty()) return;
    last.ident = record.legs[record.leg_cnt - 1].ident;
    last.marker = "*";
    if (last.ident.empty()) --record.leg_cnt;
}

// Legs for different runways, or of different transitions, are never flown one behind the other.
bool AreAlternatives(const Reading& reading, const ProcedureLeg& a, const ProcedureLeg& b) {
    if (IsForAll(a.segment) || IsForAll(b.segment) || ListsShareAName(a.segment, b.segment)) return false;
    return HasRunway(reading.airport, FirstOfList(a.segment)) ==
           HasRunway(reading.airport, FirstOfList(b.segment));
}

// Where the next leg of a record begins.
Approach EndOfLegs(const Reading& reading, const ProcedureRecord& record, const ProcedureLeg& next) {
    const auto leg_before = [&](int leg) {
        while (leg > 0 && AreAlternatives(reading, record.legs[leg], next)) --leg;
        return leg;
    };
    const int last_place = leg_before(record.leg_cnt);
    Approach end;
    if (last_place == 0) {
        end = reading.start;
        if (!ListNames(next.segment, FirstOfList(record.runways)))
            StartAtRunway(reading, FirstOfList(next.segment), end);
        return end;
    }
    const ProcedureLeg& last = record.legs[last_place];
    end.at = {last.lat, last.lon};
    if (!last.code.empty()) {
        end.course = last.code_course;
        return end;
    }
    const int before = last_place > 1 ? leg_before(last_place - 1) : 0;
    const LatLon from = before > 0 ? LatLon{record.legs[before].lat, record.legs[before].lon}
                                   : LatLon{last.start_lat, last.start_lon};
    end.course = GreatCircle(from.lat, from.lon, last.lat, last.lon).bearing - reading.variation;
    return end;
}

using ComputeFunction = int (*)(const LegCode&, LegCodeInput&, LatLon&);

// Gives a leg its end. False for a coded leg that can't be built.
bool PlaceLeg(const Reading& reading, const ProcedureRecord& record, ProcedureLeg& leg,
              ComputeFunction compute) {
    if (std::fabs(leg.file_lat) > 90 || std::fabs(leg.file_lon) > 180) return false;
    const Approach from = EndOfLegs(reading, record, leg);
    leg.start_lat = from.at.lat;
    leg.start_lon = from.at.lon;
    LegCode code;
    if (!ParseLegCode(leg.code, code)) {
        if (!leg.code.empty()) return false;
        leg.lat = leg.file_lat != 0 ? leg.file_lat : from.at.lat;
        leg.lon = leg.file_lat != 0 ? leg.file_lon : from.at.lon;
        return true;
    }
    leg.code_course = code.course;
    leg.code_alt = AltitudeOfToken(leg.alt_token);
    leg.ident = LegCodeIdent(code, leg.alt_token);
    if (code.until == LegCode::kVectors) leg.text = "VECTOR";
    if (code.turn != 0) leg.turn = code.turn;
    LegCodeInput input{.start = from.at,
                       .entry_course = from.course,
                       .reference = {leg.file_lat, leg.file_lon},
                       .altitude = leg.code_alt,
                       .elevation = static_cast<double>(reading.airport.elevation_ft),
                       .variation = reading.variation,
                       .climb_speed = perf.speeds.climb_ias > 0 ? perf.speeds.climb_ias : 250,
                       .role = leg.applies_to};
    LatLon end;
    if (compute(code, input, end) != 0) return false;
    leg.start_lat = input.start.lat;
    leg.start_lon = input.start.lon;
    leg.lat = end.lat;
    leg.lon = end.lon;
    return true;
}

void AddLeg(Reading& reading, ProcedureLeg leg, ComputeFunction compute) {
    ProcedureRecord& record = reading.list[reading.record];
    if (record.legs[record.leg_cnt].ident.empty() && record.leg_cnt > 0) --record.leg_cnt;
    if (PlaceLeg(reading, record, leg, compute)) record.legs[++record.leg_cnt] = std::move(leg);
}

void SetIdent(ProcedureLeg& leg, std::string_view field) {
    if (field.starts_with('/'))
        leg.code = field;
    else
        leg.ident = field;
}

// A heading line "T NAME KIND RUNWAYS".
bool TakeHeading(Reading& reading, const Fields& fields) {
    if (fields[0] != "T") return false;
    CloseRecord(reading);
    ProcedureRecord& record = OpenRecord(reading, fields[1]);
    record.kind = fields[2];
    record.runways = fields[3];
    StartAtRunway(reading, FirstOfList(record.runways), reading.start);
    return true;
}

void ChooseRecord(Reading& reading, std::string_view name) {
    const int known = FindRecord(reading, name);
    if (known != reading.record) CloseRecord(reading);
    if (known > 0)
        reading.record = known;
    else
        OpenRecord(reading, name);
}

// "/LT" or "/RT" in front of the ident or behind it is the turn of the leg, at a runway fix that of the leg
// before it. The field is taken out.
void TakeTurn(Reading& reading, Fields& fields, std::size_t ident, ProcedureLeg& leg) {
    const std::size_t place = IsTurnField(fields[ident]) ? ident : ident + 1;
    if (!IsTurnField(fields[place])) return;
    const int turn = TurnOf(fields[place]);
    TakeOut(fields, place);
    ProcedureRecord& record = reading.list[reading.record];
    if (!IsRunwayFix(fields[ident]))
        leg.turn = turn;
    else if (record.leg_cnt > 0)
        record.legs[record.leg_cnt].turn = turn;
}

void TakeSidLine(Reading& reading, Fields fields) {
    if (TakeHeading(reading, fields)) return;
    if (fields[1].empty() || fields[1] == "---") return;
    ChooseRecord(reading, fields[0]);
    ProcedureLeg leg;
    TakeTurn(reading, fields, 1, leg);
    SetIdent(leg, fields[1]);
    leg.alt_token = fields[2];
    leg.applies_to = leg.segment = fields[3];
    leg.file_lat = ToNumber(fields[4]);
    leg.file_lon = ToNumber(fields[5]);
    leg.flyover = fields[6] == "FO" ? 1 : 0;
    for (const std::string_view field : {fields[6], fields[7]})
        if (TurnOf(field) != 0) leg.turn = TurnOf(field);
    AddLeg(reading, std::move(leg), ComputeDepartureLeg);
}

void TakeStarLine(Reading& reading, Fields fields) {
    if (TakeHeading(reading, fields)) return;
    if (fields[2].empty() || fields[2] == "---") return;
    ChooseRecord(reading, fields[0]);
    ProcedureLeg leg;
    TakeTurn(reading, fields, 2, leg);
    SetIdent(leg, fields[2]);
    leg.applies_to = leg.segment = fields[1];
    leg.alt_token = fields[3];
    leg.file_lat = ToNumber(fields[4]);
    leg.file_lon = ToNumber(fields[5]);
    leg.flyover = fields[6] == "FO" ? 1 : 0;
    AddLeg(reading, std::move(leg), ComputeArrivalLeg);
}

bool IsRole(std::string_view text) {
    return text.starts_with("IAF") || text == "FAF" || text == "MAF" || text == "MAP";
}

bool IsNone(std::string_view field) {
    return field == "--" || field == "-" || field == "---";
}

// Out on a course turned away from the code's, and across to where its heading begins.
void AddProcedureTurn(Reading& reading, const ProcedureLeg& filed, const LegCode& code) {
    const bool right = code.turn == 2;
    ProcedureRecord& record = reading.list[reading.record];
    const Approach from = EndOfLegs(reading, record, filed);
    const bool has_fix = filed.file_lat != 0;
    LatLon at = has_fix ? LatLon{filed.file_lat, filed.file_lon} : from.at;
    int course = (code.course + (right ? -180 : 180) + 360) % 360;
    const auto add = [&](std::string ident, double length) {
        ProcedureLeg leg;
        leg.ident = std::move(ident);
        leg.segment = filed.segment;
        leg.applies_to = filed.applies_to;
        leg.code_course = course;
        leg.start_lat = at.lat;
        leg.start_lon = at.lon;
        at = ProjectPoint(at.lat, at.lon, course + reading.variation, length);
        leg.lat = leg.file_lat = at.lat;
        leg.lon = leg.file_lon = at.lon;
        record.legs[++record.leg_cnt] = std::move(leg);
    };
    add(Format("PT%03d", code.course), kProcedureTurnOut);
    course = (course + (right ? 90 : -90) + 360) % 360;
    add(Format("PT%03d", course), kProcedureTurnAcross);
}

struct ApproachReading {
    Reading reading;
    std::string transition;  // of the line before
};

void TakeApproachLine(ApproachReading& state, Fields fields) {
    Reading& reading = state.reading;
    if (fields[2].empty()) return;
    const std::string runway(IsNone(fields[0]) ? std::string_view() : fields[0]);
    const int before = reading.record;
    ChooseRecord(reading, std::string(fields[1]) + runway);
    ProcedureRecord& record = reading.list[reading.record];
    record.kind = fields[1];
    record.runways = runway;
    if (reading.record != before) {
        state.transition.clear();
        StartAtRunway(reading, runway, reading.start);
    }
    ProcedureLeg leg;
    TakeTurn(reading, fields, 2, leg);
    // Without a role or an altitude all that follows stands one place further left.
    if (!IsNumber(fields[6]) && IsNumber(fields[5]) && IsNumber(fields[4]))
        OpenGap(fields, IsAltitude(fields[3]) ? 3 : 4);

    const std::string_view role = fields[3].empty() ? "---" : fields[3], second = fields[7];
    const bool second_given = !second.empty() && !second.starts_with('-');
    if (IsRole(role)) {
        leg.applies_to = role;
        state.transition = second_given && !IsRole(second) ? second : std::string_view();
    } else if (role.starts_with('-')) {
        leg.applies_to = "---";
        if (second_given && !IsRole(second)) state.transition = second;
    } else {
        leg.applies_to = second_given && IsRole(second) ? second : std::string_view("---");
        state.transition = role;
    }
    leg.segment = state.transition;
    if (!IsNone(fields[2])) SetIdent(leg, fields[2]);
    leg.alt_token = fields[4];
    leg.file_lat = ToNumber(fields[5]);
    leg.file_lon = ToNumber(fields[6]);
    leg.speed = ToWholeNumber(fields[8]);
    leg.alt2 = ToWholeNumber(fields[9]);
    leg.flyover = fields[10] == "FO" ? 1 : 0;
    LegCode code;
    if (ParseLegCode(leg.code, code) && IsProcedureTurn(code, leg.applies_to))
        AddProcedureTurn(reading, leg, code);
    AddLeg(reading, std::move(leg), ComputeApproachLeg);
}

void CollectKinds(AirportData& airport) {
    for (int i = 1; i <= airport.approach_cnt; ++i) {
        bool known = false;
        for (int k = 1; k <= airport.approach_kind_cnt; ++k)
            known = known || airport.approach_kinds[k] == airport.approaches[i].kind;
        if (!known) airport.approach_kinds[++airport.approach_kind_cnt] = airport.approaches[i].kind;
    }
}

void CountProcedures(AirportData& airport) {
    airport.procedure_cnt = airport.sid_cnt + airport.star_cnt + airport.approach_cnt;
}

}  // namespace

std::string_view NextListed(std::string_view& list) {
    return NextPart(list, [](char c) { return c == ','; });
}

bool ListNames(std::string_view list, std::string_view name) {
    for (std::string_view item = NextListed(list); !item.empty(); item = NextListed(list))
        if (item == name) return true;
    return false;
}

bool HasRunway(const AirportData& airport, std::string_view runway) {
    for (int i = 1; i <= airport.runway_cnt; ++i)
        if (airport.runways[i].ident == runway) return true;
    return false;
}

bool StartOfClimb(const AirportData& airport, std::string_view runway, int variation, double& lat,
                  double& lon, double& course) {
    for (int i = 1; i <= airport.runway_cnt; ++i) {
        const RunwayData& row = airport.runways[i];
        if (row.ident != runway) continue;
        const LatLon start =
            ProjectPoint(row.lat, row.lon, std::fmod(row.course + variation + 360, 360), kStartOfClimbNm);
        lat = start.lat;
        lon = start.lon;
        course = row.course;
        return true;
    }
    return false;
}

void LoadSids(AirportData& airport) {
    airport.sids.clear();
    airport.sid_cnt = 0;
    Reading reading{airport, airport.sids, airport.sid_cnt, VariationAt(airport)};
    ReadSection(
        "sids.txt", airport.ident, [&](const Fields& fields) { TakeSidLine(reading, fields); },
        [&] { CloseRecord(reading); });
    CountProcedures(airport);
}

void LoadStars(AirportData& airport) {
    airport.stars.clear();
    airport.star_cnt = 0;
    Reading reading{airport, airport.stars, airport.star_cnt, VariationAt(airport)};
    ReadSection(
        "stars.txt", airport.ident, [&](const Fields& fields) { TakeStarLine(reading, fields); },
        [&] { CloseRecord(reading); });
    CountProcedures(airport);
}

void LoadApproaches(AirportData& airport) {
    airport.approaches.clear();
    airport.approach_kinds.clear();
    airport.approach_cnt = airport.approach_kind_cnt = 0;
    ApproachReading state{{airport, airport.approaches, airport.approach_cnt, VariationAt(airport)}, {}};
    ReadSection(
        "apps.txt", airport.ident, [&](const Fields& fields) { TakeApproachLine(state, fields); },
        [&] { CloseRecord(state.reading); });
    CollectKinds(airport);
    CountProcedures(airport);
}
