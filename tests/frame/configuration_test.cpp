#include "frame/configuration.h"

#include <gtest/gtest.h>

#include <cstring>
#include <iterator>
#include <random>

#include "frame/aircraft.h"
#include "frame/sim_client.h"
#include "frame/tokens.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/identity.h"
#include "state/perf.h"
#include "state/sim.h"
#include "state/variable_directory.h"
#include "support/fake_host.h"
#include "support/file_text.h"

namespace {

constexpr const char* kFile = "Velarion/tz900.cfg";

std::string Value(std::string_view name) {
    const auto found = FindVariable(name);
    return found ? FormatValue(*found) : "unknown";
}

std::string Written(FakeHost& host) {
    EXPECT_TRUE(WriteConfig());
    return FileText(host.root / kFile);
}

TEST(Configuration, ReadingRules) {
    struct Case {
        const char* lines;
        const char* name;
        const char* value;
    };
    constexpr Case kCases[] = {
        {"", "IrsAlignSecs", "10"},
        {"IrsAlignSecs=25\r\n", "IrsAlignSecs", "25"},
        {"irsalignsecs=25\nIRSALIGNSECS=30", "IrsAlignSecs", "30"},
        {"; IrsAlignSecs=25", "IrsAlignSecs", "10"},
        {"IrsAlignSecs 25\n=4\nNoSuchKey=5\n", "IrsAlignSecs", "10"},
        {"IrsAlignSecs=soon", "IrsAlignSecs", "0"},
        {"IrsAlignSecs=", "IrsAlignSecs", "0"},
        {"IrsAlignSecs= 17secs", "IrsAlignSecs", "17"},
        {"IrsAlignSecs=99999999999", "IrsAlignSecs", "0"},
        {"WxrBrt=0.4", "WxrBrt", "0.4"},
        {"WxrBrt=nan", "WxrBrt", "0"},
        {"WeightUnit=kgs", "WeightUnit", "KGS"},
        {"PanelState=my = panel 1", "PanelState", "my = panel 1"},
        {"ArmPauseAtTod=0\nPauseAtTod=1", "ArmPauseAtTod", "1"},
        {"PauseAtTod=1\nArmPauseAtTod=0", "ArmPauseAtTod", "0"},
        {"Arm1xAtTod=0\n1xAtTod=1", "Arm1xAtTod", "1"},
        {"1xAtTod=1", "1xAtTod", "1"},
        {"PfcSwitch=0", "PfcSwitch", "4"},
        {"PfcSwitch=0", "pfc_switch_off", "1"},
        {"PfcSwitch=0\nPfcSwitch=1", "pfc_switch_off", "0"},
        {"PfcSwitch=1", "PfcSwitch", "7"},
        {"PfcSwitch=5", "PfcSwitch", "5"},
        {"HiFiSnapshotDir=C:\\HiFi\\AS", "HiFiSnapshotDir", "C:\\HiFi\\AS\\Weather"},
        {"HiFiSnapshotDir=C:\\HiFi\\Weather", "HiFiSnapshotDir", "C:\\HiFi\\Weather"},
        {"HiFiSnapshotDir=", "HiFiSnapshotDir", ""},
        {"chart_source=5", "chart_source", "1"},
        {"chart_source=2", "chart_source", "2"},
        {"simver=9", "simver", "10"},
        {"simver=12", "simver", "11"},
        {"DisplayLdgChkLst=0", "DisplayLdgChkLst", "1"},
        {"DuFont=A Font Of More Than Twenty", "DuFont", "A Font Of More Than "},
        {"PfdSkyColor=1, 2,300", "PfdSkyColor[2]", "300"},
        {"VnavDescFPA=3", "DescFpa", "3"},
        {"ClimbIas=300\nDescentIas=290", "pending_descent_ias", "300"},
        {"DescTransSpdRest=230", "des_spd_trans_spd", "230"},
        {"Battery=0", "battery_button", "0"},
        {"", "battery_button", "1"},
    };
    for (const Case& c : kCases) {
        FakeHost host;
        host.PutFile(kFile, c.lines);
        ReadConfig();
        EXPECT_EQ(Value(c.name), c.value) << c.lines << " -> " << c.name;
    }
}

TEST(Configuration, LongLinesAndHostileBytes) {
    FakeHost host;
    std::string text = "PanelState=";
    text.append(400, 'x').append("\nToFlaps=").append(2000000, '1').append("\nLdgFlaps=25\n");
    host.PutFile(kFile, text);
    ReadConfig();
    EXPECT_EQ(cfg.LdgFlaps, 30);  // a file of more than a megabyte is no configuration
    text = "PanelState=";
    text.append(400, 'x').append("\nA\0B=1\n\0\n", 9).append("LdgFlaps=25");
    host.PutFile(kFile, text);
    ReadConfig();
    EXPECT_EQ(cfg.PanelState.size(), 299 - std::strlen("PanelState="));
    EXPECT_EQ(cfg.LdgFlaps, 25);
}

TEST(Configuration, RandomBytesDoNoHarm) {
    std::mt19937 random(1);
    constexpr std::string_view kPieces[] = {"IrsAlignSecs=",
                                            "PfcSwitch=",
                                            "WeightUnit=",
                                            "DuFont=",
                                            "PfdSkyColor=",
                                            "HiFiSnapshotDir=",
                                            "TzPasFASeatedRwyDist=",
                                            "Weather\\",
                                            "-1e308",
                                            "99999999999999",
                                            ",",
                                            ";",
                                            "=",
                                            "\n",
                                            "\r",
                                            "[fltsim.",
                                            "title=",
                                            "LeftMain=",
                                            "Units=2"};
    for (int round = 0; round < 300; ++round) {
        FakeHost host;
        std::string text;
        for (int i = 0; i < 60; ++i) {
            if (random() % 3 != 0)
                text += kPieces[random() % std::size(kPieces)];
            else
                text += static_cast<char>(random());
        }
        host.PutFile(kFile, text);
        host.PutFile("../appdata/Velarion/tz900_fuel.cfg", text);
        host.PutFile("SimObjects/Airplanes/A/Aircraft.cfg", text);
        host.tokens[kTokenFuelWeightPerGallon] = 6.7;
        ReadConfig();
        LoadStoredFuel();
        identity.aircraft = "x";
        ScanAircraftCfg();
        EXPECT_TRUE(WriteConfig());
    }
}

TEST(Configuration, EachKeyIsWrittenByItsTest) {
    FakeHost host;
    ReadConfig();
    EXPECT_EQ(
        Written(host),
        "EfBFPlanOverlay=1\nArmPauseAtTod=1\nArm1xAtTod=1\nLoadFuelonAircraftLoad=1\nCduAutoCalcVspeeds=1\n"
        "CduAutoCalcZfw=1\nLoadPanelStateonAcLoad=1\nRemoteCdu=1\ncalcpayload=1\nArmPauseAtDistFromDest=1\n");
    cfg.EfBFPlanOverlay = cfg.ArmPauseAtTod = cfg.Arm1xAtTod = cfg.LoadFuelonAircraftLoad = 0;
    cfg.CduAutoCalcVspeeds = cfg.CduAutoCalcZfw = cfg.LoadPanelStateonAcLoad = cfg.RemoteCdu = 0;
    cfg.calcpayload = cfg.ArmPauseAtDistFromDest = 0;
    EXPECT_EQ(Written(host), "");
    cfg.CheckNavdataStatus = 0;
    cfg.MinAptRwyLen = 6000;
    cfg.WeightUnit = "KGS";
    cfg.CabinAirTempUnit = "F";
    cfg.DuLinesize = 2;
    cfg.TzPasFASeatedRwyDist = 1701 / 6076.0;
    cfg.DescForecastAlt1 = 999;
    cfg.DescForecastAlt2 = 1000;
    cfg.DisplayUnitBrightness = 0.85;
    cfg.TransAlt = 6000;
    cfg.VolumeGpws = 50;           // never written
    cfg.lnav_tracking_dist = 1.5;  // written at 1 only
    EXPECT_EQ(Written(host),
              "CheckNavdataStatus=0\nMinAptRwyLen=6000\nWeightUnit=KGS\nDuLinesize=2\nTransAlt=6000\n"
              "TzPasFASeatedRwyDist=1701\nDescForecastAlt2=1000\nDisplayUnitBrightness=0.85\n");
    cfg.CabinAirTempUnit = "C";
    cfg.lnav_tracking_dist = 1;
    EXPECT_NE(Written(host).find("CabinAirTempUnit=C\n"), std::string::npos);
    EXPECT_NE(Written(host).find("lnav_tracking_dist=1\n"), std::string::npos);
}

TEST(Configuration, WhatIsWrittenReadsTheSame) {
    constexpr const char* kLines =
        "IrsAlignSecs=300\nCheckNavdataStatus=0\nTerrainFloor=1500.25\nweightunit=kgs\nPfcSwitch=4\n"
        "ArmPauseAtTod=0\nPauseAtTod=1\n1xAtTod=1\nCabinAirTempUnit=C\nDuLinesize=1.5\nWxrBrt=0.1\n"
        "HiFiSnapshotDir=C:\\AS\nCostIndex=80\nPanelState= a panel \nFlightPlansFolder=D:\\A=B\n"
        "TzPasSafetyDemoMinRwyDist=3402.5\nTzPasFASeatedRwyDist=1701\nDescForecastAlt4=18000\n"
        "DisplayUnitBrightness=0.7\nDUWxrDisplay=-1\nremotecduhires=0\nGpwsAltCalloutAbove=7\n";
    const auto state = [] {
        std::string text;
        for (const ConfigKey& key : ConfigKeys())
            if (key.write != WriteTest::kNever)
                text.append(key.name).append("=").append(Value(key.name)).append("\n");
        return text;
    };
    FakeHost host;
    host.PutFile(kFile, kLines);
    ReadConfig();
    const std::string before = state();
    const std::string written = Written(host);
    cfg = {};
    ReadConfig();
    EXPECT_EQ(state(), before);
    EXPECT_EQ(Written(host), written);
    EXPECT_NE(written.find("TzPasSafetyDemoMinRwyDist=3402.5\nTzPasFASeatedRwyDist=1701\n"),
              std::string::npos);
    EXPECT_NE(written.find("HiFiSnapshotDir=C:\\AS\\Weather\n"), std::string::npos);
}

TEST(Configuration, TheFuelFileGoesBothWays) {
    FakeHost host;
    sim.left_fuel = 20000.4;
    sim.right_fuel = 19999.6;
    sim.centre_fuel = 5;
    cfg.WeightUnit = "KGS";
    WriteConfig();
    const auto fuel_file = host.app_data / "Velarion/tz900_fuel.cfg";
    EXPECT_EQ(FileText(fuel_file),
              "[Config]\nUnits=1\n[fuel.0]\nLeftMain=20000\nRightMain=20000\nCenter=5\n");

    OpenSimClient();
    cfg.WeightUnit = "LBS";
    LoadStoredFuel();
    EXPECT_EQ(cfg.WeightUnit, "KGS");  // the file's unit wins and is saved
    EXPECT_NE(FileText(host.root / kFile).find("WeightUnit=KGS"), std::string::npos);
    EXPECT_TRUE(host.client_events.empty());  // without the fuel's weight nothing is loaded

    host.tokens[kTokenFuelWeightPerGallon] = 6.7;
    LoadStoredFuel();
    EXPECT_EQ(host.client_events, std::vector<int>{9});
    ASSERT_EQ(host.sim_data.size(), 3u);
    const auto gallons = [&](std::size_t i) {
        double value = 0;
        std::memcpy(&value, host.sim_data[i].second.data(), sizeof value);
        return value;
    };
    EXPECT_EQ(host.sim_data[0].first, 3);
    EXPECT_NEAR(gallons(0), 2985.0746, 1e-3);
    EXPECT_EQ(host.sim_data[1].first, 2);
    EXPECT_EQ(host.sim_data[2].first, 8);
    EXPECT_EQ(gallons(2), 2);  // the least that a tank is given
}

}  // namespace
