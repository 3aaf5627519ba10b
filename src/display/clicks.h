#pragma once

/// A mouse press on a Display Unit (1 to 5) at a point of its frame, 564 by 424: goes to the content that
/// stands there. A unit or a point outside, and a content without touch areas, take nothing.
void OnDisplayUnitClick(int x, int y, int unit);
