#include "state/cdu.h"

template <>
struct Describe<CduMessage> {
    static constexpr Field fields[] = {
        FieldRow<&CduMessage::title>("title"), FieldRow<&CduMessage::body>("body"),
        FieldRow<&CduMessage::kind>("kind"), FieldRow<&CduMessage::side>("side")};
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

std::array<CduState, 2> cdu;
RoutePages route_pages;

namespace {
constexpr Variable kRows[] = {
    {"capt_fms_page", &cdu[0].fms_page},
    {"capt_prev_fms_page", &cdu[0].prev_fms_page},
    {"capt_fms_vnav_page", &cdu[0].fms_vnav_page},
    {"fo_fms_page", &cdu[1].fms_page},
    {"fo_prev_fms_page", &cdu[1].prev_fms_page},
    {"fo_fms_vnav_page", &cdu[1].fms_vnav_page},
    {"capt.ScratchPad", &cdu[0].ScratchPad},
    {"capt.ScratchMessage", &cdu[0].ScratchMessage},
    {"capt.ItemCursor", &cdu[0].ItemCursor},
    {"capt.PendingLine", &cdu[0].PendingLine},
    {"capt.PrevPagePending", &cdu[0].PrevPagePending},
    {"capt.NextPagePending", &cdu[0].NextPagePending},
    {"capt.KeyPressTimer", &cdu[0].KeyPressTimer},
    {"capt.line_selectable", &cdu[0].line_selectable},
    {"capt.PcKeyboardActive", &cdu[0].PcKeyboardActive},
    {"capt.keyboard_commands", &cdu[0].keyboard_commands},
    {"capt.CduMessages", &cdu[0].CduMessages},
    {"capt.CduMessageCount", &cdu[0].CduMessageCount},
    {"capt.ClearMessageTimer", &cdu[0].ClearMessageTimer},
    {"capt.rte_index", &cdu[0].rte_index},
    {"capt.legs_index", &cdu[0].legs_index},
    {"capt.rte_data_index", &cdu[0].rte_data_index},
    {"capt.dep_index", &cdu[0].dep_index},
    {"capt.arr_index", &cdu[0].arr_index},
    {"capt.select_index", &cdu[0].select_index},
    {"capt.takeoff_index", &cdu[0].takeoff_index},
    {"capt.progress_index", &cdu[0].progress_index},
    {"capt.altn_index", &cdu[0].altn_index},
    {"capt.fix_index", &cdu[0].fix_index},
    {"capt.flight_plans_index", &cdu[0].flight_plans_index},
    {"capt.panels_index", &cdu[0].panels_index},
    {"capt.pos_index", &cdu[0].pos_index},
    {"capt.hold_index", &cdu[0].hold_index},
    {"capt.AltnDetail", &cdu[0].AltnDetail},
    {"capt.wind_leg", &cdu[0].wind_leg},
    {"capt.arrivals_of_origin", &cdu[0].arrivals_of_origin},
    {"fo.ScratchPad", &cdu[1].ScratchPad},
    {"fo.ScratchMessage", &cdu[1].ScratchMessage},
    {"fo.ItemCursor", &cdu[1].ItemCursor},
    {"fo.PendingLine", &cdu[1].PendingLine},
    {"fo.PrevPagePending", &cdu[1].PrevPagePending},
    {"fo.NextPagePending", &cdu[1].NextPagePending},
    {"fo.KeyPressTimer", &cdu[1].KeyPressTimer},
    {"fo.line_selectable", &cdu[1].line_selectable},
    {"fo.PcKeyboardActive", &cdu[1].PcKeyboardActive},
    {"fo.keyboard_commands", &cdu[1].keyboard_commands},
    {"fo.CduMessages", &cdu[1].CduMessages},
    {"fo.CduMessageCount", &cdu[1].CduMessageCount},
    {"fo.ClearMessageTimer", &cdu[1].ClearMessageTimer},
    {"fo.rte_index", &cdu[1].rte_index},
    {"fo.legs_index", &cdu[1].legs_index},
    {"fo.rte_data_index", &cdu[1].rte_data_index},
    {"fo.dep_index", &cdu[1].dep_index},
    {"fo.arr_index", &cdu[1].arr_index},
    {"fo.select_index", &cdu[1].select_index},
    {"fo.takeoff_index", &cdu[1].takeoff_index},
    {"fo.progress_index", &cdu[1].progress_index},
    {"fo.altn_index", &cdu[1].altn_index},
    {"fo.fix_index", &cdu[1].fix_index},
    {"fo.flight_plans_index", &cdu[1].flight_plans_index},
    {"fo.panels_index", &cdu[1].panels_index},
    {"fo.pos_index", &cdu[1].pos_index},
    {"fo.hold_index", &cdu[1].hold_index},
    {"fo.AltnDetail", &cdu[1].AltnDetail},
    {"fo.wind_leg", &cdu[1].wind_leg},
    {"fo.arrivals_of_origin", &cdu[1].arrivals_of_origin},
};
constexpr Variable kRoutePageRows[] = {
    {"LegsView", &route_pages.LegsView},
    {"HoldSelectIndex", &route_pages.HoldSelectIndex},
    {"DirectSelectIndex", &route_pages.DirectSelectIndex},
    {"PendingSelectRow", &route_pages.PendingSelectRow},
    {"hold_candidate", &route_pages.hold_candidate},
};
}  // namespace

const std::span<const Variable> kCduVariables = kRows;
const std::span<const Variable> kRoutePageVariables = kRoutePageRows;
