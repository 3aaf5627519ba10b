#pragma once

struct PageCall;

/// LEGS: the legs with their constraints, the direct-to and the selection of a hold.
void LegsPage(PageCall& call);
