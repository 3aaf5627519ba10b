#pragma once

// The test of the fire detection, by its button.

/// The button has been pressed: the test begins, anew if one runs.
void FollowFireTest(int before);

/// Once a second: the test runs, then its result stands.
void CountFireTest();
