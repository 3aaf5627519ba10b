#pragma once

/// Picks two of the nine VORs nearest to the aircraft that lie ahead, along the active leg when a route is
/// active, else along the track, and tunes the radios that are in automatic to them. A radio for which none
/// is found keeps its VOR. NAV 1 is left alone while it is tuned to an approach, by hand too.
void AutoTuneRadios();
