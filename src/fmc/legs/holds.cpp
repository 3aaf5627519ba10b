#include "fmc/legs/holds.h"

#include <algorithm>
#include <utility>

#include "base/angles.h"
#include "fmc/legs/find_leg.h"
#include "fmc/legs/path.h"
#include "navdata/geodesy.h"
#include "navdata/magnetic_model.h"
#include "state/leg_words.h"
#include "state/lnav.h"
#include "state/requests.h"

namespace {

int HoldAt(int leg) {
    for (int i = 1; i <= plan.hold_cnt; ++i)
        if (HoldLegInModification(plan.HoldList[i]) == leg) return i;
    return 0;
}

bool IsFlown(const HoldRecord& hold) {
    return lnav.holding == 1 && hold.leg > 0 && hold.leg == plan.active.stpos;
}

void ClearHoldPositions(GrowingList<FlightPlanLeg>& legs, int count) {
    for (int i = 0; i <= count; ++i) legs[i].hold_pos = 0;
}

// Where a leg of the active plan stands in the working copy: a modification may have moved it, or taken it
// out (0).
int SameModLeg(const FlightPlanLeg& fix, int leg) {
    return FindModLeg(fix, leg) == leg ? leg : FindModLeg(fix, 1);
}

}  // namespace

int HoldLegInModification(const HoldRecord& hold) {
    if (hold.pending_leg == kHoldTakenOut) return 0;
    return hold.pending_leg > 0 ? hold.pending_leg : hold.leg;
}

void RenumberHolds() {
    GrowingList<HoldRecord>& holds = plan.HoldList;
    const auto place = [&](int i) { return holds[i].pending_leg > 0 ? holds[i].pending_leg : holds[i].leg; };
    for (int i = 2; i <= plan.hold_cnt; ++i)
        for (int j = i; j > 1 && place(j) < place(j - 1); --j) std::swap(holds[j], holds[j - 1]);
    ClearHoldPositions(plan.active.legs, plan.active.leg_cnt);
    ClearHoldPositions(plan.mod.legs, plan.mod.leg_cnt);
    for (int i = 1; i <= plan.hold_cnt; ++i) {
        const int leg = holds[i].leg;
        const int mod_leg = HoldLegInModification(holds[i]);
        if (leg > 0 && leg <= plan.active.leg_cnt) plan.active.legs[leg].hold_pos = i;
        if (mod_leg > 0 && mod_leg <= plan.mod.leg_cnt) plan.mod.legs[mod_leg].hold_pos = i;
    }
}

void MarkHold(int leg, bool active, int prev_leg) {
    GrowingList<FlightPlanLeg>& legs = active ? plan.active.legs : plan.mod.legs;
    const int last = active ? plan.active.leg_cnt : plan.mod.leg_cnt;
    if (plan.hold_cnt >= kMostHolds || leg < 1 || leg > last || !IsPlace(legs[leg])) return;
    const FlightPlanLeg& fix = legs[leg];
    const int mod_leg = active ? SameModLeg(fix, leg) : leg;
    if (mod_leg == 0 || HoldAt(mod_leg) > 0) return;
    HoldRecord hold;
    hold.ident = fix.ident;
    hold.pending_leg = mod_leg;
    hold.magvar = MagVarAt(fix.lat, fix.lon);
    const int start = PlaceBefore(legs, std::min(prev_leg, last) + 1);
    if (start >= 0) {
        const FlightPlanLeg& from = legs[start];
        hold.inbound_crs =
            FoldBearing(GreatCircle(from.lat, from.lon, fix.lat, fix.lon).bearing - hold.magvar);
    }
    hold.points = {{{fix.lat, fix.lon, fix.ident, hold.inbound_crs},
                    {0, 0, "Xwind", 0},
                    {0, 0, "Dwind", 0},
                    {0, 0, "Base", 0},
                    {0, 0, "Final", 0}}};
    plan.HoldList[++plan.hold_cnt] = std::move(hold);
    RenumberHolds();
}

void RemoveHold(int leg) {
    const int index = leg > 0 ? HoldAt(leg) : 0;
    if (index == 0) return;
    HoldRecord& hold = plan.HoldList[index];
    if (!IsFlown(hold)) return RemoveHoldRecord(index);
    hold.pending_leg = kHoldTakenOut;
    RenumberHolds();
}

void RemoveHoldRecord(int hold) {
    if (hold < 1 || hold > plan.hold_cnt) return;
    GrowingList<HoldRecord>& holds = plan.HoldList;
    if (IsFlown(holds[hold])) {
        lnav.hold_exit = 4;
        lnav.holding = 0;
        lnav.hold_point = 0;
    }
    static_cast<void>(holds[plan.hold_cnt + 1]);
    for (int i = hold; i < plan.hold_cnt; ++i) holds[i] = std::move(holds[i + 1]);
    holds[plan.hold_cnt] = HoldRecord{};
    --plan.hold_cnt;
    RenumberHolds();
    if (plan.hold_cnt == 0) requests.leave_hold_page = 1;
}

void RemoveAllHolds() {
    while (plan.hold_cnt > 0) RemoveHoldRecord(plan.hold_cnt);
}

void PromoteHolds() {
    for (int i = plan.hold_cnt; i >= 1; --i)
        if (plan.HoldList[i].pending_leg == kHoldTakenOut) RemoveHoldRecord(i);
    for (int i = 1; i <= plan.hold_cnt; ++i) {
        HoldRecord& hold = plan.HoldList[i];
        if (hold.pending_leg > 0) hold.leg = std::exchange(hold.pending_leg, 0);
    }
    RenumberHolds();
    for (int i = 1; i <= plan.hold_cnt; ++i) plan.executed_holds[i] = plan.HoldList[i];
    plan.executed_hold_cnt = plan.hold_cnt;
}

void DropPendingHolds() {
    for (int i = plan.hold_cnt; i >= 1; --i) {
        plan.HoldList[i].pending_leg = 0;
        if (plan.HoldList[i].leg == 0) RemoveHoldRecord(i);
    }
    RenumberHolds();
}

void RestoreExecutedHolds() {
    plan.hold_cnt = 0;
    for (int i = 1; i <= plan.executed_hold_cnt; ++i)
        if (plan.executed_holds[i].leg >= plan.active.stpos)
            plan.HoldList[++plan.hold_cnt] = plan.executed_holds[i];
    RenumberHolds();
}
