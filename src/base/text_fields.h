#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/text.h"

// Reading the fields of a text file: bounded lines, fields between blanks, numbers. Inline, for the time to
// load the world's navigation data is spent here.

/// Cuts the next line off the front of `rest`, without its line end; text beyond `bound` characters is a
/// further line. Nothing at the end.
std::optional<std::string_view> NextBoundedLine(std::string_view& rest, std::size_t bound);

/// The same, without the lines that begin with ";".
std::optional<std::string_view> NextDataLine(std::string_view& rest, std::size_t bound);

/// Blanks, tabs and every other control character divide fields.
inline bool IsBlank(char c) {
    return static_cast<unsigned char>(c) <= ' ';
}

/// Cuts the next part off the front of a text, divided by any run of dividers; empty at the end.
template <class IsDivider>
std::string_view NextPart(std::string_view& text, IsDivider is_divider) {
    const char* at = text.data();
    const char* const end = at + text.size();
    while (at != end && is_divider(*at)) ++at;
    const char* const start = at;
    while (at != end && !is_divider(*at)) ++at;
    text = {at, static_cast<std::size_t>(end - at)};
    return {start, static_cast<std::size_t>(at - start)};
}

/// The next field of a line.
inline std::string_view NextField(std::string_view& line) {
    return NextPart(line, IsBlank);
}

/// The next part of a runway token, divided by "_".
inline std::string_view NextTokenPart(std::string_view& token) {
    return NextPart(token, [](char c) { return c == '_'; });
}

/// The number at the start of a text; 0 where there is none.
double ToNumber(std::string_view text);

/// The same cut to a whole number, held inside an int.
int ToWholeNumber(std::string_view text);

inline constexpr double kPowersOfTen[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                          1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

/// Reads digits with an optional sign and point, which nearly all numbers are, and gives where they end; null
/// when there are none, or more than 15. With so few both the digits and the power of ten are exact doubles,
/// and one division rounds right (W. Clinger, "How to Read Floating Point Numbers Accurately", 1990).
inline const char* ParsePlainNumber(const char* at, const char* end, double& number) {
    constexpr std::ptrdiff_t kMaxDigits = 15;
    const bool negative = at != end && *at == '-';
    if (negative) ++at;
    const char* const first = at;
    const char* const stop = end - first > kMaxDigits + 1 ? first + kMaxDigits + 1 : end;
    long long digits = 0;
    std::ptrdiff_t behind_point = 0;
    for (; at != stop && *at >= '0' && *at <= '9'; ++at) digits = digits * 10 + (*at - '0');
    if (at != stop && *at == '.') {
        const char* const point = at++;
        for (; at != stop && *at >= '0' && *at <= '9'; ++at) digits = digits * 10 + (*at - '0');
        behind_point = at - point - 1;
    }
    if (at == first || at - first > kMaxDigits + (behind_point > 0 ? 1 : 0)) return nullptr;
    number = static_cast<double>(negative ? -digits : digits) / kPowersOfTen[behind_point];
    return at;
}

/// The next field of a line as a number; false, and 0, when there is no further field.
inline bool NextNumber(std::string_view& line, double& number) {
    const char* start = line.data();
    const char* const end = start + line.size();
    while (start != end && IsBlank(*start)) ++start;
    const char* const stop = ParsePlainNumber(start, end, number);
    if (stop != nullptr && (stop == end || IsBlank(*stop))) {
        line = {stop, static_cast<std::size_t>(end - stop)};
        return true;
    }
    line = {start, static_cast<std::size_t>(end - start)};
    const std::string_view field = NextField(line);
    number = ToNumber(field);
    return !field.empty();
}
