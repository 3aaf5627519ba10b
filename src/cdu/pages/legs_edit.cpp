#include "cdu/pages/legs_edit.h"

#include "cdu/words/page.h"
#include "cdu/words/shown_plan.h"
#include "fmc/legs/active_leg.h"
#include "fmc/legs/edit_legs.h"
#include "fmc/legs/insert_fix.h"
#include "state/leg_words.h"
#include "state/plan.h"

void FinishLegsEdit(PageCall& call) {
    LegsChanged(call);
    if (plan.direct_to_pending == 1) route_pages.LegsView = kDirectView;
}

// A fix typed over the leg that is being flown to is flown to directly.
void InsertPickedLeg(PageCall& call, int leg, int candidate) {
    const bool direct = IsRouteActive() && leg == ShownActiveLeg();
    InsertFixAt(leg, candidate, false);
    if (direct) {
        SetPendingActiveLeg(leg);
        ConnectLegs(leg, leg, call.side);
    }
    FinishLegsEdit(call);
}
