#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "frame/named_variable_catalogue.h"
#include "guidance/lnav.h"
#include "state/lnav.h"
#include "state/plan.h"
#include "state/sim.h"
#include "state/time_base.h"
#include "support/fake_host.h"

/// An aircraft in the air at 25000 ft and 360 kt over the equator, where a degree is 60 nm in every direction
/// and the variation is 0; routes run east along it.
class GuidanceTest : public testing::Test {
  public:
    struct Fix {
        std::string ident;
        double lat, lon;
    };

  protected:
    void SetUp() override {
        // what the module registers or the model brings along
        for (const NamedVariable& variable : kNamedVariables) host.NamedVar(variable.name);
        sim.radio_alt_ft = 25000;
        sim.ind_alt_ft = 25000;
        sim.ground_speed_kt = 360;
        sim.tas_kt = 360;
        sim.ias_kt = 250;
        sim.utc_hours = 9;
        sim.utc_minutes = 5;
        sim.sim_rate = 1;
    }
    /// An active route through the fixes, flown to leg `to`.
    static void FlyRoute(const std::vector<Fix>& fixes, int to = 1) {
        for (const Fix& fix : fixes) {
            FlightPlanLeg& leg = plan.active.legs[plan.active.leg_cnt++];
            leg.ident = fix.ident;
            leg.lat = fix.lat;
            leg.lon = fix.lon;
            leg.type = "WPT";
        }
        --plan.active.leg_cnt;
        for (int i = 0; i <= plan.active.leg_cnt; ++i) plan.mod.legs[i] = plan.active.legs[i];
        plan.mod.leg_cnt = plan.active.leg_cnt;
        plan.fms_fpln_active = 3;
        plan.active.stpos = plan.mod.stpos = to;
        const FlightPlanLeg &from = plan.active.legs[to - 1], &next = plan.active.legs[to];
        plan.active.active_leg = {from.ident, from.lat, from.lon, next.ident, next.lat, next.lon, 0, 0};
    }
    static void PlaceAt(double lat, double lon, double heading) {
        sim.plane_lat = lat;
        sim.plane_lon = lon;
        sim.mag_hdg = sim.true_hdg = heading;
    }
    /// One tick, as the main update makes it.
    static void Tick() {
        time_base.tick_phase = (time_base.tick_phase + 1) % 18;
        time_base.tick2s_phase = (time_base.tick2s_phase + 1) % 36;
        LnavUpdate();
    }
    /// A second: three full passes at least.
    static void RunASecond() {
        for (int i = 0; i < 18; ++i) Tick();
    }

    FakeHost host;
};
