#pragma once

/// Asks for the runways of the air traffic at the nearer end of the active route, where the setting
/// DispAiActiveRwys wants them shown.
void RefreshRunwaysInUse();
