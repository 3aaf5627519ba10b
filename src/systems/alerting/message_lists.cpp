#include "systems/alerting/message_lists.h"

#include <algorithm>
#include <utility>

namespace {

constexpr AlertList kLists[] = {
    {&AlertState::warning_list, &AlertState::warning_count},
    {&AlertState::caution_list, &AlertState::caution_count},
    {&AlertState::advisory_list, &AlertState::advisory_count},
    {&AlertState::memo_list, &AlertState::memo_count},
};
// The lists that the crew can cancel.
constexpr const AlertList& kCautions = kLists[1];
constexpr const AlertList& kAdvisories = kLists[2];

GrowingList<AlertRecord>& RecordsOf(const AlertList& list) {
    return alerts.*list.records;
}

int CountUnseen(const AlertList& list) {
    int unseen = 0;
    for (int i = list.Count(); i >= 1; --i) unseen += list.At(i).cancelled == 0 ? 1 : 0;
    return unseen;
}

void RecountUnseen() {
    alerts.unseen_cautions = CountUnseen(kCautions);
    alerts.unseen_advisories = CountUnseen(kAdvisories);
}

}  // namespace

int AlertList::Count() const {
    return std::clamp(alerts.*count, 0, std::max((alerts.*records).size() - 1, 0));
}

const AlertList& ListOf(AlertLevel level) {
    return kLists[static_cast<std::size_t>(level)];
}

void PostAlert(const AlertRow& row) {
    const AlertList& list = ListOf(row.level);
    GrowingList<AlertRecord>& records = RecordsOf(list);
    const int last = list.Count() + 1;
    for (int i = last; i > 1; --i) records[i] = std::exchange(records[i - 1], {});
    records[1] = {std::string(row.text), 0};
    alerts.*list.count = last;
    alerts.posted[static_cast<std::size_t>(row.id)] = 1;
    RecountUnseen();
}

void RemoveAlert(const AlertRow& row) {
    const AlertList& list = ListOf(row.level);
    GrowingList<AlertRecord>& records = RecordsOf(list);
    int kept = 0;
    const int last = list.Count();
    for (int i = 1; i <= last; ++i) {
        AlertRecord record = std::exchange(records[i], {});
        if (record.text != row.text) records[++kept] = std::move(record);
    }
    alerts.*list.count = kept;
    alerts.posted[static_cast<std::size_t>(row.id)] = 0;
    RecountUnseen();
}

void CancelRecall() {
    constexpr int kMostAtOnce = 11, kRecallSeconds = 3;
    const bool recalls = alerts.unseen_cautions + alerts.unseen_advisories <= 0;
    int left = recalls ? 0 : kMostAtOnce;
    for (const AlertList* list : {&kCautions, &kAdvisories}) {
        const int last = list->Count();
        if (recalls && last > 0) alerts.recall_timer = kRecallSeconds;
        for (int i = 1; i <= last; ++i) {
            int& cancelled = RecordsOf(*list)[i].cancelled;
            if (recalls) cancelled = 0;
            if (cancelled != 0 || left == 0) continue;
            cancelled = 1;
            --left;
        }
    }
    RecountUnseen();
}

void CountRecall() {
    if (alerts.recall_timer > 0) --alerts.recall_timer;
}
