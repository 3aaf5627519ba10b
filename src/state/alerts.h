#pragma once

#include <array>
#include <span>
#include <string>

#include "state/growing_list.h"
#include "state/variable.h"

/// A crew alerting message as it stands in its list.
struct AlertRecord {
    std::string text;
    int cancelled = 0;  // the crew has cancelled it: it takes no line
};
template <>
struct Describe<AlertRecord> {
    static constexpr Field fields[] = {FieldRow<&AlertRecord::text>("text"),
                                       FieldRow<&AlertRecord::cancelled>("cancelled")};
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

constexpr int kLastAlertId = 217;

/// Crew alerting. In each list the newest message stands at 1 and the count tells how many there are; the
/// list may be longer.
struct AlertState {
    GrowingList<AlertRecord> warning_list, caution_list, advisory_list, memo_list;
    int warning_count = 0, caution_count = 0, advisory_count = 0, memo_count = 0;
    std::array<int, kLastAlertId + 1> posted{};      // by id: the message stands in its list
    int unseen_cautions = 0, unseen_advisories = 0;  // records that aren't cancelled
    int recall_timer = 0;                            // s for which the display tells of a recall
    int caution_light_on = 0, caution_light_cancelled = 0;
    int hdg_off_track = 0;      // the heading leads away from the active leg
    int comm_unread = 0;        // a received datalink record hasn't been read
    int gear_config_armed = 0;  // 0 on the ground, 1 climbing out, 2 above 1500 ft with flaps not for landing
    int terrain_state = 0;      // 3: the look-ahead finds terrain
    int at_disc_caution_due = 0;  // the autothrottle's disconnect has gone, its caution lamp is to follow
};

extern AlertState alerts;
extern const std::span<const Variable> kAlertVariables;
