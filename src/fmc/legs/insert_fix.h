#pragma once

#include <string>
#include <string_view>

#include "state/nav.h"
#include "state/plan.h"

/// Places an entry of EntryCandidates (its number; 0 = the first) as a leg at a position of FlightPlanMod;
/// the legs from there on move up. Unless `replace`, a "DISCO" is opened right behind it where none stands.
/// With `along_track_nm` set, the leg at `position` itself is the reference: the new one lies that far
/// towards the next leg (and behind it in the list), or towards the previous one when negative; the offset is
/// used up. No such candidate: nothing.
void InsertFixAt(int position, int candidate, bool replace);

/// Places an entry as a direct leg at the end fix of a row, or behind the last row when there is no such row
/// (0, or a new row). The legs around it stay connected.
void InsertDirectRow(int candidate, int row);

/// The leg that an entry stands for: a place of the database under its ident; a point given by places,
/// bearings and distance (as ParseEntry left them) under a made name that no other leg bears. Bearings from
/// a place are magnetic there.
FlightPlanLeg LegFromEntry(const NavRecord& entry);

/// A made name: the prefix and a number of two digits, one above the highest that legs of that form have.
std::string MadeName(std::string_view prefix);
