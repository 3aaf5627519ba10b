#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "state/airports.h"

// What the DEPARTURES and ARRIVALS pages choose from, and what their keys do. Choosing writes the procedure
// into FlightPlanMod; choosing what is chosen already takes it out again. Numbers outside the list change
// nothing.

/// Names in the order of the file, each once. The runways are those of the chosen SID.
std::vector<std::string> SidNames();
std::vector<std::string> DepartureRunways();
std::vector<std::string> DepartureTransitions();
std::vector<std::string> StarNames(const AirportData& airport);
std::vector<std::string> ArrivalTransitions(const AirportData& airport);

/// An approach of the list: its kind and runway.
struct ApproachChoice {
    std::string kind, runway;
};
/// At the destination those for the runways of the chosen STAR, unless an approach is chosen.
std::vector<ApproachChoice> ApproachChoices(const AirportData& airport);
std::vector<std::string> ArrivalRunways(const AirportData& airport);

/// Chooses a SID of the origin, a STAR of the destination or a transition of either by its name ("ALDER1").
/// False, and nothing chosen, when there is none.
bool SelectSidByName(std::string_view name);
bool SelectDepartureTransitionByName(std::string_view name);
bool SelectStarByName(std::string_view name);
bool SelectArrivalTransitionByName(std::string_view name);
/// An approach by kind and runway, "ILS24R".
bool SelectApproachByName(std::string_view name);
bool HasApproach(std::string_view name);
/// A STAR of the destination has a transition of that name.
bool IsArrivalTransition(const std::string& star, std::string_view name);

/// `index` counts from 1 in the list; with `keep` the selection stands and its legs are written anew.
void SelectSid(int side, int index, bool keep);
void SelectDepartureRunway(int side, int index);
void SelectDepartureTransition(int side, int index);
void SelectArrival(int side, int index, bool keep);
void SelectArrivalTransition(int side, int index);
void SelectApproach(int side, int index);
void SelectArrivalRunway(int side, int index);
void SelectApproachTransition(int side, int index);
