#pragma once

/// Shows the lamps of the overhead panel as they should be; once a second. The APU's and the battery test's,
/// and that of the crossfeed valve, blink by their own timers.
void ShowOverheadLamps();
