#include "cdu/pages/panels_page.h"

#include <utility>

#include "base/text.h"
#include "cdu/pages/stored_files.h"
#include "cdu/words/page.h"
#include "panels/load_panel.h"
#include "panels/panel_folder.h"
#include "state/panel_files.h"

void PanelsPage(PageCall& call) {
    int& page = call.unit.panels_index;
    const GrowingList<std::string>& files = std::as_const(panel_files.PanelFiles);
    const int count = panel_files.panel_file_count;
    if (const std::string* name = PickStoredFile(call, page, files, count))
        LoadPanelState(std::string(*name), kCrewLoad);

    Title(call, 100, "STORED PANELS");
    PageText(call, 215, 25, Format("%2d / %-2d", page, StoredFilePages(count)), kWhite, kLabelSize);
    DrawStoredFiles(call, page, files, count);
}

void OpenPanels(PageCall& call) {
    ListPanels();
    call.unit.panels_index = 1;
    GoToPage(call.side, kPagePanels);
}
