#pragma once

/// Sets `cfg.simver` by the files of the host's root folder: 11 with a "Prepar3D.exe", else 10.
void DetectHost();

/// Reads the title and the registration of the loaded aircraft from the host; what it doesn't give stays. A
/// new title leaves the rest of the identity empty.
void ReadAircraftTitle();

/// Looks the title up in the Aircraft.cfg files of up to 8000 airframes and fills the identity from its
/// section. True when it was found; otherwise the identity stays as it is, and the files aren't read for that
/// title again.
bool ScanAircraftCfg();

/// Fills the weight tables and, with no zero-fuel weight yet and CduAutoCalcZfw off, takes it from the host.
void LoadAircraft();

/// Zero-fuel weight (lb): the one entered, else the aircraft's.
double ZeroFuelWeight();

/// Reads the payload stations; zero-fuel and gross weight follow from them, the zero-fuel weight only while
/// the crew has entered none and calcpayload is on.
void UpdateWeights();

/// Chooses the row of flap speeds for the present weight. It moves with a loss of at least 1000 lb only.
void UpdateFlapSpeedRow();

/// Tries again to identify an aircraft that wasn't at its connection, at most ten times in a module life.
void IdentifyLateAircraft();

/// Chooses the takeoff flap settings that the variant has.
void ChooseTakeoffFlaps();
