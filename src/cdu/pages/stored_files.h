#pragma once

#include <string>

#include "cdu/words/page.h"
#include "state/growing_list.h"

// The lists of stored files, six a page: flight plans and panels.

/// Turns the pages of a list, and gives the file whose line key is pending; null for none.
const std::string* PickStoredFile(PageCall& call, int& page, const GrowingList<std::string>& files,
                                  int count);

/// The rows of the page that shows.
void DrawStoredFiles(PageCall& call, int page, const GrowingList<std::string>& files, int count);

int StoredFilePages(int count);
