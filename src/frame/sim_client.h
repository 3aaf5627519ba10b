#pragma once

#include "platform/host_operations.h"

// The simulator's client interface: what the module declares at start and what it does about the messages.

// client events
constexpr int kClientEventPlace = 8;
constexpr int kClientEventFuel = 9;
constexpr int kClientEventSaveFlight = 15;
constexpr int kClientEventPayload = 16;

/// Opens the client "System Event" and declares data, events and input groups. A failure leaves the system
/// running without its events. CloseSimClient is safe on a closed one.
void OpenSimClient();
void CloseSimClient();

/// Acts on one message. The file names of saved and loaded flights wait in host_link for the panel states.
void OnSimEvent(const SimMessage* message);
