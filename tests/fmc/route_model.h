#pragma once

#include <gtest/gtest.h>

#include "fmc/demo_navdata.h"
#include "fmc/legs/insert_fix.h"
#include "fmc/route/route_text.h"
#include "fmc/route_invariants.h"
#include "module/called_functions.h"
#include "navdata/parse_entry.h"
#include "state/plan.h"
#include "state/sim.h"

// Tests of the route start on the ground of an invented region, with routes entered as text.

inline std::string ModLegs() {
    return Idents(plan.mod.legs, plan.mod.leg_cnt);
}
inline std::string ActiveLegs() {
    return Idents(plan.active.legs, plan.active.leg_cnt);
}
class RouteModel : public testing::Test {
  protected:
    RouteModel() {
        PutRouteNavdata(host);
        sim.on_ground = 1;
        sim.plane_lat = 39;
        sim.plane_lon = 10;
    }

    static void Enter(std::string_view route) {
        std::string error;
        ASSERT_EQ(EnterRouteText(route, error), 1) << error;
    }
    static void EnterAndExecute(std::string_view route) {
        Enter(route);
        std::string error;
        ASSERT_EQ(ExecuteEnteredRoute(error), 1) << error;
    }
    // As a page does it: an operation, then the modification is opened.
    static std::string Op(std::string_view line) {
        std::string text;  // of the one result, or why there is none
        const auto take = [](void* context, const char*, const char* value) {
            *static_cast<std::string*>(context) = value;
        };
        RunRouteOperation(line, {take, &text});
        return text;
    }
    static void InsertEntry(int position, std::string_view entry, bool replace) {
        ParseEntry(entry);
        ASSERT_GT(nav.entry_cnt, 0) << entry;
        InsertFixAt(position, 1, replace);
        OpenModification();
    }

    FakeHost host;
};
