#pragma once

struct PageCall;

/// REF NAV DATA: what the database knows of a place.
void RefNavDataPage(PageCall& call);
