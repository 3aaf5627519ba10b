#include "host/flightdeck/commands.h"

#include <gtest/gtest.h>

#include "host/flightdeck/control_sharing.h"
#include "host/world/world.h"

namespace {

using host::PressQueue;

class Presses : public testing::Test {
  protected:
    Presses() {
        host::world = host::World{};
        for (const char* name : {"TZ_FMC_L_A_Button", "TZ_FMC_L_B_Button", "TZ_FMC_R_A_Button"})
            host::CreateModelVariable(name);
    }
    ~Presses() override { host::world = host::World{}; }

    // The names pressed at a tick; they stay pressed as the cockpit model's do.
    std::string Tick() {
        std::string names;
        for (const host::DeckCommand& command : host::TakeDuePresses(queue)) {
            host::SetNamedValue(command.name, command.value);
            names += command.name + ' ';
        }
        return names;
    }
    void LetGo(const char* name) { host::SetNamedValue(name, 0); }

    PressQueue queue;
};

TEST_F(Presses, OfAPanelGoOneAtATimeInTheirOrder) {
    for (const char* name :
         {"TZ_FMC_L_B_Button", "TZ_FMC_L_A_Button", "TZ_FMC_L_A_Button", "TZ_FMC_R_A_Button"})
        host::QueuePress(queue, name, 1);
    EXPECT_EQ(Tick(), "TZ_FMC_L_B_Button TZ_FMC_R_A_Button ");
    EXPECT_EQ(Tick(), "") << "the system hasn't seen them yet";
    LetGo("TZ_FMC_L_B_Button");
    EXPECT_EQ(Tick(), "TZ_FMC_L_A_Button ");
    LetGo("TZ_FMC_L_A_Button");
    EXPECT_EQ(Tick(), "TZ_FMC_L_A_Button ") << "the second of the same key";
    LetGo("TZ_FMC_L_A_Button");
    EXPECT_EQ(Tick(), "");
}

TEST_F(Presses, DoNotWaitForeverForAControlThatNobodyLetsGo) {
    host::QueuePress(queue, "TZ_FMC_L_A_Button", 2);
    host::QueuePress(queue, "TZ_FMC_L_B_Button", 1);
    EXPECT_EQ(Tick(), "TZ_FMC_L_A_Button ");
    EXPECT_EQ(host::NamedValue("TZ_FMC_L_A_Button"), 2);
    int ticks = 1;
    while (Tick().empty() && ticks < 200) ++ticks;
    EXPECT_EQ(ticks, 3 * 18) << "three seconds";
}

TEST_F(Presses, AreBoundedAndOfKnownNames) {
    for (int i = 0; i < 1000; ++i) host::QueuePress(queue, "TZ_FMC_L_A_Button", 1);
    host::QueuePress(queue, "TZ_NOBODY_KNOWS_Button", 1);
    EXPECT_EQ(queue.panels.size(), 1U);
    EXPECT_LE(queue.panels["TZ_FMC_L"].waiting.size(), 100U);
}

TEST_F(Presses, ACommandForANameThatNobodyKnowsMakesNone) {
    host::Session session;
    ApplyDeckCommand(session, {host::DeckCommand::kNamedVariable, "TZ_NOBODY_KNOWS_Button", "", 1});
    EXPECT_FALSE(host::NamedVariableExists("TZ_NOBODY_KNOWS_Button"));
    ApplyDeckCommand(session, {host::DeckCommand::kNamedVariable, "TZ_FMC_L_A_Button", "", 1});
    EXPECT_EQ(host::NamedValue("TZ_FMC_L_A_Button"), 1);
}

TEST_F(Presses, LeversStayBetweenTheirStops) {
    host::Session session;
    const auto flaps = [&](double value) {
        ApplyDeckCommand(session, {.kind = host::DeckCommand::kLever, .name = "flaps", .value = value});
        return host::TokenOf(328);
    };
    EXPECT_EQ(flaps(0.5), 8192);
    EXPECT_EQ(flaps(7), 16384);
    EXPECT_EQ(flaps(-7), 0);
    const auto moved = [&](const char* name, double value) {
        ApplyDeckCommand(session, {.kind = host::DeckCommand::kLever, .name = name, .value = value});
        host::DispatchQueuedCalls();
    };
    moved("gear", 1);
    EXPECT_EQ(host::TokenOf(331), 1);
    moved("thrust", -1e12);
    EXPECT_EQ(host::TokenOf(128), -4096) << "a quarter, reverse";
    moved("thrust", 1e12);
    moved("thrust", std::nan(""));
    EXPECT_EQ(host::TokenOf(128), 16384);
    moved("speedbrake", -3);
    EXPECT_EQ(host::TokenOf(325), 0);
    moved("brakes", 9);
    EXPECT_EQ(host::world.stick.brakes, 1);
    moved("brakes", -9);
    EXPECT_EQ(host::world.stick.brakes, 0);
    EXPECT_FALSE(host::world.stick.in_hand);
    moved("aileron", -7);
    EXPECT_EQ(host::world.stick.roll, -1);
    EXPECT_TRUE(host::world.stick.in_hand);
    moved("trim", 1e12);
    EXPECT_EQ(host::world.stick.trim_clicks, 1);
}

TEST_F(Presses, OfAUserTakeTheThingFromThePilotUntilItIsGivenBack) {
    using host::DeckCommand;
    host::Session session;
    const DeckCommand flaps{.kind = DeckCommand::kLever, .name = "flaps", .value = 1};
    const DeckCommand gear{.kind = DeckCommand::kLever, .name = "gear", .value = 1};
    const DeckCommand up{.kind = DeckCommand::kLever, .name = "flaps", .value = 0};
    ApplyUserCommand(session, flaps);
    EXPECT_EQ(host::TellWhatUserHas(), "") << "there is no pilot to take it from";
    host::world.pilot_does = "climbing";
    ApplyUserCommand(session, flaps);
    ApplyPilotCommand(session, up);
    EXPECT_EQ(host::TokenOf(328), 16384);
    ApplyPilotCommand(session, gear);
    EXPECT_EQ(host::TokenOf(331), 1);
    ApplyUserCommand(session, {.kind = DeckCommand::kMouseArea, .name = "MCP", .text = "hdg +10"});
    EXPECT_EQ(host::TellWhatUserHas(), "flaps, heading");
    ApplyUserCommand(session, {.kind = DeckCommand::kControl, .value = 1});
    EXPECT_EQ(host::TellWhatUserHas(), "control");
    ApplyUserCommand(session, {.kind = DeckCommand::kControl, .value = 0});
    ApplyPilotCommand(session, up);
    EXPECT_EQ(host::TokenOf(328), 0);
}

}  // namespace
