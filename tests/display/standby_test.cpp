#include <gtest/gtest.h>

#include "base/text.h"
#include "display/formats/standby_pfd.h"
#include "paint/draw_list.h"
#include "state/cfg.h"
#include "support/fake_host.h"
#include "support/picture.h"
#include "support/set_variables.h"

// The standby instrument as it is drawn; its middle stands at (47, 46).

namespace {

std::string Standby() {
    return PrintedPicture([](Graphics& graphics, const ContentPlace&) { DrawStandbyPfd(graphics); }, {});
}

class StandbyInstrument : public testing::Test {
  protected:
    FakeHost host;
};

TEST_F(StandbyInstrument, StandsByItsValuesAndItsOwnBrightness) {
    SetVariables(
        "pitch_deg -10, bank_deg 0, ias_kt 20, ind_alt_ft 9999, mag_hdg 0, true_hdg 90, baro_hpa 990");
    std::string picture = Standby();
    // 10 degrees nose up: the horizon is 15 below the middle
    EXPECT_TRUE(Has(picture, "fill 34,61,134,255 M -100 -100 L 100 0 L 100 61 L -100 61 Z"));
    EXPECT_TRUE(Has(picture, "M 47 124 L 47 121") || Has(picture, "M 47 86 L 47 83"));  // north is up
    EXPECT_TRUE(Has(picture, "fill 0,250,0,255 M 75 42 L 81 42"));  // below 10,000 ft a bar
    EXPECT_TRUE(Has(picture, "\" 990\"") && Has(picture, "\"HPA\""));
    EXPECT_FALSE(Has(picture, "\"APP\""));
    SetVariables("stby_brightness 0.5, stby_baro_in 1, baro_in 29.92, baro_hpa 1013.39, stby_app_mode 2");
    SetVariables(
        "nav1_is_loc 1, nav1_has_gs 0, nav1_signal 1, loc_needle 63.5, gs_needle 10, ind_alt_ft 10000");
    cfg.DisplayUnitBrightness = 0.1;
    picture = Standby();
    EXPECT_TRUE(Has(picture, "fill 17,30,67,255 M -100"));
    EXPECT_TRUE(Has(picture, "\"STD\"") && Has(picture, "\"APP\""));
    EXPECT_TRUE(Has(picture, "stroke 127,9,106,255 1.5 M 57 73 L 57 77"));  // 10 right of the middle
    EXPECT_FALSE(Has(picture, "fill 0,125,0,255 M 75 42"));
    EXPECT_EQ(picture.find("127,9,106"), picture.rfind("127,9,106"));  // no glide slope
}

}  // namespace
