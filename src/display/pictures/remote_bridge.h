#pragma once

#include <cstdint>

#include "platform/panel_gauges.h"

// The bridge to a remote peer: a program on the same machine that shows the lower unit and the captain's
// tablet and presses their keys. It opens what stands here by name, once the module has made it (see
// platform/shared_objects.h for what the names are on this machine):
//
//   Global\TZ900_CDU_CONTENTS              memory: the lower unit's pixels as painted, rows from the top, no
//                                          header; 662000 bytes, 2648000 in high resolution
//   Global\TZ900_EFB_CONTENTS              memory: the tablet's; 426300 or 1705200 bytes
//   Global\TZ900_CDU_EVENTDATA             memory: the peer's RemoteEvent, 20 bytes
//   Global\TZ900_CDU_OUTPUTCHANGED_EVENT   event: a new picture of the lower unit has been written
//   Global\TZ900_EFB_OUTPUTCHANGED_EVENT   event: a new picture of the tablet
//   Global\TZ900_CDU_INPUTCHANGED_EVENT    event: the peer has written its record
//
// A pixel has four bytes: blue, green, red, alpha, premultiplied. A picture may be read half written. Nobody
// waits for the peer.

/// What the peer wrote.
struct RemoteEvent {
    std::int32_t device = 0;    // 0 captain's CDU, 1 first officer's, 2 tablet
    std::int32_t kind = 0;      // 0 a key, 2 a touch
    std::int32_t code = 0;      // of the key
    std::int32_t x = 0, y = 0;  // of the touch, in the picture's pixels
};
static_assert(sizeof(RemoteEvent) == 20);

/// Makes the shared memory and the events for the resolution and announces the pictures' sizes. What can't be
/// made is left out. Under the state lock.
void OpenRemoteBridge(bool high_resolution);

/// Opens the bridge where the configuration wants one, in the resolution of panel and configuration.
void OpenConfiguredBridge();

/// Marks the pictures that are due in a phase, 0 to 17: each about five times a second. Under the state lock.
void MarkRemoteImages(int phase);

/// Whether the picture that a gauge has just composed goes to the peer from this surface; then it is due no
/// longer and SendRemoteImage must follow. Under the state lock.
bool TakeRemoteImage(int gauge_id, const GaugeElement& surface);

/// Hands the gauge's painted surface to the peer. Needs no lock: the bridge doesn't change while it is open.
void SendRemoteImage(int gauge_id, const GaugeElement& surface);

/// The peer's record when it has written one since the last call.
bool PollRemoteEvent(RemoteEvent& event);
