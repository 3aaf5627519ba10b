#pragma once

struct PageCall;

/// SELECT DESIRED WPT: which of the places of one name is meant.
void SelectWptPage(PageCall& call);
