// The whole simulator around the module's file: lives in one process, one after the other.

#include "host/session.h"

#include <gtest/gtest.h>
#include <malloc.h>

#include <filesystem>
#include <string>

#include "host/flight.h"
#include "host/inspection.h"
#include "host/root_folder.h"
#include "host/world/world.h"
#include "support/all_variables.h"
#include "support/paths.h"

namespace {

using namespace host;

// Comes up with the demonstration's navigation data, flies a route for some seconds, reloads the aircraft in
// its midst and goes. Gives the state that it ended in.
std::string Live(const std::string& root) {
    world = {};
    flight = {};
    Session session;
    session.settings.module_file = BinaryDir() + "/tz900.gau";
    session.settings.root = root;
    session.settings.placed = true;
    session.settings.placement = {47.44, -122.30, 9000, 180, 280};
    session.settings.fdm = true;
    std::string error;
    EXPECT_TRUE(PrepareSession(session, error) && StartSession(session, error)) << error;
    if (session.linkage == nullptr) return {};
    EXPECT_TRUE(EnterRoute(session, "KSEA BTG J1 OED KSFO", error)) << error;
    EXPECT_TRUE(ExecuteRoute(session, error)) << error;
    for (int tick = 0; tick < 18 * 9; ++tick) TickSession(session, false);
    CallGauges(session, kServicePreKill);
    CallGauges(session, kServiceDisconnect);
    for (const int service : {kServiceConnectToWindow, kServicePreInstall, kServicePostInstall,
                              kServicePreInitialize, kServicePostInitialize})
        CallGauges(session, service);
    for (int tick = 0; tick < 18 * 3; ++tick) TickSession(session, false);
    std::string state = AllVariables(*session.linkage->inspection);
    StopSession(session);
    EXPECT_TRUE(world.key_hooks.empty());
    EXPECT_EQ(world.client_handler, nullptr);
    EXPECT_LT(HostOperationsOf()->find_named_var("lnav_hdg"), 0);
    return state;
}

TEST(Session, AHundredLivesAreTheSame) {
    std::string root, error;
    ASSERT_TRUE(MakePrivateRoot(SourceDir() + "/data/root", root, error)) << error;
    const std::string first = Live(root);
    EXPECT_NE(first.find("\nfms_fpln_active=3\n"), std::string::npos);
    const auto open_files = [] {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
    };
    const auto files = open_files();
    std::size_t settled = 0;
    for (int life = 1; life < 100; ++life) {
        const std::string state = Live(root);
        ASSERT_EQ(state, first) << "in life " << life;
        if (life == 9) settled = mallinfo2().uordblks;
    }
    // A leak of a kilobyte a life would stand out.
    EXPECT_LT(mallinfo2().uordblks, settled + 64 * 1024);
    EXPECT_EQ(open_files(), files) << "shared memory of the lives before";
    world = {};
    std::filesystem::remove_all(root);
}

}  // namespace
