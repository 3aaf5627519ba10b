#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

#include "cdu/unit/cdu_format.h"
#include "cdu/unit/cdu_service.h"
#include "cdu/unit/items.h"
#include "cdu/unit/keypad.h"
#include "fmc/demo_navdata.h"
#include "fmc/route/route_text.h"
#include "fmc/route_invariants.h"
#include "frame/named_variable_catalogue.h"
#include "guidance/holds.h"
#include "guidance/lnav.h"
#include "state/cdu.h"
#include "state/displays.h"
#include "state/leg_words.h"
#include "state/lnav.h"
#include "state/side.h"
#include "state/sim.h"
#include "state/time_base.h"
#include "support/fake_host.h"

namespace {

// Overnight runs ask for more.
int StepCount() {
    const char* asked = std::getenv("TZ900_RANDOM_KEYS");
    return asked != nullptr ? std::atoi(asked) : 200000;
}

constexpr const char* kEntries[] = {"AAA",
                                    "CCC",
                                    "DUPLE",
                                    "LONER",
                                    "CCC090/25",
                                    "N45W120",
                                    "Q1",
                                    "Q2",
                                    "NONE",
                                    "ORIG",
                                    "DEST",
                                    "ALTN",
                                    "16",
                                    "09",
                                    "EEE",
                                    "BBFIX/-5",
                                    "CCC/3",
                                    "250/",
                                    "/10000A",
                                    "120B/100A",
                                    "280/350",
                                    "HOLD AT AAA",
                                    "270/30",
                                    "FL350",
                                    "350/-40",
                                    "99999",
                                    "-",
                                    "",
                                    "ABCDEFGHIJKLMNOPQRSTUVWXYZ",
                                    "0350",
                                    "DEP1",
                                    "STORED",
                                    "EMPTY",
                                    "/",
                                    "//",
                                    "FL",
                                    "A"};

void PutProcedures(const FakeHost& host) {
    const auto put = [&](const char* name, const char* text) {
        host.PutFile(std::string("Velarion/TZ900/Navdata/") + name, text);
    };
    put("sids.txt",
        "[ORIG]\nT DEP1 RNAV 16,34\nDEP1 /T160/UA 2000 16 0 0\nDEP1 /RT/H300/IC010 4000 16 40.0 10.0\n"
        "DEP1 AAA 12000+ --- 40.0 10.0\nDEP1.LONER LONER 0 LONER 41.0 9.0\nDEP2 /H340/VT 5000 34 0 0\n");
    put("stars.txt",
        "[DEST]\nT ARR1 RNAV 09,27\nARR1.DUPLE DUPLE DUPLE 20000 43.5 9.0\nARR1 --- EEE 1400018000B 44.0 "
        "10.0\n"
        "ARR1 09 GATEX 6000 44.8 9.5\n[ORIG]\nBACK1 --- AAA 9000 40.0 10.0\n");
    put("apps.txt",
        "[DEST]\n09 ILS GATEX GATEX 5000 44.8 9.5 IAF 0 0\n09 ILS FINAX FAF 3000 44.95 9.8 - 0 0\n"
        "09 ILS RW09 MAP 1250 45.0 9.98 - 0 0 FO\n09 ILS /T090/UA MAF 3000 0 0 - 0 0\n"
        "09 ILS ALTFX MAF 4000 45.0 11.0 - 0 0\n09 ILS ALTFX MAF 4000 45.0 11.0 - 0 0\n"
        "27 VOR EASTY IAF 4000 45.0 10.5 - 0 0\n27 VOR /RT/H300/IC270 --- 3000 45.0 10.2 - 0 0\n"
        "27 VOR RW27 MAP 1250 45.0 10.02 - 0 0\n");
}

void PutStoredRoutes(const FakeHost& host) {
    const auto put = [&](const char* name, const char* text) {
        host.PutFile(std::string("Velarion/TZ900/flightplans/") + name, text);
    };
    put("empty.rte", "nothing\n");
    put("stored.rte",
        "CruiseAlt=35000\n[FlightPlan]\nORIG 39 10 APT\nAAA 40 10 VOR --- DEP1 SID\nBBFIX 41.5 10 INT --- Q1 "
        "AWY\n"
        "CCC 42 10 VOR --- Q1 AWY\nCCC 42 10 VOR --- HOLD HOLD 0 --- --- --- 0 0 -999 -999 -1 0 0 1\nDISCO\n"
        "EEE 44 10 NDB --- ARR1 STAR\nRW09 45 9.98 INT --- ILS09 APPR 0 --- --- --- 0 0 -999 -999 -1 1 0 0 0 "
        "09 MAP\n"
        "ALTFX 45 11 INT --- MISSED_APPR APPR\nDEST 45 10 APT\n");
    put("trip.pln",
        "departure_id=ORIG, x\nwaypoint.0=ORIG, A, N39* 0.00', E10* 0.00'\nwaypoint.1=ALTN, A, N45* 0.00', "
        "E12* "
        "0.00'\n");
}

class Crew {
  public:
    explicit Crew(unsigned seed) : random_(seed) {}

    int Any(int low, int high) { return std::uniform_int_distribution(low, high)(random_); }

    /// One thing that a pilot may do.
    std::string Act() {
        const int side = Any(1, 2);
        switch (Any(0, 9)) {
            case 0:
            case 1: {
                CduOf(side).ScratchPad.clear();
                CduOf(side).ScratchMessage.clear();
                const std::string entry = kEntries[Any(0, static_cast<int>(std::size(kEntries)) - 1)];
                for (const char c : entry) c == ' ' ? OnSpace(side) : OnCduKeyChar(side, c);
                return "type " + entry;
            }
            case 2:
            case 3:
            case 4: {
                const int row = Any(0, 5), line = Any(0, 1) == 0 ? 1 + row : 9 + row;
                OnCduKeyPress(side, line);
                return "line " + std::to_string(line);
            }
            case 5: {
                const int item = Any(0, 31);
                OnCduKeyPress(side, item);
                return "item " + std::to_string(item);
            }
            case 6:
                Any(0, 3) == 0 ? OnDelete(side) : Any(0, 1) == 0 ? OnClear(side) : OnPlusMinus(side);
                return "DEL, CLR or sign";
            case 7:
                if (Any(0, 3) == 0) OnExec(side);
                return "EXEC";
            case 8: {
                const int x = Any(-10, 574), y = Any(-10, 434), unit = Any(0, 6);
                OnCduClick(x, y, unit);
                return "click " + std::to_string(x) + ' ' + std::to_string(y);
            }
            default: {
                constexpr int kRoutePages[] = {6, 22, 10, 11, 24, 55, 58, 1};
                CduOf(side).fms_page = kRoutePages[Any(0, 7)];
                return "page " + std::to_string(CduOf(side).fms_page);
            }
        }
    }

  private:
    std::mt19937 random_;
};

// The aircraft goes a bit of the way to its fix, or beyond.
void FlyOn(Crew& crew) {
    if (plan.fms_fpln_active >= kRouteActive && plan.active.stpos >= 1 &&
        plan.active.stpos <= plan.active.leg_cnt) {
        const FlightPlanLeg& to = FlightPlanLegAt(plan.active.stpos);
        const double part = crew.Any(0, 3) == 0 ? 1.0 : 0.3;
        sim.plane_lat += (to.lat - sim.plane_lat) * part;
        sim.plane_lon += (to.lon - sim.plane_lon) * part;
    }
    for (int tick = 0; tick < 18; ++tick) {
        time_base.tick_phase = (time_base.tick_phase + 1) % 18;
        time_base.tick2s_phase = (time_base.tick2s_phase + 1) % 36;
        HoldUpdate();
        LnavUpdate();
    }
}

TEST(RandomKeys, LeaveARouteThatHoldsTogether) {
    FakeHost host;
    for (const NamedVariable& variable : kNamedVariables) host.NamedVar(variable.name);
    PutRouteNavdata(host);
    PutProcedures(host);
    PutStoredRoutes(host);
    sim.plane_lat = 39.2;
    sim.plane_lon = 10;
    sim.ground_speed_kt = sim.tas_kt = 360;
    sim.radio_alt_ft = sim.ind_alt_ft = 25000;
    sim.sim_rate = 1;
    std::string error;
    const char* const kRoute = "ORIG AAA Q1 CCC Q2 EASTX DUPLE DEST";
    ASSERT_EQ(EnterRouteText(kRoute, error), 1) << error;
    ASSERT_EQ(ExecuteEnteredRoute(error), 1) << error;
    Crew crew(20261125);
    DrawList picture;
    const int steps = StepCount();
    for (int step = 0; step < steps; ++step) {
        std::string done = crew.Act();
        for (const int side : {kCaptain, kFirstOfficer}) StepCdu(side, true);
        if (step % 7 == 0) {
            picture = {};
            Graphics graphics = GdipCreateGraphics(picture, 564, 424);
            DrawCdu(graphics, 1, 5);
            DrawCdu(graphics, 2, 5);
        }
        if (step % 20 == 0) FlyOn(crew);
        // A list that only grows tells nothing new.
        if (plan.mod.leg_cnt > 60 || (plan.mod.leg_cnt < 1 && step % 10 == 0)) {
            ASSERT_EQ(EnterRouteText(kRoute, error), 1) << error;
        }
        if (cdu[0].CduMessageCount > 50 || cdu[1].CduMessageCount > 50) cdu = {};
        done += ", step " + std::to_string(step);
        ASSERT_NO_FATAL_FAILURE(ExpectInvariants(done));
    }
    EXPECT_GT(picture.primitives.size(), 50U);
}

}  // namespace
