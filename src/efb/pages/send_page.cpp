#include "efb/pages/send_page.h"

#include "base/text.h"
#include "efb/pages/pages.h"
#include "efb/performance/calculate.h"
#include "state/cdu.h"
#include "state/efb.h"
#include "state/side.h"
#include "state/tablet_performance.h"

namespace {

constexpr int kToFmc = 3;
constexpr const char* kDestinations[] = {"Send To Flight Deck Printer", "Send To Storage", "Send To FMC",
                                         "Print Procedure Only"};

void ChooseDestination(int, int destination) {
    efb.EfbSendTo = destination;
}

// The crew accepts it on the captain's CDU.
void ShowOnCdu(int page) {
    CduState& captain = CduOf(kCaptain);
    captain.fms_page = page;
    captain.takeoff_index = 1;
}

void SendTakeoff() {
    tablet_performance.uplink.EfbUplinkPending = 1;
    tablet_performance.uplink.EfbUplinkFlaps = TakeoffFlapsChosen();
    ShowOnCdu(kPageTakeoffRef);
}

void SendLanding() {
    const TabletLanding& page = tablet_performance.landing;
    TabletUplink& uplink = tablet_performance.uplink;
    uplink.EfbApproachUplinkPending = 1;
    uplink.EfbApproachUplinkFlaps = LeadingInt(page.EfbLandingFlaps);
    uplink.EfbApproachUplinkSpeed = page.EfbLandingVref + page.EfbVrefAdd;
    ShowOnCdu(kPageApproachRef);
}

void Complete(int, int) {
    if (efb.EfbSendTo == kToFmc) efb.EfbPrevPage == kTabletLanding ? SendLanding() : SendTakeoff();
    OpenTabletPage(efb.EfbPrevPage);
}

}  // namespace

void SendPage(TabletFace& face) {
    face.Title("Send Output Where ?");
    int number = 1;
    for (const char* destination : kDestinations) {
        face.Button({70, 60 + number * 44, 200, 32}, destination, ChooseDestination, number);
        if (efb.EfbSendTo == number) face.items.back().look = TabletLook::kChosen;
        ++number;
    }
    face.Button({40, 330, 110, 32}, "COMPLETE", Complete);
    face.Button({190, 330, 110, 32}, "CANCEL", ReturnToPage);
}
