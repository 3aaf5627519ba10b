#pragma once

struct PageCall;

/// SELECT DESIRED WPT: which of several places of one name an entry means.
void SelectWptPage(PageCall& call);

/// Asks which, from RTE for a row or from LEGS for a leg (0 = the hold to be placed); the pick goes in there.
void OpenSelectWpt(PageCall& call, int row);
