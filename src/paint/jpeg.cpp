#include "paint/jpeg.h"

#include <turbojpeg.h>

#include <algorithm>
#include <cmath>
#include <memory>

#include "base/byte_fields.h"

namespace {

using Codec = std::unique_ptr<void, int (*)(tjhandle)>;

const unsigned char* Data(std::string_view bytes) {
    return reinterpret_cast<const unsigned char*>(bytes.data());
}

struct Header {
    int width = 0, height = 0, subsampling = 0, colours = 0;
};
bool ReadHeader(const Codec& codec, std::string_view bytes, Header& header) {
    return codec != nullptr && tjDecompressHeader3(codec.get(), Data(bytes), bytes.size(), &header.width,
                                                   &header.height, &header.subsampling, &header.colours) == 0;
}

// The segment that tells the density comes first: marker, length, name, version, unit, dots across and down.
constexpr std::string_view kFirst = "\xff\xd8\xff\xe0";
constexpr std::string_view kName{"JFIF", 5};
constexpr std::size_t kNameAt = 6, kUnitAt = 13, kAcrossAt = 14, kDownAt = 16, kDensityEnd = 18;
constexpr std::uint32_t kDotsPerInch = 1, kDotsPerCentimetre = 2;
constexpr double kCentimetresPerInch = 2.54;

bool TellsDensity(std::string_view bytes) {
    return bytes.size() >= kDensityEnd && bytes.starts_with(kFirst) &&
           bytes.substr(kNameAt, kName.size()) == kName;
}

Density DensityOf(std::string_view bytes) {
    if (!TellsDensity(bytes)) return {};
    const std::uint32_t unit = ByteAt(bytes, kUnitAt);
    const double x = BigHalf(bytes, kAcrossAt), y = BigHalf(bytes, kDownAt);
    if ((unit != kDotsPerInch && unit != kDotsPerCentimetre) || x == 0 || y == 0) return {};
    const double scale = unit == kDotsPerCentimetre ? kCentimetresPerInch : 1;
    return {x * scale, y * scale};
}

void WriteDensity(std::string& bytes, Density density) {
    if (!TellsDensity(bytes)) return;
    bytes[kUnitAt] = static_cast<char>(kDotsPerInch);
    const auto put = [&](std::size_t at, double dots) {
        const int value = static_cast<int>(std::clamp(std::round(dots), 1.0, 65535.0));
        bytes[at] = static_cast<char>(value >> 8);
        bytes[at + 1] = static_cast<char>(value & 255);
    };
    put(kAcrossAt, density.x);
    put(kDownAt, density.y);
}

// Does an end of image stand behind the picture's own first scan? Segments before it may hold small pictures
// with ends of theirs.
bool IsWhole(std::string_view bytes) {
    constexpr std::uint32_t kScan = 0xda;
    std::size_t at = 2;
    while (at + 4 <= bytes.size() && ByteAt(bytes, at) == 0xff) {
        if (ByteAt(bytes, at + 1) == kScan) return bytes.find("\xff\xd9", at) != std::string_view::npos;
        const bool filler = ByteAt(bytes, at + 1) == 0xff;
        at += filler ? 1 : 2 + std::size_t{BigHalf(bytes, at + 2)};
    }
    return false;
}

// Inks as the files have them: 255 is none.
std::uint32_t ColourOfInks(std::uint32_t inks) {
    const std::uint32_t black = inks >> 24;
    const auto part = [&](int shift) { return (inks >> shift & 255) * black / 255; };
    return 0xff000000 | part(0) << 16 | part(8) << 8 | part(16);
}

}  // namespace

std::optional<ImageHead> ReadJpegHead(std::string_view bytes) {
    const Codec codec(tjInitDecompress(), tjDestroy);
    Header header;
    if (!bytes.starts_with("\xff\xd8\xff") || !IsWhole(bytes) || !ReadHeader(codec, bytes, header)) return {};
    return ImageHead{header.width, header.height, DensityOf(bytes)};
}

PixelImage DecodeJpeg(std::string_view bytes) {
    const Codec codec(tjInitDecompress(), tjDestroy);
    Header header;
    if (!ReadHeader(codec, bytes, header)) return {};
    PixelImage image{header.width, header.height, {}};
    image.pixels.resize(static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.height));
    const bool inks = header.colours == TJCS_CMYK || header.colours == TJCS_YCCK;
    const int result = tjDecompress2(codec.get(), Data(bytes), bytes.size(),
                                     reinterpret_cast<unsigned char*>(image.pixels.data()), image.width, 0,
                                     image.height, inks ? TJPF_CMYK : TJPF_BGRA, TJFLAG_LIMITSCANS);
    if (result != 0 && tjGetErrorCode(codec.get()) != TJERR_WARNING) return {};
    if (inks) std::ranges::transform(image.pixels, image.pixels.begin(), ColourOfInks);
    return image;
}

std::string EncodeJpeg(const PixelImage& image, Density density) {
    constexpr int kQuality = 75;
    const Codec codec(tjInitCompress(), tjDestroy);
    if (codec == nullptr || image.pixels.empty()) return {};
    unsigned char* data = nullptr;
    unsigned long size = 0;
    std::string bytes;
    if (tjCompress2(codec.get(), reinterpret_cast<const unsigned char*>(image.pixels.data()), image.width, 0,
                    image.height, TJPF_BGRX, &data, &size, TJSAMP_420, kQuality, 0) == 0)
        bytes.assign(reinterpret_cast<const char*>(data), size);
    tjFree(data);
    WriteDensity(bytes, density);
    return bytes;
}
