// The module from outside, through its inspection table.

#include "module/inspection.h"

#include <gtest/gtest.h>

#include "base/angles.h"
#include "state/cdu.h"
#include "state/plan.h"
#include "state/state_groups.h"
#include "support/fake_host.h"

namespace {

// All results of a call, "NAME=VALUE" a line, and the call's own result before them.
template <class Function, class... Arguments>
std::string Call(Function function, Arguments... arguments) {
    std::string text;
    const ResultSink sink = [](void* context, const char* name, const char* value) {
        static_cast<std::string*>(context)->append(name).append("=").append(value).append("\n");
    };
    const int result = function(arguments..., sink, static_cast<void*>(&text));
    return std::to_string(result) + "\n" + text;
}

TEST(Inspection, ReadsWritesAndListsVariables) {
    ResetSystemState();
    const InspectionTable& table = Inspection();
    EXPECT_EQ(Call(table.write_variable, "stpos", "3"), "1\n");
    EXPECT_EQ(Call(table.read_variable, "stpos"), "1\nstpos=3\n");
    EXPECT_EQ(Call(table.read_variable, "1xAtTod"), "1\n1xAtTod=0\n");
    EXPECT_EQ(Call(table.read_variable, "nonsense"), "0\nerror=unknown variable nonsense\n");
    EXPECT_EQ(Call(table.read_variable, "FlightPlan"), "0\nerror=FlightPlan is no single value\n");
    EXPECT_EQ(Call(table.write_variable, "stpos", "three"), "0\nerror=stpos does not take \"three\"\n");
    EXPECT_EQ(Call(table.list_variables, "WeightUn"), "1\nWeightUnit=text cfg\n");
}

TEST(Inspection, TellsControlsAndWhatTheModelMustBring) {
    const std::string controls = Call(Inspection().list_controls);
    for (const char* line :
         {"\nTZ_OH_ELE_BAT_Button=latching overhead_forward 0 1 - battery_button\n",
          "\nTZ_OH_DRVDISC_L1_Button=guarded overhead_forward 0 1 TZ_OH_GEN_L1_Guard_Switch drive_disc_l1\n",
          "\nTZ_MCP_R_RANGE_Knob=switch displays 0 11 - du_fo_rng_knob\n",
          "\nTZ_EFB_L_MENU_Button=momentary tablets 0 1 - -\n",
          "\nauto_brake_switch=mirrored glareshield -1 6 - autobrake_switch\n"})
        EXPECT_NE(controls.find(line), std::string::npos) << line;
    const std::string model = "\n" + Call(Inspection().list_model_variables);
    EXPECT_NE(model.find("\nTZ_EFB_L_MENU_Button=\n"), std::string::npos);
    EXPECT_EQ(model.find("\nTZ_OH_ELE_BAT_Button=\n"), std::string::npos) << "the module's own";
}

TEST(Inspection, CallsPureFunctions) {
    const auto call = Inspection().call_function;
    EXPECT_EQ(Call(call, "AngleBetween 350 20"), "1\nresult=30\n");
    EXPECT_EQ(Call(call, "GreatCircle 10 20 10 20"), "1\ndist=0\nbearing=0\n");
    EXPECT_EQ(Call(call, "WindComponents 360 90 20"), "1\ncrosswind=20\nheadwind=0\n");
    EXPECT_EQ(Call(call, "GreatCircle 1 2 3"),
              "0\nerror=wrong number of arguments, right is: GreatCircle LAT1 LON1 LAT2 LON2\n");
    EXPECT_EQ(Call(call, "GreatCircle 1 2 3 x"), "0\nerror=GreatCircle: \"x\" isn't a number\n");
    EXPECT_EQ(Call(call, "MagVarAt nan inf"), "0\nerror=MagVarAt: \"nan\" isn't a number\n");
    EXPECT_TRUE(
        Call(call, "Explode").starts_with("0\nerror=unknown function \"Explode\"; known are GreatCircle"));
    EXPECT_TRUE(Call(call, "").starts_with("0\nerror=unknown function \"\""));
}

TEST(Inspection, PrintsLists) {
    FakeHost host;
    const auto print = Inspection().print_list;
    EXPECT_EQ(Call(print, "legs", ""), "1\n");
    plan.mod.legs[0].ident = "KSEA";
    plan.mod.legs[0].type = "APT";
    FlightPlanLeg& leg = plan.mod.legs[1];
    leg.ident = "ABC";
    leg.lat = 47.5;
    leg.via = "J1";
    leg.via_type = "AWY";
    leg.alt_restr = 12000;
    leg.restr_code = 1;
    plan.mod.leg_cnt = 1;
    EXPECT_EQ(Call(print, "legs", "mod"),
              "1\n=0 KSEA 0 0 APT - - -999 -999 0 0 -999 0 0 0 - 0\n"
              "=1 ABC 47.5 0 - J1 AWY -999 12000 1 0 -999 0 0 0 - 0\n");
    plan.Route[1] = {"ABC", "J1", "AWY"};
    plan.route_cnt = 1;
    EXPECT_EQ(Call(print, "rows", ""), "1\n=1 J1 AWY ABC\n");
    cdu[1].CduMessages[1] = {"OLD", "a\nb", 4, 2};
    cdu[1].CduMessages[2] = {"NEW", "", 1, 3};
    cdu[1].CduMessageCount = 2;
    EXPECT_EQ(Call(print, "messages", "R"), "1\n=1 \"NEW\" \"\"\n=4 \"OLD\" \"a\\nb\"\n");
    EXPECT_EQ(Call(print, "messages", "X"), "0\nerror=messages takes L or R\n");
    EXPECT_EQ(Call(print, "sounds", ""), "0\nerror=sounds: not available yet\n");
    EXPECT_EQ(Call(print, "candidates", "N47W122"), "1\n=N47W122 N47W122 47 -122 I -\n");
}

}  // namespace
