#include "cdu/words/views.h"

#include <utility>

#include "state/cdu.h"
#include "state/requests.h"
#include "state/side.h"

void LeaveLegsView() {
    route_pages.LegsView = route_pages.HoldSelectIndex = route_pages.DirectSelectIndex = 0;
}

void TakeViewRequests() {
    if (std::exchange(requests.leave_legs_view, 0) == 1) LeaveLegsView();
    if (std::exchange(requests.forget_pick, 0) == 1) route_pages.PendingSelectRow = 0;
    if (std::exchange(requests.leave_hold_page, 0) == 1)
        for (CduState& unit : cdu)
            if (unit.fms_page == kPageHold) unit.fms_page = kPageLegs;
    if (const int phase = std::exchange(requests.vnav_phase, 0); phase > 0)
        for (CduState& unit : cdu)
            if (unit.fms_vnav_page == phase - 1) unit.fms_vnav_page = phase;
    const int side = std::exchange(requests.show_rte, 0);
    if (side != kCaptain && side != kFirstOfficer) return;
    CduOf(side).fms_page = kPageRte;
    CduOf(side).rte_index = 1;
}
