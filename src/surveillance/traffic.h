#pragma once

/// Finds the host's traffic records, once before the first update.
void BindTraffic();

/// Keeps this cycle's copy of where the host's traffic records are and how many.
void CopyTraffic();

/// Reads the advisory that the traffic module has in force.
void ReadTrafficAdvisory();
