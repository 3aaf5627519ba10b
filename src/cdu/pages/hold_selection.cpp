#include "cdu/pages/hold_selection.h"

#include <algorithm>

#include "cdu/pages/legs_edit.h"
#include "cdu/pages/select_wpt_page.h"
#include "cdu/words/page.h"
#include "cdu/words/shown_plan.h"
#include "fmc/legs/active_leg.h"
#include "fmc/legs/find_leg.h"
#include "fmc/legs/holds.h"
#include "fmc/legs/insert_fix.h"
#include "fmc/legs/leg_list.h"
#include "fmc/legs/route_state.h"
#include "frame/crew_messages.h"
#include "navdata/parse_entry.h"
#include "state/leg_words.h"
#include "state/nav.h"
#include "state/sim.h"

namespace {

constexpr std::string_view kHoldAt = "HOLD AT ";

// No more holds than the list takes, one at a fix, and none at a gap or behind the destination.
bool CanHoldAt(int leg) {
    const GrowingList<FlightPlanLeg>& legs = plan.mod.legs;
    const bool has_place = leg < plan.mod.leg_cnt && IsPlace(legs[leg]);
    return plan.hold_cnt < kMostHolds && has_place && !IsHoldLeg(legs[leg]) && !IsHoldLeg(legs[leg + 1]);
}

// A hold has a leg of its own behind the fix at which it is flown.
void PlaceHold(PageCall& call, int leg) {
    plan.mod.legs[leg].via = kHoldVia;
    plan.mod.legs[leg].via_type = kHoldViaType;
    MarkHold(leg, false, std::max(0, PlaceBefore(plan.mod.legs, leg - 1)));
    route_pages.LegsView = kNormalView;
    route_pages.HoldSelectIndex = 0;
    FinishLegsEdit(call);
}

void HoldAtLeg(PageCall& call, int leg) {
    if (!CanHoldAt(leg)) return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    const FlightPlanLeg fix = plan.mod.legs[leg];
    FlightPlanLeg& hold = OpenModLeg(leg + 1);
    hold.ident = fix.ident;
    hold.lat = fix.lat;
    hold.lon = fix.lon;
    hold.type = fix.type;
    hold.freq = fix.freq;
    hold.mod_flag = 1;
    PlaceHold(call, leg + 1);
}

void HoldAtEntry(PageCall& call, int leg, int candidate) {
    if (plan.hold_cnt >= kMostHolds) return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    EnsureEnds();
    leg = std::min(leg, plan.mod.leg_cnt);
    InsertFixAt(leg, candidate, true);
    PlaceHold(call, leg);
}

}  // namespace

bool IsHoldAtEntry(const PageCall& call) {
    return Entry(call).starts_with(kHoldAt);
}

// The fix behind "HOLD AT ": the one picked, unless an entry on the other side has taken the list since.
void HoldAtPick(PageCall& call, int leg) {
    const std::string ident = Entry(call).substr(kHoldAt.size());
    int pick = route_pages.hold_candidate;
    if (pick < 1 || pick > nav.entry_cnt || nav.EntryCandidates[pick].ident != ident) {
        ParseEntry(ident);
        pick = 1;
    }
    if (nav.entry_cnt == 0) return Refuse(call, "NOT IN DATABASE", kHelpRoute);
    HoldAtEntry(call, leg, pick);
}

void HoldAtPresentPosition(PageCall& call) {
    if (plan.hold_cnt >= kMostHolds) return Refuse(call, "INVALID ENTRY", kHelpNotAllowed);
    EnsureEnds();
    const int leg = FirstShownLeg();
    const bool flying = IsRouteActive();
    if (IsRouteSettled()) AdvanceRouteState();
    FlightPlanLeg& hold = OpenModLeg(leg);
    hold.ident = "HOLD PPOS";
    hold.lat = sim.plane_lat;
    hold.lon = sim.plane_lon;
    hold.type = "WPT";
    hold.mod_flag = 1;
    if (flying) SetPendingActiveLeg(leg);
    PlaceHold(call, leg);
    if (const int place = plan.mod.legs[leg].hold_pos) plan.HoldList[place].inbound_crs = sim.mag_track_deg;
}

void PlaceEnteredHold(PageCall& call) {
    if (const int leg = route_pages.HoldSelectIndex) return HoldAtLeg(call, leg);
    if (IsHoldAtEntry(call)) return HoldAtPick(call, FirstShownLeg());
    if (Entry(call).empty()) return;
    for (int i = FirstShownLeg(); i < plan.mod.leg_cnt; ++i)
        if (plan.mod.legs[i].ident == Entry(call)) return HoldAtLeg(call, i);
    ParseEntry(Entry(call));
    if (nav.entry_cnt == 0) return Refuse(call, "NOT IN DATABASE", kHelpRoute);
    if (nav.entry_cnt > 1) return OpenSelectWpt(call, 0);
    HoldAtEntry(call, FirstShownLeg(), 1);
}
