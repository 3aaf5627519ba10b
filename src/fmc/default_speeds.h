#pragma once

/// Planned speeds (kt, Mach) that a route begins with.
struct DefaultSpeeds {
    double climb_ias, cruise_ias, descent_ias;
    double climb_mach, cruise_mach, descent_mach;
};

/// Those of the configuration; cruise and descent without a setting of their own begin with the climb's.
DefaultSpeeds ConfiguredSpeeds();

/// Puts them into force, as speeds that nobody has set by hand.
void SetDefaultSpeeds();

/// Leaves them for EXEC, with a route that is flown meanwhile.
void SetDefaultSpeedsPending();
