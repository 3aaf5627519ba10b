#include "efb/pages/later_page.h"

#include "state/identity.h"

namespace {

void SayNotAvailable(TabletFace& face, std::string_view title) {
    face.Title(title);
    face.Centred(kTabletWidth / 2.0, 216, "NOT AVAILABLE IN THIS VERSION", kTabletGrey);
}

}  // namespace

void TerminalChartsPage(TabletFace& face) {
    SayNotAvailable(face, "TERMINAL CHARTS");
}
void RouteEntryPage(TabletFace& face) {
    SayNotAvailable(face, "ROUTE ENTRY");
}
void DispatchPage(TabletFace& face) {
    SayNotAvailable(face, "DISPATCH  " + identity.aircraft_model);
}
