#pragma once

/// Shows the lamps of the fuel pumps as they should be; once a second.
void ShowFuelLamps();
