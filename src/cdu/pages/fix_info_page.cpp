#include "cdu/pages/fix_info_page.h"

#include "base/text.h"
#include "cdu/words/enroute.h"
#include "cdu/words/page.h"
#include "cdu/words/route_crossing.h"
#include "cdu/words/typed_values.h"
#include "frame/crew_messages.h"
#include "navdata/from_aircraft.h"
#include "navdata/parse_entry.h"
#include "state/cfg.h"
#include "state/fix_info.h"
#include "state/nav.h"

namespace {

constexpr int kPages = 4;

void DeleteFixPage(int index) {
    fix_info.FixPages[static_cast<std::size_t>(index)] = {};
}

void OnFix(PageCall& call, int page) {
    FixPage& fix = fix_info.FixPages[static_cast<std::size_t>(page)];
    if (IsDelete(call)) {
        if (fix.ident.empty()) return RefuseDelete(call);
        DeleteFixPage(page);
        return call.unit.ScratchMessage.clear();
    }
    if (Entry(call).empty()) return;
    ParseEntry(Entry(call));
    if (nav.entry_cnt == 0) return Refuse(call, "NOT IN DATABASE", kHelpFixedList);
    const NavRecord& found = nav.EntryCandidates[1];
    fix = {found.ident, found.lat, found.lon, {}};
    ClearEntry(call);
}

// "210/20", "210" or "/20".
void OnRow(PageCall& call, FixPage::Row& row) {
    if (IsDelete(call)) {
        row = {};
        return call.unit.ScratchMessage.clear();
    }
    const std::string_view text = Entry(call);
    if (text.empty()) return;
    constexpr std::size_t kLongest = 12;
    constexpr double kFarthest = 1250;  // nm
    const auto parts = SplitAtSlash(text);
    const std::string_view bearing_text = parts ? parts->first : text;
    const std::string_view distance_text = parts ? parts->second : "";
    const auto bearing = TypedNumber(bearing_text, 0, 360),
               distance = TypedNumber(distance_text, 0, kFarthest);
    const bool bad_bearing = !bearing && !bearing_text.empty();
    const bool bad_distance = parts && (!distance || *distance <= 0 || *distance >= kFarthest);
    if (text.size() > kLongest || bad_bearing || bad_distance) return Refuse(call, "INVALID ENTRY", kHelpFix);
    row.bearing = !bearing ? 0 : *bearing == 0 ? 360 : *bearing;
    row.dist = distance.value_or(0);
    ClearEntry(call);
}

std::string RowText(const FixPage::Row& row) {
    if (row.bearing > 0 && row.dist > 0) return Format("%03.0f/%.1f", row.bearing, row.dist);
    if (row.bearing > 0) return Format("%03.0f / ----", row.bearing);
    return row.dist > 0 ? Format("--- /%.1f", row.dist) : "--- / ---";
}

std::string AltitudeText(double altitude) {
    return altitude < cfg.TransAlt ? Format("%.0f", altitude) : Format("FL%03.0f", altitude / 100);
}

// Where the route meets it.
void DrawCrossing(PageCall& call, int line, const FixPage& fix, const FixPage::Row& row) {
    const auto crossing = FindRouteCrossing(fix, row);
    if (!crossing) return;
    PageText(call, 112, DataY(line), EtaAfter(crossing->distance));
    PageText(call, 160, DataY(line), Format("%4.0f", crossing->distance));
    if (crossing->altitude > 0) RightData(call, line, AltitudeText(crossing->altitude));
}

}  // namespace

void FixInfoPage(PageCall& call) {
    int& page = call.unit.fix_index;
    TurnPages(call, page, kPages);
    FixPage& fix = fix_info.FixPages[static_cast<std::size_t>(page)];
    if (call.line == kL1) OnFix(call, page);
    if (call.line >= kL2 && call.line <= kL4) OnRow(call, fix.rows[static_cast<std::size_t>(call.line - 1)]);
    if (call.line == kL6) DeleteFixPage(page);

    Title(call, 90, "   FIX INFO");
    PageText(call, 220, 25, Format("%d / %d", page, kPages), kWhite, kLabelSize);
    LeftLabel(call, 1, "FIX");
    RightLabel(call, 1, "BRG/DIS FR");
    if (fix.ident.empty()) {
        LeftBoxes(call, 1, 5);
    } else {
        LeftData(call, 1, fix.ident);
        RightData(call, 1,
                  Format("%03.0f/%.1f", BearingFromAircraft(fix.lat, fix.lon),
                         FromAircraft(fix.lat, fix.lon).dist));
    }
    LeftLabel(call, 2, "BRG/DIS");
    PageText(call, 118, LabelY(2), "ETA", kCyan, kLabelSize);
    PageText(call, 166, LabelY(2), "DTG", kCyan, kLabelSize);
    RightLabel(call, 2, "ALT");
    for (int line = 2; line <= 4; ++line) {
        const FixPage::Row& row = fix.rows[static_cast<std::size_t>(line - 1)];
        LeftData(call, line, RowText(row));
        DrawCrossing(call, line, fix, row);
        MarkSelectable(call, line);
    }
    DashLine(call);
    LeftData(call, 6, "<ERASE FIX");
    MarkSelectable(call, kL1);
    MarkSelectable(call, kL6);
}
