#include "display/synoptics/maint_page.h"

#include "paint/soft_key.h"

// Nothing here does anything: the pages for the ground crew aren't for a flight.
void DrawMaintPage(const SysPage& page) {
    constexpr std::string_view kLines[] = {"AIRPLANE CONFIG DATA (AC0)", "ELEC SYS IND & CTRL  (ESIC)",
                                           "FLIGHT DECK ACCESS    (FDAS)", "MISC SYSTEM CTRLS     (MSC)"};
    struct Tab {
        SoftKeyBox box;
        std::string_view words[2];
    };
    constexpr Tab kTabs[] = {{{344, 4, 62, 24}, {"  LATCHED", "    MAINT"}},
                             {{412, 4, 62, 24}, {"  CENTRAL", "    MAINT"}}};
    // The blanks before the words bring both lines to the middle.
    for (const Tab& tab : kTabs) {
        DrawSoftKey(page.graphics, tab.box, "", {});
        TextFrom(page.graphics, tab.box.x + 5, tab.box.y + 8, 8, kBlack, tab.words[0]);
        TextFrom(page.graphics, tab.box.x + 5, tab.box.y + 17, 8, kBlack, tab.words[1]);
    }
    DrawSysTitle(page, kPageMiddle, 60, "MAINT CTRL PGS");
    int y = 96;
    for (const std::string_view line : kLines) {
        DrawSoftKey(page.graphics, {296, y, 24, 18}, ">", {.enabled = false});
        TextFrom(page.graphics, 330, y + 9, 10, kWhite, line);
        y += 34;
    }
}
