#include "state/weights.h"

WeightState weights;

template <>
struct Describe<FlapSpeedRow> {
    static constexpr Field fields[] = {
        FieldRow<&FlapSpeedRow::weight>("weight"),   FieldRow<&FlapSpeedRow::up>("up"),
        FieldRow<&FlapSpeedRow::flaps1>("flaps1"),   FieldRow<&FlapSpeedRow::flaps5>("flaps5"),
        FieldRow<&FlapSpeedRow::flaps15>("flaps15"), FieldRow<&FlapSpeedRow::flaps20>("flaps20"),
        FieldRow<&FlapSpeedRow::flaps25>("flaps25"), FieldRow<&FlapSpeedRow::flaps30>("flaps30"),
    };
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

namespace {
constexpr Variable kWeightRows[] = {
    {"zfw", &weights.zfw},
    {"gross_weight", &weights.gross_weight},
    {"GrossWeightShown", &weights.gross_weight},
    {"flap_speeds", &weights.flap_speeds},
    {"flap_speed_row", &weights.flap_speed_row},
    {"flap_speed_ref_weight", &weights.flap_speed_ref_weight},
    {"payload_stations", &weights.payload_stations},
    {"fuel_load_left", &weights.fuel_load_left},
    {"fuel_load_right", &weights.fuel_load_right},
    {"fuel_load_centre", &weights.fuel_load_centre},
};
}  // namespace

const std::span<const Variable> kWeightVariables = kWeightRows;
