#pragma once

#include "cdu/page.h"

struct CduPage {
    int id;
    void (*draw)(PageCall& call);
    bool is_family = false;  // has several pages: takes PREV PAGE and NEXT PAGE
};

/// The page of an id; null for an id without a page, whose face stays empty.
const CduPage* FindPage(int id);

/// Where the keyboard cursor stands first on a page.
int FirstCursorItem(int page);
