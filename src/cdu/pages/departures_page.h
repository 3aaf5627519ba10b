#pragma once

struct PageCall;

/// DEPARTURES: SID, transition and runway of the origin.
void DeparturesPage(PageCall& call);
