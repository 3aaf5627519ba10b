#include "state/predictions.h"

#include "state/cfg.h"

template <>
struct Describe<MeasuredLeg> {
    using M = MeasuredLeg;
    static constexpr Field fields[] = {
        FieldRow<&M::from_lat>("from_lat"), FieldRow<&M::from_lon>("from_lon"),
        FieldRow<&M::to_lat>("to_lat"),     FieldRow<&M::to_lon>("to_lon"),
        FieldRow<&M::dist>("dist"),
    };
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

PredictionState predictions;

namespace {
constexpr Variable kPredictionRows[] = {
    {"start_weight", &predictions.start_weight},
    {"clb_burn", &predictions.clb_burn},
    {"crz_burn", &predictions.crz_burn},
    {"des_burn", &predictions.des_burn},
    {"default_climb_rate", &predictions.default_climb_rate},
    {"clb_burn_per_nm", &predictions.clb_burn_per_nm},
    {"crz_burn_per_nm", &predictions.crz_burn_per_nm},
    {"des_burn_per_nm", &predictions.des_burn_per_nm},
    {"avg_burn", &predictions.avg_burn},
    {"avg_gs", &predictions.avg_gs},
    {"clb_wind", &predictions.clb_wind},
    {"crz_wind", &predictions.crz_wind},
    {"des_wind", &predictions.des_wind},
    {"clb_tas", &predictions.clb_tas},
    {"crz_tas", &predictions.crz_tas},
    {"des_tas", &predictions.des_tas},
    {"tod_rod", &predictions.tod_rod},
    {"desc_grad", &cfg.DescFpa},
    {"final_point_lat", &predictions.final_point_lat},
    {"final_point_lon", &predictions.final_point_lon},
    {"final_point_set", &predictions.final_point_set},
    {"measured_legs", &predictions.measured_legs},
    {"perf_factor", &predictions.perf_factor},
    {"dist_to_toc", &predictions.dist_to_toc},
    {"dist_to_tod", &predictions.dist_to_tod},
    {"dist_to_dest", &predictions.dist_to_dest},
    {"dest_brg", &predictions.dest_brg},
};
}  // namespace

const std::span<const Variable> kPredictionVariables = kPredictionRows;
