#include "host/flightdeck/commands.h"

#include <gtest/gtest.h>

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
    ApplyDeckCommand(session, {.kind = host::DeckCommand::kLever, .name = "gear", .value = 1});
    EXPECT_EQ(host::TokenOf(331), 1);
}

}  // namespace
