#pragma once

struct PageCall;

/// INIT/REF INDEX: where the pages of the preparation are found.
void InitRefIndexPage(PageCall& call);
