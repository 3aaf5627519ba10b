#include "fmc/legs/holds.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "base/angles.h"
#include "fmc/legs/find_leg.h"
#include "fmc/legs/path.h"
#include "navdata/geodesy.h"
#include "navdata/magnetic_model.h"
#include "state/leg_words.h"
#include "state/lnav.h"
#include "state/requests.h"

namespace {

bool IsFlown(const HoldRecord& hold) {
    return lnav.holding == 1 && hold.leg > 0 && hold.leg == plan.active.stpos;
}

// Calls visit(leg, hold_pos) for the legs of a version that bear a hold of the list; what isn't one of its
// places, or stands at an earlier leg already, is cleared.
template <class Visit>
void VisitHoldLegs(RouteVersion& version, int records, Visit visit) {
    std::array<bool, kMostHoldRecords + 1> seen = {};
    for (int leg = 1; leg <= version.leg_cnt; ++leg) {
        int& place = version.legs[leg].hold_pos;
        if (place == 0) continue;
        const bool stands =
            place > 0 && place <= records && !std::exchange(seen[static_cast<std::size_t>(place)], true);
        if (stands)
            visit(leg, place);
        else
            place = 0;
    }
}

// Where a leg of the active plan stands in the working copy: a modification may have moved it, or taken it
// out (0).
int SameModLeg(const FlightPlanLeg& fix, int leg) {
    return FindModLeg(fix, leg) == leg ? leg : FindModLeg(fix, 1);
}

}  // namespace

int HoldRecordCount() {
    return std::clamp(plan.hold_cnt + plan.lost_hold_cnt, 0, kMostHoldRecords);
}

void RenumberHolds() {
    const int records = HoldRecordCount();
    std::vector<HoldRecord> before;
    for (int i = 0; i <= records; ++i) before.push_back(std::exchange(plan.HoldList[i], HoldRecord{}));
    std::array<int, kMostHoldRecords + 1> place_now = {};
    int count = 0;
    const auto keep = [&](int& place) -> HoldRecord& {
        int& now = place_now[static_cast<std::size_t>(place)];
        if (now == 0) {
            now = ++count;
            plan.HoldList[now] = std::move(before[static_cast<std::size_t>(place)]);
            plan.HoldList[now].leg = plan.HoldList[now].pending_leg = 0;
        }
        place = now;
        return plan.HoldList[now];
    };
    VisitHoldLegs(plan.mod, records, [&](int leg, int& place) { keep(place).pending_leg = leg; });
    plan.hold_cnt = count;
    VisitHoldLegs(plan.active, records, [&](int leg, int& place) {
        HoldRecord& hold = keep(place);
        hold.leg = leg;
        if (hold.pending_leg == leg) hold.pending_leg = 0;
    });
    plan.lost_hold_cnt = count - plan.hold_cnt;
    if (records > 0 && plan.hold_cnt == 0) requests.leave_hold_page = 1;
}

void MarkHold(int leg, bool active, int prev_leg) {
    GrowingList<FlightPlanLeg>& legs = active ? plan.active.legs : plan.mod.legs;
    const int last = active ? plan.active.leg_cnt : plan.mod.leg_cnt;
    if (plan.hold_cnt >= kMostHolds || leg < 1 || leg > last || !IsPlace(legs[leg])) return;
    const FlightPlanLeg& fix = legs[leg];
    const int mod_leg = active ? SameModLeg(fix, leg) : leg;
    if (mod_leg == 0 || plan.mod.legs[mod_leg].hold_pos > 0) return;
    HoldRecord hold;
    hold.ident = fix.ident;
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
    ++plan.hold_cnt;
    plan.mod.legs[mod_leg].hold_pos = HoldRecordCount();
    plan.HoldList[HoldRecordCount()] = std::move(hold);
    RenumberHolds();
}

void RemoveHold(int leg) {
    if (leg < 1 || leg > plan.mod.leg_cnt) return;
    plan.mod.legs[leg].hold_pos = 0;
    RenumberHolds();
}

void RemoveHoldRecord(int hold) {
    if (hold < 1 || hold > HoldRecordCount()) return;
    if (IsFlown(plan.HoldList[hold])) {
        lnav.hold_exit = 4;
        lnav.holding = 0;
        lnav.hold_point = 0;
    }
    for (RouteVersion* version : {&plan.active, &plan.mod})
        VisitHoldLegs(*version, HoldRecordCount(), [hold](int, int& place) {
            if (place == hold) place = 0;
        });
    RenumberHolds();
}

void RemoveLostHolds() {
    for (int i = HoldRecordCount(); i > plan.hold_cnt; --i) RemoveHoldRecord(i);
}

void RemoveAllHolds() {
    for (int i = HoldRecordCount(); i >= 1; --i) RemoveHoldRecord(i);
}
