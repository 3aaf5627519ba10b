#pragma once

struct PageCall;

/// FIX INFO: four places, each with rings and radials about it.
void FixInfoPage(PageCall& call);
