#pragma once

/// Steps the mean airspeed, from which follow the speed a minute ahead and the trend of the speed tape.
void UpdateSpeedTrend();
