#include "host/scenario/words.h"

#include <charconv>
#include <cmath>
#include <cstdio>

namespace host {

std::optional<std::vector<Word>> SplitWords(std::string_view line) {
    std::vector<Word> words;
    std::size_t at = 0;
    const auto blank = [](char c) { return c == ' ' || c == '\t' || c == '\r'; };
    while (true) {
        while (at < line.size() && blank(line[at])) ++at;
        if (at == line.size() || line[at] == '#') return words;
        Word word;
        bool quoted = false;
        for (; at < line.size() && (quoted || !blank(line[at])); ++at) {
            word.raw += line[at];
            const char escaped = quoted && line[at] == '\\' && at + 1 < line.size() ? line[at + 1] : ' ';
            if (line[at] == '"') {
                quoted = !quoted;
            } else if (escaped == 'n' || escaped == '"') {
                word.raw += line[++at];
                word.text += escaped == 'n' ? '\n' : '"';
            } else {
                word.text += line[at];
            }
        }
        if (quoted) return {};
        words.push_back(std::move(word));
    }
}

std::optional<int> ParseInt(std::string_view text) {
    const bool negative = text.starts_with('-');
    std::string_view digits = negative ? text.substr(1) : text;
    const bool hexadecimal = digits.starts_with("0x") || digits.starts_with("0X");
    if (hexadecimal) digits.remove_prefix(2);
    unsigned value = 0;
    const auto [rest, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), value, hexadecimal ? 16 : 10);
    if (error != std::errc{} || rest != digits.data() + digits.size()) return {};
    if (!hexadecimal && value > 2147483647U) return {};
    return static_cast<int>(negative ? 0 - value : value);  // 0x80000000 has no positive int
}

std::optional<double> ParseNumber(std::string_view text) {
    if (text.starts_with("0x") || text.starts_with("0X")) {
        const std::optional<int> whole = ParseInt(text);
        return whole ? std::optional<double>(*whole) : std::nullopt;
    }
    if (text.starts_with('+')) text.remove_prefix(1);
    double value = 0;
    const auto [rest, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || rest != text.data() + text.size() || !std::isfinite(value)) return {};
    return value;
}

std::optional<double> ParseDuration(std::string_view text) {
    if (const std::size_t colon = text.find(':'); colon != std::string_view::npos) {
        const std::string_view clock = text.substr(colon);  // ":mm:ss"
        if (clock.size() != 6 || clock[3] != ':') return {};
        int parts[] = {0, 0, 0};
        const std::string_view texts[] = {text.substr(0, colon), clock.substr(1, 2), clock.substr(4)};
        for (int i = 0; i < 3; ++i) {
            const auto part = ParseInt(texts[i]);
            if (!part || texts[i].find_first_not_of("0123456789") != std::string_view::npos) return {};
            parts[i] = *part;
        }
        if (parts[1] > 59 || parts[2] > 59) return {};
        return parts[0] * 3600.0 + parts[1] * 60 + parts[2];
    }
    const bool in_minutes = text.ends_with('m');
    if (in_minutes) text.remove_suffix(1);
    const auto number = ParseNumber(text);
    if (!number || *number < 0) return {};
    return in_minutes ? *number * 60 : *number;
}

std::string DurationText(double seconds) {
    const auto whole = static_cast<long long>(seconds);
    char text[40];
    std::snprintf(text, sizeof text, "%lld:%02lld:%02lld", whole / 3600, whole / 60 % 60, whole % 60);
    return text;
}

std::string NumberText(double value) {
    if (!std::isfinite(value)) return std::isnan(value) ? "nan" : value > 0 ? "inf" : "-inf";
    char text[64];
    const bool whole = value == std::floor(value) && std::fabs(value) < 1e15;
    const auto result = whole ? std::to_chars(text, text + sizeof text, static_cast<long long>(value))
                              : std::to_chars(text, text + sizeof text, value);
    return {text, result.ptr};
}

bool MatchesPattern(std::string_view name, std::string_view pattern) {
    if (pattern.find('*') == std::string_view::npos) return name.find(pattern) != std::string_view::npos;
    std::size_t star = pattern.find('*');
    if (name.substr(0, star) != pattern.substr(0, star)) return false;
    name.remove_prefix(star);
    pattern.remove_prefix(star + 1);
    while ((star = pattern.find('*')) != std::string_view::npos) {
        const std::size_t found = name.find(pattern.substr(0, star));
        if (found == std::string_view::npos) return false;
        name.remove_prefix(found + star);
        pattern.remove_prefix(star + 1);
    }
    return name.ends_with(pattern);
}

}  // namespace host
