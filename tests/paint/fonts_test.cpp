#include "paint/fonts.h"

#include <gtest/gtest.h>

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
