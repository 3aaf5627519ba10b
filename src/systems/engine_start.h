#pragma once

// The start of the engines, 1 left and 2 right: selector, starter, light-off, and the host's auto-start.

/// The start selector has moved: 0 START, 1 NORM. The host's starter goes along.
void FollowStartSelector(int engine);

/// One tick of the start phases; past 25 percent the starter is let go.
void StepEngineStart();

/// Four times a second: light-off, and fuel for an engine that the host's auto-start turns.
void StepLightOff();

/// Once a second: the timers of the start.
void CountStartTimers();

/// Once a second: selectors whose engine has reached the cut-out speed spring back.
void ReturnStartSelectors();
