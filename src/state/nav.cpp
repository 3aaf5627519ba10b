#include "state/nav.h"

template <>
struct Describe<NavRecord> {
    using N = NavRecord;
    static constexpr Field fields[] = {
        FieldRow<&N::ident>("ident"),
        FieldRow<&N::name>("name"),
        FieldRow<&N::lat>("lat"),
        FieldRow<&N::lon>("lon"),
        FieldRow<&N::type>("type"),
        FieldRow<&N::freq>("freq"),
        FieldRow<&N::longest_runway>("longest_runway"),
        FieldRow<&N::airway>("airway"),
        FieldRow<&N::elevation_text>("elevation_text"),
    };
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

NavState nav;

namespace {
constexpr Variable kNavRows[] = {
    {"EntryCandidates", &nav.EntryCandidates},
    {"entry_cnt", &nav.entry_cnt},
    {"entry_bearing", &nav.entry_bearing},
    {"entry_bearing2", &nav.entry_bearing2},
    {"entry_distance", &nav.entry_distance},
    {"entry_list_pos", &nav.entry_list_pos},
    {"entry_list_page", &nav.entry_list_page},
    {"navdata_out_of_date", &nav.navdata_out_of_date},
    {"airac_cycle_text", &nav.airac_cycle_text},
    {"airac_range_text", &nav.airac_range_text},
    {"airac_range_short", &nav.airac_range_short},
    {"nearest_refresh_due", &nav.nearest_refresh_due},
    {"ilsfreq", &nav.ilsfreq},
    {"IlsCourse", &nav.IlsCourse},
    {"ref_nav_data", &nav.ref_nav_data},
    {"autotuned", &nav.autotuned},
    {"autotune_freq", &nav.autotune_freq},
    {"autotune_tries", &nav.autotune_tries},
    {"autotuned_approach", &nav.autotuned_approach},
    {"appr_navaid_ident", &nav.appr_navaid_ident},
};
}  // namespace

const std::span<const Variable> kNavVariables = kNavRows;
