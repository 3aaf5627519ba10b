#pragma once

/// The host's key events, also those that the module itself sends: engine fuel, parking brake, autopilot and
/// autothrottle. Called on the gauge thread.
void OnKeyEvent(int event, int value);

/// Hangs the handler on the host, and takes it away; each once.
void AddKeyEventHook();
void RemoveKeyEventHook();
