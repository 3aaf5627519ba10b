#pragma once

struct PageCall;

/// The VNAV group: CLB, CRZ and DES.
void VnavPage(PageCall& call);
