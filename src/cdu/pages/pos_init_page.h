#pragma once

struct PageCall;

/// POS INIT and the two pages of POS REF.
void PosInitPage(PageCall& call);

/// Opens POS INIT. An aircraft that stands or taxies gets the nearest airport as its reference, where the
/// realism setting asks for that.
void OpenPosInit(PageCall& call);
/// Opens the second page of POS REF.
void OpenPosRef(PageCall& call);
