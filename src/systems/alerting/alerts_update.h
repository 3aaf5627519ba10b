#pragma once

/// One pass of the crew alerting, twice a second: at most one message comes, with its sound, and at most one
/// goes. It reads all that it needs from the state, whatever stands there.
void AlertsUpdate();

/// Once in two seconds: the captain's caution lamp goes out when the autothrottle's disconnect has gone.
void ClearDisconnectCaution();
