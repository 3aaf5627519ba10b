#include "guidance/approach_tuning.h"

#include <cmath>
#include <string>

#include "base/bcd.h"
#include "base/numbers.h"
#include "frame/key_events.h"
#include "frame/tokens.h"
#include "platform/host.h"
#include "state/airports.h"
#include "state/nav.h"
#include "state/plan.h"
#include "state/predictions.h"
#include "state/sim.h"
#include "state/vnav.h"

namespace {

constexpr int kMostTries = 10;

const RunwayData* ApproachRunway() {
    const AirportData& dest = airports.dest_airport;
    for (int i = 1; i <= dest.runway_cnt; ++i)
        if (dest.runways[i].ident == plan.mod.procedures.arr_appr_rwy) return &dest.runways[i];
    return nullptr;
}

}  // namespace

void TuneApproach() {
    const ProcedureSelections& chosen = plan.mod.procedures;
    const std::string approach = chosen.arr_appr == kNotSelected ? "" : chosen.arr_appr + chosen.arr_appr_rwy;
    if (approach != nav.autotuned_approach) {
        nav.autotuned_approach = approach;
        nav.autotuned = nav.autotune_tries = 0;
        nav.appr_navaid_ident.clear();
    }
    if (nav.autotuned == 1 || approach.empty()) return;
    constexpr double kNear = 40;
    const bool near = predictions.dist_to_dest > 0 && predictions.dist_to_dest < kNear;
    if (!near && vnav.tod == 0) return;
    if (!approach.starts_with("ILS") && !approach.starts_with("LOC")) return;
    const RunwayData* runway = ApproachRunway();
    if (runway == nullptr || runway->ils_freq.empty()) return;
    nav.autotuned = 1;
    nav.autotune_tries = 1;
    nav.autotune_freq = FrequencyToBcd(runway->ils_freq);
    SendKeyEvent(kKeyNav1FreqSet, nav.autotune_freq);
    SendKeyEvent(kKeyNav1CourseSet, WholeNumber(std::round(runway->course)));
}

void CheckApproachTuning() {
    if (nav.autotuned == 0 || nav.autotune_tries == 0) return;
    // The host reads back the last four digits.
    if (WholeNumber(ReadToken(kTokenNav1Freq)) == (nav.autotune_freq & 0xffff)) {
        if (ReadToken(kTokenNav1Signal) <= 0) return;
        nav.appr_navaid_ident = sim.nav1_ident;
        nav.autotune_tries = 0;
    } else if (nav.autotune_tries >= kMostTries) {
        nav.autotune_tries = 0;
    } else {
        ++nav.autotune_tries;
        SendKeyEvent(kKeyNav1FreqSet, nav.autotune_freq);
    }
}
