#include "host/flightdeck/picture_stream.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using Primitives = std::vector<std::string>;

constexpr std::string_view kFrame("\0\0\x0d\x44\0\0\xd4\x43", 8);  // 564 by 424

std::string Varint(std::size_t value) {
    std::string bytes;
    for (; value >= 0x80; value >>= 7) bytes += static_cast<char>(value | 0x80);
    return bytes + static_cast<char>(value);
}

// A picture as the module encodes it.
std::string Encoded(const Primitives& primitives) {
    std::string bytes(kFrame);
    bytes += Varint(primitives.size());
    for (const std::string& primitive : primitives) bytes += Varint(primitive.size()) + primitive;
    return bytes;
}

// What a browser does with a message: it has only its last picture.
Primitives Received(const Primitives& last, std::string_view message) {
    Primitives next;
    std::size_t at = kFrame.size();
    const auto varint = [&] {
        std::size_t value = 0;
        for (int shift = 0;; shift += 7) {
            const auto byte = static_cast<unsigned char>(message.at(at++));
            value |= static_cast<std::size_t>(byte & 0x7f) << shift;
            if (byte < 0x80) return value;
        }
    };
    EXPECT_EQ(message.substr(0, kFrame.size()), kFrame);
    while (at < message.size()) {
        const std::size_t run = varint();
        std::size_t from = run % 2 == 0 ? varint() : 0;
        for (std::size_t left = run / 2; left > 0; --left) {
            if (run % 2 == 0) {
                next.push_back(last.at(from++));
            } else {
                const std::size_t length = varint();
                next.emplace_back(message.substr(at, length));
                at += length;
            }
        }
    }
    return next;
}

TEST(PictureStream, BrowserHasWhatTheModulePainted) {
    std::mt19937 random(7);
    const auto below = [&](std::size_t end) { return random() % end; };
    host::PictureStream stream;
    Primitives painted, shown;
    for (std::uint64_t number = 1; number <= 300; ++number) {
        if (below(20) == 0) painted.clear();
        for (std::size_t edits = below(4); edits > 0; --edits) {
            const std::string primitive(1 + below(300), static_cast<char>('a' + below(5)));
            const auto place = painted.begin() + static_cast<long>(below(painted.size() + 1));
            if (below(3) == 0 && place != painted.end())
                painted.erase(place);
            else
                painted.insert(place, primitive);
        }
        shown = Received(shown, NextPictureMessage(stream, Encoded(painted), number));
        ASSERT_EQ(shown, painted) << "picture " << number;
        ASSERT_EQ(stream.number, number);
    }
}

TEST(PictureStream, SendsOnlyWhatChanged) {
    Primitives painted;
    for (int i = 0; i < 500; ++i) painted.push_back("primitive " + std::to_string(i));
    host::PictureStream stream;
    EXPECT_GT(NextPictureMessage(stream, Encoded(painted), 1).size(), 5000U);
    EXPECT_LT(NextPictureMessage(stream, Encoded(painted), 2).size(), 16U);
    painted[250] = "another";
    EXPECT_LT(NextPictureMessage(stream, Encoded(painted), 3).size(), 40U);
    painted.insert(painted.begin(), "first");
    EXPECT_LT(NextPictureMessage(stream, Encoded(painted), 4).size(), 40U);
}

TEST(PictureStream, PassesOverBytesThatMakeNoSense) {
    host::PictureStream stream;
    const Primitives painted = {"one", "two"};
    ASSERT_FALSE(NextPictureMessage(stream, Encoded(painted), 1).empty());
    const std::string whole = Encoded({"one", "two", "three"});
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_EQ(NextPictureMessage(stream, whole.substr(0, length), 2), "") << length;
    EXPECT_EQ(NextPictureMessage(stream, std::string(kFrame) + "\xff\xff\xff\xff\x0f", 2), "");
    EXPECT_EQ(stream.number, 1U);
    EXPECT_EQ(Received(painted, NextPictureMessage(stream, whole, 2)), (Primitives{"one", "two", "three"}));
}

}  // namespace
