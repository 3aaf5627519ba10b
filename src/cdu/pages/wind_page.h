#pragma once

struct PageCall;

/// The forecast winds and the temperature at one leg.
void WindPage(PageCall& call);
