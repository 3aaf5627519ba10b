#pragma once

namespace host {

/// The air in the cabin.
struct Cabin {
    double altitude = 0;             // ft
    double rate = 0;                 // fpm
    double pressure_difference = 0;  // psi
    double valves[2] = {180, 180};   // forward, aft: degrees, 0 shut to 180 open
};

/// What the cabin's controller has to go by.
struct CabinSetting {
    double outside;            // pressure altitude, ft
    double landing_elevation;  // ft
    bool on_ground;
    bool hole;           // a door, or the hull, is open
    int packs;           // that blow
    bool valve_auto[2];  // forward, aft; what stands in manual stays where it is
};

/// The cabin as it is once everything has settled.
void SettleCabin(Cabin& cabin, const CabinSetting& setting);
void StepCabin(Cabin& cabin, const CabinSetting& setting, double dt);

}  // namespace host
