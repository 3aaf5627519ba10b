#include "state/nearest.h"

template <>
struct Describe<AltnRecord> {
    using A = AltnRecord;
    static constexpr Field fields[] = {
        FieldRow<&A::ident>("ident"), FieldRow<&A::lat>("lat"),   FieldRow<&A::lon>("lon"),
        FieldRow<&A::fixed>("fixed"), FieldRow<&A::text>("text"),
    };
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

template <>
struct Describe<TunedVor> {
    using V = TunedVor;
    static constexpr Field fields[] = {
        FieldRow<&V::ident>("ident"), FieldRow<&V::freq>("freq"), FieldRow<&V::lat>("lat"),
        FieldRow<&V::lon>("lon"),     FieldRow<&V::dist>("dist"), FieldRow<&V::bearing>("bearing"),
    };
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

NearestState nearest;

namespace {
constexpr Variable kNearestRows[] = {
    {"far_airport_list", &nearest.airports.far.rows},
    {"far_airport_cnt", &nearest.airports.far.cnt},
    {"near_airport_list", &nearest.airports.near.rows},
    {"near_airport_cnt", &nearest.airports.near.cnt},
    {"far_fix_list", &nearest.fixes.far.rows},
    {"far_fix_cnt", &nearest.fixes.far.cnt},
    {"near_fix_list", &nearest.fixes.near.rows},
    {"near_fix_cnt", &nearest.fixes.near.cnt},
    {"far_navaid_list", &nearest.navaids.far.rows},
    {"far_navaid_cnt", &nearest.navaids.far.cnt},
    {"near_navaid_list", &nearest.navaids.near.rows},
    {"near_navaid_cnt", &nearest.navaids.near.cnt},
    {"near_vor_list", &nearest.vors.rows},
    {"near_vor_cnt", &nearest.vors.cnt},
    {"AltnRows", &nearest.AltnRows},
    {"NearestVors", &nearest.NearestVors},
    {"nearest_vor_cnt", &nearest.nearest_vor_cnt},
    {"vor_left", &nearest.vor_left},
    {"vor_right", &nearest.vor_right},
    {"VorLeftMode", &nearest.VorLeftMode},
    {"VorRightMode", &nearest.VorRightMode},
    {"map_centre_set", &nearest.map_centre_set},
    {"map_centre_lat", &nearest.map_centre_lat},
    {"map_centre_lon", &nearest.map_centre_lon},
};
}  // namespace

const std::span<const Variable> kNearestVariables = kNearestRows;
