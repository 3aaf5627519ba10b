#include "cdu/pages/ref_nav_data_page.h"

#include "base/text.h"
#include "cdu/pages/select_wpt_page.h"
#include "cdu/words/page.h"
#include "cdu/words/position_text.h"
#include "frame/crew_messages.h"
#include "navdata/parse_entry.h"
#include "state/nav.h"

namespace {

void OnIdent(PageCall& call) {
    if (Entry(call).empty()) return;
    ParseEntry(Entry(call));
    if (nav.entry_cnt == 0) return Refuse(call, "NOT IN DATABASE", kHelpRoute);
    if (nav.entry_cnt > 1)
        OpenSelectWpt(call, 0);
    else
        nav.ref_nav_data = nav.EntryCandidates[1];
    ClearEntry(call);
}

}  // namespace

void RefNavDataPage(PageCall& call) {
    if (call.line == kL1) OnIdent(call);
    if (call.line == kL6) GoToPage(call.side, kPageInitRefIndex);

    const NavRecord& shown = nav.ref_nav_data;
    Title(call, 100, "REF NAV DATA");
    LeftLabel(call, 1, "  IDENT");
    LeftData(call, 1, shown.ident.empty() ? "----" : shown.ident);
    RightLabel(call, 1, "  FREQ");
    RightData(call, 1, shown.freq);
    LeftLabel(call, 2, " LATITUDE");
    RightLabel(call, 2, "LONGITUDE");
    if (!shown.ident.empty()) {
        LeftData(call, 2, LatitudeText(shown.lat, "\xb0"));
        RightData(call, 2, LongitudeText(shown.lon, "\xb0"));
    }
    if (shown.type == "APT") {
        LeftLabel(call, 3, "ELEVATION");
        LeftData(call, 3, Format("%6s FT", shown.elevation_text.c_str()));
    }
    DashLine(call);
    LeftData(call, 6, "<INDEX");
    MarkSelectable(call, kL1);
    MarkSelectable(call, kL6);
}
