#include "systems/battery.h"

#include <gtest/gtest.h>

#include "frame/tokens.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/electrical.h"
#include "support/fake_host.h"
#include "support/set_variables.h"

namespace {

const std::pair<int, int> kToggle = {0x102c1, 0};

TEST(Battery, EmptiesAndFillsInItsTime) {
    FakeHost host;
    host.tokens[kTokenMasterBattery] = 1;
    SetVariables("BatteryDrainSecs 100, battery_button 1");  // 1800 ticks
    for (int tick = 0; tick < 900; ++tick) StepBattery();
    EXPECT_NEAR(electrical.batt_volts, 15.5, 1e-9);
    for (int tick = 900; tick < 1799; ++tick) StepBattery();
    EXPECT_NEAR(electrical.batt_volts, 31.0 / 1800, 1e-9);
    EXPECT_TRUE(host.events.empty());
    StepBattery();
    EXPECT_EQ(electrical.batt_volts, 0);
    EXPECT_EQ(host.events, std::vector{kToggle});
    StepBattery();
    EXPECT_EQ(host.events.size(), 1u);

    host.tokens[kTokenMasterBattery] = 0;
    SetVariables("ac_bus_powered 1");
    for (int tick = 0; tick < 1799; ++tick) StepBattery();
    EXPECT_NEAR(electrical.batt_volts, 31 - 31.0 / 1800, 1e-9);
    EXPECT_EQ(host.events.size(), 1u);
    for (int tick = 0; tick < 5; ++tick) StepBattery();
    EXPECT_EQ(electrical.batt_volts, 31);
    EXPECT_EQ(host.events, (std::vector{kToggle, kToggle}));
}

TEST(Battery, HostIsToldOnlyWhatItDoesNotKnow) {
    struct Case {
        const char* set;
        int host_battery, events;
    };
    constexpr Case kCases[] = {
        {"battery_button 1, ac_bus_powered 0, batt_volts 0.001", 0, 0},  // already off
        {"battery_button 0, ac_bus_powered 0, batt_volts 0.001", 1, 0},  // isn't drained
        {"battery_button 0, ac_bus_powered 1, batt_volts 30.999", 0, 0},
        {"battery_button 1, ac_bus_powered 1, batt_volts 30.999", 1, 0},
        {"battery_button 1, ac_bus_powered 1, batt_volts 31", 0, 0},
        {"battery_button 1, ac_bus_powered 1, batt_volts 30.999", 0, 1},
        {"battery_button 1, BatteryDrainSecs 0", 1, 0},  // a setting of nothing drains in a second
    };
    for (const Case& row : kCases) {
        FakeHost host;
        host.tokens[kTokenMasterBattery] = row.host_battery;
        SetVariables(row.set);
        StepBattery();
        EXPECT_EQ(host.events.size(), static_cast<std::size_t>(row.events)) << row.set;
    }
}

TEST(Battery, ButtonMovesTheHostAndOnceTheOtherWay) {
    struct Case {
        int host_battery;
        double volts;
        int button, toggles, button_after;
    };
    constexpr Case kCases[] = {
        {0, 31, 1, 1, 0}, {1, 31, 1, 0, 1}, {0, 0, 1, 0, 0}, {1, 31, 0, 1, 1},
        {0, 31, 0, 0, 0}, {1, 0, 0, 1, 0},  {1, 0, 1, 0, 1},
    };
    for (const Case& row : kCases) {
        FakeHost host;
        host.NamedVar("TZ_OH_ELE_BAT_Button") = -1;
        host.tokens[kTokenMasterBattery] = row.host_battery;
        electrical.batt_volts = row.volts;
        cockpit.battery_button = row.button;
        FollowBatteryButton(0);
        EXPECT_EQ(host.events.size(), static_cast<std::size_t>(row.toggles));
        FollowHostBattery();
        EXPECT_EQ(cockpit.battery_button, row.button_after)
            << row.host_battery << ' ' << row.volts << ' ' << row.button;
        EXPECT_EQ(host.NamedVar("TZ_OH_ELE_BAT_Button"), row.button_after);
    }
}

TEST(Battery, TestShowsItsChargeForTwoSeconds) {
    struct Case {
        double volts;
        int power, high, medium, low;
    };
    constexpr Case kCases[] = {{31, 5, 1, 0, 0}, {22.1, 5, 1, 0, 0}, {22, 5, 0, 1, 0}, {10.1, 5, 0, 1, 0},
                               {10, 5, 0, 0, 1}, {0, 180, 0, 0, 1},  {31, 4, 0, 0, 0}};
    for (const Case& row : kCases) {
        FakeHost host;
        for (const char* lamp : {"TZ_OH_Annun_BAT_HI", "TZ_OH_Annun_BAT_MED", "TZ_OH_Annun_BAT_LO"})
            host.NamedVar(lamp) = 0;
        const auto shown = [&](int high, int medium, int low) {
            return host.NamedVar("TZ_OH_Annun_BAT_HI") == high &&
                   host.NamedVar("TZ_OH_Annun_BAT_MED") == medium &&
                   host.NamedVar("TZ_OH_Annun_BAT_LO") == low;
        };
        electrical.batt_volts = row.volts;
        electrical.power_level = row.power;
        TestBattery(0);
        for (int tick = 0; tick < 35; ++tick) StepBattery();
        EXPECT_TRUE(shown(row.high, row.medium, row.low)) << row.volts;
        StepBattery();
        EXPECT_TRUE(shown(0, 0, 0)) << row.volts;
    }
}

}  // namespace
