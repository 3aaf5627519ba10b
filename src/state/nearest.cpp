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

template <class Row>
struct Describe<NearList<Row>> {
    using L = NearList<Row>;
    static constexpr Field fields[] = {
        FieldRow<&L::rows>("rows"), FieldRow<&L::cnt>("cnt"),     FieldRow<&L::lat>("lat"),
        FieldRow<&L::lon>("lon"),   FieldRow<&L::built>("built"),
    };
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

template <class Row>
struct Describe<NearListPair<Row>> {
    using P = NearListPair<Row>;
    static constexpr Field fields[] = {FieldRow<&P::far>("far"), FieldRow<&P::near>("near")};
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

template <>
struct Describe<NearPlaces> {
    using N = NearPlaces;
    static constexpr Field fields[] = {
        FieldRow<&N::airports>("airports"),
        FieldRow<&N::fixes>("fixes"),
        FieldRow<&N::navaids>("navaids"),
        FieldRow<&N::close_airports>("close_airports"),
    };
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

NearestState nearest;

namespace {
constexpr Variable kNearestRows[] = {
    {"far_airport_list", &nearest.around.airports.far.rows},
    {"far_airport_cnt", &nearest.around.airports.far.cnt},
    {"near_airport_list", &nearest.around.airports.near.rows},
    {"near_airport_cnt", &nearest.around.airports.near.cnt},
    {"close_airport_list", &nearest.around.close_airports.rows},
    {"close_airport_cnt", &nearest.around.close_airports.cnt},
    {"far_fix_list", &nearest.around.fixes.far.rows},
    {"far_fix_cnt", &nearest.around.fixes.far.cnt},
    {"near_fix_list", &nearest.around.fixes.near.rows},
    {"near_fix_cnt", &nearest.around.fixes.near.cnt},
    {"far_navaid_list", &nearest.around.navaids.far.rows},
    {"far_navaid_cnt", &nearest.around.navaids.far.cnt},
    {"near_navaid_list", &nearest.around.navaids.near.rows},
    {"near_navaid_cnt", &nearest.around.navaids.near.cnt},
    {"places_around_plan", &nearest.around_plan},
    {"near_vor_list", &nearest.vors.rows},
    {"near_vor_cnt", &nearest.vors.cnt},
    {"AltnRows", &nearest.AltnRows},
    {"AltnListRows", &nearest.AltnListRows},
    {"AltnInhibit1", &nearest.AltnInhibit1},
    {"AltnInhibit2", &nearest.AltnInhibit2},
    {"NearestVors", &nearest.NearestVors},
    {"nearest_vor_cnt", &nearest.nearest_vor_cnt},
    {"vor_left", &nearest.vor_left},
    {"vor_right", &nearest.vor_right},
    {"VorLeftMode", &nearest.VorLeftMode},
    {"VorRightMode", &nearest.VorRightMode},
    {"VorLeftFreq", &nearest.VorLeftFreq},
    {"VorRightFreq", &nearest.VorRightFreq},
};
}  // namespace

const std::span<const Variable> kNearestVariables = kNearestRows;
