#pragma once

/// The INIT REF key: the page that the phase of flight asks for. APPROACH REF finds its three reference
/// speeds computed, where the configuration wants that.
void SelectInitRefPage(int side);
