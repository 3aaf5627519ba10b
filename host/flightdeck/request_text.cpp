#include "host/flightdeck/request_text.h"

#include <algorithm>
#include <charconv>

namespace host {
namespace {

struct MediaTypeRow {
    std::string_view extension, type;
};
constexpr MediaTypeRow kMediaTypes[] = {{".html", "text/html; charset=utf-8"},
                                        {".css", "text/css"},
                                        {".js", "text/javascript"},
                                        {".svg", "image/svg+xml"},
                                        {".png", "image/png"},
                                        {".jpg", "image/jpeg"},
                                        {".jpeg", "image/jpeg"},
                                        {".bmp", "image/bmp"},
                                        {".ttf", "font/ttf"},
                                        {".otf", "font/otf"}};

// The value of `name=` in a list of pairs; empty when it isn't there.
std::string PairValue(std::string_view pairs, char separator, std::string_view name) {
    while (!pairs.empty()) {
        std::string_view pair = pairs.substr(0, pairs.find(separator));
        pairs.remove_prefix(std::min(pairs.size(), pair.size() + 1));
        while (pair.starts_with(' ')) pair.remove_prefix(1);
        if (pair.starts_with(name) && pair.substr(name.size()).starts_with('='))
            return std::string(pair.substr(name.size() + 1));
    }
    return {};
}

}  // namespace

std::string_view MediaType(const std::filesystem::path& file) {
    for (const MediaTypeRow& row : kMediaTypes)
        if (file.extension() == row.extension) return row.type;
    return "application/octet-stream";
}

std::string_view TargetPath(std::string_view target) {
    return target.substr(0, target.find('?'));
}

std::string QueryValue(std::string_view target, std::string_view name) {
    const std::size_t question = target.find('?');
    return question == std::string_view::npos ? "" : PairValue(target.substr(question + 1), '&', name);
}

std::string CookieValue(std::string_view cookies, std::string_view name) {
    return PairValue(cookies, ';', name);
}

std::optional<std::string> DecodePercent(std::string_view encoded) {
    std::string text;
    for (std::size_t i = 0; i < encoded.size(); ++i) {
        if (encoded[i] != '%') {
            text += encoded[i];
            continue;
        }
        unsigned code = 0;
        if (i + 2 >= encoded.size()) return {};
        const char* begin = encoded.data() + i + 1;
        const auto [end, failed] = std::from_chars(begin, begin + 2, code, 16);
        if (failed != std::errc{} || end != begin + 2 || code == 0) return {};
        text += code == '\\' ? '/' : static_cast<char>(code);
        i += 2;
    }
    return text;
}

std::string_view HostName(std::string_view host) {
    if (host.starts_with('[')) return host.substr(0, host.find(']') + 1);
    return host.substr(0, host.find(':'));
}

bool IsPlainFileName(std::string_view name) {
    constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-.";
    return !name.starts_with('.') && name.find_first_not_of(kLetters) == std::string_view::npos;
}

bool SameToken(std::string_view given, std::string_view wanted) {
    if (given.size() != wanted.size()) return false;
    unsigned difference = 0;
    for (std::size_t i = 0; i < given.size(); ++i) difference |= static_cast<unsigned>(given[i] ^ wanted[i]);
    return difference == 0;
}

}  // namespace host
