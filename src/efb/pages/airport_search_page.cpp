#include "efb/pages/airport_search_page.h"

#include <algorithm>
#include <vector>

#include "base/text_fields.h"
#include "efb/pages/pages.h"
#include "efb/performance/chosen_runway.h"
#include "efb/words/keyboard.h"
#include "state/efb.h"
#include "state/nav_tables.h"

namespace {

constexpr int kRows = 8, kColumns = 2, kOnPage = kRows * kColumns;
constexpr int kIdentField = 1;

struct Found {
    std::string_view ident, name;
    int line;  // of the airport file
};

// Those of one page, in the file's order; the count is of all.
std::vector<Found> FindAirports(int page, int& count) {
    std::vector<Found> found;
    count = 0;
    const int first = (page - 1) * kOnPage;
    for (int line = 1; line <= nav_tables.airport_line_cnt; ++line) {
        std::string_view fields = nav_tables.airport_lines[line];
        const std::string_view ident = NextField(fields);
        if (!ident.starts_with(efb.EfbSearchIdent)) continue;
        if (count >= first && count < first + kOnPage) found.push_back({ident, NextField(fields), line});
        ++count;
    }
    return found;
}

int PagesFor(int count) {
    return std::max(1, (count + kOnPage - 1) / kOnPage);
}

void ChooseAirport(int, int line) {
    std::string_view fields = nav_tables.airport_lines[line];
    const std::string ident(NextField(fields));
    if (efb.EfbPrevPage == kTabletLanding)
        ChooseLandingAirport(ident);
    else
        ChooseTakeoffAirport(ident);
    OpenTabletPage(efb.EfbPrevPage);
}

void SearchAll(int, int) {
    efb.EfbSearchIdent.clear();
    efb.EfbSearchPage = 1;
    efb.EfbScratch.clear();
}

// What was typed has been taken with the touch; the next text is an ident again.
void SearchIdent(int, int) {
    efb.EfbEditField = kIdentField;
}

void StepPage(int, int page) {
    efb.EfbSearchPage = page;
}

}  // namespace

void AirportSearchPage(TabletFace& face) {
    constexpr int kLeft = 56, kTop = 46, kPitch = 26, kColumnPitch = 142, kIdentWidth = 44;
    constexpr std::size_t kNameLength = 16;
    int count = 0;
    const int page = std::max(1, efb.EfbSearchPage);
    const std::vector<Found> found = FindAirports(page, count);
    const int pages = PagesFor(count);
    face.Title("PERFORMANCE - ARPT SEARCH");
    face.Field({92, 22, 92, 20}, "IDENT", efb.EfbSearchIdent, kIdentField);
    face.Text(250, 26, Format("%d / %d", page, pages), kTabletLabel);
    for (std::size_t i = 0; i < found.size(); ++i) {
        const int place = static_cast<int>(i);
        const int x = kLeft + place / kRows * kColumnPitch, y = kTop + place % kRows * kPitch;
        face.Button({x, y, kIdentWidth, kPitch - 3}, found[i].ident, ChooseAirport, found[i].line);
        std::string name(found[i].name.substr(0, kNameLength));
        std::ranges::replace(name, '_', ' ');
        face.Text(x + kIdentWidth + 5, y + 6, name, kTabletLabel, 9);
    }
    if (count == 0) face.Text(kLeft, kTop + 6, "NO AIRPORT", kTabletGrey);
    face.Button({2, 96, 48, 31}, "SEARCH\nIDENT", SearchIdent);
    face.Button({2, 130, 48, 31}, "SEARCH\nALL", SearchAll);
    AddKeyboardToggle(face);
    face.Button({2, 232, 48, 31}, "CANCEL", ReturnToPage);
    if (pages < 2) return;
    face.Button({176, 262, 74, 27}, "PREV", StepPage, page > 1 ? page - 1 : pages);
    face.Button({262, 262, 74, 27}, "NEXT", StepPage, page < pages ? page + 1 : 1);
}

void CommitSearchField(int field, std::string_view text) {
    if (field != kIdentField) return;
    efb.EfbSearchIdent = UpperCase(Trimmed(text));
    efb.EfbSearchPage = 1;
}
