// Every painted gauge with a worker of its own, as in a simulator, while the host flies on. Says most under
// ThreadSanitizer; TZ900_THREAD_SECONDS tells how long the workers paint.

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <map>
#include <string>
#include <thread>

#include "host/inspection.h"
#include "host/session.h"
#include "host/world/world.h"
#include "support/paths.h"

namespace {

using namespace host;
using Clock = std::chrono::steady_clock;

constexpr int kPaintedGauges = 18;
constexpr int kMainPanelWindow = 0;

double SecondsToPaint() {
    const char* text = std::getenv("TZ900_THREAD_SECONDS");
    return text != nullptr ? std::atof(text) : 2;
}

// Takes pictures as a browser's connection would, until told to stop: the highest number of each gauge.
struct Viewer {
    explicit Viewer(const ModuleLinkage& linkage) : thread([this, &linkage] { Look(linkage); }) {}
    void Stop() {
        stop = true;
        thread.join();
    }
    void Look(const ModuleLinkage& linkage) {
        const ByteSink keep = [](void* number, const uint8_t*, size_t, uint64_t picture) {
            *static_cast<uint64_t*>(number) = picture;
        };
        while (!stop) {
            for (int i = 0; i < linkage.gauge_count; ++i) {
                const std::string name = linkage.gauges[i].name;
                uint64_t& number = pictures[name];
                linkage.inspection->picture(name.c_str(), number, keep, &number);
                if (name == "DU_LOWER_PW") lower_pictures = number;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(3));
        }
    }
    std::map<std::string, uint64_t> pictures;
    std::atomic<uint64_t> lower_pictures = 0;
    std::atomic<bool> stop = false;
    std::thread thread;
};

constexpr const char* kKeys[] = {"TZ_FMC_L_B_Button",     "TZ_FMC_R_NXTPG_Button", "TZ_MCP_L_CDU_Button",
                                 "TZ_MCP_L_EICAS_Button", "TZ_FMC_L_CLR_Button",   "TZ_MCP_R_SYS_Button",
                                 "TZ_FMC_R_EXEC_Button",  "TZ_MCP_L_INFO_Button",  "TZ_MCP_L_ND_Button"};

constexpr uint64_t kEnoughPictures = 4;
constexpr std::chrono::seconds kPatience{60};  // on a machine that is busy with other things

void Fly(Session& session, const Viewer& viewer, Clock::time_point until) {
    const auto goes_on = [&] {
        return Clock::now() < until ||
               (viewer.lower_pictures < kEnoughPictures && Clock::now() < until + kPatience);
    };
    for (int tick = 0; goes_on(); ++tick) {
        TickSession(session, tick % 7 == 0);
        CallGauges(session, kServicePreDraw);
        if (tick % 5 == 0)
            session.linkage->inspection->write_variable(
                "du_lower_mode", std::to_string(3 + tick / 5 % 63).c_str(),
                [](void*, const char*, const char*) {}, nullptr);
        if (tick % 8 == 0) SetNamedValue(kKeys[static_cast<std::size_t>(tick / 8) % std::size(kKeys)], 1);
        if (tick % 40 == 0) world.windows[kMainPanelWindow] = !world.windows[kMainPanelWindow];
        if (tick % 60 == 30) CallGauges(session, kServicePostInstall);
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

TEST(WorkerThreads, PaintWhileTheHostFliesReinstallsAndTearsDown) {
    constexpr int kLives = 3;
    const auto life = std::chrono::duration<double>(SecondsToPaint() / kLives);
    for (int i = 0; i < kLives; ++i) {
        world = {};
        flight = {};
        world.paints_in_line = false;
        Session session;
        session.settings.module_file = BinaryDir() + "/tz900.gau";
        session.settings.demo_root = SourceDir() + "/data/root";
        session.settings.cfg_lines = {"GaugeRefreshRate=250", "SystemsOn=1"};
        session.settings.placed = true;
        session.settings.placement = {47.44, -122.30, 9000, 180, 280};
        session.settings.fdm = true;
        session.settings.pixel_surfaces = true;
        std::string error;
        ASSERT_TRUE(PrepareSession(session, error) && StartSession(session, error)) << error;
        ASSERT_TRUE(EnterRoute(session, "KSEA BTG J1 OED KSFO", error)) << error;
        ASSERT_TRUE(ExecuteRoute(session, error)) << error;
        Viewer viewer(*session.linkage);
        Fly(session, viewer, Clock::now() + std::chrono::duration_cast<Clock::duration>(life));
        viewer.Stop();
        StopSession(session);
        int painted = 0;
        for (const auto& [gauge, number] : viewer.pictures) painted += number > 0 ? 1 : 0;
        EXPECT_EQ(painted, kPaintedGauges);
        EXPECT_GE(viewer.pictures["DU_LOWER_PW"], kEnoughPictures);
    }
    world = {};
}

}  // namespace
