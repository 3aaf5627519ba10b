#pragma once

/// Tells the aircraft's model what it can't know: its engines, and the lighting asked for. Repeated, since a
/// model that is loaded anew and an aircraft that is found late come without a word.
void PublishModelSettings();
