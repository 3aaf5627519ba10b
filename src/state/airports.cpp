#include "state/airports.h"

#include "state/procedures_describe.h"

template <>
struct Describe<RunwayData> {
    using R = RunwayData;
    static constexpr Field fields[] = {
        FieldRow<&R::ident>("ident"),
        FieldRow<&R::lat>("lat"),
        FieldRow<&R::lon>("lon"),
        FieldRow<&R::length_ft>("length_ft"),
        FieldRow<&R::ils_ident>("ils_ident"),
        FieldRow<&R::ils_freq>("ils_freq"),
        FieldRow<&R::course>("course"),
        FieldRow<&R::sub7>("sub7"),
        FieldRow<&R::recip_course>("recip_course"),
        FieldRow<&R::right_pattern>("right_pattern"),
        FieldRow<&R::recip_ident>("recip_ident"),
        FieldRow<&R::recip_lat>("recip_lat"),
        FieldRow<&R::recip_lon>("recip_lon"),
    };
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

template <>
struct Describe<AirportData> {
    using A = AirportData;
    static constexpr Field fields[] = {
        FieldRow<&A::lat>("lat"),
        FieldRow<&A::lon>("lon"),
        FieldRow<&A::lat_text>("lat_text"),
        FieldRow<&A::lon_text>("lon_text"),
        FieldRow<&A::runway_cnt>("runway_cnt"),
        FieldRow<&A::ident>("ident"),
        FieldRow<&A::name>("name"),
        FieldRow<&A::elevation_ft>("elevation_ft"),
        FieldRow<&A::procedure_cnt>("procedure_cnt"),
        FieldRow<&A::runways>("runways"),
        FieldRow<&A::sids>("sids"),
        FieldRow<&A::sid_cnt>("sid_cnt"),
        FieldRow<&A::stars>("stars"),
        FieldRow<&A::star_cnt>("star_cnt"),
        FieldRow<&A::approaches>("approaches"),
        FieldRow<&A::approach_cnt>("approach_cnt"),
        FieldRow<&A::approach_kinds>("approach_kinds"),
        FieldRow<&A::approach_kind_cnt>("approach_kind_cnt"),
    };
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

AirportSlots airports;

namespace {
constexpr Variable kAirportRows[] = {
    {"origin_airport", &airports.origin_airport},
    {"dest_airport", &airports.dest_airport},
    {"altn_airport", &airports.altn_airport},
    {"chart_origin_airport", &airports.chart_origin_airport},
    {"chart_dest_airport", &airports.chart_dest_airport},
    {"tablet_to_airport", &airports.tablet_to_airport},
    {"tablet_ldg_airport", &airports.tablet_ldg_airport},
    {"ai_runways", &airports.ai_runways},
    {"elevation_text", &airports.elevation_text},
    {"airport_loading", &airports.loading},
};
}  // namespace

const std::span<const Variable> kAirportVariables = kAirportRows;
