#include "systems/irs.h"

#include <gtest/gtest.h>

#include "state/cfg.h"
#include "state/cockpit.h"
#include "state/irs.h"
#include "state/side.h"
#include "support/fake_host.h"

namespace {

void TurnKnob(int side) {
    int& knob = side == kCaptain ? cockpit.irs_left_knob : cockpit.irs_right_knob;
    knob = knob == 0 ? 1 : 0;
    FollowIrsKnob(side);
}

TEST(Irs, AlignsAfterItsTimeInTicks) {
    FakeHost host;
    TurnKnob(kFirstOfficer);
    for (int tick = 0; tick < 179; ++tick) StepIrs();
    EXPECT_EQ(irs.irs_right, 0);
    StepIrs();
    EXPECT_EQ(irs.irs_right, 1);
    EXPECT_EQ(irs.irs_left, 0);
    TurnKnob(kFirstOfficer);
    EXPECT_EQ(irs.irs_right, 0);
    TurnKnob(kFirstOfficer);
    EXPECT_EQ(irs.irs_timer_r, 180);
    TurnKnob(kFirstOfficer);  // off during the alignment
    StepIrs();
    EXPECT_EQ(irs.irs_timer_r, 0);
    EXPECT_EQ(irs.irs_right, 0);
    cfg.IrsAlignSecs = 2000000000;  // as a file may have it
    TurnKnob(kFirstOfficer);
    EXPECT_GT(irs.irs_timer_r, 0);
    cfg.IrsAlignSecs = 0;
    TurnKnob(kCaptain);
    StepIrs();
    EXPECT_EQ(irs.irs_left, 1);
}

}  // namespace
