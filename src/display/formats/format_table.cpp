#include "display/formats/format_table.h"

#include "display/formats/aux_strip.h"
#include "display/formats/cdu_content.h"
#include "display/formats/checklist.h"
#include "display/formats/comm.h"
#include "display/formats/eicas.h"
#include "display/formats/info.h"
#include "display/formats/nd.h"
#include "display/formats/pfd.h"
#include "display/formats/select_prompt.h"
#include "display/formats/system_pages.h"
#include "state/displays.h"
#include "state/side.h"

namespace {

// Where the right half's drawings begin; most canvases begin one further right.
constexpr int kRightEdge = 282;

constexpr DisplayFormat kFormats[] = {
    {Content::kAux, DrawAuxStrip, nullptr},
    {Content::kPfd, DrawPfd, nullptr},
    {Content::kEicas, DrawEicas, nullptr},
    {Content::kCdu, DrawCduContent, TouchCduContent},
    {Content::kChkl, DrawChecklist, TouchChecklist},
    {Content::kComm, DrawComm, TouchComm},
    {Content::kInfo, DrawInfo, TouchInfo, kRightEdge},
    {.content = Content::kNd, .draw = DrawNd, .touch = TouchNd, .owner = Owner::kOfItsInboard},
    {Content::kSelect, DrawSelectPrompt, nullptr},
    {Content::kSys, DrawSystemPage, TouchSystemPage, kRightEdge},
};

}  // namespace

const DisplayFormat* FindFormat(Content content) {
    for (const DisplayFormat& format : kFormats)
        if (format.content == content) return &format;
    return nullptr;
}

ContentPlace PlaceOf(Content content, int mode, int unit, int half) {
    const DisplayFormat* format = FindFormat(content);
    const bool by_inboard = format != nullptr && format->owner == Owner::kOfItsInboard;
    return {.mode = mode,
            .unit = unit,
            .half = half,
            .side = SideOf(unit, by_inboard ? 1 : half),
            .narrow = content == Content::kPfd && mode >= 80 && mode <= 95,
            .system_page = SystemPageOf(unit, half)};
}
