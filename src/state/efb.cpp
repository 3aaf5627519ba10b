#include "state/efb.h"

EfbState efb;

namespace {
constexpr Variable kEfbRows[] = {
    {"EfbPage", &efb.EfbPage},
    {"EfbPrevPage", &efb.EfbPrevPage},
    {"EfbKeyboardShown", &efb.EfbKeyboardShown},
    {"EfbScratch", &efb.EfbScratch},
    {"EfbEditField", &efb.EfbEditField},
    {"EfbOpenList", &efb.EfbOpenList},
    {"EfbSearchIdent", &efb.EfbSearchIdent},
    {"EfbSearchPage", &efb.EfbSearchPage},
    {"EfbSendTo", &efb.EfbSendTo},
    {"EfbBrightness", &efb.EfbBrightness},
    {"efb_thr_ref", &efb.efb_thr_ref},
    {"capt.EfbPendingKey", &efb.side[0].pending_key},
    {"fo.EfbPendingKey", &efb.side[1].pending_key},
    {"capt.EfbMouseX", &efb.side[0].EfbMouseX},
    {"fo.EfbMouseX", &efb.side[1].EfbMouseX},
    {"capt.EfbMouseY", &efb.side[0].EfbMouseY},
    {"fo.EfbMouseY", &efb.side[1].EfbMouseY},
    {"capt.EfbTouchTicks", &efb.side[0].touch_ticks},
    {"fo.EfbTouchTicks", &efb.side[1].touch_ticks},
    {"capt.EfbPowerKey", &efb.side[0].power_key},
    {"fo.EfbPowerKey", &efb.side[1].power_key},
    {"capt.EfbPower", &efb.side[0].EfbPower},
    {"fo.EfbPower", &efb.side[1].EfbPower},
    {"capt.EfbStartupTicks", &efb.side[0].startup_ticks},
    {"fo.EfbStartupTicks", &efb.side[1].startup_ticks},
    {"capt.EfbKeyboardLayer", &efb.side[0].keyboard_layer},
    {"fo.EfbKeyboardLayer", &efb.side[1].keyboard_layer},
};
}  // namespace

const std::span<const Variable> kEfbVariables = kEfbRows;
