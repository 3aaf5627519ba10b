#include "host/flightdeck/picture_stream.h"

#include <optional>
#include <unordered_map>
#include <vector>

namespace host {
namespace {

std::optional<std::uint32_t> TakeVarint(std::string_view& bytes) {
    std::uint32_t value = 0;
    for (int shift = 0; shift < 35 && !bytes.empty(); shift += 7) {
        const auto byte = static_cast<unsigned char>(bytes.front());
        bytes.remove_prefix(1);
        value |= static_cast<std::uint32_t>(byte & 0x7f) << shift;
        if ((byte & 0x80) == 0) return value;
    }
    return {};
}

void PutVarint(std::string& to, std::uint32_t value) {
    for (; value >= 0x80; value >>= 7) to += static_cast<char>(value | 0x80);
    to += static_cast<char>(value);
}

constexpr std::size_t kHeader = 8;

// The primitives of an encoded picture; nothing when it is cut short.
std::optional<std::vector<std::string_view>> PrimitivesOf(std::string_view picture) {
    if (picture.size() < kHeader) return {};
    picture.remove_prefix(kHeader);
    const auto count = TakeVarint(picture);
    if (!count || *count > picture.size()) return {};
    std::vector<std::string_view> primitives;
    primitives.reserve(*count);
    for (std::uint32_t i = 0; i < *count; ++i) {
        const auto length = TakeVarint(picture);
        if (!length || *length > picture.size()) return {};
        primitives.push_back(picture.substr(0, *length));
        picture.remove_prefix(*length);
    }
    return primitives;
}

}  // namespace

std::string NextPictureMessage(PictureStream& stream, std::string_view picture, std::uint64_t number) {
    const auto next = PrimitivesOf(picture);
    if (!next) return {};
    const auto last = stream.picture.empty()
                          ? std::vector<std::string_view>{}
                          : PrimitivesOf(stream.picture).value_or(std::vector<std::string_view>{});
    std::unordered_map<std::string_view, std::size_t> place;
    for (std::size_t i = 0; i < last.size(); ++i) place.emplace(last[i], i);

    std::string message(picture.substr(0, kHeader));
    for (std::size_t i = 0; i < next->size();) {
        // A run that the browser has begins where the last one ended, or wherever the primitive stands.
        const auto found = place.find((*next)[i]);
        std::size_t from = i < last.size() && last[i] == (*next)[i] ? i
                           : found != place.end()                   ? found->second
                                                                    : last.size();
        std::size_t count = 0;
        while (i + count < next->size() && from + count < last.size() &&
               last[from + count] == (*next)[i + count])
            ++count;
        if (count > 0) {
            PutVarint(message, static_cast<std::uint32_t>(count << 1));
            PutVarint(message, static_cast<std::uint32_t>(from));
            i += count;
            continue;
        }
        std::size_t fresh = 1;
        while (i + fresh < next->size() && !place.contains((*next)[i + fresh])) ++fresh;
        PutVarint(message, static_cast<std::uint32_t>(fresh << 1 | 1));
        for (const std::size_t end = i + fresh; i < end; ++i) {
            PutVarint(message, static_cast<std::uint32_t>((*next)[i].size()));
            message += (*next)[i];
        }
    }
    stream.picture = picture;
    stream.number = number;
    return message;
}

}  // namespace host
