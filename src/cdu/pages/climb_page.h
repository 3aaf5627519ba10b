#pragma once

struct PageCall;

/// CLB, the first of the VNAV group.
void ClimbPage(PageCall& call);
