#pragma once

#include <array>
#include <span>
#include <string>

#include "state/variable.h"

/// A place that the crew has put on the map, with rings and radials about it.
struct FixPage {
    std::string ident;  // empty = the page is unused
    double lat = 0, lon = 0;
    struct Row {
        double bearing = 0;  // degrees magnetic, 0 = none
        double dist = 0;     // nm, 0 = none
    };
    std::array<Row, 4> rows;  // from 1
};

struct FixInfoState {
    std::array<FixPage, 5> FixPages;  // from 1
};

extern FixInfoState fix_info;
extern const std::span<const Variable> kFixInfoVariables;

template <>
struct Describe<FixPage::Row> {
    using R = FixPage::Row;
    static constexpr Field fields[] = {FieldRow<&R::bearing>("bearing"), FieldRow<&R::dist>("dist")};
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

template <>
struct Describe<FixPage> {
    static constexpr Field fields[] = {FieldRow<&FixPage::ident>("ident"), FieldRow<&FixPage::lat>("lat"),
                                       FieldRow<&FixPage::lon>("lon"), FieldRow<&FixPage::rows>("rows")};
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};
