#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "state/growing_list.h"
#include "state/leg_words.h"
#include "state/variable.h"

// The navigation database in memory. A row of a big table is views into its file's text, which stays here as
// long as the rows do; what a search gives is a NavRecord with strings of its own (state/nav.h).

struct FixRow {
    std::string_view ident;
    std::string_view name;
    double lat = 0, lon = 0;  // degrees, north and east positive
};

struct AirwayFixRow {
    std::string_view ident;
    double lat = 0, lon = 0;
};

struct NavaidRow {
    std::string_view ident;
    std::string_view name;
    double lat = 0, lon = 0;
    std::string_view type;  // "V" VOR, "N" every other
    std::string_view freq;  // as in the file
};

struct AirportRow {
    std::string_view ident;
    std::string_view name;
    double lat = 0, lon = 0;
    double longest_runway = 0;  // ft
    std::string_view elevation_text;
};

struct LandmarkRow {
    std::string_view name;
    double lat = 0, lon = 0;
};

/// Row numbers by ident, in file order for equal idents.
struct IdentIndex {
    std::vector<std::int32_t> heads;  // by hash; its size is a power of two, or 0
    std::vector<std::int32_t> next;   // by row; 0 ends the chain
};

/// The lines of an airway that stand together.
struct AirwayRun {
    std::string_view name;
    std::string_view lines;
};

/// What came of reading one file of the database.
struct NavdataFile {
    std::string_view name;
    int size = 0;           // bytes; 0 = missing or empty
    int rows = 0;           // lines that have been taken
    int skipped = 0;        // lines that say something and don't fit
    int first_skipped = 0;  // the first of them, counted from 1
    std::string_view why;   // it doesn't
};

/// Filled by LoadNavTables; all tables count from 1.
struct NavTables {
    GrowingList<NavdataFile> navdata_files;  // in the order in which they are read
    int navdata_file_cnt = 0;

    FileBytes ints_file, awys_file, apts_file, navs_file, landmarks_file;

    GrowingList<FixRow> IntersectionTable;
    int int_cnt = 0;
    GrowingList<AirwayFixRow> AirwayFixTable;  // fixes only, once for each line that names it
    int awy_fix_cnt = 0;
    GrowingList<AirportRow> AirportTable;  // those whose longest runway reaches MinAptRwyLen
    int apt_cnt = 0;
    GrowingList<NavaidRow> NavaidTable;
    int nav_cnt = 0;
    GrowingList<LandmarkRow> LandmarkTable;
    int landmark_cnt = 0;

    GrowingList<AirwayRun> airway_runs;
    int airway_run_cnt = 0;
    GrowingList<std::string_view> airport_lines;  // all airports of the file
    int airport_line_cnt = 0;

    IdentIndex int_index, apt_index, nav_index, airway_index, airport_line_index;
};

// Fields that every row of a table reads alike.
template <const std::string_view* kText>
constexpr Field ConstantField(std::string_view name) {
    return {name, &Describe<std::string_view>::type,
            [](void*) -> void* { return const_cast<std::string_view*>(kText); }};
}
inline constexpr std::string_view kFixType = "I", kAirportType = "APT", kNoText = "";

template <>
struct Describe<FixRow> {
    static constexpr Field fields[] = {
        FieldRow<&FixRow::ident>("ident"), FieldRow<&FixRow::name>("name"),  FieldRow<&FixRow::lat>("lat"),
        FieldRow<&FixRow::lon>("lon"),     ConstantField<&kFixType>("type"), ConstantField<&kNoText>("freq"),
    };
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

template <>
struct Describe<AirwayFixRow> {
    using A = AirwayFixRow;
    static constexpr Field fields[] = {
        FieldRow<&A::ident>("ident"), FieldRow<&A::ident>("name"),      FieldRow<&A::lat>("lat"),
        FieldRow<&A::lon>("lon"),     ConstantField<&kFixType>("type"), ConstantField<&kNoText>("freq"),
    };
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

template <>
struct Describe<NavaidRow> {
    static constexpr Field fields[] = {
        FieldRow<&NavaidRow::ident>("ident"), FieldRow<&NavaidRow::name>("name"),
        FieldRow<&NavaidRow::lat>("lat"),     FieldRow<&NavaidRow::lon>("lon"),
        FieldRow<&NavaidRow::type>("type"),   FieldRow<&NavaidRow::freq>("freq"),
    };
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

template <>
struct Describe<AirportRow> {
    static constexpr Field fields[] = {
        FieldRow<&AirportRow::ident>("ident"),
        FieldRow<&AirportRow::name>("name"),
        FieldRow<&AirportRow::lat>("lat"),
        FieldRow<&AirportRow::lon>("lon"),
        ConstantField<&kAirportType>("type"),
        ConstantField<&kNoText>("freq"),
        FieldRow<&AirportRow::longest_runway>("longest_runway"),
        FieldRow<&AirportRow::elevation_text>("elevation_text"),
    };
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

extern NavTables nav_tables;
extern const std::span<const Variable> kNavTableVariables;
