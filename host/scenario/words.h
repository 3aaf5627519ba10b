#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host {

struct Word {
    std::string text;  // quotes taken off, \n made a line feed
    std::string raw;   // as it stands in the line, for messages
};

/// Splits a line at blanks. A text with blanks stands in double quotes, also within a word, as in
/// call:"F 1 2".dist; `#` at a word's start begins a comment. Nothing when a quote is left open.
std::optional<std::vector<Word>> SplitWords(std::string_view line);

/// A whole number, decimal or 0x hexadecimal.
std::optional<int> ParseInt(std::string_view text);

/// A finite number and nothing behind it; 0x hexadecimal too.
std::optional<double> ParseNumber(std::string_view text);

/// Seconds of a duration: "90", minutes as "1.5m", "h:mm:ss"; never negative. Nothing for any other text.
std::optional<double> ParseDuration(std::string_view text);

/// A duration as h:mm:ss, cut to whole seconds.
std::string DurationText(double seconds);

/// As the system prints numbers: as many digits as it takes to read it back, an integer without a point.
std::string NumberText(double value);

/// True when the name matches: "*" stands for any text; a pattern without one matches inside a name.
bool MatchesPattern(std::string_view name, std::string_view pattern);

}  // namespace host
