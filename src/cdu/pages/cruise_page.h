#pragma once

struct PageCall;

/// CRZ, the second of the VNAV group.
void CruisePage(PageCall& call);
