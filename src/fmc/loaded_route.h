#pragma once

#include <string_view>

// What loading a whole route into FlightPlanMod has in common, whether it comes from a file or from the host:
// BeginLoadedRoute, then AddLoadedLeg for each leg, then FinishLoadedRoute.

struct FlightPlanLeg;

/// FlightPlanMod has no legs (`mod_cnt` -1) and no holds; what edits and pages had in work on it is gone, and
/// so are a pending cruise altitude and planned fuel.
void BeginLoadedRoute();

/// EXEC takes the legs for a newly entered route, flown from leg 1.
void MarkLoadedRouteNew();

void AddLoadedLeg(FlightPlanLeg leg);

/// The legs are whole: opens the route or, of an active one, a modification; makes holds and rows; the ends
/// become origin and destination with nothing selected, and the speeds go back to those of the configuration
/// (with EXEC, while a route is active). `company_route` is the name to show, empty for none.
void FinishLoadedRoute(std::string_view company_route);
