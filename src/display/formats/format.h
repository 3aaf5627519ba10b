#pragma once

#include "display/routing/modes.h"
#include "paint/graphics.h"

// A format is what stands on a half of a Display Unit: how it draws itself, where it is touched, whose it is.
// Each has a file pair in this folder, with its touch areas beside the drawing that shows them, and one row
// in the table.

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

/// Whose data a half of a unit shows.
enum class Owner {
    kOfItsHalf,    // on the lower unit the left half is the captain's, the right one the first officer's
    kOfItsInboard  // on the lower unit both halves are the captain's
};

struct Format {
    Content content;
    void (*draw)(Graphics& graphics, const ContentPlace& place);
    void (*touch)(const FormatTouch& at);  // null: nothing to touch
    int right_at = 283;                    // x at which the right half's touch areas begin
    Owner owner = Owner::kOfItsHalf;
};
