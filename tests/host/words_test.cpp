#include "host/scenario/words.h"

#include <gtest/gtest.h>

#include <limits>

namespace host {
namespace {

std::string Joined(std::string_view line) {
    const auto words = SplitWords(line);
    if (!words) return "open quote";
    std::string text;
    for (const Word& word : *words) text += "[" + word.text + "]";
    return text;
}

TEST(ScenarioWords, SplitAtBlanksOutsideQuotes) {
    const struct {
        const char *line, *words;
    } kCases[] = {
        {"", ""},
        {"  get\tstpos  # the leg", "[get][stpos]"},
        {"# all", ""},
        {"keys L A#B", "[keys][L][A#B]"},
        {R"(log "half way # still")", "[log][half way # still]"},
        {R"(expect call:"GreatCircle 0 0 1 1".dist ~ 84.8 0.1)",
         "[expect][call:GreatCircle 0 0 1 1.dist][~][84.8][0.1]"},
        {R"(log "a\nb\c")", "[log][a\nb\\c]"},
        {R"(expect alerts contains "memo \"COMM\"")", R"([expect][alerts][contains][memo "COMM"])"},
        {R"(log "")", "[log][]"},
        {R"(log "open)", "open quote"},
    };
    for (const auto& row : kCases) EXPECT_EQ(Joined(row.line), row.words) << row.line;
}

TEST(ScenarioWords, NumbersAreTakenWhole) {
    EXPECT_EQ(ParseInt("0x1002c"), 0x1002c);
    EXPECT_EQ(ParseInt("-5"), -5);
    EXPECT_EQ(ParseInt("-0x80000000"), std::numeric_limits<int>::min());
    for (const char* wrong : {"", "1.5", "0x", "12x", "99999999999", "-"})
        EXPECT_FALSE(ParseInt(wrong)) << wrong;
    EXPECT_EQ(ParseNumber("-47.5"), -47.5);
    EXPECT_EQ(ParseNumber("0x10"), 16);
    for (const char* wrong : {"", "nan", "inf", "1e", "4 "}) EXPECT_FALSE(ParseNumber(wrong)) << wrong;
}

TEST(ScenarioWords, DurationsAreSecondsMinutesOrAClock) {
    const struct {
        const char* text;
        double seconds;
    } kCases[] = {{"90", 90},   {"0.5", 0.5},      {"90m", 5400},
                  {"1.5m", 90}, {"1:02:03", 3723}, {"100:00:00", 360000}};
    for (const auto& row : kCases) EXPECT_EQ(ParseDuration(row.text), row.seconds) << row.text;
    for (const char* wrong : {"", "m", "-1", "-1:00:00", "1:30", "1:60:00", "1:00:60", "1:0:00", ":00:00",
                              "1:-1:00", "1:00:00m", "1:00:0x", "99999999999:00:00"})
        EXPECT_FALSE(ParseDuration(wrong)) << wrong;
    EXPECT_EQ(DurationText(3723.9), "1:02:03");
    EXPECT_EQ(DurationText(86400 * 5), "120:00:00");
}

TEST(ScenarioWords, PatternsMatchWithinOrByStars) {
    EXPECT_TRUE(MatchesPattern("fms_fpln_active", "fpln"));
    EXPECT_TRUE(MatchesPattern("TZ_OH_LT_NAV_Button", "TZ_OH_*_Button"));
    EXPECT_FALSE(MatchesPattern("TZ_OH_LT_NAV_Button", "OH_*"));
    EXPECT_FALSE(MatchesPattern("TZ_OH_LT_NAV_Switch", "TZ_*_Button"));
    EXPECT_TRUE(MatchesPattern("stpos", ""));
}

}  // namespace
}  // namespace host
