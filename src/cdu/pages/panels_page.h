#pragma once

struct PageCall;

/// STORED PANELS.
void PanelsPage(PageCall& call);

/// Reads the folder again and opens the page.
void OpenPanels(PageCall& call);
