#include "state/cdu.h"

template <>
struct Describe<CduMessage> {
    static constexpr Field fields[] = {
        FieldRow<&CduMessage::title>("title"), FieldRow<&CduMessage::body>("body"),
        FieldRow<&CduMessage::kind>("kind"), FieldRow<&CduMessage::side>("side")};
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

std::array<CduState, 2> cdu;

namespace {
constexpr Variable kRows[] = {
    {"capt_fms_page", &cdu[0].fms_page},
    {"fo_fms_page", &cdu[1].fms_page},
    {"capt_prev_fms_page", &cdu[0].prev_fms_page},
    {"fo_prev_fms_page", &cdu[1].prev_fms_page},
    {"capt.ScratchPad", &cdu[0].ScratchPad},
    {"fo.ScratchPad", &cdu[1].ScratchPad},
    {"capt.ScratchMessage", &cdu[0].ScratchMessage},
    {"fo.ScratchMessage", &cdu[1].ScratchMessage},
    {"capt.ItemCursor", &cdu[0].ItemCursor},
    {"fo.ItemCursor", &cdu[1].ItemCursor},
    {"capt.PendingLine", &cdu[0].PendingLine},
    {"fo.PendingLine", &cdu[1].PendingLine},
    {"capt.PrevPagePending", &cdu[0].PrevPagePending},
    {"fo.PrevPagePending", &cdu[1].PrevPagePending},
    {"capt.NextPagePending", &cdu[0].NextPagePending},
    {"fo.NextPagePending", &cdu[1].NextPagePending},
    {"capt.PendingItem", &cdu[0].PendingItem},
    {"fo.PendingItem", &cdu[1].PendingItem},
    {"capt.PcKeyboardActive", &cdu[0].PcKeyboardActive},
    {"fo.PcKeyboardActive", &cdu[1].PcKeyboardActive},
    {"capt.CduMessages", &cdu[0].CduMessages},
    {"fo.CduMessages", &cdu[1].CduMessages},
    {"capt.CduMessageCount", &cdu[0].CduMessageCount},
    {"fo.CduMessageCount", &cdu[1].CduMessageCount},
};
}  // namespace

const std::span<const Variable> kCduVariables = kRows;
