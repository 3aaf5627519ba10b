#pragma once

struct PageCall;

/// ALTN and ALTN LIST: where the flight could go instead.
void AltnPage(PageCall& call);

/// The details of the alternate that is selected.
void AltnDetailPage(PageCall& call);
