#pragma once

// What the systems stand at when the host has settled.

/// Both recirculation fans are on, wherever a saved state has left them.
void SwitchRecirculationOn();

/// Fuel controls stand where the host's engines have them.
void ReadFuelControls();

/// A unit whose knob stands at NAV already begins to align.
void StartIrsOfKnobs();

/// With the setting SystemsOn the aircraft starts with its systems running, the host's battery too.
void StartSystemsRunning();
