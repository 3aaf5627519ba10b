#pragma once

/// Shows the lamps of the hydraulic panel as they should be; once a second.
void ShowHydraulicLamps();
