#pragma once

#include <string>
#include <string_view>

/// Enters a filed route, "ORIG[/RWY] FIX AIRWAY FIX ... DEST[/RWY or /ILS24R]", through the operations that
/// the RTE page uses, row by row. Accepts "DCT" between fixes; an airway followed by another that it crosses;
/// positions (N45W120, 5060N ...); place, bearing and distance (ABC090/25); a speed and level behind a fix
/// (ABC/N0480F350) or alone, of which the first gives the cruise altitude. An ident that occurs more than
/// once is the one on the airway beside it, else the one nearest to the fix before. 1 = entered; 0 = not, the
/// route stays as it was, and `error` names the word that is wrong.
int EnterRouteText(std::string_view text, std::string& error);

/// Activates and executes what has been entered, or whatever has been edited since. 1 = the route is active.
int ExecuteEnteredRoute(std::string& error);
