#include "systems/irs.h"

#include <gtest/gtest.h>

#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/irs.h"
#include "state/side.h"
#include "support/fake_host.h"

namespace {

TEST(Irs, AlignsAfterItsTimeInTicks) {
    FakeHost host;
    host.NamedVar("TZ_OH_IRS_RIGHT_Switch") = 0;
    ToggleIrsKnob(kFirstOfficer);
    EXPECT_EQ(host.NamedVar("TZ_OH_IRS_RIGHT_Switch"), 1);
    for (int tick = 0; tick < 179; ++tick) StepIrs();
    EXPECT_EQ(irs.irs_right, 0);
    StepIrs();
    EXPECT_EQ(irs.irs_right, 1);
    EXPECT_EQ(irs.irs_left, 0);
    ToggleIrsKnob(kFirstOfficer);
    EXPECT_EQ(irs.irs_right, 0);
    ToggleIrsKnob(kFirstOfficer);
    EXPECT_EQ(irs.irs_timer_r, 180);
    ToggleIrsKnob(kFirstOfficer);  // off during the alignment
    StepIrs();
    EXPECT_EQ(irs.irs_timer_r, 0);
    EXPECT_EQ(irs.irs_right, 0);
    cfg.IrsAlignSecs = 2000000000;  // as a file may have it
    ToggleIrsKnob(kFirstOfficer);
    EXPECT_GT(irs.irs_timer_r, 0);
    cfg.IrsAlignSecs = 0;
    ToggleIrsKnob(kCaptain);
    StepIrs();
    EXPECT_EQ(irs.irs_left, 1);
}

}  // namespace
