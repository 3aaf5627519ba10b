#pragma once

/// A mouse press on a Display Unit (1 to 5) at a point of its 564 by 424 frame. It goes to the format on
/// that half, if it can be touched.
void OnDisplayUnitClick(int x, int y, int unit);
