#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "fmc/legs/holds.h"
#include "fmc/legs/route_rows.h"
#include "state/leg_words.h"
#include "state/plan.h"

inline std::string Idents(const GrowingList<FlightPlanLeg>& legs, int count) {
    std::string text;
    for (int i = 0; i <= count; ++i) text += (i > 0 ? " " : "") + legs[i].ident;
    return text;
}
inline std::string Rows() {
    std::string text;
    for (int i = 1; i <= plan.route_cnt; ++i) {
        const RouteRow& row = plan.Route[i];
        text += (i > 1 ? ", " : "") + row.via + (row.via_type.empty() ? "" : "(" + row.via_type + ")") + " " +
                (row.to.empty() ? "-" : row.to);
    }
    return text;
}

// What must hold whatever the crew does.
inline void ExpectInvariants(const std::string& after) {
    for (const auto* list : {&plan.active.legs, &plan.mod.legs}) {
        const int count = list == &plan.active.legs ? plan.active.leg_cnt : plan.mod.leg_cnt;
        ASSERT_GE(count, list == &plan.active.legs ? 0 : -1) << after;  // -1: a load that found no legs
        ASSERT_GE(list->size(), count > 0 ? count + 2 : 0) << after;    // a route thrown away has no rows
        for (int i = 1; i <= count; ++i)
            ASSERT_FALSE(IsDisco((*list)[i]) && IsDisco((*list)[i - 1]))
                << after << ": " << Idents(*list, count);
        for (int i = count + 1; i < count + 3; ++i) ASSERT_TRUE((*list)[i].ident.empty()) << after;
    }
    for (int i = 0; i <= plan.active.leg_cnt; ++i) ASSERT_NE(plan.active.legs[i].ident, "THEN") << after;
    ASSERT_LE(plan.hold_cnt, kMostHolds) << after;
    const auto mod_leg = [](const HoldRecord& hold) {
        return hold.pending_leg > 0 ? hold.pending_leg : hold.leg;
    };
    for (int i = 1; i <= plan.hold_cnt; ++i) {
        const int leg = mod_leg(plan.HoldList[i]);
        ASSERT_GE(leg, 1) << after;
        ASSERT_LE(leg, plan.mod.leg_cnt) << after;
        ASSERT_LE(plan.HoldList[i].leg, plan.active.leg_cnt) << after;
        ASSERT_EQ(plan.mod.legs[leg].hold_pos, i) << after;
        ASSERT_EQ(plan.mod.legs[leg].ident, plan.HoldList[i].ident) << after;
        const int before = i > 1 ? mod_leg(plan.HoldList[i - 1]) : 0;
        ASSERT_LT(before, leg) << after;
    }
    if (plan.fms_fpln_active >= kRouteActive) {
        ASSERT_GE(plan.active.stpos, 1) << after;
        ASSERT_LE(plan.active.stpos, plan.active.leg_cnt) << after;
        ASSERT_GE(plan.mod.stpos, 1) << after;
        ASSERT_LE(plan.mod.stpos, std::max(plan.mod.leg_cnt, 1)) << after;
    }
    ASSERT_LE(plan.mod.bod_pos, std::max(plan.mod.leg_cnt, 0)) << after;
    const std::string rows = Rows();
    RebuildRouteRows();
    ASSERT_EQ(Rows(), rows) << after;
}
