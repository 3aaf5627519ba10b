#pragma once

struct PageCall;

/// DES, the third of the VNAV group.
void DescentPage(PageCall& call);
