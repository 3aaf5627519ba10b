#pragma once

#include "state/nearest.h"

/// Brings the proximity lists, the alternates and the automatic tuning of the VOR radios up to date; called
/// about once a second. There is a set of lists around the aircraft, and one for each side whose map is drawn
/// around a place far from it, in PLAN. A list is rebuilt only when its reference point has moved (200 nm for
/// the far lists, 50 nm for the near ones), or at once when `nav.nearest_refresh_due` is set.
void RefreshNearest();

/// What a side's map can show: the set around the aircraft, or its own.
const NearPlaces& PlacesOfMap(int side);

/// Bring one pair of lists to a reference point (degrees); true when one of the two was rebuilt.
bool NearAirports(NearPlaces& places, double lat, double lon);
bool NearFixes(NearPlaces& places, double lat, double lon);
bool NearNavaids(NearPlaces& places, double lat, double lon);

/// Fills `nearest.AltnRows` with the airports nearest to the aircraft, nearest first: runway of at least 4800
/// ft, neither origin nor destination nor one that the crew
/// has left out. Rows that the crew has fixed keep their place.
void BuildAltnList();
/// The same for the twenty of ALTN LIST, that stand until the crew asks again or throws them away.
void RequestAltnList();
void PurgeAltnList();

/// Lets the lists be made anew at the next tick.
void RefreshNearestAtOnce();
