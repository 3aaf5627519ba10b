#include "cdu/pages/init_ref_index_page.h"

#include "cdu/pages/flight_plans_page.h"
#include "cdu/pages/panels_page.h"
#include "cdu/pages/pos_init_page.h"
#include "cdu/words/page.h"
#include "fmc/files/host_gps_route.h"
#include "fmc/files/route_files.h"
#include "fmc/performance/approach_speeds.h"
#include "fmc/performance/takeoff_reference.h"
#include "frame/crew_messages.h"
#include "panels/save_panel.h"
#include "state/cfg.h"
#include "state/leg_words.h"
#include "state/nav.h"

namespace {

void OpenApproachRef(PageCall& call) {
    if (cfg.CduAutoCalcVspeeds == 1) FillApproachSpeeds(LandingWeight::kPresent);
    GoToPage(call.side, kPageApproachRef);
}

void OpenRefNavData(PageCall& call) {
    nav.ref_nav_data = {};
    GoToPage(call.side, kPageRefNavData);
}

void SavePanel(PageCall& call) {
    SavePanelState(Entry(call), call.side, kCrewSave);
    ClearEntry(call);
}

void SaveRoute(PageCall& call) {
    if (!IsRouteActive() || plan.active.leg_cnt < 1)
        return PostCduMessage("NO ACTIVE FLIGHT PLAN", kRefusedOperation, kHelpFixedList, call.side);
    std::string name = Entry(call);
    if (name.empty()) name = plan.active.ends.origin + plan.active.ends.dest;
    if (name.find('.') == std::string::npos) name += ".RTE";
    if (SaveCompanyRoute(name) == 0) return Refuse(call, "INVALID ENTRY", kHelpFixedList);
    PostCduMessage(name, kFileStored, kHelpFlightPlanSaved, call.side);
    ClearEntry(call);
}

void OnLine(PageCall& call) {
    switch (call.line) {
        case kL1:
            return GoToPage(call.side, kPageIdent);
        case kL2:
            return OpenPosInit(call);
        case kL3:
            return GoToPage(call.side, kPagePerfInit);
        case kL4:
            UpdateTakeoffSpeeds();
            return GoToPage(call.side, kPageTakeoffRef);
        case kL5:
            return OpenApproachRef(call);
        case kL6:
            return GoToPage(call.side, kPageAnnouncements);
        case kR1:
            return OpenRefNavData(call);
        case kR2:
            return OpenFlightPlans(call);
        case kR3:
            return ImportHostGpsRoute(call.side);
        case kR4:
            return OpenPanels(call);
        case kR5:
            return SavePanel(call);
        case kR6:
            return SaveRoute(call);
        default:
            return;
    }
}

constexpr const char* kLeft[] = {"<IDENT", "<POS", "<PERF", "<TAKEOFF", "<APPROACH", "<ANN STATUS"};
constexpr const char* kRight[] = {"NAV DATA>", "FLIGHT PLANS>", "LOAD ATC RTE>",
                                  "LOAD PNL>", "SAVE PNL>",     "SAVE FPL>"};

}  // namespace

void InitRefIndexPage(PageCall& call) {
    OnLine(call);
    Title(call, 95, "INIT/REF  INDEX");
    for (int row = 1; row <= 6; ++row) {
        LeftData(call, row, kLeft[row - 1]);
        RightData(call, row, kRight[row - 1]);
        MarkSelectable(call, kL1 + row - 1);
        MarkSelectable(call, kR1 + row - 1);
    }
}
