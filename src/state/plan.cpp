#include "state/plan.h"

template <>
struct Describe<FlightPlanLeg> {
    using L = FlightPlanLeg;
    static constexpr Field fields[] = {
        FieldRow<&L::ident>("ident"),
        FieldRow<&L::lat>("lat"),
        FieldRow<&L::lon>("lon"),
        FieldRow<&L::type>("type"),
        FieldRow<&L::freq>("freq"),
        FieldRow<&L::via>("via"),
        FieldRow<&L::via_type>("via_type"),
        FieldRow<&L::alt>("alt"),
        FieldRow<&L::alt_restr>("alt_restr"),
        FieldRow<&L::block_above>("block_above"),
        FieldRow<&L::block_below>("block_below"),
        FieldRow<&L::restr_code>("restr_code"),
        FieldRow<&L::restr_type>("restr_type"),
        FieldRow<&L::ias_restr>("ias_restr"),
        FieldRow<&L::mach_restr>("mach_restr"),
        FieldRow<&L::rad_int>("rad_int"),
        FieldRow<&L::flyover>("flyover"),
        FieldRow<&L::dep_turn>("dep_turn"),
        FieldRow<&L::hold_pos>("hold_pos"),
        FieldRow<&L::step_alt>("step_alt"),
        FieldRow<&L::vector>("vector"),
        FieldRow<&L::until_alt>("until_alt"),
        FieldRow<&L::from_hdg>("from_hdg"),
        FieldRow<&L::anchor_lat>("anchor_lat"),
        FieldRow<&L::anchor_lon>("anchor_lon"),
        FieldRow<&L::vector_lat>("vector_lat"),
        FieldRow<&L::vector_lon>("vector_lon"),
        FieldRow<&L::vector_trk_lat>("vector_trk_lat"),
        FieldRow<&L::vector_trk_lon>("vector_trk_lon"),
        FieldRow<&L::rwy>("rwy"),
        FieldRow<&L::appr_wpt_type>("appr_wpt_type"),
        FieldRow<&L::ata>("ata"),
        FieldRow<&L::mod_flag>("mod_flag"),
        FieldRow<&L::wind>("wind"),
        FieldRow<&L::along_wind>("along_wind"),
        FieldRow<&L::temp_alt>("temp_alt"),
        FieldRow<&L::temp>("temp"),
    };
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

template <>
struct Describe<RouteRow> {
    static constexpr Field fields[] = {FieldRow<&RouteRow::to>("to"), FieldRow<&RouteRow::via>("via"),
                                       FieldRow<&RouteRow::via_type>("via_type")};
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

template <>
struct Describe<ActiveLegRecord> {
    using A = ActiveLegRecord;
    static constexpr Field fields[] = {
        FieldRow<&A::from>("from"),         FieldRow<&A::from_lat>("from_lat"),
        FieldRow<&A::from_lon>("from_lon"), FieldRow<&A::to>("to"),
        FieldRow<&A::to_lat>("to_lat"),     FieldRow<&A::to_lon>("to_lon"),
        FieldRow<&A::course>("course"),     FieldRow<&A::direct_flag>("direct_flag"),
    };
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

template <>
struct Describe<HoldPoint> {
    static constexpr Field fields[] = {FieldRow<&HoldPoint::lat>("lat"), FieldRow<&HoldPoint::lon>("lon"),
                                       FieldRow<&HoldPoint::name>("name"),
                                       FieldRow<&HoldPoint::course>("course")};
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

template <>
struct Describe<HoldRecord> {
    using H = HoldRecord;
    static constexpr Field fields[] = {
        FieldRow<&H::ident>("ident"),
        FieldRow<&H::leg>("leg"),
        FieldRow<&H::pending_leg>("pending_leg"),
        FieldRow<&H::right_turn>("right_turn"),
        FieldRow<&H::leg_dist>("leg_dist"),
        FieldRow<&H::leg_time>("leg_time"),
        FieldRow<&H::inbound_crs>("inbound_crs"),
        FieldRow<&H::use_time>("use_time"),
        FieldRow<&H::magvar>("magvar"),
        FieldRow<&H::magvar_pending>("magvar_pending"),
        FieldRow<&H::points>("points"),
    };
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

template <>
struct Describe<PositionReport> {
    using P = PositionReport;
    static constexpr Field fields[] = {FieldRow<&P::leg>("leg"), FieldRow<&P::altitude>("altitude"),
                                       FieldRow<&P::time>("time"), FieldRow<&P::fuel>("fuel")};
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

PlanState plan;

namespace {
constexpr Variable kPlanRows[] = {
    {"fms_fltno", &plan.fms_fltno},
    {"FlightPlan", &plan.active.legs},
    {"fp_cnt", &plan.active.leg_cnt},
    {"FlightPlanMod", &plan.mod.legs},
    {"mod_cnt", &plan.mod.leg_cnt},
    {"Route", &plan.Route},
    {"route_cnt", &plan.route_cnt},
    {"stpos", &plan.active.stpos},
    {"mod_stpos", &plan.mod.stpos},
    {"pending_stpos", &plan.pending_stpos},
    {"bod_pos", &plan.active.bod_pos},
    {"mod_bod_pos", &plan.mod.bod_pos},
    {"ActiveLeg", &plan.active.active_leg},
    {"ActiveLegMod", &plan.mod.active_leg},
    {"FrId", &plan.active.active_leg.from},
    {"fr_lat", &plan.active.active_leg.from_lat},
    {"fr_lon", &plan.active.active_leg.from_lon},
    {"ToId", &plan.active.active_leg.to},
    {"to_lat", &plan.active.active_leg.to_lat},
    {"to_lon", &plan.active.active_leg.to_lon},
    {"HoldList", &plan.HoldList},
    {"hold_cnt", &plan.hold_cnt},
    {"hold_count", &plan.hold_cnt},
    {"lost_hold_cnt", &plan.lost_hold_cnt},
    {"fms_fpln_active", &plan.fms_fpln_active},
    {"PositionReports", &plan.PositionReports},
    {"position_report_cnt", &plan.position_report_cnt},
    {"new_route", &plan.new_route},
    {"direct_to_pending", &plan.direct_to_pending},
    {"terrain_profile_due", &plan.terrain_profile_due},
    {"final_appr_crs", &plan.final_appr_crs},
    {"map_ident", &plan.map_ident},
    {"map_fix_lat", &plan.map_fix_lat},
    {"map_fix_lon", &plan.map_fix_lon},
    {"origin", &plan.active.ends.origin},
    {"dest", &plan.active.ends.dest},
    {"dep_runway", &plan.active.ends.dep_runway},
    {"dep_sid", &plan.mod.procedures.dep_sid},
    {"dep_trans", &plan.mod.procedures.dep_trans},
    {"arr_star", &plan.mod.procedures.arr_star},
    {"arr_trans", &plan.mod.procedures.arr_trans},
    {"arr_appr", &plan.mod.procedures.arr_appr},
    {"arr_appr_rwy", &plan.mod.procedures.arr_appr_rwy},
    {"arr_appr_trans", &plan.mod.procedures.arr_appr_trans},
    {"appr_type", &plan.mod.procedures.appr_type},
    {"fms_dep_rwy_pos", &plan.active.ends.fms_dep_rwy_pos},
    {"fms_dest_rwy_pos", &plan.mod.procedures.fms_dest_rwy_pos},
    {"origin_mod", &plan.mod.ends.origin},
    {"dest_mod", &plan.mod.ends.dest},
    {"dep_runway_mod", &plan.mod.ends.dep_runway},
    {"company_route", &plan.mod.ends.company_route},
    {"ClimbSelected", &plan.mod.selected.ClimbSelected},
    {"climb_mach_manual", &plan.mod.selected.climb_mach_manual},
    {"CruiseSelected", &plan.mod.selected.CruiseSelected},
    {"CruiseMachSelected", &plan.mod.selected.CruiseMachSelected},
    {"DescentSelected", &plan.mod.selected.DescentSelected},
    {"descent_mach_manual", &plan.mod.selected.descent_mach_manual},
    {"LrcSelected", &plan.mod.selected.LrcSelected},
    {"pending_climb_ias", &plan.mod.entries.speeds.climb_ias},
    {"pending_climb_mach", &plan.mod.entries.speeds.climb_mach},
    {"pending_cruise_ias", &plan.mod.entries.speeds.cruise_ias},
    {"pending_cruise_mach", &plan.mod.entries.speeds.cruise_mach},
    {"pending_descent_ias", &plan.mod.entries.speeds.descent_ias},
    {"pending_descent_mach", &plan.mod.entries.speeds.descent_mach},
    {"ActiveStepSize", &plan.mod.entries.ActiveStepSize},
    {"ActiveCostIndex", &plan.mod.entries.ActiveCostIndex},
    {"pending_cruise_alt", &plan.mod.entries.cruise_alt},
    {"AirwayFixList", &plan.AirwayFixList},
    {"awy_list_cnt", &plan.awy_list_cnt},
    {"awy_start_pos", &plan.awy_start_pos},
    {"along_track_nm", &plan.along_track_nm},
    {"direct_abeam_check", &plan.direct_abeam_check},
    {"awy_name", &plan.awy_name},
    {"awy_start_leg", &plan.awy_start_leg},
};
}  // namespace

const std::span<const Variable> kPlanVariables = kPlanRows;
