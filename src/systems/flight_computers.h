#pragma once

/// The switch of the primary flight computers has moved: 1 disconnects them, 0 is normal.
void FollowPfcSwitch(int before);
