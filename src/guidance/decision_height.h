#pragma once

/// Brings the host's decision height to 200 ft once. The host knows it only by steps, one a tick.
void SetDecisionHeight();
