#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "fmc/demo_navdata.h"
#include "fmc/route/route_text.h"
#include "panels/load_panel.h"
#include "panels/panel_folder.h"
#include "panels/save_panel.h"
#include "state/cdu.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/flight_log.h"
#include "state/host_link.h"
#include "state/identity.h"
#include "state/leg_words.h"
#include "state/panel_files.h"
#include "state/plan.h"
#include "state/side.h"
#include "state/sim.h"
#include "state/state_groups.h"
#include "state/vnav.h"
#include "support/fake_host.h"
#include "support/file_text.h"
#include "support/set_variables.h"

namespace {

constexpr char kFolder[] = "Velarion/TZ900/PANELSTATES/";

class PanelStates : public testing::Test {
  protected:
    PanelStates() { Begin(); }
    // A program that knows nothing yet, at the same place.
    void Begin() {
        ResetSystemState();
        PutRouteNavdata(host);
        identity.aircraft = "tz900-9 house";
        sim.plane_lat = 39.5;
        sim.plane_lon = 10;
        host.events.clear();
    }
    std::string FileOf(const std::string& name) const {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(host.root))
            if (entry.path().filename() == name) return FileText(entry.path());
        return {};
    }
    void Put(const std::string& name, const std::string& text) const { host.PutFile(kFolder + name, text); }
    static std::string LastMessage(int side = kCaptain) {
        const CduState& unit = CduOf(side);
        if (unit.CduMessageCount == 0) return {};
        const CduMessage& message = unit.CduMessages[unit.CduMessageCount];
        return message.title + "|" + message.body;
    }
    FakeHost host;
};

// What a file holds but for the place, and for what is predicted of the legs.
std::string Settings(const std::string& text) {
    std::istringstream lines(text.substr(text.find("[FLTPLN]")));
    std::string settings;
    for (std::string line; std::getline(lines, line);)
        if (!line.starts_with("FPLN=")) settings += line + '\n';
    return settings;
}

TEST_F(PanelStates, AFlightComesBackAsItWas) {
    std::string error;
    ASSERT_EQ(EnterRouteText("ORIG/16 AAA Q1 CCC DDFIX DEST/27", error), 1) << error;
    plan.mod.entries.cruise_alt = 33000;
    plan.mod.legs[2].restr_code = kAltitudeRestr;
    plan.mod.legs[2].restr_type = kBetween;
    plan.mod.legs[2].block_below = 12000;
    plan.mod.legs[2].block_above = 14000;
    ASSERT_EQ(ExecuteEnteredRoute(error), 1) << error;
    SetVariables("stpos 3, tod 1, v1 141, cost_index 80, climb_ias 291, cruise_mach 0.84, apu_rpm 55.5");
    SetVariables("emerg_lights_switch 3, du_capt_inb_mode 12, fuel_balance_button 1, ilsfreq 11030");
    SetVariables(
        "ap_lat_mode 6, ap_vert_mode 6, apalt 33000, fltsecs 4000, beacon_lights_button 1, eng2_thrott 2");
    plan.active.active_leg = {
        .from = "AAFIX", .from_lat = 40.5, .from_lon = 10, .to = "BBFIX", .to_lat = 41.5, .to_lon = 10};
    SavePanelState("my flight", kFirstOfficer, kCrewSave);
    EXPECT_EQ(LastMessage(kFirstOfficer), "PANEL STATE SAVED|MY FLIGHT.PNL\nOK");
    EXPECT_EQ(LastMessage(), "");
    const std::string first = FileOf("MY FLIGHT.PNL");
    ASSERT_NE(first, "");
    EXPECT_NE(first.find("\nfms_fpln_active=3\n"), std::string::npos);
    EXPECT_NE(first.find("\nv1=141\n"), std::string::npos);
    EXPECT_NE(first.find("\ncruise_mach=0.84\n"), std::string::npos);
    EXPECT_NE(first.find(",12000,14000,1,"), std::string::npos);  // the lower limit of a window stands first

    Begin();
    for (const char* shown : {"TZ_OH_EMER_LTS_Switch", "ap_lat_mode_clicked", "ap_vert_mode_clicked"})
        host.NamedVar(shown) = 0;
    LoadPanelState("MY FLIGHT.PNL", kCrewLoad);
    EXPECT_EQ(LastMessage(), "LOAD PANEL STATE|PANEL STATE LOADED\nOK");
    EXPECT_EQ(LastMessage(kFirstOfficer), LastMessage());
    EXPECT_EQ(plan.fms_fpln_active, kRouteActive);
    EXPECT_EQ(plan.active.stpos, 3);
    EXPECT_EQ(plan.active.ends.dep_runway, "16");
    EXPECT_EQ(vnav.tod, 1);
    EXPECT_EQ(host.NamedVar("TZ_OH_EMER_LTS_Switch"), 3);
    EXPECT_EQ(host.NamedVar("ap_lat_mode_clicked"), 6);
    EXPECT_EQ(host.NamedVar("ap_vert_mode_clicked"), 5);
    const std::vector<std::pair<int, int>> sent = {
        {0x100ac, 0x11030}, {0x1024c, 33000}, {0x102bf, 1}, {0x101c8, 0}};
    for (const auto& event : sent)
        EXPECT_TRUE(std::ranges::count(host.events, event) == 1) << std::hex << event.first;
    SavePanelState("again", kCaptain, kWithFlightSave);
    EXPECT_EQ(Settings(FileOf("AGAIN.PNL")), Settings(first));
    EXPECT_EQ(plan.active.legs[2].restr_type, kBetween);
    EXPECT_EQ(plan.active.legs[6].alt_restr, 1200);  // the airport's
}

TEST_F(PanelStates, ARouteThatWaitsForExecWaitsAgain) {
    std::string error;
    ASSERT_EQ(EnterRouteText("ORIG AAA Q1 CCC DEST", error), 1) << error;
    plan.fms_fpln_active = kRouteActivated;
    SavePanelState("w", kCaptain, kCrewSave);
    EXPECT_NE(FileOf("W.PNL").find("\nFPLN=AAA,"), std::string::npos);
    Begin();
    LoadPanelState("w.pnl", kLoadAtStart);
    EXPECT_EQ(plan.fms_fpln_active, kRouteActivated);
    EXPECT_EQ(plan.mod.legs[1].ident, "AAA");
    EXPECT_EQ(ExecuteEnteredRoute(error), 1) << error;
    EXPECT_EQ(plan.active.stpos, 1);

    // a file without legs leaves the route alone, and takes all else; a stored 4 is a 3
    Put("X.PNL", "aircraft=other\nfms_fpln_active=1\nstpos=999\nv1=150\nfms_dep_rwy_pos=7\n");
    LoadPanelState("X.PNL", kCrewLoad);
    EXPECT_EQ(plan.fms_fpln_active, kRouteActive);
    EXPECT_EQ(plan.active.stpos, 1);
    SetVariables("fms_fpln_active 4");
    SavePanelState("four", kCaptain, kCrewSave);
    Begin();
    LoadPanelState("FOUR.PNL", kCrewLoad);
    EXPECT_EQ(plan.fms_fpln_active, kRouteActive);
}

TEST_F(PanelStates, WhatDoesNotFitIsToldAndLeftAlone) {
    const char* const kOther = "aircraft=TZ900-8 OTHER\nlat=50\nlon=10\nv1=150\n";
    const char* const kHere = "aircraft=TZ900-9 HOUSE\nlat=39.5\nlon=10.03\nv1=150\n";
    const char* const kFar = "aircraft=tz900-9 house\nlat=39.5\nlon=10.05\nv1=150\n";
    Put("other.pnl", kOther);
    Put("here.pnl", kHere);
    Put("far.pnl", kFar);
    Put("COLD & DARK.PNL", kFar);
    const std::string kOk = "LOAD PANEL STATE|PANEL STATE LOADED\nOK";
    const std::string kFail = "PANEL STATE LOAD FAIL|";
    const struct {
        const char* name;
        int check_aircraft, check_place, mode;
        std::string message;
        int v1;
    } kCases[] = {
        {"OTHER.PNL", 1, 1, kCrewLoad, kFail + "AIRCAFT MODEL DOES NOT MATCH\nPANEL SAVE", 0},
        {"OTHER.PNL", 1, 1, kLoadAtStart, "", 0},
        {"OTHER.PNL", 0, 0, kLoadAtStart, kOk, 150},
        {"HERE.PNL", 1, 1, kCrewLoad, kOk, 150},  // 1.4 nm away
        {"FAR.PNL", 1, 1, kCrewLoad, kFail + "AIRCAFT NOT WITHIN\n2 NM OF PANEL SAVE POSITION", 150},
        {"FAR.PNL", 1, 0, kCrewLoad, kOk, 150},
        {"COLD & DARK.PNL", 1, 1, kLoadAtStart, kOk, 150},
        {"COLDANDDARK.PNL", 1, 1, kLoadAtStart, kOk, 0},  // no such file
        {"NONE.PNL", 1, 1, kCrewLoad, kFail + "FILE NOT FOUND", 0},
        {"NONE.PNL", 1, 1, kLoadAtStart, "", 0},
        {"..\\far.pnl", 0, 0, kCrewLoad, kFail + "FILE NOT FOUND", 0},
        {"", 1, 1, kCrewLoad, "", 0},
    };
    for (const auto& row : kCases) {
        Begin();
        cfg.PanelLoadCheckAircraftMatch = row.check_aircraft;
        cfg.PanelLoadCheckLatLonMatch = row.check_place;
        LoadPanelState(row.name, row.mode);
        EXPECT_EQ(LastMessage(), row.message) << row.name;
        EXPECT_EQ(StoredText("v1"), std::to_string(row.v1)) << row.name;
    }
}

TEST_F(PanelStates, NamesAndSavesThatComeByThemselves) {
    host.machine_date = 20261124;
    SavePanelState("", kCaptain, kWithFlightSave);
    EXPECT_NE(FileOf("SAVPNL_261124.PNL"), "");
    EXPECT_EQ(FileOf("SAVPNL_261124.PNL").find("FPLN="), std::string::npos);
    plan.active.ends.origin = "ORIG";
    SavePanelState("", kCaptain, kWithFlightSave);
    EXPECT_NE(FileOf("ORIG------_261124.PNL"), "");
    plan.active.ends.dest = "DEST";
    SavePanelState("", kCaptain, kWithFlightSave);
    EXPECT_NE(FileOf("ORIGDEST_261124.PNL"), "");
    SavePanelState("a.pnl", kCaptain, kWithFlightSave);
    EXPECT_NE(FileOf("A.PNL"), "");
    for (const char* hostile : {"..\\evil", "C:evil", "con", "a/b", "x?"})
        SavePanelState(hostile, kCaptain, kCrewSave);
    EXPECT_EQ(LastMessage(), "");
    ListPanels();
    EXPECT_EQ(panel_files.panel_file_count, 4);
    EXPECT_EQ(panel_files.PanelFiles[1], "A.PNL");

    // the host's flight saves, but for its own
    for (const char* flight :
         {"C:\\Users\\me\\My Flight.FXML", "x\\Program Generated Temporary Scenario.FXML",
          "Program Generated Temporary Flight.flt"}) {
        host_link.saved_flight = flight;
        FollowFlightSaves();
    }
    ListPanels();
    EXPECT_EQ(panel_files.panel_file_count, 5);
    EXPECT_NE(FileOf("MY FLIGHT-FLT.PNL"), "");

    // one save each 31 seconds
    SetVariables("fms_fpln_active 3, PanelAutoSaveEnroute 1");
    for (int second = 1; second <= 62; ++second) StepPanelAutosave();
    ASSERT_EQ(host.saved_flights.size(), 2U);
    EXPECT_EQ(host.saved_flights[0], "TZ900 Autosave|TZ900 Autosave|TZ900 Flight AutoPanel Save");
}

TEST_F(PanelStates, DamagedFilesHarmNothing) {
    std::string error;
    ASSERT_EQ(EnterRouteText("ORIG AAA Q1 CCC DEST", error), 1) << error;
    ASSERT_EQ(ExecuteEnteredRoute(error), 1) << error;
    SavePanelState("good", kCaptain, kCrewSave);
    const std::string good = FileOf("GOOD.PNL");
    std::mt19937 random(7);
    const auto below = [&](std::size_t count) { return random() % count; };
    const char* const kWords[] = {"nan", "inf", "-1", "1e300", "99999999999", ",,,,", "=", "\n", ""};
    for (int i = 0; i < 300; ++i) {
        std::string bad = good;
        for (std::size_t cuts = below(6) + 1; cuts > 0; --cuts) {
            const std::size_t at = below(bad.size());
            bad.replace(at, std::min(below(20), bad.size() - at), kWords[below(std::size(kWords))]);
        }
        if (i % 10 == 0) bad.resize(below(bad.size()));
        Put("BAD.PNL", bad);
        Begin();
        LoadPanelState("BAD.PNL", kCrewLoad);
        EXPECT_TRUE(plan.active.stpos == kNoPlan || plan.active.stpos <= std::max(plan.active.leg_cnt, 1))
            << i;
        EXPECT_LE(plan.active.legs.size(), 30) << i;
        for (const char* number : {"toc_lat", "cross_at_elev", "apu_rpm", "vref"})
            EXPECT_EQ(StoredText(number).find("nan"), std::string::npos) << number;
    }
}

}  // namespace
