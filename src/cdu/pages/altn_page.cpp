#include "cdu/pages/altn_page.h"

#include "base/text.h"
#include "cdu/pages/pos_init_page.h"
#include "cdu/words/enroute.h"
#include "cdu/words/page.h"
#include "cdu/words/typed_values.h"
#include "fmc/performance/predictions.h"
#include "frame/crew_messages.h"
#include "navdata/find_airport.h"
#include "navdata/from_aircraft.h"
#include "navdata/nearest.h"
#include "state/nearest.h"
#include "state/predictions.h"

namespace {

constexpr int kPages = 2, kAlternates = 4;
constexpr std::size_t kIdentLength = 4;

AltnRecord& RowAt(int row) {
    return nearest.AltnRows[static_cast<std::size_t>(row)];
}

bool HasEstimate(const AltnRecord& alternate) {
    return HasEstimates() && !alternate.ident.empty() && (alternate.lat != 0 || alternate.lon != 0);
}

double DistanceTo(const AltnRecord& alternate) {
    return FromAircraft(alternate.lat, alternate.lon).dist;
}

std::string FuelText(const AltnRecord& alternate) {
    const double hours = DistanceTo(alternate) / sim.ground_speed_kt;
    const double burn = predictions.crz_burn * hours * (1 + PerfFactor());
    return Format("%.1f", ThousandsShown(TotalFuel() - burn));
}

void OnAlternate(PageCall& call, int row) {
    if (IsDelete(call)) {
        if (RowAt(row).fixed == 0) return RefuseDelete(call);
        RowAt(row) = {};
        BuildAltnList();
        return call.unit.ScratchMessage.clear();
    }
    if (Entry(call).empty()) return;
    if (Entry(call).size() != kIdentLength) return Refuse(call, "INVALID ENTRY", kHelpAltnInhibit);
    const AirportRow* airport = FindAirport(Entry(call));
    if (airport == nullptr) return Refuse(call, "NOT IN DATABASE", kHelpAltnInhibit);
    RowAt(row) = {std::string(airport->ident), airport->lat, airport->lon, 1, {}};
    BuildAltnList();
    ClearEntry(call);
}

// "APT1", "APT1/APT2" or "/APT2".
void OnInhibit(PageCall& call) {
    if (IsDelete(call)) {
        nearest.AltnInhibit1.clear();
        nearest.AltnInhibit2.clear();
        BuildAltnList();
        return call.unit.ScratchMessage.clear();
    }
    const std::string_view text = Entry(call);
    if (text.empty()) return;
    const auto parts = SplitAtSlash(text);
    const std::string_view first = parts ? parts->first : text;
    const std::string_view second = parts ? parts->second : "";
    const auto fits = [](std::string_view ident) { return ident.empty() || ident.size() == kIdentLength; };
    if (!fits(first) || !fits(second) || (parts && second.empty()))
        return Refuse(call, "INVALID ENTRY", kHelpAltnInhibit);
    const AirportRow* airport1 = FindAirport(first);
    const AirportRow* airport2 = FindAirport(second);
    if ((!first.empty() && airport1 == nullptr) || (!second.empty() && airport2 == nullptr))
        return Refuse(call, "NOT IN DATABASE", kHelpAltnInhibit);
    if (airport1 != nullptr) nearest.AltnInhibit1 = airport1->ident;
    if (airport2 != nullptr) nearest.AltnInhibit2 = airport2->ident;
    BuildAltnList();
    ClearEntry(call);
}

void SelectAlternate(PageCall& call, int row) {
    if (RowAt(row).ident.empty()) return;
    call.unit.AltnDetail = row;
    GoToPage(call.side, kPageAltnDetail);
}

bool IsSelected(const PageCall& call) {
    const int row = call.unit.AltnDetail;
    return row >= 1 && row <= kAlternates && !RowAt(row).ident.empty();
}

void OnAltnLine(PageCall& call) {
    const int left = LeftLine(call.line), right = RightLine(call.line);
    if (left >= 1 && left <= kAlternates) OnAlternate(call, left);
    if (right >= 1 && right <= kAlternates) SelectAlternate(call, right);
    if (call.line == kR5) OnInhibit(call);
    if (call.line == kR6 && IsSelected(call)) OpenPosInit(call);
}

void DrawAlternate(PageCall& call, int row) {
    const AltnRecord& alternate = RowAt(row);
    MarkSelectable(call, kL1 + row - 1);
    if (alternate.ident.empty()) return LeftData(call, row, "----");
    LeftData(call, row, "<" + alternate.ident);
    if (HasEstimate(alternate)) {
        PageText(call, 100, DataY(row), EtaAfter(DistanceTo(alternate)));
        PageText(call, 160, DataY(row), FuelText(alternate));
    }
    RightData(call, row, call.unit.AltnDetail == row ? "<SEL>" : ">");
    MarkSelectable(call, kR1 + row - 1);
}

std::string InhibitText(const std::string& ident) {
    return ident.empty() ? "----" : ident;
}

void Altn(PageCall& call) {
    OnAltnLine(call);
    Title(call, 130, "ALTN");
    PageText(call, 100, LabelY(1), "ETA", kCyan, kLabelSize);
    PageText(call, 160, LabelY(1), "FUEL", kCyan, kLabelSize);
    for (int row = 1; row <= kAlternates; ++row) DrawAlternate(call, row);
    LeftData(call, 5, "<REQUEST");
    RightLabel(call, 5, "ALTN INHIBIT");
    RightData(call, 5,
              Format("%4s/%4s", InhibitText(nearest.AltnInhibit1).c_str(),
                     InhibitText(nearest.AltnInhibit2).c_str()));
    MarkSelectable(call, kR5);
    if (!IsSelected(call)) return;
    RightData(call, 6, "DIVERT NOW>");
    MarkSelectable(call, kR6);
}

void AltnList(PageCall& call) {
    if (call.line == kL5) RequestAltnList();
    if (call.line == kR5) PurgeAltnList();
    if (call.line == kL6) GoToPage(call.side, kPageInitRefIndex);

    constexpr int kInRow = 5, kStep = 45;
    Title(call, 115, "ALTN LIST");
    for (std::size_t i = 1; i < nearest.AltnListRows.size(); ++i) {
        const int place = static_cast<int>(i) - 1;
        PageText(call, 34 + kStep * (place % kInRow), DataY(place / kInRow + 1),
                 nearest.AltnListRows[i].ident);
    }
    LeftData(call, 5, "<REQUEST");
    RightData(call, 5, "PURGE>");
    LeftData(call, 6, "<INDEX");
    for (const int line : {kL5, kR5, kL6}) MarkSelectable(call, line);
}

}  // namespace

void AltnPage(PageCall& call) {
    int& page = call.unit.altn_index;
    TurnPages(call, page, kPages);
    if (page == 2 && call.line > 0 && IsDelete(call)) {
        RefuseDelete(call);
        call.line = 0;
    }
    (page == 1 ? Altn : AltnList)(call);
    PageText(call, 225, 25, Format("%d/%d", page, kPages), kWhite, kLabelSize);
    DashLine(call);
}

void AltnDetailPage(PageCall& call) {
    int& row = call.unit.AltnDetail;
    TurnPages(call, row, kAlternates);
    if (call.line == kL6) GoToPage(call.side, kPageAltn);
    if (call.line == kR6) OpenPosInit(call);

    const AltnRecord& alternate = RowAt(row);
    Title(call, 95, alternate.ident);
    Title(call, 135, "ALTN");
    PageText(call, 220, 25, Format("%d / %d", row, kAlternates), kWhite, kLabelSize);
    struct Line {
        int row;
        const char *label, *text;
    };
    constexpr Line kLeft[] = {{1, "VIA", "DIRECT TO <SEL>"}, {2, "ALT", "FL230"}, {3, "LRC", ".780"},
                              {4, "OFFSET", "LOD"},          {5, "", "<ENG OUT"}, {6, "", "<ALTN"}};
    constexpr Line kRight[] = {{2, "WIND", "---/---"}, {3, "ALT/OAT", "-----/---"}, {6, "", "DIVERT NOW>"}};
    for (const Line& line : kLeft) {
        LeftLabel(call, line.row, line.label);
        LeftData(call, line.row, line.text);
    }
    for (const Line& line : kRight) {
        RightLabel(call, line.row, line.label);
        RightData(call, line.row, line.text);
    }
    RightLabel(call, 4, "OVERHEAD");
    RightLabel(call, 5, Format("%4s  ETA / FUEL", alternate.ident.c_str()));
    if (HasEstimate(alternate)) {
        std::string eta = EtaAfter(DistanceTo(alternate));
        RightData(call, 4, "ELN " + eta);
        eta.back() = 'z';
        RightData(call, 5, eta + "/" + FuelText(alternate));
    } else {
        RightData(call, 4, "ELN");
    }
    for (const int line : {kR5, kL6, kR6}) MarkSelectable(call, line);
}
