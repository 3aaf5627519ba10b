#include "fmc/legs/active_leg.h"

#include <algorithm>

#include "fmc/legs/find_leg.h"
#include "state/leg_words.h"
#include "state/plan.h"

namespace {

// A direct-to whose fix has been passed in the meantime is none any more.
void MovePendingActiveLeg(int leg) {
    if (leg != plan.pending_stpos && plan.direct_to_pending == 1) {
        plan.direct_to_pending = 0;
        plan.mod.active_leg = plan.active.active_leg;
    }
    SetPendingActiveLeg(leg);
}

}  // namespace

int PendingActiveLeg() {
    return plan.pending_stpos >= 1 ? plan.pending_stpos : plan.active.stpos;
}

void SetPendingActiveLeg(int leg) {
    plan.mod.stpos = leg;
    plan.pending_stpos = leg;
}

void FollowSequencing() {
    if (IsRouteSettled()) {
        plan.mod.stpos = plan.active.stpos;
        plan.pending_stpos = 0;
        return;
    }
    if (!IsRouteModified() || plan.active.stpos == kNoPlan) return;
    if (const int leg = FindModLeg(plan.active.legs[plan.active.stpos], plan.pending_stpos); leg > 0) {
        MovePendingActiveLeg(leg);
        return;
    }
    // The leg now flown to has been taken out, but the pending one may have been passed.
    const int passed = PlaceBefore(plan.active.legs, plan.active.stpos);
    if (passed > 0 && FindModLeg(plan.active.legs[passed], plan.pending_stpos) == plan.mod.stpos)
        MovePendingActiveLeg(std::min(plan.mod.stpos + 1, plan.mod.leg_cnt));
}
