#pragma once

#include "display/routing/content_place.h"
#include "display/routing/modes.h"
#include "paint/graphics.h"

// A format is what stands on a half of a Display Unit: how it draws itself, where it is touched, whose it is.
// Each has a file pair in this folder, with its touch areas beside the drawing that shows them, and one row
// in the table.

/// Whose data a half of a unit shows.
enum class Owner {
    kOfItsHalf,    // on the lower unit the left half is the captain's, the right one the first officer's
    kOfItsInboard  // on the lower unit both halves are the captain's
};

struct DisplayFormat {
    Content content;
    void (*draw)(Graphics& graphics, const ContentPlace& place);
    void (*touch)(const FormatTouch& at);  // null: nothing to touch
    int right_at = 283;                    // x at which the right half's touch areas begin
    Owner owner = Owner::kOfItsHalf;
};
