#pragma once

#include <string>
#include <string_view>

// Who asks for a save: the crew, which is told; the timer, which has the host save a flight that brings a
// panel with it; and that flight save.
constexpr int kCrewSave = 0, kAutosave = 1, kWithFlightSave = 2;

/// Saves the flight in progress as a panel state, whole or not at all. Without a name it bears the ends of
/// the route and the date. `side` is the CDU that hears of it. A file that can't be written, and a name that
/// is none, end the save silently.
void SavePanelState(std::string_view name, int side, int mode);

/// Once a second: the autosave of a flight under way.
void StepPanelAutosave();

/// Takes the host's flight saves: a panel beside each of the crew's own.
void FollowFlightSaves();

/// The panel that belongs to a flight of the host's: its file's name without folder and ending, and "-FLT".
std::string PanelOfFlight(std::string_view flight_file);
