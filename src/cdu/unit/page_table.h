#pragma once

#include "cdu/words/page.h"

struct CduPage {
    int id;
    void (*draw)(PageCall& call);
    bool is_family;         // has several pages: takes PREV PAGE and NEXT PAGE
    unsigned delete_lines;  // line keys that act on DELETE, a bit each; the others refuse it
};

/// The page of an id; null for an id without a page, whose face stays empty.
const CduPage* FindPage(int id);

/// Where the keyboard cursor stands first on a page.
int FirstCursorItem(int page);
