#include "display/gauge.h"

#include <gtest/gtest.h>

#include "display/clicks.h"
#include "display/selector_gauges.h"
#include "state/displays.h"
#include "state/electrical.h"
#include "support/fake_host.h"

namespace {

// A gauge on a panel of elements, painted in line.
struct Panel {
    explicit Panel(const char* name) : header{name, 1000, ServePaintedGauge} {
        instance.gauge = &header;
        Serve(kServiceConnectToWindow);
    }
    ~Panel() { Serve(kServiceDisconnect); }
    Panel(const Panel&) = delete;
    Panel& operator=(const Panel&) = delete;

    void Serve(PanelService service) { ServePaintedGauge(&instance, service); }
    void Install(GaugeElement* chain) {
        instance.elements = chain;
        Serve(kServicePostInstall);
    }
    bool Paint() { return GaugeOf(instance)->PaintPendingFrame(); }
    std::uint64_t PictureNumber() {
        std::uint64_t number = 0;
        GaugeOf(instance)->WithPicture([&](const DrawList&, std::uint64_t picture) { number = picture; });
        return number;
    }

    FakeHost host;
    GaugeHeader header;
    GaugeInstance instance{};
};

GaugeElement Element(bool with_context) {
    static int context;
    GaugeElement element{};
    element.device_context = with_context ? &context : nullptr;
    element.flags = kElementDirty | kElementHidden;
    return element;
}

TEST(PaintedGauge, PaintsOnlyWhatTheHostAsksFor) {
    Panel panel("STBY_PFD");
    GaugeElement element = Element(true);
    panel.instance.elements = &element;
    panel.Serve(kServicePreDraw);
    EXPECT_FALSE(panel.Paint()) << "not installed";
    panel.Install(&element);
    EXPECT_FALSE(panel.Paint()) << "not asked";
    panel.Serve(kServicePreDraw);
    panel.Serve(kServicePreDraw);
    EXPECT_TRUE(panel.Paint());
    EXPECT_FALSE(panel.Paint()) << "two requests are one";
    EXPECT_EQ(element.flags, kElementHidden) << "the top bit is cleared, bit 30 stays";
    EXPECT_EQ(panel.PictureNumber(), 1U);
    panel.Serve(kServicePreDraw);
    EXPECT_TRUE(panel.Paint());
    EXPECT_EQ(panel.PictureNumber(), 1U) << "the same picture";
}

TEST(PaintedGauge, ElementsWithoutSurface) {
    Panel panel("STBY_PFD");
    GaugeElement second = Element(true), first = Element(false);
    first.next = &second;
    panel.Install(&first);
    panel.Serve(kServicePreDraw);
    EXPECT_FALSE(panel.Paint()) << "only the head of the chain can be painted";

    GaugeElement element = Element(true);
    panel.Install(&element);
    element.device_context = nullptr;  // gone since
    panel.Serve(kServicePreDraw);
    EXPECT_TRUE(panel.Paint()) << "the request is consumed";
    EXPECT_EQ(element.flags & kElementDirty, 0U);
    EXPECT_EQ(panel.PictureNumber(), 0U);
}

TEST(PaintedGauge, ReinstalledPanelForgetsWhatWasAsked) {
    Panel panel("STBY_PFD");
    {
        GaugeElement gone = Element(true);
        panel.Install(&gone);
        panel.Serve(kServicePreDraw);
    }
    GaugeElement element = Element(true);
    panel.Install(&element);
    EXPECT_FALSE(panel.Paint());
    panel.Serve(kServicePreDraw);
    EXPECT_TRUE(panel.Paint());
}

TEST(PaintedGauge, CockpitsPaintInTurn) {
    const struct {
        const char* gauge;
        bool in_2d, in_virtual;
    } kCases[] = {
        {"DU_CAPT_INB_2D", true, false}, {"DU_CAPT_INB_VC", false, true},
        {"DU_CAPT_INB_PW", true, true},  {"HUD", true, true},
        {"FO_EFB", true, true},
    };
    for (const auto& row : kCases)
        for (const bool in_2d : {true, false}) {
            Panel panel(row.gauge);
            displays.cockpit_2d_active = in_2d ? 1 : 0;
            GaugeElement element = Element(true);
            panel.Install(&element);
            panel.Serve(kServicePreDraw);
            EXPECT_TRUE(panel.Paint());
            EXPECT_EQ(panel.PictureNumber() > 0, in_2d ? row.in_2d : row.in_virtual) << row.gauge << in_2d;
        }
}

TEST(PaintedGauge, SelectorGaugesShowTheChosenLamp) {
    FakeHost host;
    const auto shown = [](const char* gauge) {
        const GaugeHeader header{gauge, 800, ServeSelectorGauge};
        GaugeElement third = Element(false), second = Element(false), first = Element(false);
        first.next = &second, second.next = &third;
        GaugeInstance instance{};
        instance.gauge = &header;
        instance.elements = &first;
        ServeSelectorGauge(&instance, kServicePreUpdate);
        std::string lit;
        for (const GaugeElement* element : {&first, &second, &third})
            lit += (element->flags & kElementHidden) == 0 ? '1' : '0';
        return lit;
    };
    displays.dsp_capt_mode_button = 1, displays.dsp_fo_mode_button = 2;
    EXPECT_EQ(shown("DSP_CAPT"), "100");
    EXPECT_EQ(shown("DSP_FO"), "010");
    for (const auto& [position, lit] : {std::pair{-1, "100"}, {0, "010"}, {1, "001"}}) {
        displays.du_sel_pos = position;
        EXPECT_EQ(shown("CAPT_DU_MODE"), lit);
    }
}

TEST(DisplayClicks, SystemStripsChooseThePageOfTheirHalf) {
    const struct {
        int page, x, y, becomes;
    } kCases[] = {
        {11, 1, 10, 11},
        {5, 2, 24, 11},
        {5, 41, 0, 11},
        {5, 41, 25, 5},
        {11, 50, 22, 5},
        {11, 91, 23, 11},
        {11, 97, 1, 9},
        {11, 184, 1, 7},
        {11, 191, 1, 1},
        {11, 278, 1, 3},
        {11, 51, 30, 8},
        {11, 58, 48, 6},
        {11, 58, 49, 11},
        {11, 164, 40, 4},
        {11, 171, 40, 10},
        {11, 277, 40, 2},
        {11, 45, 10, 11},
        // from CB and MAINT only STAT, and it is wider
        {2, 60, 10, 2},
        {2, 50, 24, 11},
        {10, 55, 10, 11},
        {10, 56, 10, 10},
        {10, 60, 40, 10},
    };
    for (const auto& row : kCases)
        for (const int half : {1, 2}) {
            FakeHost host;
            displays.du_capt_inb_mode = 65;
            displays.du_capt_inb_l_sys_page = displays.du_capt_inb_r_sys_page = row.page;
            OnDisplayUnitClick(row.x + (half == 2 ? 282 : 0), row.y, 2);
            EXPECT_EQ(SystemPageOf(2, half), row.becomes) << row.page << ": " << row.x << ", " << row.y;
            EXPECT_EQ(SystemPageOf(2, 3 - half), row.page) << "the other half stays";
        }
    FakeHost host;
    displays.du_capt_inb_mode = displays.du_lower_mode = 58;  // SYS and CDU
    OnDisplayUnitClick(60, 10, 2);
    EXPECT_EQ(displays.du_capt_inb_l_sys_page, 5);
    EXPECT_EQ(displays.du_lower_l_sys_page, 11) << "each unit has its own";
    OnDisplayUnitClick(282 + 100, 10, 5);
    for (const int unit : {0, 6, -1}) OnDisplayUnitClick(60, 10, unit);
    OnDisplayUnitClick(-60, 10, 5);
    OnDisplayUnitClick(60, 424, 5);
    displays.du_lower_mode = 77;  // no such code
    OnDisplayUnitClick(60, 10, 5);
    EXPECT_EQ(displays.du_lower_l_sys_page, 11);
    EXPECT_EQ(displays.du_lower_r_sys_page, 11);
}

}  // namespace
