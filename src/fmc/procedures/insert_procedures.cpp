#include "fmc/procedures/insert_procedures.h"

#include <algorithm>
#include <string>
#include <utility>

#include "base/text.h"
#include "fmc/legs/active_leg.h"
#include "fmc/legs/edit_legs.h"
#include "fmc/legs/find_leg.h"
#include "fmc/legs/holds.h"
#include "fmc/legs/leg_list.h"
#include "fmc/legs/leg_type.h"
#include "fmc/legs/route_rows.h"
#include "fmc/legs/route_state.h"
#include "fmc/procedures/procedure_legs.h"
#include "navdata/geodesy.h"
#include "navdata/leg_codes.h"
#include "state/airports.h"
#include "state/cfg.h"
#include "state/leg_words.h"
#include "state/plan.h"
#include "state/procedure_lists.h"
#include "state/sim.h"

namespace {

constexpr double kSamePlace = 1;  // nm

enum class Kind { kSid, kStar, kApproach };

bool IsNear(double lat1, double lon1, double lat2, double lon2) {
    return GreatCircle(lat1, lon1, lat2, lon2).dist < kSamePlace;
}

bool IsCoded(const ProcedureLeg& leg) {
    return !leg.code.empty();
}

// --- a leg of a procedure as a leg of the route

bool TakeWindow(std::string_view token, Kind kind, FlightPlanLeg& leg) {
    if (!IsAltitudeWindow(token)) return false;
    leg.block_above = LeadingInt(token.substr(0, 5));
    leg.block_below = LeadingInt(token.substr(5, 5));
    leg.alt_restr = 0;
    leg.restr_code |= kAltitudeRestr;
    leg.restr_type = kind == Kind::kStar ? kBetween : kAt;
    return true;
}

bool Counts(int altitude, Kind kind) {
    if (kind == Kind::kSid) return altitude >= 1000 && altitude % 100 == 0;
    return altitude >= (kind == Kind::kStar ? 100 : 1);
}

void TakeAltitude(std::string_view token, Kind kind, FlightPlanLeg& leg) {
    if (TakeWindow(token, kind, leg)) return;
    const int altitude = AltitudeOfToken(token);
    if (!Counts(altitude, kind)) return;
    leg.alt_restr = altitude;
    leg.restr_code |= kAltitudeRestr;
    const std::string_view behind = token.substr(std::min(token.size(), kind == Kind::kApproach ? 1UL : 4UL));
    const bool above = behind.find('+') != std::string_view::npos;
    const bool below = behind.find('-') != std::string_view::npos;
    leg.restr_type = above ? kAtOrAbove : below ? kAtOrBelow : kAt;
}

FlightPlanLeg LegOf(const ProcedureLeg& from) {
    FlightPlanLeg leg;
    leg.ident = from.ident;
    leg.lat = from.lat;
    leg.lon = from.lon;
    leg.mod_flag = 1;
    leg.flyover = from.flyover;
    leg.dep_turn = from.turn;
    if (IsCoded(from)) {
        leg.vector = from.text == "VECTOR" ? "Vector" : from.code.substr(1);  // without the leading "/"
        leg.until_alt = from.code_alt;
        leg.from_hdg = from.code_course;
        leg.anchor_lat = from.file_lat;
        leg.anchor_lon = from.file_lon;
        leg.vector_lat = from.start_lat;
        leg.vector_lon = from.start_lon;
    }
    LookUpLegType(leg);
    return leg;
}

std::string RunwayText(const std::string& runway) {
    return runway == kNotSelected ? std::string() : runway;
}

FlightPlanLeg ArrivalLeg(int record) {
    const ProcedureLeg& from = procedure_lists.ArrivalLegs[record];
    FlightPlanLeg leg = LegOf(from);
    leg.via_type = kStarViaType;
    leg.via = plan.mod.procedures.arr_star;
    leg.rwy = RunwayText(plan.mod.procedures.arr_appr_rwy);
    TakeAltitude(from.alt_token, Kind::kStar, leg);
    return leg;
}

bool IsSameFix(const FlightPlanLeg& a, const FlightPlanLeg& b) {
    return a.ident == b.ident && IsPlace(a) && a.vector.empty() && b.vector.empty() && !IsHoldLeg(b) &&
           !IsHoldLeg(a);
}

// --- the ends

void PutOrigin() {
    FlightPlanLeg& first = plan.mod.legs[0];
    const AirportData& origin = airports.origin_airport;
    if (origin.ident.empty()) return;
    if (!IsAirport(first) || first.ident != origin.ident) {
        first = {};
        first.alt = origin.elevation_ft;
    }
    first.ident = origin.ident;
    first.type = kAirportLegType;
    first.lat = origin.lat;
    first.lon = origin.lon;
    for (int i = 1; i <= origin.runway_cnt; ++i) {
        if (origin.runways[i].ident != plan.mod.ends.dep_runway) continue;
        first.lat = origin.runways[i].lat;
        first.lon = origin.runways[i].lon;
    }
}

FlightPlanLeg DestinationLeg() {
    FlightPlanLeg leg;
    const AirportData& dest = airports.dest_airport;
    leg.ident = dest.ident;
    leg.type = kAirportLegType;
    leg.lat = dest.lat;
    leg.lon = dest.lon;
    leg.alt = dest.elevation_ft;
    return leg;
}

void EnsureDestination() {
    EnsureEnds();
    FlightPlanLeg& last = plan.mod.legs[plan.mod.leg_cnt];
    if (IsAirport(last)) return;
    if (last.ident.empty())
        last = DestinationLeg();
    else
        plan.mod.legs[++plan.mod.leg_cnt] = DestinationLeg();
}

// --- taking a procedure out

bool IsOfApproach(const FlightPlanLeg& leg) {
    return leg.appr_wpt_type.starts_with(kInitialFix) || leg.appr_wpt_type == kFinalFix ||
           leg.via_type == kApproachViaType;
}

// The shared leg of two procedures has what the departure says of it; this one knows what the arrival says.
bool BeginsArrival(const FlightPlanLeg& leg) {
    BuildArrivalLegs();
    return procedure_lists.arrival_leg_cnt > 0 && procedure_lists.ArrivalLegs[1].ident == leg.ident;
}

// Legs that two procedures share stay, as the other's. A break within the procedure goes with it.
void RemoveProcedure(std::string_view via_type, std::string_view other) {
    bool within = false;
    for (int i = plan.mod.leg_cnt - 1; i >= 1; --i) {
        FlightPlanLeg& leg = plan.mod.legs[i];
        if (leg.via_type == via_type) {
            RemoveModLegs(i, 1);
            within = i > 1 && (plan.mod.legs[i - 1].via_type == via_type ||
                               (IsDisco(plan.mod.legs[i - 1]) && plan.mod.legs[i - 2].via_type == via_type));
        } else if (within && IsDisco(leg)) {
            RemoveModLegs(i, 1);
        } else if (leg.via_type == kSidStarViaType) {
            if (other == kStarViaType && BeginsArrival(leg)) {
                const int hold = leg.hold_pos;
                leg = ArrivalLeg(1);
                leg.hold_pos = hold;
                continue;
            }
            const FlightPlanLeg& neighbour = plan.mod.legs[other == kSidViaType ? i - 1 : i + 1];
            leg.via_type = other;
            // A stored route brings procedures that nobody has selected.
            leg.via = neighbour.via_type == other ? neighbour.via
                      : other == kSidViaType      ? plan.mod.procedures.dep_sid
                                                  : plan.mod.procedures.arr_star;
        }
    }
    MergeNeighbourDiscos();
}

bool HasLegsOf(std::string_view via_type) {
    for (int i = 1; i <= plan.mod.leg_cnt; ++i)
        if (plan.mod.legs[i].via_type == via_type) return true;
    return false;
}

int FirstApproachLeg() {
    for (int i = 1; i <= plan.mod.leg_cnt; ++i)
        if (IsOfApproach(plan.mod.legs[i])) return i;
    return 0;
}

std::string ApproachVia() {
    return plan.mod.procedures.arr_appr + RunwayText(plan.mod.procedures.arr_appr_rwy);
}

// The fix that an approach has taken over from the route stands there again, with a break behind it.
void UnshareApproach() {
    const FlightPlanLeg shared = std::exchange(plan.mod.procedures.shared_leg, {});
    const int first = FirstApproachLeg();
    if (shared.ident.empty() || plan.mod.legs[first].ident != shared.ident) return;
    OpenModLeg(first) = shared;
    OpenDisco(first + 1);
}

// Its hold isn't kept.
void KeepSharedLeg(const FlightPlanLeg& leg) {
    plan.mod.procedures.shared_leg = leg;
    plan.mod.procedures.shared_leg.hold_pos = 0;
}

// Where the approach begins with the fix before it, nothing stands between them.
void ShareWithApproach(int last) {
    GrowingList<FlightPlanLeg>& legs = plan.mod.legs;
    const int first = last + 2;
    if (last < 1 || first > plan.mod.leg_cnt || !IsDisco(legs[last + 1])) return;
    if (!IsOfApproach(legs[first]) || !IsSameFix(legs[last], legs[first])) return;
    KeepSharedLeg(legs[last]);
    if (legs[first].via == kDirectVia) legs[first].via = ApproachVia();
    RemoveModLegs(last, 2);
}

// The break in front of them goes too.
void RemoveApproachLegs() {
    UnshareApproach();
    const int first = FirstApproachLeg();
    for (int i = plan.mod.leg_cnt; i >= 1; --i)
        if (IsOfApproach(plan.mod.legs[i])) RemoveModLegs(i, 1);
    if (IsDisco(plan.mod.legs[first - 1])) RemoveModLegs(first - 1, 1);
    MergeNeighbourDiscos();
}

// The destination goes too. Gives the last leg of the route that is left.
int RemoveApproach() {
    RemoveApproachLegs();
    int end = plan.mod.leg_cnt;
    while (end > 0 && (IsDisco(plan.mod.legs[end]) || IsAirport(plan.mod.legs[end]))) --end;
    RemoveModLegs(end + 1, plan.mod.leg_cnt - end);
    return end;
}

// --- the leg that the aircraft flies to

FlightPlanLeg FlownLeg() {
    const int active = PendingActiveLeg();
    if (!IsRouteActive() || active < 1 || active > plan.mod.leg_cnt) return {};
    return plan.mod.legs[active];
}

// It stays the active one where an insertion has written it anew. False when it is gone.
bool StayOn(const FlightPlanLeg& flown) {
    if (!IsPlace(flown)) return false;
    const int leg = FindModLeg(flown, 1);
    if (leg > 0) SetPendingActiveLeg(leg);
    return leg > 0;
}

// No fix of the route has been passed.
bool IsAtStart(const FlightPlanLeg& flown) {
    return IsPlace(flown) && PlaceBefore(plan.mod.legs, PendingActiveLeg()) <= 0;
}

// From a leg on, past a break.
int FirstPlace(int leg) {
    while (leg < plan.mod.leg_cnt && !IsPlace(plan.mod.legs[leg])) ++leg;
    return leg;
}

bool LeadsTo(const ActiveLegRecord& leg, const FlightPlanLeg& fix) {
    return leg.to == fix.ident && leg.to_lat == fix.lat && leg.to_lon == fix.lon;
}

// A direct-to ends with its fix.
void RefreshActiveLeg() {
    if (!IsRouteActive()) return;
    const int to = FirstPlace(PendingActiveLeg());
    if (to < 1 || to > plan.mod.leg_cnt) return;
    if (to != PendingActiveLeg()) SetPendingActiveLeg(to);
    const FlightPlanLeg& fix = plan.mod.legs[to];
    ActiveLegRecord& leg = plan.mod.active_leg;
    if (LeadsTo(leg, fix)) return;
    if (std::exchange(plan.direct_to_pending, 0) == 1) leg = plan.active.active_leg;
    if (LeadsTo(leg, fix)) return;
    const FlightPlanLeg& before = plan.mod.legs[std::max(PlaceBefore(plan.mod.legs, to), 0)];
    leg = {.from = before.ident,
           .from_lat = before.lat,
           .from_lon = before.lon,
           .to = fix.ident,
           .to_lat = fix.lat,
           .to_lon = fix.lon};
}

void Finish() {
    RefreshActiveLeg();
    OpenModification();
    RebuildRouteRows();
}

// --- approaches

double RecordAltitude(int leg) {
    if (leg < 1 || leg > procedure_lists.approach_leg_cnt) return 0;
    return AltitudeOfToken(procedure_lists.ApproachLegs[leg].alt_token);
}

double ApproachSpeed(std::string_view role) {
    if (role.starts_with(kInitialFix)) return 190;
    if (role == kFinalFix) return 170;
    return role == kMissedPoint ? 140 : 180;
}

// Where the file tells no altitude for a leg of the missed approach, it lies between its neighbours.
void SetMissedAltitude(FlightPlanLeg& leg, const FlightPlanLeg& leg_before, int record) {
    double altitude = RecordAltitude(record - 1);
    if (altitude == 0 && IsMissedApproach(leg_before) && leg_before.alt_restr > 0)
        altitude = leg_before.alt_restr;
    const double after = RecordAltitude(record + 1);
    if (record < procedure_lists.approach_leg_cnt && after > altitude) altitude += (after - altitude) / 2;
    if (altitude <= 0) return;
    leg.alt_restr = leg.alt = altitude;
    leg.restr_code |= kAltitudeRestr;
}

bool RepeatsLegBefore(int record) {
    if (record < 2) return false;
    const ProcedureLeg& leg = procedure_lists.ApproachLegs[record];
    const ProcedureLeg& before = procedure_lists.ApproachLegs[record - 1];
    return leg.ident == before.ident && IsNear(leg.lat, leg.lon, before.lat, before.lon);
}

FlightPlanLeg ApproachLeg(int record, const FlightPlanLeg& leg_before, bool missed) {
    const ProcedureLeg& from = procedure_lists.ApproachLegs[record];
    FlightPlanLeg leg = LegOf(from);
    leg.via_type = kApproachViaType;
    leg.via = missed ? kMissedVia : IsDisco(leg_before) ? kDirectVia : procedure_lists.approach_via;
    leg.rwy = RunwayText(plan.mod.procedures.arr_appr_rwy);
    if (from.applies_to != "---") leg.appr_wpt_type = from.applies_to;
    leg.ias_restr = ApproachSpeed(leg.appr_wpt_type);
    leg.restr_code = kSpeedRestr;
    if (missed || IsMissedPoint(leg)) leg.flyover = 1;
    TakeAltitude(from.alt_token, Kind::kApproach, leg);
    if (missed && leg.alt_restr <= 0 && leg.restr_code == kSpeedRestr)
        SetMissedAltitude(leg, leg_before, record);
    return leg;
}

FlightPlanLeg DestinationOnRunway() {
    FlightPlanLeg leg = DestinationLeg();
    const AirportData& dest = airports.dest_airport;
    for (int i = 1; i <= dest.runway_cnt; ++i) {
        if (dest.runways[i].ident != plan.mod.procedures.arr_appr_rwy) continue;
        leg.lat = dest.runways[i].lat;
        leg.lon = dest.runways[i].lon;
    }
    return leg;
}

void WriteApproachLegs(int end) {
    ProcedureLists& lists = procedure_lists;
    const std::string& first = lists.ApproachLegs[1].ident;
    const bool reuse = end > 0 && plan.mod.legs[end].ident == first && !IsCoded(lists.ApproachLegs[1]);
    int position = end + 1;
    if (reuse) {
        KeepSharedLeg(plan.mod.legs[end]);
        RemoveHold(end);
        position = end;
    } else {
        OpenModLeg(position++).ident = kDiscoIdent;
    }
    bool missed = false;
    for (int record = 1; record <= lists.approach_leg_cnt; ++record) {
        if (missed && cfg.IncludeMissedApproach == 0) break;
        const FlightPlanLeg before = plan.mod.legs[position - 1];
        FlightPlanLeg leg = ApproachLeg(record, before, missed);
        const bool is_hold = missed && record == lists.approach_leg_cnt && RepeatsLegBefore(record);
        if (is_hold) leg.via = kHoldVia;
        const bool is_map = IsMissedPoint(leg);
        FlightPlanLeg& slot = reuse && record == 1 ? plan.mod.legs[position] : OpenModLeg(position);
        slot = std::move(leg);
        if (is_hold) MarkHold(position, false, std::max(0, PlaceBefore(plan.mod.legs, position - 1)));
        missed = missed || is_map;
        ++position;
    }
}

}  // namespace

void InsertDeparture() {
    EnsureEnds();
    const FlightPlanLeg flown = FlownLeg();
    const bool on_its_way = IsOfSid(flown) || IsDirectTo(plan.mod.active_leg);
    const bool from_start = IsAtStart(flown) && (sim.on_ground == 1 || !on_its_way);
    RemoveProcedure(kSidViaType, kStarViaType);
    PutOrigin();
    const ProcedureLists& lists = procedure_lists;
    int position = 1;
    for (int i = 1; i <= lists.departure_leg_cnt; ++i) {
        const ProcedureLeg& from = lists.DepartureLegs[i];
        FlightPlanLeg leg = LegOf(from);
        leg.via_type = kSidViaType;
        leg.via = plan.mod.procedures.dep_sid;
        leg.rwy = RunwayText(plan.mod.ends.dep_runway);
        TakeAltitude(from.alt_token, Kind::kSid, leg);
        if (position > 1 && IsSameFix(plan.mod.legs[position - 1], leg)) continue;
        OpenModLeg(position++) = std::move(leg);
    }
    const int last = position - 1;
    if (last >= 1 && position < plan.mod.leg_cnt && IsSameFix(plan.mod.legs[last], plan.mod.legs[position])) {
        const bool of_star = plan.mod.legs[position].via_type == kStarViaType;
        RemoveModLegs(position, 1);
        if (of_star) plan.mod.legs[last].via_type = kSidStarViaType;
    }
    if (from_start)
        SetPendingActiveLeg(FirstPlace(1));
    else
        StayOn(flown);
    Finish();
}

void InsertArrival() {
    EnsureEnds();
    const FlightPlanLeg flown = FlownLeg();
    const bool from_start = IsAtStart(flown) && sim.on_ground == 1;
    UnshareApproach();
    const bool had_arrival = HasLegsOf(kStarViaType);
    RemoveProcedure(kStarViaType, kSidViaType);
    EnsureDestination();
    const int approach = FirstApproachLeg();
    int point = approach > 0 ? approach - 1 : plan.mod.leg_cnt;
    while (point > 0 && (IsAirport(plan.mod.legs[point]) || IsDisco(plan.mod.legs[point]))) --point;
    const ProcedureLists& lists = procedure_lists;
    int position = point + 1;
    for (int i = 1; i <= lists.arrival_leg_cnt; ++i) {
        FlightPlanLeg leg = ArrivalLeg(i);
        FlightPlanLeg& before = plan.mod.legs[position - 1];
        if (position > 1 && IsSameFix(before, leg)) {
            if (before.via_type == kSidViaType) before.via_type = kSidStarViaType;
            continue;
        }
        OpenModLeg(position++) = std::move(leg);
    }
    ShareWithApproach(position - 1);
    if (from_start)
        SetPendingActiveLeg(FirstPlace(1));
    else if (!IsAirport(flown) || had_arrival)
        StayOn(flown);
    Finish();
}

void InsertApproach() {
    EnsureEnds();
    const FlightPlanLeg flown = FlownLeg();
    const bool past_route = !flown.ident.empty() && (IsAirport(flown) || IsOfApproach(flown));
    const int end = RemoveApproach();
    if (procedure_lists.approach_leg_cnt > 0) WriteApproachLegs(end);
    FlightPlanLeg& dest = OpenModLeg(plan.mod.leg_cnt + 1);
    dest = DestinationOnRunway();
    const bool to_destination = IsAirport(flown);
    if ((to_destination || !StayOn(flown)) && past_route) {
        const int to = FirstPlace(end + 1);
        if (to_destination && procedure_lists.approach_leg_cnt > 0)
            GoDirectTo(to);
        else
            SetPendingActiveLeg(to);
    }
    Finish();
}

void RemoveArrivalAndApproach() {
    RemoveApproachLegs();
    RemoveProcedure(kStarViaType, kSidViaType);
}
