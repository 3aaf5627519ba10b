#include "systems/status_dots.h"

#include <gtest/gtest.h>

#include <string>

#include "state/synoptics.h"
#include "support/fake_host.h"
#include "support/set_variables.h"

namespace {

constexpr int SynopticState::*kDots[] = {&SynopticState::door_status, &SynopticState::fuel_status,
                                         &SynopticState::elec_status, &SynopticState::fctl_status,
                                         &SynopticState::gear_status, &SynopticState::hyd_status};
constexpr const char* kAllNormal =
    "power_level 1000, gen_l2_pwr 1, gen_r2_pwr 1, irs_left 1, PfcSwitch 7, tz_hyd_press_l 5100, "
    "tz_hyd_press_c 5100, tz_hyd_press_r 5100, left_fuel 20000, right_fuel 20000, centre_fuel 0";

// What turns keys amber: doors, fuel, electrical, flight controls, gear, hydraulics, each A or a dot.
struct DotCase {
    const char* set;
    const char* amber;
};
constexpr DotCase kDotCases[] = {
    {"door_count 0", "......"},
    {"door_count 1", "A....."},
    {"fuelpump_r_aft_button 1, press_aft_r 9", ".A...."},
    {"fuelpump_l_center_button 1, press_ctr_l 10", "......"},
    {"power_level 179", "..A..."},
    {"drive_disc_r1 1", "..A..."},
    {"spoiler_14 -999", "...A.."},
    {"elevator_left -998.9", "......"},
    {"tz_hyd_press_c 1999", "...A.A"},
    {"tz_hyd_press_c 2000", ".....A"},
    {"tz_hyd_press_r 2999", ".....A"},
    {"gen_r2_pwr 0", "...A.."},
    {"PfcSwitch 4", "...A.."},
    {"irs_left 0", "...A.."},
    {"irs_left 0, irs_right 1", "......"},
    {"TZ_THQ_Stab_Norm_L2 1", "...A.."},
    {"TZ_THQ_Stab_Norm_L2 1, TZ_THQ_Stab_Norm_R2 1", "......"},
    {"Brake_Temp8 5.0", "....A."},
    {"Brake_Temp1 4.99", "......"},
    {"eng_pump_l 1, left_fuel 4799", ".....A"},
    {"eng_pump_l 1, left_fuel 4800, right_fuel 0", "......"},
    {"elec_pump_c2 1, right_fuel 4799", ".....A"},
};

TEST(StatusDots, TurnAmberByTheirRules) {
    for (const DotCase& row : kDotCases) {
        const FakeHost host;
        SetVariables(kAllNormal);
        SetVariables(row.set);
        SetStatusDots();
        std::string amber;
        for (const auto dot : kDots) {
            EXPECT_TRUE(synoptics.*dot == 1 || synoptics.*dot == 8);
            amber += synoptics.*dot == 8 ? 'A' : '.';
        }
        EXPECT_EQ(amber, row.amber) << row.set;
    }
}

}  // namespace
