#pragma once

#include <span>
#include <string>

#include "state/variable.h"

/// Which aircraft the module sits in. Filled by ScanAircraftCfg; empty texts = not known.
struct AircraftIdentity {
    std::string aircraft;              // title of the loaded aircraft, lower case
    std::string registration;          // as the host has it
    std::string selcal;                // selective calling code, "AB-CD"; empty = none
    std::string aircraft_model;        // "900-8", "900-9" or "900-10"
    std::string aircraft_sim_name;     // "TZ900-8", "TZ900-9" or "TZ900-10"
    std::string engine_model;          // "GENX-1B67", "GENX-1B70", "GENX-1B76" or "TRENT 1000"
    std::string airline_code;          // upper case
    std::string airline_voice_folder;  // the airline's own folder of announcements, empty = none
    int panel_hires = 0;
    int aircraft_identified = 0;  // the title has been found in an Aircraft.cfg
    int title_unknown = 0;        // no Aircraft.cfg has the title
    int identify_attempts = 0;    // of the update cycle, at most 10
};

extern AircraftIdentity identity;
extern const std::span<const Variable> kIdentityVariables;
