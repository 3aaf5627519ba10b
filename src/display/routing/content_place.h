#pragma once

constexpr int kHalf = 282;  // width of a half

/// Where a format stands, and whose data it shows. Every format is drawn with the frame of the whole unit,
/// 564 by 424, and no clip.
struct ContentPlace {
    int mode;         // of the unit
    int unit;         // 1 to 5
    int half;         // 1 left, 2 right
    int side;         // kCaptain or kFirstOfficer
    bool narrow;      // the PFD, beside a whole half
    int system_page;  // of this half of this unit
};

/// A press on a format, in the frame of its own half.
struct FormatTouch {
    int unit, half, x, y;
    int side;  // whose format it is
};
