#pragma once

#include <optional>
#include <span>

// The display modes: one code for what the two halves of a Display Unit show.

enum class Content { kNone, kAux, kPfd, kEicas, kCdu, kChkl, kComm, kInfo, kNd, kSelect, kSys };

struct ModeCode {
    int code;
    Content left, right;
};

constexpr int kModeFree = 200;   // background only, or the full-unit airport map
constexpr int kModeWideNd = 47;  // both halves are one navigation display

/// Every code that stands for two contents: all but 200.
std::span<const ModeCode> ModeCodes();

/// The contents of a code; nothing for a code that isn't listed, and for 200.
std::optional<ModeCode> ContentsOf(int code);

/// The code of two contents; nothing where there is none.
std::optional<int> CodeOf(Content left, Content right);

/// The name of a content as the crew knows it.
const char* ContentName(Content content);
