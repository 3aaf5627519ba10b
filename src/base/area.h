#pragma once

/// A rectangle to be touched; all four sides belong to it.
struct Area {
    int left, right, top, bottom;
    bool Has(double x, double y) const { return x >= left && x <= right && y >= top && y <= bottom; }
};
