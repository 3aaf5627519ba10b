#include "display/routing/modes.h"

#include <array>

namespace {

using enum Content;

constexpr Content kRightList[] = {kCdu, kChkl, kComm, kEicas, kInfo, kNd, kSelect, kSys};
constexpr Content kRightOfEicas[] = {kCdu, kChkl, kComm, kInfo, kNd, kSelect, kSys};
constexpr Content kLeftOfPfd[] = {kEicas, kCdu, kChkl, kComm, kInfo, kNd, kSelect, kSys};

struct Block {
    int first;
    Content left;
    std::span<const Content> rights;
};
constexpr Block kBlocks[] = {
    {3, kCdu, kRightList},       {11, kChkl, kRightList}, {19, kComm, kRightList},
    {27, kEicas, kRightOfEicas}, {34, kInfo, kRightList}, {42, kNd, kRightList},
    {50, kSelect, kRightList},   {58, kSys, kRightList},  {80, kPfd, kRightList},
};

constexpr std::size_t kCount =
    2 + 8 * std::size(kRightList) + std::size(kRightOfEicas) + std::size(kLeftOfPfd);

constexpr std::array<ModeCode, kCount> MakeModes() {
    std::array<ModeCode, kCount> modes{};
    std::size_t next = 0;
    modes[next++] = {1, kAux, kPfd};
    modes[next++] = {2, kPfd, kAux};
    for (const Block& block : kBlocks)
        for (std::size_t i = 0; i < block.rights.size(); ++i)
            modes[next++] = {block.first + static_cast<int>(i), block.left, block.rights[i]};
    for (std::size_t i = 0; i < std::size(kLeftOfPfd); ++i)
        modes[next++] = {88 + static_cast<int>(i), kLeftOfPfd[i], kPfd};
    return modes;
}

constexpr std::array<ModeCode, kCount> kModes = MakeModes();

// Asked for each half of each unit in every frame.
constexpr auto kByCode = [] {
    std::array<std::optional<ModeCode>, 96> by_code{};
    for (const ModeCode& mode : kModes) by_code[static_cast<std::size_t>(mode.code)] = mode;
    return by_code;
}();

}  // namespace

std::span<const ModeCode> ModeCodes() {
    return kModes;
}

std::optional<ModeCode> ContentsOf(int code) {
    const auto place = static_cast<std::size_t>(code);
    return place < kByCode.size() ? kByCode[place] : std::nullopt;
}

std::optional<int> CodeOf(Content left, Content right) {
    for (const ModeCode& mode : kModes)
        if (mode.left == left && mode.right == right) return mode.code;
    return {};
}

const char* ContentName(Content content) {
    constexpr const char* kNames[] = {"",     "AUX",  "PFD", "EICAS",  "CDU", "CHKL",
                                      "COMM", "INFO", "ND",  "SELECT", "SYS"};
    return kNames[static_cast<std::size_t>(content)];
}
