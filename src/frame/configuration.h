#pragma once

/// Reads \Velarion\tz900.cfg into `cfg`, then the host's own lines; a missing file leaves the defaults. Lines
/// "key=value", keys in any case, ";" comments, 299 characters a line at most (the rest of a longer one is
/// dropped); unknown keys are passed over, a later line of a key wins, a value that is no number counts as 0.
void ReadConfig();

/// Writes tz900.cfg, each key by its test, then the fuel file with the present quantities. False when one of
/// the two could not be written; its old file then stands.
bool WriteConfig();

/// Reads tz900_fuel.cfg of the application data folder into the host's tanks. A missing file or an unknown
/// fuel weight leaves the tanks as they are. A unit in the file that differs from WeightUnit wins over it.
void LoadStoredFuel();

/// The same when the aircraft loads on the ground and the setting LoadFuelonAircraftLoad wants it.
void LoadFuelAtStart();
