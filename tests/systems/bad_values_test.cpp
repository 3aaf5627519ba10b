#include <gtest/gtest.h>

#include <limits>
#include <map>

#include "state/air.h"
#include "state/engines.h"
#include "state/fuel_pumps.h"
#include "state/hydraulics.h"
#include "state/sim.h"
#include "state/surfaces.h"
#include "support/fake_host.h"
#include "support/set_variables.h"
#include "systems/air_temperatures.h"
#include "systems/electrical.h"
#include "systems/engine_controls.h"
#include "systems/engine_start.h"
#include "systems/fuel_pumps.h"
#include "systems/hydraulics.h"
#include "systems/overhead_lamps.h"
#include "systems/ram_air_turbine.h"
#include "systems/status_dots.h"
#include "systems/surfaces.h"
#include "systems/thrust_values.h"

namespace {

constexpr const char* kLampNames[] = {
    "LEH_FAULT",  "REH_FAULT",  "LEH_FAULT1", "REH_FAULT1", "LEH_FAULT2", "REH_FAULT2", "FFPL_PRESS",
    "FAPL_PRESS", "FFPR_PRESS", "FAPR_PRESS", "FCPL_PRESS", "FCPR_PRESS", "ECCL_ALTN",  "LPAC_OFF",
    "OFF_GCL1",   "OFF_GCR2",   "DRIVE_DDL1", "RAT_PRESS",  "PLS_INOP",   "CARGOT_OFF",
};

void RunSecond() {
    for (int tick = 0; tick < 18; ++tick) {
        StepEngineStart();
        StepFuelPumps();
        StepHydraulics();
        DeployTurbineForPressure();
        ReadSurfaces();
        if (tick % 5 == 0) StepLightOff();
    }
    StepElectricalPower();
    StepTemperatures();
    ReadBrakeTemperatures();
    CountStartTimers();
    ReturnStartSelectors();
    ExchangeThrustLimit();
    ExchangeThrustValues();
    FollowHostFuel();
    SetStatusDots();
    ShowOverheadLamps();
}

// Values that no aircraft has, from the host and from its model, leave everything within its range, and once
// settled no lamp changes any more.
TEST(BadValues, AreBoundedAndMakeNoLampFlicker) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
    for (const double bad : {kNoNumber, kInfinity, -kInfinity, -1.0, 1e300}) {
        FakeHost host;
        for (const char* lamp : kLampNames) host.NamedVar(std::string("TZ_OH_Annun_") + lamp) = 0;
        for (const char* name : {"TZ_spoiler_3", "TZ_aileron_left", "TZ_Brake_Temp8", "elev_trim_ind",
                                 "tz_thrust_limit", "TZ_FADEC_Green_line", "TZ_FMC_CLB_Derate"})
            host.NamedVar(name) = bad;
        SetVariables(
            "batt_pwr 1, power_level 1000, ac_bus_powered 1, fuelpump_l_fwd_button 1, "
            "fuelpump_l_center_button "
            "1, hydr_l_eng_primary_button 1, hydr_c1_elec_demand_knob 1, hydr_l_elec_demand_knob -7, "
            "TZ_OH_CABIN_Temp_Switch 99, eng1_start_latch 1, eng1_start_phase 1");
        FollowTemperatureSelectors(0);
        for (double* value :
             {&sim.n1_l, &sim.n1_r, &sim.n2_l, &sim.n2_r, &sim.corrected_n2_l, &sim.corrected_n2_r,
              &sim.left_fuel, &sim.right_fuel, &sim.centre_fuel, &sim.oat_c, &sim.ias_kt, &sim.abs_time})
            *value = bad;
        for (int second = 0; second < 130; ++second) RunSecond();
        std::map<std::string, double> lamps;
        for (int second = 0; second < 4; ++second) {
            RunSecond();
            for (const char* lamp : kLampNames) {
                const double shown = host.NamedVar(std::string("TZ_OH_Annun_") + lamp);
                EXPECT_EQ(lamps.emplace(lamp, shown).first->second, shown) << lamp << " with " << bad;
            }
        }
        EXPECT_LE(fuel_pumps.press_fwd_l, 20);
        EXPECT_GE(fuel_pumps.press_ctr_l, 0);
        for (const int pressure :
             {hydraulics.tz_hyd_press_l, hydraulics.tz_hyd_press_c, hydraulics.tz_hyd_press_r}) {
            EXPECT_GE(pressure, 0);
            EXPECT_LE(pressure, 5100);
        }
        EXPECT_EQ(air.cabin_temp_target, 85);
        EXPECT_NEAR(air.cabin_temp, 75, 3) << "two minutes of drift";
        EXPECT_LE(surfaces.spoiler_3, 200);
        EXPECT_FALSE(std::isnan(surfaces.Brake_Temp8));
        EXPECT_FALSE(std::isnan(engines.FADEC_Green_line));
    }
}

}  // namespace
