#include "base/bcd.h"

#include <algorithm>

int DecodeBcd(double raw) {
    if (!(raw >= 0 && raw < 4294967296.0)) return 0;
    int value = 0, weight = 1;
    for (auto digits = static_cast<unsigned>(raw); digits > 0; digits >>= 4) {
        value += static_cast<int>(digits & 0xf) * weight;
        if (weight < 10000000) weight *= 10;
    }
    return value;
}

int EncodeBcd(int value) {
    unsigned bcd = 0;
    for (int shift = 0; value > 0 && shift < 32; value /= 10, shift += 4)
        bcd |= static_cast<unsigned>(value % 10) << shift;
    return static_cast<int>(bcd);
}

int FrequencyToBcd(std::string_view freq) {
    const std::size_t point = std::min(freq.find('.'), freq.size());
    const std::string_view whole = freq.substr(0, point);
    const std::string_view part = freq.substr(std::min(point + 1, freq.size()));
    const auto digit = [](std::string_view text, std::size_t at) {
        return at < text.size() && text[at] >= '0' && text[at] <= '9' ? text[at] - '0' : 0;
    };
    int bcd = 0;
    for (std::size_t i = 0; i < 3; ++i) bcd = bcd * 16 + digit(whole, i);
    for (std::size_t i = 0; i < 2; ++i) bcd = bcd * 16 + digit(part, i);
    return bcd;
}
