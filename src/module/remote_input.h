#pragma once

#include "display/pictures/remote_bridge.h"

/// Carries out what the remote peer has pressed since the last call, as the cockpit's own key or screen
/// would.
void PollRemoteInput();

/// Does what one record asks; one with a value out of range does nothing.
void HandleRemoteEvent(const RemoteEvent& event);
