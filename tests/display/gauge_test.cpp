#include "display/pictures/gauge.h"

#include <gtest/gtest.h>

#include "display/routing/selector_gauges.h"
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
    for (const bool with_context : {false, true}) {
        {
            GaugeElement gone = Element(true);
            panel.Install(&gone);
            panel.Serve(kServicePreDraw);
        }
        GaugeElement element = Element(with_context);
        panel.Install(&element);
        EXPECT_FALSE(panel.Paint()) << with_context;
    }
    GaugeElement element = Element(true);
    panel.Install(&element);
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

}  // namespace
