#pragma once

#include <string>
#include <string_view>

#include "efb/words/face.h"

/// The option lists of the performance pages, as EfbOpenList has them.
enum TabletList {
    kNoList,
    kListThrust,
    kListTakeoffFlaps,
    kListTakeoffCondition,
    kListTakeoffRunways,
    kListLandingFlaps,
    kListLandingCondition,
    kListLandingRunways,
    kListCategory,
    kListAntiIce,
    kListReverser,
    kListSpoiler,
    kListBrakes,
};

/// Opens a list, as an action: the number is the list's. The open one closes.
void ToggleList(int side, int list);

/// Where a list's field stands on its page, from the top.
int RowOfList(TabletList list);

/// The text that a list's field shows.
const std::string& ValueOfList(TabletList list);

/// Lays out the open list, when it is one of the page that is shown.
void AddOpenList(TabletFace& face);
