#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "base/text.h"
#include "display/formats/pfd.h"
#include "display/pfd/baro.h"
#include "display/pfd/fma.h"
#include "display/pfd/pfd_memory.h"
#include "display/pfd/speed_marks.h"
#include "display/pfd/vertical_speed.h"
#include "state/airports.h"
#include "state/autoflight.h"
#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/identity.h"
#include "state/instruments.h"
#include "state/irs.h"
#include "state/lnav.h"
#include "state/nd.h"
#include "state/plan.h"
#include "state/side.h"
#include "state/sim.h"
#include "state/takeoff_approach.h"
#include "state/time_base.h"
#include "state/vnav.h"
#include "state/weights.h"
#include "support/fake_host.h"
#include "support/picture.h"
#include "support/set_variables.h"
#include "systems/flap_detents.h"

// The primary flight display as it is drawn. Unless a test tells otherwise it is the captain's wide one on
// the left: its middle at (191, 128).

namespace {

constexpr ContentPlace kWide{.mode = 2, .unit = 1, .half = 1, .side = 1, .narrow = false, .system_page = 0};

std::string Picture(const ContentPlace& place = kWide) {
    return PrintedPicture(DrawPfd, place);
}

// Whether a text stands in the picture, word for word.
bool Shows(const std::string& picture, const std::string& text) {
    return Has(picture, "\"" + text + "\"\n");
}

class PrimaryFlightDisplay : public testing::Test {
  protected:
    PrimaryFlightDisplay() {
        SetVariables("power_level 1000, du_pfd_ah_startup_cnt 10, irs_left 1, irs_right 1");
        SetVariables("baro_hpa 1000, baro_in 29.53, stpos 999, v_mo_kt 340, v_s_kt 100, v_a_kt 130");
    }
    FakeHost host;
};

TEST_F(PrimaryFlightDisplay, FlagsStandWhereThereIsNothingToShow) {
    SetVariables("du_pfd_ah_startup_cnt 9");
    std::string picture = Picture();
    for (const char* flag : {"ATT", "F/D", "RA", "V"}) EXPECT_TRUE(Shows(picture, flag)) << flag;
    EXPECT_TRUE(Has(picture, "stroke 233,183,62,255 1 M 91 115 L 99 115 L 99 142 L 91 142 Z"));      // SPD
    EXPECT_TRUE(Has(picture, "stroke 233,183,62,255 1 M 296 115 L 304 115 L 304 142 L 296 142 Z"));  // ALT
    EXPECT_TRUE(Has(picture, "stroke 233,183,62,255 1 M 336 110 L 344 110 L 344 145 L 336 145 Z"));  // VERT
    EXPECT_FALSE(Has(picture, "fill 34,61,134,255"));
    EXPECT_FALSE(Shows(picture, "60"));  // no tape

    SetVariables("du_pfd_ah_startup_cnt 10, irs_left 0, irs_right 0");
    picture = Picture();
    EXPECT_TRUE(Shows(picture, "ATT"));
    EXPECT_FALSE(Shows(picture, "F/D"));
    EXPECT_TRUE(Shows(picture, "60"));
    SetVariables("irs_right 1");
    EXPECT_FALSE(Shows(Picture(), "ATT"));
    SetVariables("power_level 5");  // the battery alone
    EXPECT_TRUE(Shows(Picture(), "ATT"));
}

TEST_F(PrimaryFlightDisplay, StandsInItsPlace) {
    // The triangle of the bank scale tells where the middle is, the speed tape's body where the speeds are.
    const struct {
        int half;
        bool narrow;
        const char *middle, *tape;
    } kPlaces[] = {{1, false, "M 191 58 L 194 53 L 188 53 Z", "M 65 28 L 100 28 L 100 228 L 65 228 Z"},
                   {2, false, "M 373 58 L 376 53 L 370 53 Z", "M 247 28 L 282 28 L 282 228 L 247 228 Z"},
                   {1, true, "M 121 58 L 124 53 L 118 53 Z", "M 4 28 L 39 28 L 39 228 L 4 228 Z"},
                   {2, true, "M 403 58 L 406 53 L 400 53 Z", "M 286 28 L 321 28 L 321 228 L 286 228 Z"}};
    for (const auto& row : kPlaces) {
        const std::string picture = Picture(
            {.mode = 80, .unit = 1, .half = row.half, .side = 1, .narrow = row.narrow, .system_page = 0});
        EXPECT_TRUE(Has(picture, std::string("fill 222,230,233,255 ") + row.middle)) << row.middle;
        EXPECT_TRUE(Has(picture, std::string("fill 139,156,175,51 ") + row.tape)) << row.tape;
    }
}

TEST_F(PrimaryFlightDisplay, HorizonStandsByPitchAndTurnsWithBank) {
    SetVariables("pitch_deg -5");  // nose up: the horizon is 15 below the middle
    std::string picture = Picture();
    EXPECT_TRUE(Has(picture, "fill 34,61,134,255 M -442 -442 L 442 0 L 442 143 L -442 143 Z"));
    EXPECT_TRUE(Has(picture, "fill 123,111,12,255 M -442 143 L 442 143 L 442 442 L -442 442 Z"));
    EXPECT_TRUE(Has(picture, "stroke 222,230,233,255 1 M 159 113 L 223 113"));  // ten degrees up: 15 - 30
    EXPECT_TRUE(Has(picture, "stroke 222,230,233,255 1 M 183 120.5 L 199 120.5"));
    SetVariables("pitch_deg 0, bank_deg 90");  // left wing straight down: the sky is on the right
    picture = Picture();
    EXPECT_TRUE(Has(picture, "stroke 222,230,233,255 1 M 261 128 L 253 132 L 253 124 Z"));  // pointer
    EXPECT_TRUE(Has(picture, "M 191 -505 L 191 379"));                                      // upright horizon
    // colours of the file, and the brightness
    cfg.PfdSkyColor = {100, 100, 200};
    cfg.DisplayUnitBrightness = 0.5;
    EXPECT_TRUE(Has(Picture(), "fill 50,50,100,255"));
}

TEST_F(PrimaryFlightDisplay, PitchLimitComesWithTheFlaps) {
    SetVariables("pli_margin 12500");  // 37 - 40 = -3
    EXPECT_FALSE(Has(Picture(), "M 221 125 L 233 125"));
    SetVariables("flap_pos 1");
    EXPECT_TRUE(Has(Picture(), "M 221 125 L 233 125"));
    SetVariables("pli_margin 25000");
    EXPECT_TRUE(Has(Picture(), "M 221 88 L 233 88"));
}

TEST_F(PrimaryFlightDisplay, FlightPathVectorStandsWhereTheAircraftGoes) {
    // 3040 ft/min at 180 kt are 1013 ft a mile: 10.13 degrees, 30.4 units above the horizon.
    SetVariables("capt.fpv_on 1, ground_speed_kt 180, vs_fpm 3000, true_track_deg 5, true_hdg 355");
    EXPECT_TRUE(Has(Picture(), "M 221 92 L 221 86")) << "ten degrees right and up, the horizon in the middle";
    SetVariables("tick_phase 8");
    EXPECT_TRUE(Has(Picture(), "M 221 92 L 221 86")) << "one in sight doesn't blink";
    SetVariables("true_track_deg 90, vs_fpm 30000");  // both beyond: 65 and 70
    EXPECT_FALSE(Has(Picture(), "M 256 52 L 256 46"));
    SetVariables("tick_phase 7");
    EXPECT_TRUE(Has(Picture(), "M 256 52 L 256 46"));
    SetVariables("ground_speed_kt 60, tick_phase 8");  // slow: in the middle, and never blinking
    EXPECT_TRUE(Has(Picture(), "M 191 122 L 191 116"));
    EXPECT_FALSE(Has(Picture({.mode = 2, .unit = 4, .half = 1, .side = 2, .narrow = false, .system_page = 0}),
                     "M 191 122 L 191 116"))
        << "the first officer's is off";
}

TEST_F(PrimaryFlightDisplay, DirectorMovesToWhereTheNoseShouldGo) {
    SetVariables("capt_fd_switch 1, fd_active 1, fd_roll_cmd -10, fd_pitch_cmd -2, pitch_deg 0");
    const auto level = [](double y) { return Format("M 146 %g L 236 %g", y, y); };
    StepPfdMemory();
    EXPECT_NEAR(instruments.fd_pitch_smooth, -0.11, 1e-9);
    for (int i = 0; i < 30; ++i) StepPfdMemory();
    EXPECT_NEAR(instruments.fd_pitch_smooth, -2, 1e-9);
    std::string picture = Picture();
    EXPECT_TRUE(Has(picture, "M 215 83 L 215 173"));  // ten degrees right are 24 units
    EXPECT_TRUE(Has(picture, level(122)));            // two degrees up are six
    SetVariables("fd_roll_cmd -90, fd_pitch_bar_off 1");
    picture = Picture();
    EXPECT_TRUE(Has(picture, "M 251 83 L 251 173"));  // at most 25
    EXPECT_FALSE(Has(picture, level(122)));
    SetVariables("fd_active 0");
    EXPECT_FALSE(Has(Picture(), "M 251 83 L 251 173"));
    // the chevron lies on the aircraft symbol when its roll and pitch are flown
    SetVariables(
        "fd_active 1, fd_pitch_bar_off 0, FlightDirectorDualCue 0, fd_roll_cmd 20, bank_deg 20, "
        "fd_pitch_smooth 0");
    EXPECT_TRUE(Has(Picture(), "fill 201,8,233,255 M 191 128 L 241 138 L 236 143 Z"));
}

TEST_F(PrimaryFlightDisplay, AdvisoryBoundsPitchAndVerticalSpeed) {
    SetVariables(
        "tcas_ra_level 2, tcas_pitch_max 5, tcas_pitch_min 99999, tcas_ra_vs_max -1500, "
        "tcas_ra_vs_min -9999");
    const std::string picture = Picture();
    EXPECT_TRUE(Has(picture, "stroke 255,0,0,255 2 M 176 113 L 206 113"));
    EXPECT_TRUE(Has(picture, "stroke 255,0,0,255 2 M 206 113 L 221 53"));
    EXPECT_TRUE(Has(picture, "stroke 255,0,0,255 4 M 339 58 L 339 166"));  // down to 38 below
    EXPECT_TRUE(Shows(picture, "TRAFFIC"));
    SetVariables("tcas_ra_level 0");
    EXPECT_FALSE(Has(Picture(), "stroke 255,0,0,255"));
}

TEST_F(PrimaryFlightDisplay, RadioAltitudeGrowsItsSteps) {
    const struct {
        double height;
        const char* shown;
    } kRows[] = {{-3, "  -3"},    {9.9, "   9"}, {10, "  10"},   {19.9, "  10"}, {500, " 500"},
                 {519.9, " 500"}, {520, " 520"}, {2499, "2480"}, {2500, "2500"}};
    for (const auto& row : kRows) {
        sim.radio_alt_ft = row.height;
        EXPECT_TRUE(Shows(Picture(), row.shown)) << row.height;
    }
    sim.radio_alt_ft = 2500.1;
    EXPECT_FALSE(Has(Picture(), "fill 0,0,0,255 M 171 218 L 211 218"));
}

TEST_F(PrimaryFlightDisplay, SpeedTapeStandsStillBelowThirty) {
    SetVariables("ias_kt 0, ap_spdbug 250");
    std::string picture = Picture();
    EXPECT_TRUE(Has(picture, "clip M 71 28 L 146 28 L 146 228 L 71 228 Z"));
    EXPECT_TRUE(Has(picture, "stroke 222,230,233,255 1 M 94 128 L 101 128"));  // 30 in the middle
    EXPECT_TRUE(Has(picture, "stroke 222,230,233,255 1 M 94 113 L 101 113"));  // 40 above it
    EXPECT_FALSE(Has(picture, "M 94 143 L 101 143"));                          // nothing below
    EXPECT_TRUE(Has(picture, "stroke 201,8,233,255 1.5 M 95 28 L 100 23"));    // the bug at the end
    SetVariables("ias_kt 150, spd_trend 170");
    picture = Picture();
    EXPECT_TRUE(Has(picture, "stroke 0,250,0,255 1.5 M 98 128 L 98 99"));  // 20 x 1.45
    EXPECT_TRUE(Has(picture, "fill 0,250,0,255 M 98 99"));
    SetVariables("spd_trend 152");  // two knots: no arrow head
    EXPECT_FALSE(Has(Picture(), "fill 0,250,0,255"));
}

TEST_F(PrimaryFlightDisplay, SpeedLimitsShowInTheAir) {
    SetVariables("ias_kt 150, v_mo_kt 180, v_s_kt 110, v_a_kt 130, radio_alt_ft 10");
    EXPECT_FALSE(Has(Picture(), "fill 255,0,0,255"));
    SetVariables("radio_alt_ft 11");
    std::string picture = Picture();
    EXPECT_TRUE(Has(picture, "fill 255,0,0,255 M 101 79 L 106 79 L 106 83 L 101 83 Z"));      // 45 up: 83
    EXPECT_TRUE(Has(picture, "fill 255,0,0,255 M 101 188 L 106 188 L 106 192 L 101 192 Z"));  // 60 down
    EXPECT_TRUE(Has(picture, "stroke 233,183,62,255 1 M 104 158 L 104 188"));
    SetVariables("v_mo_kt 10");  // far exceeded: the band begins at the tape's end
    EXPECT_FALSE(Has(Picture(), "fill 255,0,0,255 M 101 79"));
}

TEST_F(PrimaryFlightDisplay, TakeoffSpeedsShowAsTheyAreFlown) {
    const struct {
        const char* state;
        bool v1, vr, r, v2, none;
    } kRows[] = {
        {"vr 0, v1 0, v2 0, radio_alt_ft 0", false, false, false, false, true},
        {"radio_alt_ft 30", false, false, false, false, false},
        {"vr 140, v1 136, v2 144, radio_alt_ft 0", true, true, false, true, false},
        {"v1 137", false, false, true, true, false},
        {"v1 136, v2 143", false, false, true, true, false},
        {"v1 0, v2 150", false, false, true, true, false},  // a rotation speed alone
        {"v1 136, fplog_mode 5", false, false, false, true, false},
        {"fplog_mode 999", true, true, false, true, false},
        {"radio_alt_ft 30", false, false, false, true, false},
        {"vspeed_bugs_removed 1", false, false, false, false, false},
    };
    SetVariables("ias_kt 140, fplog_mode -1, flap_speed_row 0");
    for (const auto& row : kRows) {
        SetVariables(row.state);
        const std::string picture = Picture();
        EXPECT_EQ(Shows(picture, "V1"), row.v1) << row.state;
        EXPECT_EQ(Shows(picture, "VR"), row.vr) << row.state;
        EXPECT_EQ(Shows(picture, "R"), row.r) << row.state;
        EXPECT_EQ(Shows(picture, "V2"), row.v2) << row.state;
        EXPECT_EQ(Shows(picture, "NO"), row.none) << row.state;
    }
    SetVariables("vr 140, v1 0");
    StepPfdMemory();
    EXPECT_EQ(takeoff_approach.v1, 140);
}

TEST_F(PrimaryFlightDisplay, FlapSpeedsShowWhatComesNext) {
    weights.flap_speeds[1] = {400000, 210, 200, 190, 180, 175, 170, 165};
    SetVariables("ias_kt 185, flap_speed_row 1, v2 0, vr 100, v1 100, fplog_mode 5, radio_alt_ft 3000");
    identity.aircraft_model = "900-9";
    const struct {
        double raw;
        int tod;
        const char* shown;
    } kRows[] = {{0, 0, "UP"},
                 {1820, 0, "UP 1"},
                 {5461, 0, "UP 1 5"},
                 {9102, 0, "UP 1 5 15"},
                 {0, 1, "UP 1 5 15 20 25 30"},
                 {3640, 1, "UP 5 15 20 25 30"},
                 {12743, 1, "UP 20 25 30"},
                 {14563, 1, "UP 30"},
                 {16384, 1, "UP"}};
    for (const auto& row : kRows) {
        sim.flap_pos = row.raw;
        vnav.tod = row.tod;
        StepPfdMemory();
        const std::string picture = Picture();
        std::string shown;
        for (const char* label : {"UP", "1", "5", "15", "20", "25", "30"})
            if (Has(picture, std::string("0,250,0 \"") + label + "\"")) shown += std::string(" ") + label;
        EXPECT_EQ(shown, std::string(" ") + row.shown) << row.raw;
    }
    identity.aircraft_model = "900-8";
    sim.flap_pos = 7021;
    EXPECT_EQ(FlapDetent(), 15);
    SetVariables("ind_alt_ft 20000, vref 142.4, ldg_flaps 25");
    const std::string picture = Picture();
    EXPECT_FALSE(Shows(picture, "UP"));
    EXPECT_TRUE(Shows(picture, "25/142"));
}

TEST_F(PrimaryFlightDisplay, AltitudeTapeAndItsReadouts) {
    SetVariables("ind_alt_ft 10000, apalt 10300, vs_fpm 600, capt.mtrs_on 1");
    std::string picture = Picture();
    EXPECT_TRUE(Has(picture, "stroke 222,230,233,255 1 M 281 103.45 L 288 103.45"));  // 100 ft: 24.55
    EXPECT_TRUE(Has(picture, "stroke 222,230,233,255 1 M 288 120 L 321 120"));        // a thousand's lines
    EXPECT_TRUE(Has(picture, "stroke 222,230,233,255 1 M 288 134 L 321 134"));
    EXPECT_TRUE(Has(picture, "stroke 201,8,233,255 1.5 M 281 54.35 L 276 49.35"));  // 300 ft: 73.65
    EXPECT_TRUE(Has(picture, "stroke 0,250,0,255 1.5 M 288 128 L 288 113.27"));     // 60 ft: 14.73
    for (const char* text : {"10", "200", " 9", "800", "300", " 3048", " 3140"})
        EXPECT_TRUE(Shows(picture, text)) << text;
    SetVariables("apalt 40000, vs_fpm 50, tz_altitude_alert 1");
    picture = Picture();
    EXPECT_TRUE(Has(picture, "stroke 201,8,233,255 1.5 M 281 28 L 276 23"));
    EXPECT_FALSE(Has(picture, "stroke 0,250,0,255 1.5 M 288 128"));
    EXPECT_TRUE(Has(picture, "stroke 233,183,62,255 1 M 286 128 L 291 125"));
    // the counter: below zero a sign, and steps that turn the other way
    SetVariables("ind_alt_ft -30");
    picture = Picture();
    EXPECT_TRUE(Shows(picture, "-"));
    EXPECT_TRUE(Shows(picture, "-200"));
}

TEST_F(PrimaryFlightDisplay, LandingAltitudeIsTheNearerField) {
    plan.active.ends.dest = "KLAX";
    airports.dest_airport.ident = "KLAX";
    airports.dest_airport.lat = 34;
    airports.dest_airport.elevation_ft = 400;
    airports.origin_airport.ident = "KSEA";
    airports.origin_airport.lat = 47;
    airports.origin_airport.elevation_ft = 600;
    SetVariables("ind_alt_ft 500, minimums_value 200, plane_lat 35");
    // 100 ft below: 24.55
    EXPECT_TRUE(Has(Picture(), "stroke 233,183,62,255 1.5 M 281 152.55 L 321 152.55"));
    EXPECT_TRUE(Has(Picture(), "stroke 0,250,0,255 1 M 281 103.45 L 321 103.45"));
    SetVariables("plane_lat 46");
    EXPECT_TRUE(Has(Picture(), "stroke 233,183,62,255 1.5 M 281 103.45 L 321 103.45"));
    airports.origin_airport.lat = 80;  // the destination is nearer, but 720 nm away
    EXPECT_FALSE(Has(Picture(), "stroke 233,183,62,255 1.5 M 281"));
}

TEST_F(PrimaryFlightDisplay, VerticalSpeedScaleIsWideAboutZero) {
    const std::pair<double, double> kLaw[] = {{0, 0},     {500, 14},  {1000, 28}, {1500, 38},  {2000, 48},
                                              {4000, 56}, {6000, 64}, {8000, 64}, {-1500, -38}};
    for (const auto& [speed, units] : kLaw) EXPECT_NEAR(VerticalSpeedUnits(speed), units, 1e-9) << speed;
    SetVariables("vs_fpm -499, ap_vert_mode 2, ap_vsbug 1000");
    const std::string picture = Picture();
    EXPECT_TRUE(Shows(picture, " 400"));
    EXPECT_TRUE(Has(picture, "stroke 201,8,233,255 3 M 333 100 L 339 100"));
    SetVariables("vs_fpm 399");
    EXPECT_FALSE(Shows(Picture(), " 300"));
}

TEST_F(PrimaryFlightDisplay, SelectedSpeedIsTheWindowsOrTheProfilesMach) {
    const struct {
        const char *state, *shown;
    } kRows[] = {{"ap_spdbug 280, ap_machbug 0.8, vnav_spd_readback 0.84", "280"},
                 {"mach_selected 1", ".800"},
                 {"mach_selected 0, vnav_engaged 1, at_mode 3, tz_spd_intv_active 1", ".800"},
                 {"tz_spd_intv_active 0", ".840"},
                 {"vnav_spd_readback 2, at_mode 2", "280"}};
    for (const auto& row : kRows) {
        SetVariables(row.state);
        StepPfdMemory();
        EXPECT_TRUE(Has(Picture(), std::string("201,8,233 \"") + row.shown)) << row.state;
    }
}

TEST_F(PrimaryFlightDisplay, MachAppearsInABox) {
    SetVariables("mach 0.399");
    StepPfdMemory();
    EXPECT_EQ(instruments.mach_box_timer, 0);
    SetVariables("mach 0.4");
    StepPfdMemory();
    std::string picture = Picture();
    EXPECT_TRUE(Shows(picture, ".400"));
    EXPECT_TRUE(Has(picture, "stroke 222,230,233,255 1 M 60 236 L 102 236 L 102 253 L 60 253 Z"));
    for (int tick = 0; tick < 179; ++tick) StepPfdMemory();
    EXPECT_EQ(instruments.mach_box_timer, 1);
    StepPfdMemory();
    EXPECT_EQ(instruments.mach_box_timer, 0);
    SetVariables("mach 1.012");
    EXPECT_TRUE(Shows(Picture(), "1.012"));
}

TEST_F(PrimaryFlightDisplay, AnnunciatorNamesTheModes) {
    const struct {
        const char* state;
        const char *throttle, *roll, *pitch, *roll_armed, *pitch_armed;
    } kRows[] = {
        {"at_mode 3, ap_lat_mode 3, ap_vert_mode 4", "MACH", "HDG SEL", "FLCH", "", ""},
        {"ap_vert_mode 5, ap_lat_mode_armed 6", "SPD", "HDG SEL", "VNAV SPD", "LNAV", ""},
        {"ap_vert_mode 6, at_armed_left 1, ap_lat_mode 6", "L-SPD", "LNAV", "VNAV PTH", "LNAV", ""},
        {"at_armed_right 1, at_mode 10, ap_vert_mode 12, ap_vert_mode_armed 5", "THR", "LNAV", "TO/GA",
         "LNAV", "VNAV"},
        {"at_armed_left 0, at_mode 8, ap_vert_mode 7, ap_vert_mode_armed 13", "R-HOLD", "LNAV", "", "LNAV",
         "G/P"},
        {"at_mode 7, ap_lat_mode 11, ap_lat_mode_armed 10", "", "", "", "FAC", "G/P"},
        {"LnavDefAp 1, lnav_engaged 1, ap_vert_mode 11", "", "LNAV", "FLARE", "FAC", "G/P"},
    };
    for (const auto& row : kRows) {
        SetVariables(row.state);
        EXPECT_EQ(AutothrottleTexts().active, row.throttle) << row.state;
        EXPECT_EQ(RollTexts().active, row.roll) << row.state;
        EXPECT_EQ(RollTexts().armed, row.roll_armed) << row.state;
        EXPECT_EQ(PitchTexts().active, row.pitch) << row.state;
        EXPECT_EQ(PitchTexts().armed, row.pitch_armed) << row.state;
    }
    SetVariables("fma_roll_timer 1, fd_pitch_bar_off 1");
    const std::string picture = Picture();
    EXPECT_TRUE(Has(picture, "stroke 0,250,0,255 1 M 164 3 L 214 3 L 214 12 L 164 12 Z"));
    EXPECT_FALSE(Has(picture, "stroke 0,250,0,255 1 M 223 3"));
    EXPECT_TRUE(Has(picture, "stroke 222,230,233,255 1 M 231 8 L 261 8"));
}

TEST_F(PrimaryFlightDisplay, StatusTellsWhatFlies) {
    const struct {
        const char *state, *text;
        bool boxed;
    } kRows[] = {
        {"radio_alt_ft 3000", "", false},
        {"capt_fd_switch 1", "FLT DIR", true},
        {"ap_master_r 1, ap_status_timer 1", "A/P", true},
        {"ap_lat_mode 7, ap_vert_mode 10, radio_alt_ft 1500, ap_status_timer 0", "A/P", false},
        {"radio_alt_ft 1499", "LAND 3", false},
        {"ap_master_r 0", "FLT DIR", true},
        {"ap_lat_mode 10, ap_vert_mode 13, radio_alt_ft 100", "FLT DIR", true},
        {"capt_fd_switch 0, radio_alt_ft 99", "NO AUTOLAND", false},  // nobody needs to fly
    };
    for (const auto& row : kRows) {
        SetVariables(row.state);
        StepPfdMemory();
        const std::string picture = Picture();
        for (const char* text : {"FLT DIR", "A/P", "LAND 3", "NO AUTOLAND"})
            EXPECT_EQ(Shows(picture, text), std::string(text) == row.text) << row.state << text;
        EXPECT_EQ(Has(picture, "stroke 0,250,0,255 1 M 165 38 L 225 38"), row.boxed) << row.state;
    }
}

TEST_F(PrimaryFlightDisplay, BaroIsBoxedWhereItDoesNotFitTheAltitude) {
    SetVariables("TransAlt 18000, ind_alt_ft 18001, apalt 30000, baro_in 29.53, baro_hpa 1000.1");
    StepPfdMemory();
    EXPECT_TRUE(IsBaroCautioned());
    EXPECT_TRUE(Shows(Picture(), "29.53"));
    SetVariables("capt.baro_hpa 1, tod 1");
    EXPECT_FALSE(IsBaroCautioned());
    EXPECT_TRUE(Shows(Picture(), "1000"));
    EXPECT_TRUE(Shows(Picture(), "HPA"));
    SetVariables("baro_hpa 1013, baro_in 29.92, tod 0");  // the preset stays
    StepPfdMemory();
    std::string picture = Picture();
    EXPECT_FALSE(IsBaroCautioned());
    EXPECT_TRUE(Shows(picture, "STD"));
    EXPECT_TRUE(Shows(picture, "1000 HPA"));
    SetVariables("ind_alt_ft 17999, capt.baro_hpa 0");
    EXPECT_FALSE(IsBaroCautioned()) << "on the way up";
    SetVariables("apalt 10000");
    EXPECT_TRUE(IsBaroCautioned());
    picture = Picture();
    EXPECT_TRUE(Has(picture, "stroke 233,183,62,255 1 M 285 233 L 310 233 L 310 246 L 285 246 Z"));
    EXPECT_TRUE(Shows(picture, "29.53 IN"));
    SetVariables("baro_hpa 1013.4");
    EXPECT_FALSE(Shows(Picture(), "STD"));
}

TEST_F(PrimaryFlightDisplay, MinimumsAlertWhenSunkThrough) {
    SetVariables("minimums_value 200, radio_alt_ft 300");
    StepPfdMemory();
    EXPECT_TRUE(Has(Picture(), "0,250,0 \"RADIO\""));
    SetVariables("radio_alt_ft 199, tick_phase 7");
    StepPfdMemory();
    EXPECT_TRUE(Has(Picture(), "233,183,62 \"RADIO\""));
    SetVariables("tick_phase 8");
    EXPECT_FALSE(Shows(Picture(), "RADIO"));
    SetVariables("on_ground 1");
    StepPfdMemory();
    EXPECT_TRUE(Shows(Picture(), "200"));
    SetVariables("minimums_mode 2");
    EXPECT_FALSE(Shows(Picture(), "RADIO"));
    SetVariables("minimums_mode 0, minimums_baro 1");
    EXPECT_TRUE(Shows(Picture(), "BARO"));
}

TEST_F(PrimaryFlightDisplay, ApproachSourceNamesItself) {
    EXPECT_TRUE(Shows(Picture(), "FMC"));
    SetVariables("nav1_is_loc 1, nav1_signal 1, nav1_course 7, nav1_ident ISEA");
    std::string picture = Picture();
    EXPECT_TRUE(Shows(picture, "ISEA/007\u00b0"));
    EXPECT_TRUE(Shows(picture, "DME ---"));
    airports.dest_airport.runway_cnt = 1;
    RunwayData& runway = airports.dest_airport.runways[1];
    runway.ident = "24R";
    runway.ils_ident = "IOSS";
    runway.ils_freq = "108.50";
    runway.course = 248.6;
    plan.mod.procedures.fms_dest_rwy_pos = 1;
    plan.mod.procedures.arr_appr_rwy = "24R";
    plan.mod.procedures.appr_type = "ILS";
    SetVariables("nav1_dme 9.96, stpos 3, ilsfreq 10850");
    picture = Picture();
    EXPECT_TRUE(Shows(picture, "IOSS/249\u00b0"));
    EXPECT_TRUE(Shows(picture, "DME 10.0"));
    EXPECT_TRUE(Shows(picture, "ILS"));
    plan.mod.procedures.appr_type = "RNV";
    plan.final_appr_crs = 249;
    SetVariables("nav1_signal 0, ap_lat_mode_armed 10");
    picture = Picture();
    EXPECT_TRUE(Shows(picture, "RNV24R/249\u00b0"));
    EXPECT_TRUE(Shows(picture, "RW24R 0.0"));
    SetVariables("marker_state 2");
    EXPECT_TRUE(Shows(Picture(), "MM"));
    SetVariables("tick_phase 8");
    EXPECT_FALSE(Shows(Picture(), "MM"));
}

TEST_F(PrimaryFlightDisplay, DeviationsComeFromWhatIsFlown) {
    // the pointers' first points: a diamond's left one, a triangle's tip
    EXPECT_FALSE(Has(Picture(), "fill 201,8,233,255")) << "nothing is flown";
    SetVariables("stpos 1, xtk 2.5, xtk_side 1");
    std::string picture = Picture();
    EXPECT_TRUE(Has(picture, "fill 201,8,233,255 M 208 243 L 213 255 L 203 255 Z")) << "left of it: 17 right";
    EXPECT_TRUE(Has(picture, "fill 222,230,233,255 M 222 240 L 231 240 L 231 248 L 222 248 Z"));
    SetVariables("xtk 20, xtk_side 2");
    EXPECT_TRUE(Has(Picture(), "fill 201,8,233,255 M 157 243")) << "at most five miles";
    SetVariables("tod 1, ind_alt_ft 10200, desc_grad_alt 10000, dist_from_tod_to_bod 100, dist_from_bod 60");
    EXPECT_TRUE(Has(Picture(), "fill 201,8,233,255 M 263 145 L 275 140 L 275 150 Z"))
        << "200 ft high: 17 down";
    SetVariables("desc_grad_alt 11000");
    EXPECT_TRUE(Has(Picture(), "fill 201,8,233,255 M 263 94"));
    SetVariables("dist_from_bod 100");
    EXPECT_FALSE(Has(Picture(), "fill 201,8,233,255 M 263"));

    SetVariables("fac_approach 1, tod 1, RnpEntry 0.5, fac_lat_needle 63.5, gp_needle -127");
    picture = Picture();  // blocks from 34 x 0.45/0.5 = 30.6
    EXPECT_TRUE(Has(picture, "fill 222,230,233,255 M 221.6 240 L 231 240 L 231 248 L 221.6 248 Z"));
    EXPECT_TRUE(Has(picture, "fill 201,8,233,255 M 208 243"));
    EXPECT_TRUE(Has(picture, "fill 201,8,233,255 M 263 94"));

    SetVariables("nav1_is_loc 1, nav1_signal 1, loc_needle -127, gs_needle 63.5");
    picture = Picture();
    EXPECT_TRUE(Has(picture, "fill 201,8,233,255 M 153 246.5"));  // 34 left
    EXPECT_TRUE(Has(picture, "fill 201,8,233,255 M 262 145"));    // 17 down: too high
    SetVariables("irs_left 0, irs_right 0");
    EXPECT_FALSE(Has(Picture(), "fill 201,8,233,255"));
}

TEST_F(PrimaryFlightDisplay, CompassTurnsUnderTheHeading) {
    SetVariables("mag_hdg 355, ap_hdgbug 5");
    std::string picture = Picture();
    // heading up at (191, 370); north stands five degrees right: 62 sin 5 = 5.4, 62 cos 5 = 61.8
    EXPECT_TRUE(Has(picture, "M 197.1 300.27 L 196.4 308.24"));
    EXPECT_TRUE(Has(picture, "stroke 201,8,233,255 1 M 191 370 L 203.16 301.06"));  // the bug: ten
    EXPECT_TRUE(Shows(picture, "MAG"));
    EXPECT_TRUE(Shows(picture, "HDG"));
    SetVariables("TZ_OH_HDG_REF_Button 1, true_hdg 0, hdg_trk_mode 1");
    picture = Picture();
    EXPECT_TRUE(Has(picture, "M 191 300 L 191 308"));
    EXPECT_TRUE(Shows(picture, "TRU"));
    EXPECT_TRUE(Shows(picture, "TRK"));
}

TEST_F(PrimaryFlightDisplay, DataStripTellsWhatIsAround) {
    SetVariables(
        "stpos 999, adf1_freq 8.5, adf2_freq 350.04, ground_speed_kt 0.3, tas_kt 99.9, radio_alt_ft 4");
    std::string picture = Picture();
    for (const char* text : {"------", "0000.0", "0350.0", "GS"}) EXPECT_TRUE(Shows(picture, text)) << text;
    EXPECT_FALSE(Shows(picture, "TAS"));
    EXPECT_FALSE(Has(picture, "\u00b0/")) << "no wind on the ground";
    plan.active.legs[2].ident = "OED";
    SetVariables("stpos 2, wpt_dist 60.96, ground_speed_kt 50, adf2_freq 1350.04");
    picture = Picture();
    for (const char* text : {"OED", "   61.0", "------", "1350.0"}) EXPECT_TRUE(Shows(picture, text)) << text;
    // 23:58:30 and 60 nm at 480 kt, 7.5 minutes: 00:06.0
    SetVariables(
        "ground_speed_kt 480, wpt_dist 60, utc_hours 23, utc_minutes 58, utc_seconds 30, tas_kt 100");
    SetVariables("radio_alt_ft 4.1, wind_kt 30, wind_dir 10, mgvar 15");
    picture = Picture();
    for (const char* text : {"0006.0", "480", "TAS", "355\u00b0/30"})
        EXPECT_TRUE(Shows(picture, text)) << text;
    NdOf(kCaptain).nd_tfc = 2;
    cockpit.TZ_AFT_Transponder_Knob = 2;
    EXPECT_TRUE(Shows(Picture(), "OFF"));
    cockpit.TZ_AFT_Transponder_Knob = 3;
    EXPECT_TRUE(Shows(Picture(), "TA ONLY"));
    cockpit.TZ_AFT_Transponder_Knob = 4;
    EXPECT_TRUE(Shows(Picture(), "TFC"));
    // aligning on the stand
    SetVariables(
        "irs_left 0, irs_right 0, irs_left_knob 1, irs_timer_l 179, irs_timer_r 0, ground_speed_kt 4.9");
    picture = Picture();
    for (const char* text : {"TIME TO", "ALIGN", "9"}) EXPECT_TRUE(Shows(picture, text)) << text;
    SetVariables("irs_left_knob 0, irs_timer_l 0");
    EXPECT_FALSE(Shows(Picture(), "GS"));
}

// Whatever the host gives, a picture comes of it, and nothing in it is no number.
TEST_F(PrimaryFlightDisplay, SurvivesAnyNumber) {
    double SimSnapshot::*const kMembers[] = {
        &SimSnapshot::ias_kt,    &SimSnapshot::ind_alt_ft, &SimSnapshot::radio_alt_ft,
        &SimSnapshot::vs_fpm,    &SimSnapshot::mach,       &SimSnapshot::ground_speed_kt,
        &SimSnapshot::pitch_deg, &SimSnapshot::bank_deg,   &SimSnapshot::true_track_deg,
        &SimSnapshot::true_hdg,  &SimSnapshot::mag_hdg,    &SimSnapshot::ap_spdbug,
        &SimSnapshot::apalt,     &SimSnapshot::v_s_kt,     &SimSnapshot::v_a_kt,
        &SimSnapshot::v_mo_kt,   &SimSnapshot::pli_margin, &SimSnapshot::slip_value,
        &SimSnapshot::baro_hpa,  &SimSnapshot::baro_in,    &SimSnapshot::loc_needle,
        &SimSnapshot::gs_needle, &SimSnapshot::nav1_dme,   &SimSnapshot::nav1_course,
        &SimSnapshot::wind_dir,  &SimSnapshot::wind_kt,    &SimSnapshot::adf1_freq,
        &SimSnapshot::ap_hdgbug, &SimSnapshot::ap_machbug, &SimSnapshot::tas_kt,
        &SimSnapshot::plane_lat, &SimSnapshot::mgvar,      &SimSnapshot::flap_pos};
    SetVariables(
        "capt.fpv_on 1, capt.mtrs_on 1, capt_fd_switch 1, fd_active 1, stpos 1, ap_vert_mode 2, "
        "nav1_is_loc 1, nav1_signal 1, tcas_ra_level 1, vref 140, tod 1");
    plan.active.ends.dest = airports.dest_airport.ident = "KLAX";
    const double kValues[] = {0,
                              -1,
                              1e300,
                              -1e300,
                              std::numeric_limits<double>::quiet_NaN(),
                              std::numeric_limits<double>::infinity()};
    for (const double value : kValues) {
        for (const auto member : kMembers) sim.*member = value;
        StepPfdMemory();
        for (const int beam : {0, 1}) {
            sim.nav1_is_loc = beam;
            autoflight.fac_lat_needle = autoflight.gp_needle = lnav.xtk = vnav.desc_grad_alt = lnav.wpt_dist =
                value;
            const std::string picture = Picture();
            EXPECT_FALSE(Has(picture, "nan")) << value;
            EXPECT_FALSE(Has(picture, "inf")) << value;
            EXPECT_LT(picture.size(), 100000U) << value;
        }
    }
    EXPECT_TRUE(std::isfinite(instruments.fd_pitch_smooth));
}

}  // namespace
