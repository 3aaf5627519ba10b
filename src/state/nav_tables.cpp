#include "state/nav_tables.h"

template <>
struct Describe<LandmarkRow> {
    static constexpr Field fields[] = {
        FieldRow<&LandmarkRow::name>("name"),
        FieldRow<&LandmarkRow::lat>("lat"),
        FieldRow<&LandmarkRow::lon>("lon"),
    };
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

template <>
struct Describe<AirwayRun> {
    static constexpr Field fields[] = {FieldRow<&AirwayRun::name>("name"),
                                       FieldRow<&AirwayRun::lines>("lines")};
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

template <>
struct Describe<NavdataFile> {
    using F = NavdataFile;
    static constexpr Field fields[] = {
        FieldRow<&F::name>("name"),
        FieldRow<&F::size>("size"),
        FieldRow<&F::rows>("rows"),
        FieldRow<&F::skipped>("skipped"),
        FieldRow<&F::first_skipped>("first_skipped"),
        FieldRow<&F::why>("why"),
    };
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

NavTables nav_tables;

namespace {
constexpr Variable kNavTableRows[] = {
    {"navdata_files", &nav_tables.navdata_files},
    {"navdata_file_cnt", &nav_tables.navdata_file_cnt},
    {"IntersectionTable", &nav_tables.IntersectionTable},
    {"int_cnt", &nav_tables.int_cnt},
    {"AirwayFixTable", &nav_tables.AirwayFixTable},
    {"awy_fix_cnt", &nav_tables.awy_fix_cnt},
    {"AirportTable", &nav_tables.AirportTable},
    {"apt_cnt", &nav_tables.apt_cnt},
    {"NavaidTable", &nav_tables.NavaidTable},
    {"nav_cnt", &nav_tables.nav_cnt},
    {"LandmarkTable", &nav_tables.LandmarkTable},
    {"landmark_cnt", &nav_tables.landmark_cnt},
    {"airway_runs", &nav_tables.airway_runs},
    {"airway_run_cnt", &nav_tables.airway_run_cnt},
    {"airport_lines", &nav_tables.airport_lines},
    {"airport_line_cnt", &nav_tables.airport_line_cnt},
};
}  // namespace

const std::span<const Variable> kNavTableVariables = kNavTableRows;
