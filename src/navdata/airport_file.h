#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "state/airports.h"

/// Fills `target` with the airport of that ICAO code from apts.txt, whatever its runways' length: position,
/// runways (at most 20) with their opposite ends, right-hand patterns. Also `airports.elevation_text`.
/// Gives 1; 0 and an untouched target for an unknown airport; 99 at once while another load is running.
int LoadAirport(std::string_view ident, AirportData& target);

struct AirportComm {
    std::string kind;  // "ATI", "APP", "GND", "CLD", "TWR"
    std::string freq;  // text as in the file
};

/// The radio frequencies of an airport from aptcomms.txt, in the file's order: those of its first lines that
/// stand together. Empty for an unknown airport.
std::vector<AirportComm> LoadAirportComms(std::string_view ident);

/// The aircraft's selective calling code from selcal.txt, in the form "AB-CD"; empty for an unknown
/// registration or a code that isn't four letters.
std::string FindSelcal(std::string_view registration);

/// Looks up the selective calling code of the aircraft's registration.
void ReadSelcal();
