#include "cdu/pages/vnav_page.h"

#include "cdu/pages/climb_page.h"
#include "cdu/pages/cruise_page.h"
#include "cdu/pages/descent_page.h"
#include "cdu/words/page.h"

void VnavPage(PageCall& call) {
    int& page = call.unit.fms_vnav_page;
    TurnPages(call, page, kVnavDesPage);
    if (TakeErase(call)) call.line = 0;
    if (page == kVnavClbPage)
        ClimbPage(call);
    else if (page == kVnavCrzPage)
        CruisePage(call);
    else
        DescentPage(call);
}
