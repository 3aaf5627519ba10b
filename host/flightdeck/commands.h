#pragma once

#include <deque>
#include <map>
#include <string>
#include <vector>

#include "host/flightdeck/deck.h"
#include "host/session.h"

// What browsers ask for, done to the session on the host's thread.

namespace host {

/// Carries out one command and takes it down in the session's recording: the one way of a pilot into the
/// session, be he at a browser or the one who flies the demonstration. A name that nobody knows does nothing.
void ApplyDeckCommand(Session& session, const DeckCommand& command);

/// Presses of momentary controls that wait. A control is let go by the system itself, some ticks after it was
/// pressed; a second press before that would be lost, and of two keys pressed together the system would see
/// the one that it looks at first. So each panel's presses go in one at a time.
struct PressQueue {
    struct Press {
        std::string name;
        double value = 1;
    };
    struct Panel {
        std::deque<Press> waiting;
        std::string pressed;  // until the system has let it go
        int ticks = 0;        // since then
    };
    std::map<std::string, Panel> panels;  // by the names' beginning, such as "TZ_FMC_L"
};

/// Adds a press; one too many for its panel is dropped.
void QueuePress(PressQueue& queue, const std::string& name, double value);

/// The presses that are due now, as commands. Call once a tick.
std::vector<DeckCommand> TakeDuePresses(PressQueue& queue);

}  // namespace host
