#include "state/variable_directory.h"

#include <gtest/gtest.h>

#include "state/cdu.h"
#include "state/plan.h"
#include "state/state_groups.h"

namespace {

std::string Read(std::string_view path) {
    const auto found = FindVariable(path);
    return found ? FormatValue(*found) : "unknown";
}

TEST(VariableDirectory, FindsScalarsRecordsListsAndSides) {
    ResetSystemState();
    plan.active.legs[3].ident = "ALPHA";
    plan.mod.legs[1].wind[2].dir = 271.5;
    cdu[1].ScratchPad = "N47";
    EXPECT_EQ(Read("stpos"), "999");
    EXPECT_EQ(Read("FlightPlan[3].ident"), "ALPHA");
    EXPECT_EQ(Read("FlightPlanMod[1].wind[2].dir"), "271.5");
    EXPECT_EQ(Read("fo.ScratchPad"), "N47");
    EXPECT_EQ(Read("capt.ScratchPad"), "");
    EXPECT_EQ(Read("FlightPlan[200].alt"), "-999") << "past the end stands an empty record";
    for (const char* wrong : {"", "nothing", "stpos.x", "stpos[0]", "FlightPlan[90000].ident", "FlightPlan[3",
                              "FlightPlan[3].colour", "capt.", "FlightPlan[-1].ident", "FlightPlan[x].ident"})
        EXPECT_EQ(Read(wrong), "unknown") << wrong;
}

TEST(VariableDirectory, StoresWhatFitsAndNothingElse) {
    ResetSystemState();
    const auto stpos = FindVariable("stpos");
    ASSERT_TRUE(stpos);
    for (const char* wrong : {"", "x", "1.5", "1x", "99999999999", "nan", "inf"})
        EXPECT_FALSE(StoreValue(*stpos, wrong)) << wrong;
    EXPECT_EQ(plan.active.stpos, 999);
    EXPECT_TRUE(StoreValue(*stpos, "-2"));
    EXPECT_EQ(plan.active.stpos, -2);
    EXPECT_FALSE(StoreValue(*FindVariable("ActiveLeg"), "1"));
    ResetSystemState();
    EXPECT_EQ(plan.active.stpos, 999);
}

TEST(VariableDirectory, NumbersReadBackExactly) {
    for (double value : {0.1, -47.4350000001, 1e300, 1.0 / 3, -999.0, 0.0, 123456789012.0})
        EXPECT_EQ(std::stod(FormatNumber(value)), value);
    EXPECT_EQ(FormatNumber(180.0), "180");
    EXPECT_EQ(FormatNumber(-2.5), "-2.5");
}

}  // namespace
