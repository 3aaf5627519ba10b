// A program that shows the lower unit and the captain's tablet, from its side and from the module's.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

#include "display/routing/modes.h"
#include "frame/cues.h"
#include "host/inspection.h"
#include "host/remote_peer.h"
#include "host/root_folder.h"
#include "host/screens.h"
#include "host/session.h"
#include "host/world/world.h"
#include "module/remote_input.h"
#include "state/cdu.h"
#include "state/cfg.h"
#include "state/displays.h"
#include "state/efb.h"
#include "state/plan.h"
#include "state/remote.h"
#include "state/sound.h"
#include "state/takeoff_approach.h"
#include "support/fake_host.h"
#include "support/paths.h"

namespace {

using host::RemotePeer;

class RemoteInput : public testing::Test {
  protected:
    static void Key(int device, int code) { HandleRemoteEvent({device, 0, code, 0, 0}); }
    static void Touch(int device, int x, int y) { HandleRemoteEvent({device, 2, 0, x, y}); }
    FakeHost fake;
};

TEST_F(RemoteInput, CduCodes) {
    // all letters, then digits and signs, in two scratchpads' lengths
    for (int code = 20; code <= 43; ++code) Key(0, code);
    EXPECT_EQ(cdu[0].ScratchPad, "ABCDEFGHIJKLMNOPQRSTUVWX");
    for (const int code : {44, 45, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 48, 18, 18, 46, 6, 19, 53, 0, -1})
        Key(1, code);
    EXPECT_EQ(cdu[1].ScratchPad, "YZ123456789.0/+ ");
    EXPECT_EQ(sound.event_cue, kCueKeyClick);
    Key(1, 49);
    Key(1, 47);
    EXPECT_EQ(cdu[1].ScratchPad, "YZ123456789.0/+");
    EXPECT_EQ(cdu[1].ScratchMessage, "DELETE");
    Key(1, 50);
    Key(1, 51);
    EXPECT_EQ(cdu[1].PrevPagePending, 1);
    EXPECT_EQ(cdu[1].NextPagePending, 1);
    EXPECT_EQ(cdu[0].PrevPagePending, 0);
    plan.fms_fpln_active = 2;
    cfg.V1 = 131;
    Key(1, 52);  // EXEC, the first officer's
    EXPECT_EQ(takeoff_approach.v1, 131);
    EXPECT_EQ(remote.cdu.due, 1);
    EXPECT_EQ(remote.efb.due, 0);
}

TEST_F(RemoteInput, DisplaySelectCodes) {
    constexpr Content kContents[] = {Content::kCdu,  Content::kChkl, Content::kComm,
                                     Content::kInfo, Content::kNd,   Content::kSys};
    for (int code = 2; code <= 6; ++code) {
        displays.du_lower_mode = 3;  // both CDUs
        Key(0, code);
        EXPECT_EQ(ContentsOf(displays.du_lower_mode)->left, kContents[code - 1]) << code;
        displays.du_lower_mode = 3;
        Key(1, code);
        EXPECT_EQ(ContentsOf(displays.du_lower_mode)->right, kContents[code - 1]) << code;
    }
    Key(1, 1);
    EXPECT_EQ(ContentsOf(displays.du_lower_mode)->right, Content::kCdu);
}

TEST_F(RemoteInput, TabletCodes) {
    struct Row {
        int code, key;
        bool silent;
    };
    constexpr Row kRows[] = {
        {0x35, kEfbMenu, true},     {0x36, kEfbRedirect, false}, {0x37, kEfbUp, true},
        {0x38, kEfbDown, true},     {0x39, kEfbPageUp, false},   {0x3a, kEfbPageDown, false},
        {0x3b, kEfbTransfer, true}, {0x3c, kEfbPower, false},    {0x3e, kEfbL1, false},
        {0x45, kEfbL1 + 7, false},  {0x46, kEfbR1, false},       {0x4d, kEfbR1 + 7, false},
        {0x4e, kEfbZoomIn, false},  {0x4f, kEfbZoomOut, false},  {0x50, kEfbUp, false},
        {0x51, kEfbDown, false},    {0x52, kEfbLeft, false},     {0x53, kEfbRight, false},
    };
    for (const Row& row : kRows) {
        sound.event_cue = 0;
        remote.efb.due = 0;
        efb.side[0].pending_key = 0;
        Key(2, row.code);
        EXPECT_EQ(efb.side[0].pending_key, row.key) << row.code;
        EXPECT_EQ(sound.event_cue, row.silent ? 0 : kCueKeyClick) << row.code;
        EXPECT_EQ(remote.efb.due, 1) << row.code;
    }
    efb.side[0].pending_key = 0;
    for (const int code : {0x34, 0x54, 20, -1}) Key(2, code);
    EXPECT_EQ(efb.side[0].pending_key, 0);
    EXPECT_EQ(efb.side[1].pending_key, 0);
    fake.NamedVar("TZ_EFB_L_DSPL_Button") = 2;
    for (int i = 0; i < 11; ++i) Key(2, 0x3d);
    EXPECT_EQ(efb.EfbBrightness, 0);
    EXPECT_EQ(remote.cdu.due, 0);
}

TEST_F(RemoteInput, TouchesAreInTheSurfacesPixels) {
    remote.cdu.width = 1000;
    remote.cdu.height = 662;
    Touch(0, 50 * 1000 / 564 + 1, 50 * 662 / 424 + 1);  // L1 of the captain's
    EXPECT_EQ(cdu[0].PendingLine, 1);
    Touch(1, (283 + 50) * 1000 / 564 + 1, 50 * 662 / 424 + 1);
    EXPECT_EQ(cdu[1].PendingLine, 1);
    remote.efb.width = 245;
    remote.efb.height = 435;
    efb.side[0].EfbPower = 1;
    Touch(2, 49, 87);  // a fifth of either
    EXPECT_EQ(efb.side[0].EfbMouseX, 68);
    EXPECT_EQ(efb.side[0].EfbMouseY, 89);
    EXPECT_EQ(efb.side[0].touch_ticks > 0, true);

    efb.side[0].touch_ticks = 0;
    cdu[0].PendingLine = 0;
    remote.cdu.due = remote.efb.due = 0;
    for (const auto& [x, y] : {std::pair{0, 87}, {49, 0}, {-5, 87}, {245, 87}, {49, 435}, {2147483647, 1}})
        Touch(2, x, y);
    HandleRemoteEvent({2, 4, 0x35, 49, 87});
    for (const int device : {-1, 3}) {
        Key(device, 20);
        Touch(device, 50, 50);
    }
    Touch(0, 0, 78);
    Touch(0, 1000, 78);
    EXPECT_EQ(efb.side[0].touch_ticks, 0);
    EXPECT_EQ(efb.side[0].pending_key, 0);
    EXPECT_EQ(cdu[0].PendingLine, 0);
    EXPECT_EQ(cdu[0].ScratchPad, "");
    EXPECT_EQ(remote.efb.due, 0);
    EXPECT_EQ(remote.cdu.due, 1) << "any record of a CDU";
}

TEST_F(RemoteInput, PicturesAreDueInTheirPhases) {
    std::string cdu_phases, efb_phases;
    for (int phase = 0; phase < 18; ++phase) {
        remote.cdu.due = remote.efb.due = 0;
        MarkRemoteImages(phase);
        if (remote.cdu.due != 0) cdu_phases += std::to_string(phase) + " ";
        if (remote.efb.due != 0) efb_phases += std::to_string(phase) + " ";
    }
    EXPECT_EQ(cdu_phases, "2 6 10 14 17 ");
    EXPECT_EQ(efb_phases, "0 4 8 12 16 ");
}

// The whole module with a peer beside it.
struct Flight {
    explicit Flight(std::vector<std::string> cfg_lines, bool hires = false, bool in_line = true) {
        host::world = {};
        host::flight = {};
        host::world.paints_in_line = in_line;
        std::string error;
        EXPECT_TRUE(host::MakePrivateRoot(SourceDir() + "/data/root", root, error)) << error;
        cfg_lines.push_back("SystemsOn=1");
        cfg_lines.push_back("GaugeRefreshRate=250");
        session.settings.module_file = BinaryDir() + "/tz900.gau";
        session.settings.root = root;
        session.settings.cfg_lines = cfg_lines;
        session.settings.pixel_surfaces = true;
        if (hires) {
            const std::filesystem::path folder = root + "/SimObjects/Airplanes/AAA";
            std::filesystem::create_directories(folder);
            std::ofstream(folder / "Aircraft.cfg")
                << "[fltsim.0]\ntitle=TZ900 sharp\nsim=TZ900-9\nmodel=ge\npanel=hires\n";
        }
        EXPECT_TRUE(host::PrepareSession(session, error) && host::StartSession(session, error)) << error;
        Run(10);
    }
    ~Flight() {
        host::StopSession(session);
        host::world = {};
        std::filesystem::remove_all(root);
    }
    void Run(double seconds) {
        for (int tick = 0; tick < seconds * 18; ++tick) {
            host::TickSession(session, false);
            if (host::world.paints_in_line)
                host::PaintGauges(session);
            else
                host::RequestPictures(session);
        }
    }
    int Value(const char* name) { return std::stoi(host::ReadVariable(session, name)); }

    std::string root;
    host::Session session;
};

TEST(RemoteBridge, ManyPicturesAreOneEvent) {
    Flight flight({});
    RemotePeer peer;
    ASSERT_TRUE(peer.Open());
    EXPECT_TRUE(peer.HasNewPicture(RemotePeer::kLower));
    EXPECT_TRUE(peer.HasNewPicture(RemotePeer::kTablet));
    EXPECT_FALSE(peer.HasNewPicture(RemotePeer::kTablet));
}

TEST(RemoteBridge, SizesByResolution) {
    struct Row {
        const char* setting;
        bool hires;
        std::size_t lower, tablet;
        bool copied;
    };
    constexpr Row kRows[] = {
        {"remotecduhires=1", false, 662000, 426300, true},
        {"remotecduhires=1", true, 2648000, 1705200, true},
        {"remotecduhires=0", true, 662000, 426300, false},  // the surfaces are larger than announced
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(std::string(row.setting) + (row.hires ? " on a sharp panel" : ""));
        Flight flight({row.setting}, row.hires);
        RemotePeer peer;
        ASSERT_TRUE(peer.Open());
        peer.HasNewPicture(RemotePeer::kLower);  // of the life before
        peer.HasNewPicture(RemotePeer::kTablet);
        flight.Run(1);
        EXPECT_EQ(peer.Picture(RemotePeer::kLower).size(), row.lower);
        EXPECT_EQ(peer.Picture(RemotePeer::kTablet).size(), row.tablet);
        EXPECT_EQ(peer.HasNewPicture(RemotePeer::kLower), row.copied);
        EXPECT_EQ(peer.HasNewPicture(RemotePeer::kTablet), row.copied);
        const std::vector<std::uint8_t> pixels = peer.Picture(RemotePeer::kLower);
        const bool blank = std::ranges::all_of(pixels, [](std::uint8_t byte) { return byte == 0; });
        EXPECT_EQ(blank, !row.copied);
    }
}

TEST(RemoteBridge, WorkersPaintWhatAPeerTypes) {
    Flight flight({}, false, false);
    RemotePeer peer;
    ASSERT_TRUE(peer.Open());
    const auto next_picture = [&] {
        for (int i = 0; i < 400; ++i) {
            flight.Run(0.05);
            if (peer.HasNewPicture(RemotePeer::kLower, 10)) return true;
        }
        return false;
    };
    ASSERT_TRUE(next_picture());
    ASSERT_TRUE(next_picture()) << "one that was painted after the first was taken";
    const std::vector<std::uint8_t> before = peer.Picture(RemotePeer::kLower);
    // The line that shows the scratchpad, in the captain's half: nothing else in it moves.
    const auto scratchpad = [](const std::vector<std::uint8_t>& pixels) {
        constexpr std::size_t kWidth = 500, kLeft = 45, kRight = 210, kTop = 162, kBottom = 170;
        std::vector<std::uint8_t> cut;
        for (std::size_t row = kTop; row < kBottom; ++row)
            cut.insert(cut.end(), pixels.begin() + static_cast<long>((row * kWidth + kLeft) * 4),
                       pixels.begin() + static_cast<long>((row * kWidth + kRight) * 4));
        return cut;
    };
    for (const int letter : {20, 21, 42}) {
        peer.Send(0, 0, letter);
        flight.Run(0.06);
    }
    EXPECT_EQ(host::ReadVariable(flight.session, "capt.ScratchPad"), "ABW");
    std::vector<std::uint8_t> after = before;
    for (int i = 0; i < 5 && scratchpad(after) == scratchpad(before); ++i) {
        ASSERT_TRUE(next_picture());
        after = peer.Picture(RemotePeer::kLower);
    }
    EXPECT_NE(scratchpad(after), scratchpad(before));
}

TEST(RemoteBridge, WithoutRemoteCduNothingIsMade) {
    { Flight flight({}); }
    // what an earlier life has made would still be there: look at what this one does
    Flight flight({"RemoteCdu=0"});
    EXPECT_EQ(flight.Value("remote_ready"), 0);
    EXPECT_EQ(flight.Value("remote_cdu_size"), 0);
    RemotePeer peer;
    if (!peer.Open()) return;
    peer.HasNewPicture(RemotePeer::kLower);
    peer.Send(0, 0, 20);
    flight.Run(1);
    EXPECT_FALSE(peer.HasNewPicture(RemotePeer::kLower));
    EXPECT_EQ(host::ReadVariable(flight.session, "capt.ScratchPad"), "");
}

TEST(RemoteBridge, APeerThatCutsTheMemoryShortIsSurvived) {
    Flight flight({});
    for (const char* name : {"TZ900_CDU_CONTENTS", "TZ900_CDU_EVENTDATA"})
        std::filesystem::resize_file("/dev/shm" + host::SharedNames() + name, 0);
    RemotePeer peer;
    ASSERT_TRUE(peer.Open());
    peer.HasNewPicture(RemotePeer::kLower);
    flight.Run(1);
    EXPECT_TRUE(peer.HasNewPicture(RemotePeer::kLower));
    EXPECT_EQ(peer.Picture(RemotePeer::kLower).size(), 662000u);
}

}  // namespace
