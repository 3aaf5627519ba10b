#include "cdu/pages/thrust_lim_page.h"

#include <string>

#include "base/text.h"
#include "cdu/words/page.h"
#include "cdu/words/perf_lines.h"
#include "fmc/performance/takeoff_reference.h"
#include "state/autoflight.h"
#include "state/cfg.h"
#include "state/engines.h"
#include "state/identity.h"
#include "state/sim.h"
#include "state/takeoff_approach.h"
#include "systems/thrust_rating.h"

namespace {

bool OffersTakeoff() {
    return cfg.AccelHt > sim.radio_alt_ft;
}

void SelectTakeoff(int derate) {
    SelectThrustMode(kThrustTakeoff);
    SelectTakeoffDerate(derate);
}

void SelectClimb(int derate) {
    SelectThrustMode(kThrustClimb);
    SelectClimbDerate(derate);
}

void OnLine(PageCall& call) {
    const bool takeoff = OffersTakeoff();
    switch (call.line) {
        case kL1:
            return EnterAssumedTemperature(call);
        case kL2:
            return takeoff ? SelectTakeoff(0) : SelectThrustMode(kThrustGoAround);
        case kL3:
            return takeoff ? SelectTakeoff(1) : SelectThrustMode(kThrustContinuous);
        case kL4:
            return takeoff ? SelectTakeoff(2) : SelectThrustMode(kThrustCruise);
        case kL6:
            return GoToPage(call.side, kPageInitRefIndex);
        case kR2:
        case kR3:
        case kR4:
            return SelectClimb(call.line - kR2);
        case kR6:
            if (takeoff_approach.to_flaps > 0) ComputeTakeoffSpeeds();
            return GoToPage(call.side, kPageTakeoffRef);
        default:
            break;
    }
}

void DrawLimit(PageCall& call) {
    const TakeoffApproachState& takeoff = takeoff_approach;
    LeftLabel(call, 1, "SEL/OAT");
    const std::string selected =
        takeoff.SelTemp == kNoAssumedTemperature ? "---" : Format("%d%s", takeoff.SelTemp, kDegree);
    LeftData(call, 1, selected + Format("/%.0f%s", sim.oat_c, kDegree));
    const char* unit = identity.engine_model == "TRENT 1000" ? "TPR" : "N1";
    RightLabel(call, 1, Format("%s %s", ThrustModeName(), unit));
    const double limit = engines.FADEC_Green_line;  // 0 until the model tells it
    RightData(call, 1, limit > 0 ? Format("%.1f%%", limit) : "--.-%");
}

void DrawSelected(PageCall& call, double x, int row) {
    PageText(call, x, DataY(row), "<SEL>", kMapGreen, kSmallSize);
}

void DrawRatings(PageCall& call) {
    constexpr double kLeftMark = 90, kRightMark = 165;
    constexpr double kDerates[] = {10, 20};
    const int mode = autoflight.thrust_limit;
    LeftData(call, 2, OffersTakeoff() ? "<TO" : "<GA");
    if (OffersTakeoff()) {
        for (int i = 0; i < 2; ++i) {
            LeftLabel(call, 3 + i, Format("TO %d", i + 1));
            LeftData(call, 3 + i, Format("<-%.0f%%", kDerates[i]));
        }
        const int derate = engines.FMC_TO_Derate;
        if (mode == kThrustTakeoff && derate >= 0 && derate <= 2) DrawSelected(call, kLeftMark, 2 + derate);
    } else {
        LeftData(call, 3, "<CON");
        LeftData(call, 4, "<CRZ");
        if (mode == kThrustGoAround) DrawSelected(call, kLeftMark, 2);
        if (mode == kThrustContinuous) DrawSelected(call, kLeftMark, 3);
        if (mode == kThrustCruise) DrawSelected(call, kLeftMark, 4);
    }
    RightData(call, 2, "CLB>");
    RightData(call, 3, "CLB 1>");
    RightData(call, 4, "CLB 2>");
    const int derate = engines.FMC_CLB_Derate;
    if ((mode == kThrustTakeoff || mode == kThrustClimb) && derate >= 0 && derate <= 2)
        DrawSelected(call, kRightMark, 2 + derate);
}

}  // namespace

void ThrustLimPage(PageCall& call) {
    OnLine(call);

    Title(call, 107, "THRUST LIM");
    DrawLimit(call);
    DrawRatings(call);
    PreflightLine(call);
    LeftData(call, 6, "<INDEX");
    RightData(call, 6, "TAKEOFF>");
    for (const int line : {kL1, kL2, kL3, kL4, kL6, kR2, kR3, kR4, kR6}) MarkSelectable(call, line);
}
