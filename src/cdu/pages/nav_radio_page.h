#pragma once

struct PageCall;

/// NAV RADIO: the radios, in automatic or by hand.
void NavRadioPage(PageCall& call);
