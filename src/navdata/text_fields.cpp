#include "navdata/text_fields.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <iterator>

namespace {

template <class IsDivider>
std::string_view CutPart(std::string_view& text, IsDivider is_divider) {
    const char* at = text.data();
    const char* const end = at + text.size();
    while (at != end && is_divider(*at)) ++at;
    const char* const start = at;
    while (at != end && !is_divider(*at)) ++at;
    text = {at, static_cast<std::size_t>(end - at)};
    return {start, static_cast<std::size_t>(at - start)};
}

}  // namespace

std::optional<std::string_view> NextBoundedLine(std::string_view& rest, std::size_t bound) {
    if (rest.empty()) return {};
    // The search is bounded too: a file of one endless line costs no more than one of short lines.
    const std::size_t window = std::min(rest.size(), bound + 2);
    const void* const found = std::memchr(rest.data(), '\n', window);
    std::size_t length = found == nullptr
                             ? std::min(rest.size(), bound)
                             : static_cast<std::size_t>(static_cast<const char*>(found) - rest.data());
    std::size_t taken = found == nullptr ? length : length + 1;
    if (found != nullptr && length > 0 && rest[length - 1] == '\r') --length;
    if (length > bound) length = taken = bound;
    const std::string_view line = rest.substr(0, length);
    rest.remove_prefix(taken);
    return line;
}

std::optional<std::string_view> NextDataLine(std::string_view& rest, std::size_t bound) {
    std::optional<std::string_view> line = NextBoundedLine(rest, bound);
    while (line && line->starts_with(';')) line = NextBoundedLine(rest, bound);
    return line;
}

std::string_view NextField(std::string_view& line) {
    return CutPart(line, [](char c) { return static_cast<unsigned char>(c) <= ' '; });
}

std::string_view NextTokenPart(std::string_view& token) {
    return CutPart(token, [](char c) { return c == '_'; });
}

double ToNumber(std::string_view text) {
    // Nearly all numbers of the files are a few plain digits. With at most 15 of them both the digits and the
    // power of ten are exact doubles, so one division rounds right (W. Clinger, "How to Read Floating Point
    // Numbers Accurately", 1990); four times as fast as the general road.
    constexpr double kPowers[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                  1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    const bool negative = text.starts_with('-');
    if (text.starts_with('-') || text.starts_with('+')) text.remove_prefix(1);
    std::uint64_t digits = 0;
    std::size_t at = 0, behind_point = 0;
    if (text.size() <= 16) {
        for (; at < text.size() && text[at] >= '0' && text[at] <= '9'; ++at)
            digits = digits * 10 + static_cast<std::uint64_t>(text[at] - '0');
        if (at < text.size() && text[at] == '.') {
            const std::size_t point = at++;
            for (; at < text.size() && text[at] >= '0' && text[at] <= '9'; ++at)
                digits = digits * 10 + static_cast<std::uint64_t>(text[at] - '0');
            behind_point = at - point - 1;
        }
        const std::size_t count = behind_point > 0 ? at - 1 : at;
        if (at == text.size() && count <= 15) {
            const double number = static_cast<double>(digits) / kPowers[behind_point];
            return negative ? -number : number;
        }
    }
    if (text.starts_with('-') || text.starts_with('+')) return 0;
    double number = 0;
    const auto [rest, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || !std::isfinite(number)) return 0;
    return negative ? -number : number;
}

int ToWholeNumber(std::string_view text) {
    return static_cast<int>(std::clamp(ToNumber(text), -2147483647.0, 2147483647.0));
}
