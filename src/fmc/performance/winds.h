#pragma once

#include "state/plan.h"

// Winds along the route: what the predictions take from the legs and the forecast, and what the weather
// program's files bring.

/// Altitudes (ft) of the nine winds of a weather station.
constexpr int kWxLevels[] = {3000, 6000, 9000, 12000, 18000, 24000, 30000, 34000, 39000};

/// Wind along the track (kt, tailwind positive) from FlightPlan[prev_leg], whose levels count, to
/// FlightPlan[leg]: the level nearest to the aircraft's altitude on the leg that is flown, else to the
/// altitude of `prev_leg`. 0 without a level.
double LegWind(int prev_leg, int leg);

/// The same in the descent to `leg`, by the forecast; by LegWind where the forecast is empty.
double DescentWind(int leg);

/// Looks for the weather station nearest to each leg of FlightPlanMod, and its winds. False, and nothing
/// changes, when one of the program's files is missing.
bool RequestRouteWinds();

/// Writes the winds of the stations into FlightPlanMod, which opens a modification, and tells `side` when
/// they are 7 hours old or more. A level that a station doesn't tell keeps its wind.
void ApplyRouteWinds(int side);

/// Fills the levels of the descent's forecast, and the temperature of the destination, from the station
/// nearest to it. False, and nothing changes, when one of the files is missing.
bool RequestDescentWinds();

/// Once a second: what was requested is ready a while later.
void StepWindUplink();

/// Where the weather program keeps its snapshots: by the host's application data folder, or where the
/// configuration says.
void FindWeatherProgram();
void ChooseWeatherFolder();
