#include "fmc/legs/leg_list.h"

#include <algorithm>
#include <utility>

#include "fmc/legs/active_leg.h"
#include "fmc/legs/holds.h"
#include "state/leg_words.h"

namespace {

bool HasActiveLeg() {
    return IsRouteActive() && PendingActiveLeg() != kNoPlan;
}

// Moves what points at legs from `first` on by `offset` places.
void ShiftReferences(int first, int offset) {
    if (plan.mod.bod_pos >= first) plan.mod.bod_pos += offset;
    if (plan.awy_start_leg >= first) plan.awy_start_leg += offset;
}

}  // namespace

FlightPlanLeg& OpenModLeg(int position) {
    plan.mod.leg_cnt = std::max(plan.mod.leg_cnt, 0);
    position = std::clamp(position, 1, plan.mod.leg_cnt + 1);
    GrowingList<FlightPlanLeg>& legs = plan.mod.legs;
    static_cast<void>(legs[plan.mod.leg_cnt + 2]);  // from here on nothing in the list moves by itself
    for (int i = plan.mod.leg_cnt; i >= position; --i) legs[i + 1] = std::move(legs[i]);
    ++plan.mod.leg_cnt;
    ShiftReferences(position, 1);
    if (HasActiveLeg() && PendingActiveLeg() > position) SetPendingActiveLeg(PendingActiveLeg() + 1);
    legs[position] = FlightPlanLeg{};
    legs[position].mod_flag = 1;
    RenumberHolds();
    return legs[position];
}

void OpenDisco(int position) {
    GrowingList<FlightPlanLeg>& legs = plan.mod.legs;
    if (position < 1 || position > plan.mod.leg_cnt) return;
    if (IsDisco(legs[position]) || IsDisco(legs[position - 1])) return;
    OpenModLeg(position).ident = kDiscoIdent;
}

void RemoveModLegs(int first, int count) {
    first = std::max(first, 1);
    count = std::min(count, plan.mod.leg_cnt - first + 1);
    if (count <= 0) return;
    const int behind = first + count;
    if (plan.awy_start_leg >= first && plan.awy_start_leg < behind) plan.awy_start_pos = 0;
    GrowingList<FlightPlanLeg>& legs = plan.mod.legs;
    static_cast<void>(legs[plan.mod.leg_cnt + 1]);
    for (int i = behind; i <= plan.mod.leg_cnt; ++i) legs[i - count] = std::move(legs[i]);
    for (int i = plan.mod.leg_cnt - count + 1; i <= plan.mod.leg_cnt; ++i) legs[i] = FlightPlanLeg{};
    plan.mod.leg_cnt -= count;
    if (plan.mod.bod_pos >= first && plan.mod.bod_pos < behind) plan.mod.bod_pos = behind;  // its successor
    ShiftReferences(behind, -count);
    plan.mod.bod_pos = std::min(plan.mod.bod_pos, std::max(plan.mod.leg_cnt, 0));
    if (HasActiveLeg() && PendingActiveLeg() >= first) {
        const int active = PendingActiveLeg() >= behind ? PendingActiveLeg() - count : first;
        SetPendingActiveLeg(std::clamp(active, 1, std::max(plan.mod.leg_cnt, 1)));
    }
    RenumberHolds();
}

void MergeNeighbourDiscos() {
    for (int i = plan.mod.leg_cnt; i >= 1; --i)
        if (IsDisco(plan.mod.legs[i]) && IsDisco(plan.mod.legs[i - 1])) RemoveModLegs(i, 1);
}

void EnsureEnds() {
    if (plan.mod.leg_cnt < 1) plan.mod.leg_cnt = 1;
}
