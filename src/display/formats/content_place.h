#pragma once

/// Where a content of a Display Unit is drawn, and whose data it shows. Every content is called with the
/// frame of the whole unit, 564 by 424, and no clip.
struct ContentPlace {
    int mode;         // of the unit
    int unit;         // 1 to 5; the navigation display knows only the inboard ones, 2 and 3
    int half;         // 1 left, 2 right
    int side;         // kCaptain or kFirstOfficer
    bool narrow;      // the PFD, beside a whole half
    bool vsd;         // the ND, with its vertical situation display
    int system_page;  // of this half of this unit
};
