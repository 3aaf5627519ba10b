#pragma once

/// Shows the lamps of the electrical panel as they should be; once a second.
void ShowElectricalLamps();
