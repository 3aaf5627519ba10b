#include "host/flightdeck/request_text.h"

#include <gtest/gtest.h>

namespace {

TEST(RequestText, ValuesAreFoundByTheirWholeName) {
    EXPECT_EQ(host::TargetPath("/socket?token=a&b=c"), "/socket");
    EXPECT_EQ(host::TargetPath(""), "");
    EXPECT_EQ(host::QueryValue("/?mytoken=x&token=a=b&token=c", "token"), "a=b");
    EXPECT_EQ(host::QueryValue("/?token", "token"), "");
    EXPECT_EQ(host::QueryValue("/token=a", "token"), "");
    EXPECT_EQ(host::CookieValue("theme=dark; token=abc; x=", "token"), "abc");
    EXPECT_EQ(host::CookieValue("mytoken=abc", "token"), "") << "another cookie that ends alike";
    EXPECT_EQ(host::CookieValue(";;", "token"), "");
}

TEST(RequestText, AnEscapeIsTwoDigitsAndNeverTheEndOfText) {
    struct Case {
        const char* encoded;
        const char* text;  // null: refused
    };
    for (const Case& row : {Case{"a%20b", "a b"},
                            {"%5C%2f", "//"},
                            {"plain", "plain"},
                            {"", ""},
                            {"%", nullptr},
                            {"a%4", nullptr},
                            {"%zz", nullptr},
                            {"%00", nullptr},
                            {"%-1", nullptr}}) {
        const auto text = host::DecodePercent(row.encoded);
        ASSERT_EQ(text.has_value(), row.text != nullptr) << row.encoded;
        EXPECT_EQ(text.value_or(""), row.text == nullptr ? "" : row.text);
    }
}

TEST(RequestText, NamesOfHostsAndFiles) {
    EXPECT_EQ(host::HostName("localhost:8900"), "localhost");
    EXPECT_EQ(host::HostName("[::1]:8900"), "[::1]");
    EXPECT_EQ(host::HostName("[::1"), "") << "no name, so nobody is let in by it";
    for (const char* name : {"deck.css", "a-b_c.js"}) EXPECT_TRUE(host::IsPlainFileName(name)) << name;
    for (const char* name : {".hidden", "..", "a/b", "a\\b", "a%2e", "a b"})
        EXPECT_FALSE(host::IsPlainFileName(name)) << name;
    EXPECT_TRUE(host::SameToken("abc", "abc"));
    EXPECT_FALSE(host::SameToken("abd", "abc"));
    EXPECT_FALSE(host::SameToken("ab", "abc"));
}

}  // namespace
