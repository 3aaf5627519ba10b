#include "paint/fonts.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "frame/configuration.h"
#include "paint/painter.h"
#include "support/fake_host.h"

namespace {

TEST(Fonts, FamiliesAreFoundOrStoodIn) {
    EXPECT_TRUE(IsFamily("Courier New"));
    EXPECT_FALSE(IsFamily("Comic Sans"));
    EXPECT_EQ(FamilyName(FamilyOf("Arial")), "Arial");
    EXPECT_EQ(FamilyName(FamilyOf("Comic Sans")), "Velarion900DispL");
    EXPECT_EQ(FontFile(FamilyOf("Latha")), FontFile(FamilyOf("Arial"))) << "one free font for both";
    // Liberation Mono: every character 1229 of 2048 units wide.
    EXPECT_NEAR(TextWidth(FamilyOf("Courier New"), "AB i"), 4 * 1229 / 2048.0, 1e-4);
}

TEST(Fonts, UnknownScreenFontIsToldOnce) {
    const FakeHost host;
    host.PutFile("Velarion/tz900.cfg", "DuFont=Comic Sans\n");
    MetricsOf(0);  // what is told of missing files comes before
    testing::internal::CaptureStderr();
    ReadConfig();
    DrawList list;
    Graphics graphics = GdipCreateGraphics(list, 100, 100);
    Text(graphics, 0, 0, 10, kWhite, "A");
    Text(graphics, 0, 20, 10, kWhite, "B");
    const std::string told = testing::internal::GetCapturedStderr();
    EXPECT_NE(told.find("Comic Sans"), std::string::npos);
    EXPECT_EQ(std::ranges::count(told, '\n'), 1);
    EXPECT_EQ(std::get<TextRun>(list.primitives.at(1)).family, FamilyOf("Velarion900DispL"));
}

TEST(Fonts, AnsiTextBecomesUtf8) {
    const struct {
        const char* ansi;
        const char* utf8;
    } kCases[] = {
        {"AB", "AB"}, {"25\xb0", "25\xc2\xb0"}, {"\x80", "\xe2\x82\xac"}, {"\xe9", "\xc3\xa9"}, {"", ""}};
    for (const auto& row : kCases) {
        std::string text;
        AppendUtf8(text, row.ansi);
        EXPECT_EQ(text, row.utf8);
    }
}

}  // namespace
