#include "frame/aircraft.h"

#include <gtest/gtest.h>

#include "state/cfg.h"
#include "state/identity.h"
#include "state/perf.h"
#include "state/sim.h"
#include "state/weights.h"
#include "support/fake_host.h"

namespace {

constexpr const char* kAirframe = R"([General]
atc_type=TZ
title=TZ900-10 GE House
[fltsim.0]
title=TZ900-8 RR House
sim=TZ900-8
model=rr
panel=
atc_parking_codes=tzh
[FLTSIM.1]
Title = TZ900-10 GE House
SIM=TZ900-10
Model=GE
panel=hires
atc_parking_codes=Abc
[fltsim.2]
title=TZ900-9 GE House
sim=tz900-9
model=ge
[fuel]
panel=hires
)";

std::string Identify(const char* title) {
    identity = {};
    identity.aircraft = title;
    if (!ScanAircraftCfg()) return "not found";
    return identity.aircraft_model + "," + identity.aircraft_sim_name + "," + identity.engine_model + "," +
           identity.airline_code + "," + identity.airline_voice_folder + "," +
           std::to_string(identity.panel_hires);
}

TEST(Aircraft, TheSectionOfTheTitleTellsAll) {
    FakeHost host;
    host.PutFile("SimObjects/Airplanes/A1/aircraft.cfg", "[fltsim.0]\nno title here\n\0\xff");
    host.PutFile("SimObjects/Airplanes/TZ900/Aircraft.cfg", kAirframe);
    host.PutFile("Velarion/TZ900/Sounds/TZPAS/ABC/x.wav", "");
    EXPECT_EQ(Identify("tz900-8 rr house"), "900-8,TZ900-8,TRENT 1000,TZH,,0");
    EXPECT_EQ(Identify("tz900-10 ge house"), "900-10,TZ900-10,GENX-1B76,ABC,ABC,1");
    EXPECT_EQ(Identify("tz900-9 ge house"), "900-9,TZ900-9,GENX-1B70,,,0");
    EXPECT_EQ(Identify("tz900-9 ge"), "not found");
    EXPECT_EQ(Identify(""), "not found");
    EXPECT_EQ(identity.engine_model, "");
}

TEST(Aircraft, TheHostIsKnownByItsFiles) {
    struct Case {
        std::vector<const char*> files;
        int version;
    };
    const Case kCases[] = {
        {{"FSX.exe", "SimObjects/x", "missions/x"}, 10},
        {{"fsx.exe", "ace.exe", "simobjects/x", "Prepar3D.exe"}, 11},
        {{"prepar3d.exe"}, 11},
        {{"Velarion/x"}, 10},
    };
    for (const Case& c : kCases) {
        FakeHost host;
        for (const char* file : c.files) host.PutFile(file, "");
        DetectHost();
        EXPECT_EQ(cfg.simver, c.version);
    }
}

TEST(Aircraft, TheFlapSpeedRowFollowsALossOfWeightOnly) {
    FakeHost host;
    LoadAircraft();
    weights.zfw = 300000;
    sim.total_fuel = 100500;
    UpdateFlapSpeedRow();
    EXPECT_EQ(weights.flap_speed_row, 6);
    EXPECT_EQ(weights.flap_speeds[6].flaps5, 185);
    sim.total_fuel += 5000;
    UpdateFlapSpeedRow();
    EXPECT_EQ(weights.flap_speed_row, 6);
    EXPECT_EQ(weights.flap_speed_ref_weight, 400500);
    sim.total_fuel = 99501;
    UpdateFlapSpeedRow();
    EXPECT_EQ(weights.flap_speed_ref_weight, 400500);
    sim.total_fuel = 90000;  // as near to 400000 as to 380000: the first of equals
    UpdateFlapSpeedRow();
    EXPECT_EQ(weights.flap_speed_row, 6);
    sim.total_fuel = 88000;
    UpdateFlapSpeedRow();
    EXPECT_EQ(weights.flap_speed_row, 7);
}

TEST(Aircraft, ZeroFuelWeightComesFromTheHostUntilTheCrewEntersOne) {
    FakeHost host;
    host.calc_numbers["(A:EMPTY WEIGHT,pounds)"] = 260000;
    host.calc_numbers["(A:Payload Station Weight:1,pounds)"] = 30000;
    host.calc_numbers["(A:Payload Station Weight:20,pounds)"] = 10000;
    LoadAircraft();
    EXPECT_EQ(weights.zfw, 0);  // the CDU fills it in
    cfg.CduAutoCalcZfw = 0;
    LoadAircraft();
    EXPECT_EQ(weights.zfw, 300000);
    sim.total_fuel = 50000;
    host.calc_numbers["(A:Payload Station Weight:2,pounds)"] = 1000;
    UpdateWeights();
    EXPECT_EQ(weights.zfw, 301000);
    EXPECT_EQ(weights.gross_weight, 351000);
    perf.ZfwEntry = 290000;
    UpdateWeights();
    EXPECT_EQ(weights.gross_weight, 340000);
    perf.FuelEntry = -500;  // the crew knows of less fuel than is sensed
    UpdateWeights();
    EXPECT_EQ(weights.gross_weight, 339500);
}

}  // namespace
