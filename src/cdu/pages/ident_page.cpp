#include "cdu/pages/ident_page.h"

#include <cmath>

#include "base/text.h"
#include "cdu/pages/pos_init_page.h"
#include "cdu/words/page.h"
#include "cdu/words/typed_values.h"
#include "frame/crew_messages.h"
#include "state/identity.h"
#include "state/nav.h"
#include "state/perf.h"

namespace {

struct Engines {
    std::string_view model;
    const char* trent;
    const char* genx;
};
constexpr Engines kEngines[] = {
    {"900-8", "TRENT 1000A", "GEN1B67"},
    {"900-9", "TRENT 1000C", "GEN1B70"},
    {"900-10", "TRENT 1000 TEN", "GEN1B76"},
};

const char* EngineRating() {
    for (const Engines& row : kEngines)
        if (identity.aircraft_model == row.model)
            return identity.engine_model.starts_with("TRENT") ? row.trent : row.genx;
    return "";
}

// "DRAG", "/FF" or "DRAG/FF", percent.
void OnFactors(PageCall& call) {
    constexpr double kMost = 9.9;
    const std::string_view text = Entry(call);
    if (text.empty()) return;
    const auto parts = SplitAtSlash(text);
    const std::string_view drag_text = parts ? parts->first : text;
    const auto drag = TypedNumber(drag_text, -kMost, kMost);
    const auto fuel_flow = TypedNumber(parts ? parts->second : "", -kMost, kMost);
    if ((!drag && !drag_text.empty()) || (!fuel_flow && parts))
        return Refuse(call, "INVALID ENTRY", kHelpDragFuelFlow);
    if (drag) perf.DragFactor = *drag;
    if (fuel_flow) perf.FuelFlowFactor = *fuel_flow;
    ClearEntry(call);
}

std::string FactorsText() {
    const auto sign = [](double value) { return std::signbit(value) && value != 0 ? "-" : "+"; };
    return Format("%s%.1f/%s%.1f", sign(perf.DragFactor), std::fabs(perf.DragFactor),
                  sign(perf.FuelFlowFactor), std::fabs(perf.FuelFlowFactor));
}

}  // namespace

void IdentPage(PageCall& call) {
    if (call.line == kR5) OnFactors(call);
    if (call.line == kL6) GoToPage(call.side, kPageInitRefIndex);
    if (call.line == kR6) OpenPosInit(call);

    Title(call, 125, "IDENT");
    LeftLabel(call, 1, "MODEL");
    LeftData(call, 1, identity.aircraft_model);
    RightLabel(call, 1, "ENG RATING");
    RightData(call, 1, EngineRating());
    LeftLabel(call, 2, "NAV DATA");
    LeftData(call, 2, nav.airac_cycle_text);
    RightLabel(call, 2, "ACTIVE");
    RightData(call, 2, nav.airac_range_text);
    LeftLabel(call, 4, "OP PROGRAM");
    LeftData(call, 4, "PS10092018-(TZ 1.2.1)");
    RightLabel(call, 5, "DRAG/FF");
    RightData(call, 5, FactorsText());
    DashLine(call);
    LeftData(call, 6, "<INDEX");
    RightData(call, 6, "<POS INIT");
    for (const int line : {kR5, kL6, kR6}) MarkSelectable(call, line);
}
