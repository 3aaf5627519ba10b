#include "paint/bmp.h"

#include <array>
#include <bit>

#include "base/byte_fields.h"

namespace {

constexpr std::uint32_t kPlain = 0, kMasked = 3;  // forms of compression
constexpr std::size_t kHeaderAt = 14, kOldHeader = 12, kHeader = 40;

struct Layout {
    ImageHead head;
    bool from_top = false;
    std::uint32_t bits = 0;  // of a pixel
    std::size_t pixels = 0, row = 0;
    std::size_t colours = 0, colour_size = 4;  // the palette's place
    std::array<std::uint32_t, 3> masks = {};   // of red, green and blue, without a palette
};

std::optional<Layout> ReadLayout(std::string_view bytes) {
    if (bytes.size() < kHeaderAt + kHeader || !bytes.starts_with("BM")) return {};
    Layout layout;
    layout.pixels = LittleWord(bytes, 10);
    const std::size_t header = LittleWord(bytes, kHeaderAt);
    layout.colours = kHeaderAt + header;
    std::uint32_t compression = kPlain;
    if (header == kOldHeader) {
        layout.head = {SizeOf(LittleHalf(bytes, 18)), SizeOf(LittleHalf(bytes, 20)), {}};
        layout.bits = LittleHalf(bytes, 24);
        layout.colour_size = 3;
    } else if (header >= kHeader) {
        const std::uint32_t height = LittleWord(bytes, 22);
        layout.from_top = height >> 31 != 0;
        layout.head = {SizeOf(LittleWord(bytes, 18)), SizeOf(layout.from_top ? -height : height), {}};
        layout.bits = LittleHalf(bytes, 28);
        compression = LittleWord(bytes, 30);
        const double x = LittleWord(bytes, 38), y = LittleWord(bytes, 42);
        if (x > 0 && y > 0) layout.head.density = {x * kMetresPerInch, y * kMetresPerInch};
    }
    const std::uint32_t bits = layout.bits;
    const bool palette = bits == 1 || bits == 4 || bits == 8;
    if (!palette && bits != 16 && bits != 24 && bits != 32) return {};
    layout.masks = {0xff0000, 0xff00, 0xff};
    if (bits == 16) layout.masks = {0x7c00, 0x3e0, 0x1f};
    if (compression == kMasked && (bits == 16 || bits == 32)) {
        constexpr std::size_t kMasksAt = 54;
        if (bytes.size() < kMasksAt + 12) return {};
        for (std::size_t i = 0; i < 3; ++i) layout.masks[i] = LittleWord(bytes, kMasksAt + 4 * i);
    } else if (compression != kPlain) {
        return {};
    }
    layout.row = (static_cast<std::size_t>(layout.head.width) * bits + 31) / 32 * 4;
    if (layout.pixels > bytes.size() ||
        layout.row * static_cast<std::size_t>(layout.head.height) > bytes.size() - layout.pixels)
        return {};
    return layout;
}

// The part of a pixel under a mask, stretched to 0..255.
std::uint32_t Part(std::uint32_t value, std::uint32_t mask) {
    if (mask == 0) return 0;
    const int shift = std::countr_zero(mask);
    return static_cast<std::uint32_t>(std::uint64_t{255} * ((value & mask) >> shift) / (mask >> shift));
}

std::uint32_t PaletteColour(std::string_view bytes, const Layout& layout, std::uint32_t index) {
    const std::size_t at = layout.colours + index * layout.colour_size;
    if (at + 3 > layout.pixels) return 0xff000000;
    return 0xff000000 | ByteAt(bytes, at + 2) << 16 | LittleHalf(bytes, at);
}

std::uint32_t Pixel(std::string_view bytes, const Layout& layout, std::size_t row, std::uint32_t x) {
    switch (layout.bits) {
        case 1:
            return PaletteColour(bytes, layout, ByteAt(bytes, row + x / 8) >> (7 - x % 8) & 1);
        case 4:
            return PaletteColour(bytes, layout, ByteAt(bytes, row + x / 2) >> (4 - x % 2 * 4) & 15);
        case 8:
            return PaletteColour(bytes, layout, ByteAt(bytes, row + x));
        default:
            break;
    }
    const std::size_t at = row + x * (layout.bits / 8);
    const std::uint32_t value = layout.bits == 16   ? LittleHalf(bytes, at)
                                : layout.bits == 24 ? LittleHalf(bytes, at) | ByteAt(bytes, at + 2) << 16
                                                    : LittleWord(bytes, at);
    const auto& [red, green, blue] = layout.masks;
    return 0xff000000 | Part(value, red) << 16 | Part(value, green) << 8 | Part(value, blue);
}

}  // namespace

std::optional<ImageHead> ReadBmpHead(std::string_view bytes) {
    const auto layout = ReadLayout(bytes);
    if (!layout) return {};
    return layout->head;
}

PixelImage DecodeBmp(std::string_view bytes) {
    const auto layout = ReadLayout(bytes);
    if (!layout) return {};
    PixelImage image{layout->head.width, layout->head.height, {}};
    const auto width = static_cast<std::uint32_t>(image.width),
               height = static_cast<std::uint32_t>(image.height);
    image.pixels.reserve(std::size_t{width} * height);
    for (std::uint32_t y = 0; y < height; ++y) {
        const std::size_t row = layout->pixels + layout->row * (layout->from_top ? y : height - 1 - y);
        for (std::uint32_t x = 0; x < width; ++x) image.pixels.push_back(Pixel(bytes, *layout, row, x));
    }
    return image;
}
