#include "base/text_fields.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>

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

double ToNumber(std::string_view text) {
    double number = 0;
    const char* const end = text.data() + text.size();
    if (ParsePlainNumber(text.data(), end, number) == end && !text.empty()) return number;
    if (text.starts_with('+')) text.remove_prefix(text.starts_with("+-") ? text.size() : 1);
    number = 0;
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    return error == std::errc{} && std::isfinite(number) ? number : 0;
}

int ToWholeNumber(std::string_view text) {
    return static_cast<int>(std::clamp(ToNumber(text), -2147483647.0, 2147483647.0));
}
