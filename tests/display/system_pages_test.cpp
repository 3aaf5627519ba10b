#include <gtest/gtest.h>

#include "base/text.h"
#include "display/formats/system_pages.h"
#include "display/synoptics/key_strip.h"
#include "state/alerts.h"
#include "state/cockpit.h"
#include "state/displays.h"
#include "state/electrical.h"
#include "support/fake_host.h"
#include "support/picture.h"
#include "support/set_variables.h"

// The system pages as they are drawn, on the right half where a test doesn't tell otherwise.

namespace {

std::string PageOn(int page, int half = 2) {
    return PrintedPicture(
        DrawSystemPage,
        {.mode = 65, .unit = 2, .half = half, .side = 1, .narrow = false, .system_page = page});
}

class SystemPages : public testing::Test {
  protected:
    FakeHost host;
};

constexpr char kGreenLine[] = "stroke 0,250,0,255 2 ", kGreyLine[] = "stroke 107,164,214,255 1 ";

TEST_F(SystemPages, ElectricalFeedsFollowThePower) {
    std::string picture = PageOn(kElecPage);
    EXPECT_TRUE(Has(picture, std::string(kGreyLine) + "M 332 140 L 332 193"));
    EXPECT_TRUE(Has(picture, "233,183,62 \"L1 MAIN\""));  // amber below 180
    // the ground's power, with nothing else on line
    SetVariables("fwd_ext_pwr_avail 1, ext_ac_pwr 1, power_level 180");
    picture = PageOn(kElecPage);
    EXPECT_TRUE(Has(picture, std::string(kGreenLine) + "M 332 117 L 332 191"));
    EXPECT_TRUE(Has(picture, std::string(kGreenLine) + "M 357 117 L 357 191"));
    EXPECT_TRUE(Has(picture, "fill 0,250,0,255 M 332 188 L 337 193"));  // the diamond at the bus
    EXPECT_TRUE(Has(picture, "222,230,233 \"L1 MAIN\""));
    EXPECT_TRUE(Has(PageOn(kElecPage, 1), std::string(kGreenLine) + "M 50 117 L 50 191"));
    // the APU's takes over, and gives way to two generators
    SetVariables("apu_gen_pwr 1, running_gens 1");
    picture = PageOn(kElecPage);
    EXPECT_TRUE(Has(picture, std::string(kGreyLine) + "M 332 140 L 332 193"));
    EXPECT_TRUE(Has(picture, std::string(kGreenLine) + "M 413 93 L 413 191"));
    SetVariables("gen_l1_pwr 1, gen_l2_pwr 1, running_gens 2, drive_disc_r1 1");
    picture = PageOn(kElecPage);
    EXPECT_TRUE(Has(picture, std::string(kGreyLine) + "M 413 115 L 413 193"));
    EXPECT_TRUE(Has(picture, std::string(kGreenLine) + "M 332 241 L 332 256"));
    EXPECT_TRUE(Has(picture, "233,183,62 \"DRIVE\""));
    // what is shed
    const struct {
        int level;
        bool window_heat, comm, cabin, air;
    } kLevels[] = {{0, false, false, false, false},
                   {1, true, true, false, true},
                   {2, false, true, false, true},
                   {3, false, false, true, false}};
    for (const auto& row : kLevels) {
        electrical.load_shed_level = row.level;
        picture = PageOn(kElecPage);
        EXPECT_EQ(Has(picture, "\"WINDOW HEAT\""), row.window_heat) << row.level;
        EXPECT_EQ(Has(picture, "\"COMM/NAV\""), row.comm) << row.level;
        EXPECT_EQ(Has(picture, "\"CABIN LOADS\""), row.cabin) << row.level;
        EXPECT_EQ(Has(picture, "233,183,62 \"AIR\""), row.air) << row.level;
    }
}

TEST_F(SystemPages, StatusTellsReservoirsApuAndMemos) {
    SetVariables("tz_hyd_press_l 5000, tz_hyd_press_c 3000, apu_rpm 9.4");
    alerts.memo_list[1].text = "PARKING BRAKE SET";
    alerts.memo_count = 1;
    std::string picture = PageOn(kStatPage);
    for (const char* text : {"0.97", "0.98", "1.02", "5000.0", "PARKING BRAKE SET"})
        EXPECT_TRUE(Has(picture, Format("\"%s\"", text))) << text;
    EXPECT_TRUE(Has(picture, "stroke 107,164,214,255 1 M 294 85 L 552 85 L 555 88"));  // 264 by 50 from 291
    EXPECT_FALSE(Has(picture, "\"9.4\""));
    SetVariables("apu_switch 1");
    EXPECT_TRUE(Has(PageOn(kStatPage), "\"9.4\""));
    SetVariables("apu_switch 0, apu_rpm 9.5");
    EXPECT_TRUE(Has(PageOn(kStatPage), "\"9.5\""));
}

TEST_F(SystemPages, FlightControlModeGoesByComputersAndInertialUnits) {
    const struct {
        const char *state, *mode;
    } kModes[] = {{"PfcSwitch 4, irs_left 1", "DIRECT"},
                  {"PfcSwitch 7, irs_left 0, irs_right 0", "SECONDARY"},
                  {"PfcSwitch 7, irs_right 1", "NORMAL"}};
    for (const auto& row : kModes) {
        SetVariables(row.state);
        EXPECT_TRUE(Has(PageOn(kFctlPage), Format("\"%s\"", row.mode))) << row.state;
    }
}

// Where a live line and a dead one run together the live one is seen.
TEST_F(SystemPages, LiveFuelCoversWhatIsDead) {
    SetVariables("press_aft_l 20");
    const std::string picture = PageOn(kFuelPage);
    const std::size_t live = picture.find(std::string(kGreenLine) + "M 346 292");
    EXPECT_NE(live, std::string::npos);
    EXPECT_GT(live, picture.find(std::string(kGreyLine) + "M 408 292"));
}

TEST_F(SystemPages, KeysChoosePagesAndWarn) {
    SetVariables("fuel_status 8, elec_status 8");
    const std::string picture = PageOn(kStatPage);
    EXPECT_TRUE(Has(picture, "233,183,62 \"FUEL\""));
    EXPECT_TRUE(Has(picture, "0,0,0 \"ELEC\""));
    EXPECT_TRUE(Has(picture, "0,0,0 \"HYD\""));
    int& page = displays.du_capt_inb_r_sys_page;
    const auto touch = [](int x, int y) { TouchSystemPage({2, 2, x, y, 1}); };
    page = kStatPage;
    touch(91, 22);
    EXPECT_EQ(page, kElecPage);
    touch(94, 22);  // between two keys
    EXPECT_EQ(page, kElecPage);
    touch(277, 48);
    EXPECT_EQ(page, kCbPage);
    touch(91, 22);
    EXPECT_EQ(page, kCbPage);
    touch(130, 45);  // CB BY STATE
    EXPECT_EQ(displays.cb_view, 1);
    SetVariables("batt_pwr 1, cab_bus_on 1, ife_bus_on 1");
    EXPECT_TRUE(Has(PageOn(kCbPage), "NO CIRCUIT PROTECTION DEVICE FOUND"));
    SetVariables("ife_bus_on 0");
    EXPECT_TRUE(Has(PageOn(kCbPage), "IFE/PASS SEATS"));
    touch(55, 24);
    EXPECT_EQ(page, kStatPage);
    EXPECT_EQ(PageOn(12), "");
}

}  // namespace
