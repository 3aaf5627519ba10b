#include "efb/pages/option_lists.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "base/text_fields.h"
#include "efb/pages/pages.h"
#include "efb/performance/chosen_runway.h"
#include "state/airports.h"
#include "state/efb.h"
#include "state/tablet_performance.h"
#include "state/takeoff_approach.h"

namespace {

using Entries = std::vector<std::string>;

Entries TakeoffFlapEntries() {
    Entries entries{"OPTIMUM"};
    std::string_view flaps = takeoff_approach.takeoff_flap_list;
    for (;;) {
        const std::string_view flap = NextPart(flaps, [](char c) { return c == ',' || c == '/'; });
        if (flap.empty()) return entries;
        entries.emplace_back(flap);
    }
}

Entries RunwaysOf(const AirportData& airport) {
    Entries entries;
    for (int i = 1; i <= airport.runway_cnt; ++i) entries.push_back(airport.runways[i].ident);
    return entries;
}

void ForgetTakeoff() {
    tablet_performance.takeoff.EfbTakeoffDone = 0;
}
void ForgetLanding() {
    tablet_performance.landing.EfbLandingDone = 0;
}

// A field of the pages that takes a list's text.
template <auto kPart, auto kField>
void Store(std::string_view text) {
    tablet_performance.*kPart.*kField = text;
    if constexpr (std::is_same_v<decltype(kPart), TabletTakeoff TabletPerformance::*>)
        ForgetTakeoff();
    else
        ForgetLanding();
}
template <auto kPart, auto kField>
const std::string& Read() {
    return tablet_performance.*kPart.*kField;
}

struct ListRow {
    TabletList list;
    int page, row;  // of its field, from the top
    const char* title;
    const std::string& (*read)();
    void (*store)(std::string_view text);
    std::vector<const char*> texts = {};
    Entries (*entries)() = nullptr;  // instead of the texts
};

template <auto kField>
constexpr auto kReadTakeoff = Read<&TabletPerformance::takeoff, kField>;
template <auto kField>
constexpr auto kStoreTakeoff = Store<&TabletPerformance::takeoff, kField>;
template <auto kField>
constexpr auto kReadLanding = Read<&TabletPerformance::landing, kField>;
template <auto kField>
constexpr auto kStoreLanding = Store<&TabletPerformance::landing, kField>;

const ListRow kLists[] = {
    {kListTakeoffRunways,
     kTabletTakeoff,
     24,
     "RUNWAYS",
     kReadTakeoff<&TabletTakeoff::EfbTakeoffRunway>,
     ChooseTakeoffRunway,
     {},
     [] { return RunwaysOf(airports.tablet_to_airport); }},
    {kListThrust,
     kTabletTakeoff,
     48,
     "THRUST RTG",
     kReadTakeoff<&TabletTakeoff::EfbThrustRating>,
     kStoreTakeoff<&TabletTakeoff::EfbThrustRating>,
     {"OPTIMUM", "TO", "10", "20", "WINDSHEAR"}},
    {kListTakeoffFlaps,
     kTabletTakeoff,
     72,
     "FLAP CONFIG",
     kReadTakeoff<&TabletTakeoff::EfbTakeoffFlaps>,
     kStoreTakeoff<&TabletTakeoff::EfbTakeoffFlaps>,
     {},
     TakeoffFlapEntries},
    {kListTakeoffCondition,
     kTabletTakeoff,
     96,
     "CONDITION",
     kReadTakeoff<&TabletTakeoff::EfbCondition>,
     kStoreTakeoff<&TabletTakeoff::EfbCondition>,
     {"DRY", "WET"}},
    {kListLandingRunways,
     kTabletLanding,
     24,
     "RUNWAYS",
     kReadLanding<&TabletLanding::EfbLandingRunway>,
     ChooseLandingRunway,
     {},
     [] { return RunwaysOf(airports.tablet_ldg_airport); }},
    {kListCategory,
     kTabletLanding,
     48,
     "CAT CONFIG",
     kReadLanding<&TabletLanding::EfbLandingCategory>,
     kStoreLanding<&TabletLanding::EfbLandingCategory>,
     {"MANUAL", "CAT I", "CAT II", "CAT III"}},
    {kListLandingFlaps,
     kTabletLanding,
     72,
     "FLAP CONFIG",
     kReadLanding<&TabletLanding::EfbLandingFlaps>,
     kStoreLanding<&TabletLanding::EfbLandingFlaps>,
     {"20", "25", "30"}},
    {kListLandingCondition,
     kTabletLanding,
     96,
     "CONDITION",
     kReadLanding<&TabletLanding::EfbLandingCondition>,
     kStoreLanding<&TabletLanding::EfbLandingCondition>,
     {"DRY", "WET"}},
    {kListAntiIce,
     kTabletLanding,
     120,
     "A/I CONFIG",
     kReadLanding<&TabletLanding::EfbAntiIce>,
     kStoreLanding<&TabletLanding::EfbAntiIce>,
     {"AI OFF", "ENG ONLY", "ENG + WING"}},
    {kListReverser,
     kTabletLanding,
     144,
     "REV CONFIG",
     kReadLanding<&TabletLanding::EfbReverser>,
     kStoreLanding<&TabletLanding::EfbReverser>,
     {"NO CREDIT", "ALL OFF", "ONE INOP"}},
    {kListSpoiler,
     kTabletLanding,
     168,
     "SPOIL CONFIG",
     kReadLanding<&TabletLanding::EfbSpoiler>,
     kStoreLanding<&TabletLanding::EfbSpoiler>,
     {"AUTO", "MANUAL"}},
    {kListBrakes,
     kTabletLanding,
     192,
     "BRAKES",
     kReadLanding<&TabletLanding::EfbBrakes>,
     kStoreLanding<&TabletLanding::EfbBrakes>,
     {"ALL", "MAX MANUAL", "AUTO BRK 1", "AUTO BRK 2", "AUTO BRK 3", "AUTO BRK 4", "MAX AUTO"}},
};

const ListRow* FindList(int list) {
    const auto* row = std::ranges::find(kLists, list, &ListRow::list);
    return row == std::end(kLists) ? nullptr : row;
}

Entries EntriesOf(const ListRow& row) {
    return row.entries != nullptr ? row.entries() : Entries(row.texts.begin(), row.texts.end());
}

// "EXIT" and an entry that has gone leave the field as it was.
void ChooseEntry(int, int number) {
    const ListRow* row = FindList(efb.EfbOpenList);
    efb.EfbOpenList = kNoList;
    if (row == nullptr) return;
    const Entries entries = EntriesOf(*row);
    if (number < static_cast<int>(entries.size())) row->store(entries[static_cast<std::size_t>(number)]);
}

}  // namespace

void ToggleList(int, int list) {
    efb.EfbOpenList = efb.EfbOpenList == list ? static_cast<int>(kNoList) : list;
}

int RowOfList(TabletList list) {
    const ListRow* row = FindList(list);
    return row == nullptr ? 0 : row->row;
}

const std::string& ValueOfList(TabletList list) {
    return FindList(list)->read();
}

// A column below the field; one that would leave the page goes on in a further column to the left.
void AddOpenList(TabletFace& face) {
    constexpr int kX = 245, kWidth = 91, kEntryHeight = 27, kFieldRoom = 20, kTitleHeight = 14;
    const ListRow* row = FindList(efb.EfbOpenList);
    if (row == nullptr || row->page != efb.EfbPage) return;
    Entries entries = EntriesOf(*row);
    entries.emplace_back("EXIT");
    const int count = static_cast<int>(entries.size());
    const int top = row->row + kFieldRoom + kTitleHeight;
    const int in_column = (kTabletHeight - top) / kEntryHeight;
    for (int first = 0, x = kX; first < count; first += in_column, x -= kWidth + 2) {
        const int rows = std::min(in_column, count - first);
        face.items.push_back(
            {.box = {x - 1, top - kTitleHeight, kWidth + 2, kTitleHeight + rows * kEntryHeight},
             .text = {},
             .label = {},
             .look = TabletLook::kPanel});
        face.items.push_back({.box = {x, top - kTitleHeight, kWidth, kTitleHeight},
                              .text = row->title,
                              .label = {},
                              .look = TabletLook::kPanel});
        for (int i = first; i < first + rows; ++i)
            face.Button({x, top + (i - first) * kEntryHeight, kWidth, kEntryHeight},
                        entries[static_cast<std::size_t>(i)], ChooseEntry, i);
    }
}
