#pragma once

#include <string_view>

#include "state/plan.h"

// The words in which routes, legs and constraints are spoken of: every file that asks what a leg is, asks
// here.

// --- how far the route is

/// Of fms_fpln_active.
enum RouteStatus {
    kRouteNone = 0,
    kRouteEntered = 1,
    kRouteActivated = 2,  // waits for EXEC
    kRouteActive = 3,
    kRouteModified = 4  // active, and a modification waits for EXEC
};

/// There is a route to fly, with a modification or without.
inline bool IsRouteActive() {
    return plan.fms_fpln_active >= kRouteActive;
}
/// A modification of the active route waits for EXEC.
inline bool IsRouteModified() {
    return plan.fms_fpln_active == kRouteModified;
}
/// The route is active and nothing waits: pages show the active legs.
inline bool IsRouteSettled() {
    return plan.fms_fpln_active == kRouteActive;
}
/// A new route or a modification waits for EXEC.
inline bool AwaitsExec() {
    return plan.fms_fpln_active == kRouteActivated || IsRouteModified();
}

// --- what a leg is

constexpr const char* kDiscoIdent = "DISCO";      // a gap in the route
constexpr const char* kThenIdent = "THEN";        // an airway without an end
constexpr const char* kVectorsIdent = "VECTORS";  // a heading to fly, until the crew goes on

constexpr const char* kAirportLegType = "APT";

constexpr const char* kDirectVia = "DIRECT";  // also where a direct-to comes from
constexpr const char* kHoldVia = "HOLD";
constexpr const char* kMissedVia = "MISSED APPR";

constexpr const char* kSidViaType = "SID";
constexpr const char* kStarViaType = "STAR";
constexpr const char* kSidStarViaType = "SIDSTAR";  // a fix where both meet
constexpr const char* kApproachViaType = "APPR";
constexpr const char* kAirwayViaType = "AWY";
constexpr const char* kHoldViaType = "HOLD";

// Roles in an approach.
constexpr const char* kInitialFix = "IAF";
constexpr const char* kFinalFix = "FAF";
constexpr const char* kMissedPoint = "MAP";

inline bool IsDisco(const FlightPlanLeg& leg) {
    return leg.ident == kDiscoIdent;
}
inline bool IsThen(const FlightPlanLeg& leg) {
    return leg.ident == kThenIdent;
}
inline bool IsVectors(const FlightPlanLeg& leg) {
    return leg.ident == kVectorsIdent;
}
/// A leg with a position: no "DISCO", no "THEN", not the empty slot of a destination still to come.
inline bool IsPlace(const FlightPlanLeg& leg) {
    return !leg.ident.empty() && !IsDisco(leg) && !IsThen(leg);
}
inline bool IsAirport(const FlightPlanLeg& leg) {
    return leg.type == kAirportLegType;
}
/// A leg of its own behind the fix at which a hold is flown.
inline bool IsHoldLeg(const FlightPlanLeg& leg) {
    return leg.via == kHoldVia;
}
inline bool IsMissedApproach(const FlightPlanLeg& leg) {
    return leg.via == kMissedVia;
}
/// Behind the missed approach point, the hold that ends it as well: flown only when there is no landing.
inline bool IsOfMissedApproach(const FlightPlanLeg& leg) {
    return IsMissedApproach(leg) || (IsHoldLeg(leg) && leg.via_type == kApproachViaType);
}
/// Neither on an airway nor of a procedure.
inline bool IsDirect(const FlightPlanLeg& leg) {
    return leg.via.empty() || leg.via == kDirectVia;
}
/// The leg that is flown goes straight from where the aircraft was to its fix.
inline bool IsDirectTo(const ActiveLegRecord& leg) {
    return leg.from == kDirectVia;
}
inline bool IsOfSid(const FlightPlanLeg& leg) {
    return leg.via_type == kSidViaType || leg.via_type == kSidStarViaType;
}
inline bool IsMissedPoint(const FlightPlanLeg& leg) {
    return leg.appr_wpt_type == kMissedPoint;
}

// --- constraints

/// Of restr_code: what is constrained, a bit each.
enum RestrCode { kFree = 0, kAltitudeRestr = 1, kSpeedRestr = 2 };

/// Of restr_type: how the altitude is constrained.
enum RestrType { kAt = 0, kAtOrAbove = 1, kAtOrBelow = 2, kBetween = 3 };

inline bool HasAltitudeRestr(const FlightPlanLeg& leg) {
    return (leg.restr_code & kAltitudeRestr) != 0;
}
inline bool HasSpeedRestr(const FlightPlanLeg& leg) {
    return (leg.restr_code & kSpeedRestr) != 0;
}
/// The altitude constraint is a window. A departure's window bears the type of "at".
inline bool HasWindow(const FlightPlanLeg& leg) {
    return leg.restr_code != kFree && leg.alt_restr <= 0 && leg.block_above > 0;
}
