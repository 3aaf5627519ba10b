#include <gtest/gtest.h>

#include "display/formats/hud.h"
#include "display/hud/hud_attitude.h"
#include "display/pfd/pfd_memory.h"
#include "state/instruments.h"
#include "state/sim.h"
#include "support/fake_host.h"
#include "support/picture.h"
#include "support/set_variables.h"

// The head-up display as it is drawn: its middle at (240, 205), that of the attitude at (240, 150).

namespace {

std::string Hud() {
    return PrintedPicture([](Graphics& graphics, const ContentPlace&) { DrawHud(graphics); }, {});
}

class HeadUpDisplay : public testing::Test {
  protected:
    FakeHost host;
};

TEST_F(HeadUpDisplay, ScalesPitchAndShowsTheWayBack) {
    const struct {
        double pitch, units;
        bool chevron;
    } cases[] = {{7, 22.5, false},  {-7.1, 22.445, false}, {7.1, 22.445, false},
                 {35, 7.1, true},   {40, 6, true},         {-29.9, 9.905, false},
                 {-30, 9.85, true}, {19.9, 15.405, false}, {20, 15.35, true}};
    for (const auto& row : cases) {
        SetVariables("bank_deg 0, hud_declutter 1");
        sim.pitch_deg = row.pitch;
        EXPECT_NEAR(HudUnitsPerDegree(), row.units, 1e-9) << row.pitch;
        // one of its long lines ends 60 beside the middle
        const std::string picture = Hud();
        EXPECT_EQ(Has(picture, "L 300 "), row.chevron) << row.pitch;
    }
    sim.pitch_deg = -20;
    EXPECT_TRUE(Has(Hud(), "M 40 312.5 L 440 312.5"));  // the horizon rests at 157.5 + 5
}

TEST_F(HeadUpDisplay, FliesBySymbolAndCue) {
    // 120 kt and 600 fpm are 3 degrees of climb: with the nose 5 up, the path lies 2 below it
    SetVariables("pitch_deg -5, bank_deg 0, ground_speed_kt 120, vs_fpm 600, true_track_deg 2, true_hdg 359");
    SetVariables("radio_alt_ft 500, ias_kt 140, ap_spdbug 130");
    const std::string picture = Hud();
    EXPECT_TRUE(Has(picture, "M 293.5 209"));  // the right one's slant is at 240 + 3 * 22.5 - 14
    EXPECT_TRUE(Has(picture, "\" 500\""));
    SetVariables("ground_speed_kt 20");
    EXPECT_FALSE(Has(Hud(), "M 293.5 209"));
    EXPECT_TRUE(Has(Hud(), "\" 500\""));
}

TEST_F(HeadUpDisplay, DeclutteredKeepsTheNumbers) {
    SetVariables("ias_kt 200, ind_alt_ft 3000, bank_deg 0, pitch_deg 0");
    EXPECT_FALSE(Has(Hud(), "\"3000B\""));
    SetVariables("hud_declutter 1");
    const std::string picture = Hud();
    EXPECT_TRUE(Has(picture, "\"200\"") && Has(picture, "\"3000B\""));
    EXPECT_TRUE(Has(picture, "\"AS\"") && Has(picture, "\"ALT\""));
    EXPECT_FALSE(Has(picture, "M 240 315 L 244 307"));  // the rose
}

TEST_F(HeadUpDisplay, BoxesTheRadioAltitudeAfterACrossing) {
    SetVariables("ind_alt_ft 2501, radio_alt_ft 2000, minimums_value 200");
    StepPfdMemory();
    SetVariables("ind_alt_ft 2500");
    StepPfdMemory();
    EXPECT_EQ(instruments.ra_2500_timer, 180);
    StepPfdMemory();
    EXPECT_EQ(instruments.ra_2500_timer, 179);
    SetVariables("radio_alt_ft 200");
    StepPfdMemory();
    EXPECT_EQ(instruments.minimums_cross_timer, 36);
}

}  // namespace
