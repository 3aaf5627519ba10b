#include <gtest/gtest.h>

#include "base/text.h"
#include "display/eicas/engine_readings.h"
#include "display/formats/eicas.h"
#include "state/alerts.h"
#include "state/displays.h"
#include "state/eicas.h"
#include "state/identity.h"
#include "state/sim.h"
#include "support/fake_host.h"
#include "support/picture.h"
#include "support/set_variables.h"

// The engine display as it is drawn, on the right half where a test doesn't tell otherwise.

namespace {

std::string EicasPicture(int half = 2) {
    return PrintedPicture(
        DrawEicas, {.mode = 45, .unit = 2, .half = half, .side = 1, .narrow = false, .system_page = 0});
}

class EngineDisplay : public testing::Test {
  protected:
    FakeHost host;
};

TEST_F(EngineDisplay, DialsChangeColourAtTheirLimits) {
    const char *const kGrey = "82,82,82", *const kAmberFill = "233,183,62", *const kRedFill = "255,0,0";
    const struct {
        const char* model;
        double EngineReadings::*value;
        double at;
        const char *fill, *shown;
        int y;  // of the dial
    } kCases[] = {
        {"TRENT 1000", &EngineReadings::n1_pct, 100.7, kGrey, "100.6", 100},
        {"TRENT 1000", &EngineReadings::n1_pct, 101, kRedFill, "100.6", 100},
        {"TRENT 1000", &EngineReadings::egt_c, 849.9, kGrey, " 850", 160},
        {"TRENT 1000", &EngineReadings::egt_c, 890, kAmberFill, " 890", 160},
        {"TRENT 1000", &EngineReadings::egt_c, 920, kRedFill, " 920", 160},
        {"TRENT 1000", &EngineReadings::n3_pct, 103.5, kRedFill, "103.5", 220},
        {"TRENT 1000", &EngineReadings::tpr, 99, kGrey, " 99.0", 40},
        {"GENX-1B70", &EngineReadings::n1_pct, 108.4, kGrey, "108.4", 40},
        {"GENX-1B70", &EngineReadings::n1_pct, 108.5, kRedFill, "108.5", 40},
        {"GENX-1B70", &EngineReadings::egt_c, 890, kGrey, " 890", 100},
        {"GENX-1B70", &EngineReadings::egt_c, 1030, kAmberFill, "1030", 100},
        {"GENX-1B70", &EngineReadings::egt_c, 1070, kRedFill, "1070", 100},
        {"GENX-1B70", &EngineReadings::n2_pct, 118, kRedFill, "118.0", 160},
    };
    displays.eicas_eng_button = 1;
    for (const auto& row : kCases) {
        eicas = {};
        identity.engine_model = row.model;
        eicas.engine_l.*row.value = row.at;
        const std::string picture = EicasPicture();
        // the middle of the left column is 302 + 28, 13 to the left
        EXPECT_TRUE(Has(picture, Format("fill %s,255 M 317 %d L 345 %d", row.fill, row.y, row.y)))
            << row.model << ' ' << row.at;
        EXPECT_TRUE(Has(picture, Format("\"%s\"\n", row.shown))) << row.model << ' ' << row.at;
    }
    // a dial below 5 has neither pie nor number; what is on request stays away without it
    eicas = {};
    eicas.engine_r.n1_pct = 4.9;
    eicas.engine_l.n1_pct = 55;  // half way: the needle points down 105 degrees from the right
    displays.eicas_eng_button = 0;
    const std::string picture = EicasPicture();
    EXPECT_FALSE(Has(picture, "\"  4.9\""));
    EXPECT_TRUE(Has(picture, "stroke 222,230,233,255 2 M 317 40 L 308.72 70.91"));
    EXPECT_FALSE(Has(picture, "\"OIL QTY\""));
    EXPECT_FALSE(Has(picture, "\"FF\""));
    EXPECT_TRUE(Has(EicasPicture(1), "stroke 222,230,233,255 2 M 35 40 L 26.72 70.91"));
}

TEST_F(EngineDisplay, MessagesStandInTheirOrder) {
    const auto line = [](const std::string& picture, const char* colour, double left, int y,
                         const char* text) {
        // the baseline of a text of size 10 is 9.67 below its top, a sixth of the size stands before it
        return Has(picture, Format("text %g %g 10 Velarion900EICAS %s \"%s\"", left, y + 9.67, colour, text));
    };
    constexpr double kX = 446.67, kIndented = 453.67;
    const auto post = [](GrowingList<AlertRecord>& list, int& count, const char* text) {
        list[++count].text = text;
    };
    post(alerts.warning_list, alerts.warning_count, "FIRE ENG L");
    post(alerts.caution_list, alerts.caution_count, "CAUTION 1");
    post(alerts.caution_list, alerts.caution_count, "CAUTION 2");
    alerts.caution_list[1].cancelled = 1;
    post(alerts.advisory_list, alerts.advisory_count, "PACK L");
    post(alerts.memo_list, alerts.memo_count, "COMM");
    std::string picture = EicasPicture();
    EXPECT_TRUE(line(picture, "255,0,0", kX, 1, "FIRE ENG L"));
    EXPECT_TRUE(line(picture, "233,183,62", kX, 12, "CAUTION 2"));
    EXPECT_FALSE(Has(picture, "CAUTION 1"));
    EXPECT_TRUE(line(picture, "233,183,62", kIndented, 23, "PACK L"));
    EXPECT_TRUE(line(picture, "222,230,233", kX, 110, "COMM"));
    EXPECT_TRUE(Has(picture, "fill 222,230,233,255 M 444 114"));  // the dot before it
    for (int i = 2; i <= 11; ++i) post(alerts.memo_list, alerts.memo_count, "MEMO");
    picture = EicasPicture();
    EXPECT_TRUE(line(picture, "222,230,233", kX, 34, "COMM"));  // not above the others
    for (int i = 2; i <= 12; ++i) post(alerts.warning_list, alerts.warning_count, Format("W %d", i).c_str());
    alerts.recall_timer = 1;
    picture = EicasPicture();
    EXPECT_TRUE(line(picture, "255,0,0", kX, 100, "W 10"));
    EXPECT_FALSE(Has(picture, "W 11"));
    EXPECT_FALSE(Has(picture, "CAUTION 2"));
    EXPECT_TRUE(Has(picture, "\"PG 1\""));
    EXPECT_TRUE(Has(picture, "\"RECALL\""));
}

TEST_F(EngineDisplay, CabinDataAndTrimsComeWhenTheyAreWanted) {
    EXPECT_FALSE(Has(EicasPicture(), "CAB ALT"));
    alerts.posted[63] = 1;
    EXPECT_TRUE(Has(EicasPicture(), "CAB ALT"));
    EXPECT_TRUE(Has(EicasPicture(), "\"AUTO\""));
    SetVariables("du_fo_inb_mode 10, du_fo_inb_r_sys_page 1");  // CDU beside AIR
    EXPECT_FALSE(Has(EicasPicture(), "CAB ALT"));
    SetVariables("du_fo_inb_r_sys_page 11, ldg_alt_manual 1");
    alerts.posted[63] = 0;
    EXPECT_TRUE(Has(EicasPicture(), "\"MAN\""));

    sim.on_ground = 0;
    EXPECT_FALSE(Has(EicasPicture(), "RUDDER TRIM"));
    sim.gear_handle = 1;  // the lever is down, the gear hasn't moved yet
    EXPECT_TRUE(Has(EicasPicture(), "233,183,62 \"GEAR\""));
    sim.gear_handle = 0;
    EXPECT_TRUE(Has(EicasPicture(), "222,230,233 \"GEAR\""));
    sim.rudder_trim = -0.5;
    EXPECT_TRUE(Has(EicasPicture(), "\"L\"") && Has(EicasPicture(), "\"0.5\""));
    sim.rudder_trim = 0;
    sim.on_ground = 1;
    SetVariables("elev_trim_ind 9");
    EXPECT_TRUE(Has(EicasPicture(), "\"9.00\"") &&
                Has(EicasPicture(), "stroke 0,250,0,255 1 M 441 267"));  // in its box
    SetVariables("elev_trim_ind 9.01");
    EXPECT_FALSE(Has(EicasPicture(), "stroke 0,250,0,255 1 M 441 267"));
}

TEST_F(EngineDisplay, TheThrustRatioFollowsTheFan) {
    EXPECT_NEAR(EicasTpr(50), 55 - 5.75 - 0.3019, 1e-9);
    sim.n1_l = 50;
    StepEicasReadings();
    EXPECT_NEAR(eicas.engine_l.tpr, 0.7 * 48.9481, 1e-6);
    StepEicasReadings();
    EXPECT_NEAR(eicas.engine_l.tpr, 0.3 * 0.7 * 48.9481 + 0.7 * 48.9481, 1e-6);
}

}  // namespace
