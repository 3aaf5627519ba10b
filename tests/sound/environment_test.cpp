#include "sound/environment.h"

#include <gtest/gtest.h>

#include "state/sound.h"
#include "support/fake_host.h"
#include "support/set_variables.h"

namespace {

TEST(Environment, SoundsFollowThePowerInTheirTime) {
    FakeHost host;
    SetVariables("env_battery_timer 180, env_quiet_start_timer 10, env_quiet_timer 12, env_loud_timer 20");
    const auto run = [](int seconds) {
        for (; seconds > 0; --seconds) StepEnvironmentTimers();
    };
    run(9);
    EXPECT_EQ(sound.event_cue, 0);
    run(1);
    EXPECT_EQ(sound.event_cue, 27);
    run(1);
    EXPECT_EQ(sound.env_sound_request, 0);
    run(1);
    EXPECT_EQ(sound.env_sound_request, 28);
    run(8);
    EXPECT_EQ(sound.env_sound_request, 29);
    run(159);
    EXPECT_EQ(sound.sounds_to_stop, 0);
    run(1);
    EXPECT_EQ(sound.sounds_to_stop, 1 << 25);
    SetVariables("event_cue 0");
    run(30);
    EXPECT_EQ(sound.event_cue, 0) << "once";
}

}  // namespace
