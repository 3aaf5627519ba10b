#pragma once

/// Types on the scratchpad of the side that has taken the PC keyboard, at every pre-update. The device
/// follows the simulator's window in the foreground; a failure to open it is told in the side's scratch
/// message.
void PollKeyboard();

/// Gives the device and the key hook back and ends the capture.
void ReleaseKeyboard();
