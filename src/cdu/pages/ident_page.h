#pragma once

struct PageCall;

/// IDENT: which aircraft, engines and navigation data these are.
void IdentPage(PageCall& call);
