#include "efb/pages/main_menu_page.h"

#include "efb/pages/pages.h"
#include "state/efb.h"
#include "state/identity.h"
#include "state/plan.h"

namespace {

constexpr int kMenuLeft = 1, kMenuRight = 247, kMenuWidth = 92, kMenuHeight = 26;

struct MenuRow {
    int x, y;
    const char* text;
    int page;  // 0 = no action
};
// The second TERMINAL CHARTS comes before the first: what stands later answers first.
constexpr MenuRow kMenu[] = {
    {kMenuRight, 50, "VIDEO", 0},
    {kMenuRight, 103, "DOCUMENTS", 0},
    {kMenuRight, 156, "TERMINAL CHARTS", 0},
    {kMenuRight, 261, "PILOT UTILITIES", 0},
    {kMenuRight, 313, "DATA LOAD", 0},
    {kMenuLeft, 50, "DISPATCH", kTabletDispatch},
    {kMenuLeft, 103, "PERFORMANCE", kTabletTakeoff},
    {kMenuLeft, 156, "TERMINAL CHARTS", kTabletTerminalCharts},
    {kMenuLeft, 205, "ENROUTE CHARTS", 0},
    {kMenuLeft, 261, "ROUTE ENTRY", kTabletRouteEntry},
    {kMenuLeft, 367, "IDENT PAGE", 0},
    {kMenuLeft, 420, "SYSTEM PAGE", 0},
};

void OpenFromMenu(int, int page) {
    OpenTabletPage(page);
    if (page == kTabletTerminalCharts) efb.EfbKeyboardShown = 0;
}

// A flight is set up once it has an aircraft and a number; before, it is offered while there is no route.
void AddFlightButton(TabletFace& face) {
    constexpr TabletBox kBox{kMenuRight, 420, kMenuWidth, kMenuHeight};
    const RouteEnds& ends = plan.active.ends;
    if (!identity.aircraft.empty() && !plan.fms_fltno.empty()) return face.GreyButton(kBox, "CLOSE FLIGHT");
    if (ends.origin == kNotSelected && ends.dest == kNotSelected)
        face.Button(kBox, "INITIALIZE FLIGHT", OpenPageOfNumber, kTabletDispatch);
    else
        face.GreyButton(kBox, "INITIALIZE FLIGHT");
}

}  // namespace

void MainMenuPage(TabletFace& face) {
    face.Centred(kTabletWidth / 2.0, 0, "MAIN MENU", kTabletInk, 13);
    for (const MenuRow& row : kMenu) {
        const TabletBox box{row.x, row.y, kMenuWidth, kMenuHeight};
        if (row.page != 0)
            face.Button(box, row.text, OpenFromMenu, row.page);
        else
            face.GreyButton(box, row.text);
    }
    AddFlightButton(face);
}
