#pragma once

#include <string>

#include "display/pfd/pfd_view.h"

/// The altimeter's setting below the altitude tape, in a box where it doesn't fit the altitude.
void DrawBaro(const PfdView& view);
/// Whether the setting should be another one: standard below the transition altitude, a local one above.
bool IsBaroCautioned();
/// The setting as it is read out, in hPa or inches, and the one that waits behind the standard pressure,
/// which is empty where there is none.
std::string BaroText(bool hpa);
std::string PresetText(bool hpa);
/// Decision height or altitude, blinking while it alerts.
void DrawMinimums(const PfdView& view);
