#pragma once

/// Shows the lamps of the air conditioning and window heat panels as they should be; once a second.
void ShowAirLamps();
