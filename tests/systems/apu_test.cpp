#include "systems/apu.h"

#include <gtest/gtest.h>

#include "state/cockpit.h"
#include "state/electrical.h"
#include "support/fake_host.h"
#include "support/set_variables.h"

namespace {

struct Overhead : FakeHost {
    Overhead() {
        for (const char* name : {"TZ_OH_ELE_APU_Switch", "TZ_OH_Annun_FAULT_APU", "tz_apu_rpm"})
            NamedVar(name) = 0;
    }
    void Turn(int to) {
        const int before = cockpit.apu_switch;
        cockpit.apu_switch = to;
        FollowApuSelector(before);
    }
    static void Ticks(int count) {
        for (; count > 0; --count) StepApu();
    }
    bool FaultIsLit() { return NamedVar("TZ_OH_Annun_FAULT_APU") == 1; }
};

TEST(Apu, StartsFromItsSelector) {
    Overhead host;
    SetVariables("batt_pwr 1, power_level 5");
    host.Turn(1);
    host.Ticks(40);
    EXPECT_TRUE(host.FaultIsLit());
    host.Ticks(1);
    EXPECT_FALSE(host.FaultIsLit());
    host.Turn(2);
    host.Ticks(8);
    EXPECT_EQ(cockpit.apu_switch, 2);
    EXPECT_EQ(electrical.apu_starting, 0);
    host.Ticks(1);
    EXPECT_EQ(cockpit.apu_switch, 1) << "springs back";
    EXPECT_EQ(host.NamedVar("TZ_OH_ELE_APU_Switch"), 1);
    // The first step comes with the start: 500 steps x 0.0946296 percent and so on.
    host.Ticks(499);
    EXPECT_NEAR(electrical.apu_rpm, 47.31481481, 1e-6);
    EXPECT_NEAR(electrical.apu_oil_press, 15 + 33.33333333, 1e-6);
    EXPECT_NEAR(electrical.apu_oil_temp, 29 + 7.407407407, 1e-6);
    EXPECT_NEAR(electrical.apu_oil_qty, 9 - 1.388888889, 1e-6);
    EXPECT_NEAR(electrical.apu_egt, 50 + 133.3333333, 1e-6);
    // 102 / 0.0946296 = 1077.9
    host.Ticks(577);
    EXPECT_EQ(electrical.apu_pwr_avail, 0);
    host.Ticks(1);
    EXPECT_EQ(electrical.apu_pwr_avail, 1);
    EXPECT_EQ(electrical.apu_starting, 0);
    EXPECT_NEAR(electrical.apu_rpm, 102.0107407, 1e-6);
    host.Ticks(100);
    EXPECT_NEAR(electrical.apu_rpm, 102.0107407, 1e-6);
    PublishApu();
    EXPECT_NEAR(host.NamedVar("tz_apu_rpm"), 102.0107407, 1e-6);
}

TEST(Apu, FaultLampNeedsPowerAndTheSelectorOn) {
    Overhead host;
    SetVariables("batt_pwr 0, power_level 5");
    host.Turn(1);
    host.Ticks(1);
    EXPECT_FALSE(host.FaultIsLit()) << "without the battery";
    SetVariables("apu_fault_timer 40, power_level 4");
    host.Ticks(1);
    EXPECT_FALSE(host.FaultIsLit());
    SetVariables("power_level 5");
    host.Ticks(1);
    EXPECT_TRUE(host.FaultIsLit());
    host.Turn(0);
    host.Ticks(1);
    EXPECT_FALSE(host.FaultIsLit());
    EXPECT_EQ(electrical.apu_fault_timer, 0);
}

TEST(Apu, DoesNotStartWhileStoppingOrOnFire) {
    for (const char* hindrance : {"apu_stopping 1, apu_rpm 60", "TZ_OH_APU_FIRE_HNDL 1"}) {
        Overhead host;
        SetVariables(std::string("apu_switch 2, ") + hindrance);
        host.Ticks(2);
        EXPECT_NE(cockpit.apu_switch, 2) << hindrance;
        EXPECT_EQ(electrical.apu_starting, 0) << hindrance;
    }
}

TEST(Apu, StopsThroughACooldown) {
    Overhead host;
    SetVariables(
        "apu_switch 1, apu_pwr_avail 1, apu_rpm 102, apu_oil_press 86.8, apu_oil_temp 44.9, apu_oil_qty "
        "6.004, "
        "apu_egt 337");
    host.Turn(0);
    host.Ticks(139);  // 102 - 139 x 0.15 = 81.15
    EXPECT_NEAR(electrical.apu_rpm, 81.15, 1e-9);
    EXPECT_EQ(electrical.apu_cooldown, 0);
    host.Ticks(2);  // 81.0 lies in the band: the next step is a small one
    EXPECT_NEAR(electrical.apu_rpm, 81.0 - 1.0 / 540, 1e-9);
    EXPECT_EQ(electrical.apu_cooldown, 1);
    EXPECT_NEAR(electrical.apu_oil_qty, 6, 1e-9) << "at its floor";
    EXPECT_NEAR(electrical.apu_oil_press, 86.8 - 141 / 15.0, 1e-9);
    EXPECT_NEAR(electrical.apu_egt, 337 - 141 * 4 / 15.0, 1e-9);
    host.Ticks(538);
    EXPECT_EQ(electrical.apu_cooldown, 1);
    host.Ticks(3);  // 540 steps of the band, one to spare for what the sum rounds off, then faster again
    EXPECT_EQ(electrical.apu_cooldown, 0);
    EXPECT_LT(electrical.apu_rpm, 79.9);
    EXPECT_EQ(electrical.apu_pwr_avail, 1);
    SetVariables("apu_rpm 30.14");
    host.Ticks(1);
    EXPECT_EQ(electrical.apu_pwr_avail, 0);
    SetVariables("apu_rpm 1.14");
    host.Ticks(1);
    EXPECT_EQ(electrical.apu_rpm, 0);
    EXPECT_EQ(electrical.apu_stopping, 0);
    SetVariables("apu_stopping 1, apu_rpm 79");
    host.Ticks(500);
    EXPECT_EQ(electrical.apu_oil_press, 15);
    EXPECT_EQ(electrical.apu_oil_temp, 29);
    EXPECT_EQ(electrical.apu_oil_qty, 6);
    EXPECT_GE(electrical.apu_egt, 50);
}

TEST(Apu, RestartsFromItsCooldownOnly) {
    struct Case {
        double rpm;
        int starting;
    };
    constexpr Case kCases[] = {{81.2, 0}, {81, 1}, {80.5, 1}, {80, 0}, {60, 0}};
    for (const Case& row : kCases) {
        Overhead host;
        SetVariables("apu_switch 1, apu_pwr_avail 1, apu_stopping 1, apu_oil_qty 6, apu_rpm " +
                     std::to_string(row.rpm));
        host.Turn(2);
        host.Ticks(1);
        EXPECT_EQ(electrical.apu_starting, row.starting) << row.rpm;
        EXPECT_EQ(electrical.apu_stopping, 1 - row.starting) << row.rpm;
        if (row.starting == 0) continue;
        EXPECT_EQ(electrical.apu_cooldown, 0);
        EXPECT_EQ(electrical.apu_oil_qty, 9);
        EXPECT_EQ(electrical.apu_rpm, row.rpm) << "the ramp goes on from here";
        host.Ticks(8);
        EXPECT_EQ(cockpit.apu_switch, 1);
        EXPECT_GT(electrical.apu_rpm, row.rpm);
    }
}

TEST(Apu, AStopEndsTheRestartFromTheCooldown) {
    for (const bool by_handle : {false, true}) {
        Overhead host;
        SetVariables("apu_switch 1, apu_pwr_avail 1, apu_starting 1, apu_rpm 90");
        if (by_handle)
            SetVariables("TZ_OH_APU_FIRE_HNDL 1");
        else
            host.Turn(0);
        // 60 ticks to 81, 540 of cooldown, 527 from 80 to 1
        host.Ticks(60 + 540 + 527 + 10);
        EXPECT_EQ(electrical.apu_rpm, 0) << by_handle;
        EXPECT_EQ(electrical.apu_starting + electrical.apu_stopping, 0) << by_handle;
    }
}

TEST(Apu, RunsByItselfWhenGeneratorsAreMissingInFlight) {
    struct Case {
        const char* set;
        int starting;
    };
    constexpr Case kCases[] = {
        {"running_gens 2", 1},
        {"running_gens 3", 0},
        {"running_gens 2, on_ground 1", 0},
        {"running_gens 2, apu_pwr_avail 1", 0},
        {"running_gens 2, apu_stopping 1", 0},
        {"running_gens 2, TZ_OH_APU_FIRE_HNDL 1", 0},
    };
    for (const Case& row : kCases) {
        Overhead host;
        SetVariables("on_ground 0");
        SetVariables(row.set);
        StartApuInFlight();
        EXPECT_EQ(electrical.apu_starting, row.starting) << row.set;
    }
    Overhead host;
    SetVariables("apu_pwr_avail 1, apu_rpm 102, running_gens 2");
    host.Ticks(1);
    EXPECT_EQ(electrical.apu_stopping, 0);
    SetVariables("running_gens 3");
    host.Ticks(1);
    EXPECT_EQ(electrical.apu_stopping, 1) << "no longer needed, and the selector is OFF";
    SetVariables("running_gens 0");
    host.Ticks(1);
    EXPECT_NEAR(electrical.apu_rpm, 101.7, 1e-9) << "a stop once begun goes on";
}

TEST(Apu, FireHandleStopsIt) {
    Overhead host;
    SetVariables("apu_switch 1, apu_pwr_avail 1, apu_rpm 102, TZ_OH_APU_FIRE_HNDL 1");
    host.NamedVar("TZ_OH_ELE_APU_Switch") = 1;
    host.Ticks(1);
    EXPECT_EQ(cockpit.apu_switch, 0);
    EXPECT_EQ(host.NamedVar("TZ_OH_ELE_APU_Switch"), 0);
    EXPECT_EQ(electrical.apu_stopping, 1);
    EXPECT_EQ(electrical.apu_fault_timer, 40);
}

}  // namespace
