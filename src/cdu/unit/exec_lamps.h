#pragma once

/// The EXEC keys are lit while a route or a modification waits for them.
void ShowExecLamps();
