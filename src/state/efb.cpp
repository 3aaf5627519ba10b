#include "state/efb.h"

EfbState efb;

namespace {
constexpr Variable kEfbRows[] = {
    {"EfbBrightness", &efb.EfbBrightness},
    {"efb_thr_ref", &efb.efb_thr_ref},
    {"capt.EfbPendingKey", &efb.side[0].pending_key},
    {"fo.EfbPendingKey", &efb.side[1].pending_key},
    {"capt.EfbMouseX", &efb.side[0].EfbMouseX},
    {"fo.EfbMouseX", &efb.side[1].EfbMouseX},
    {"capt.EfbMouseY", &efb.side[0].EfbMouseY},
    {"fo.EfbMouseY", &efb.side[1].EfbMouseY},
    {"capt.EfbTouchPending", &efb.side[0].touch_pending},
    {"fo.EfbTouchPending", &efb.side[1].touch_pending},
};
}  // namespace

const std::span<const Variable> kEfbVariables = kEfbRows;
