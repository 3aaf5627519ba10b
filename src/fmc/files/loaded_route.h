#pragma once

#include <string_view>

// What loading a whole route into FlightPlanMod has in common, whether it comes from a file or from the host:
// BeginLoadedRoute, then AddLoadedLeg for each leg, then FinishLoadedRoute.

struct FlightPlanLeg;

/// FlightPlanMod has no legs (`mod_cnt` -1) and no holds; what edits and pages had in work on it is gone, and
/// so are a pending cruise altitude and planned fuel. A cost index of the configuration counts.
void BeginLoadedRoute();

/// EXEC takes the legs for a newly entered route, flown from leg 1.
void MarkLoadedRouteNew();

/// The cost index of the route, with EXEC while another is active; -1 = none. Outside -1 to 999: nothing.
void PlanCostIndex(double index);

/// Adds a leg behind the others; what can't be flown from a file (an airway without an end) is left out, and
/// so are discontinuities with the setting ExcludeDisco.
void AddLoadedLeg(FlightPlanLeg leg);

/// The legs are whole: opens the route or, of an active one, a modification; makes holds and rows; the ends
/// become origin and destination with nothing selected, and the speeds go back to those of the configuration
/// (with EXEC, while a route is active). `company_route` is the name to show, empty for none.
void FinishLoadedRoute(std::string_view company_route);
