#include "paint/png.h"

#include <cairo.h>

#include <algorithm>
#include <boost/crc.hpp>
#include <cmath>
#include <cstring>

#include "base/byte_fields.h"

namespace {

// A file is its signature and then chunks: length, name, content, checksum.
constexpr std::string_view kSignature = "\x89PNG\r\n\x1a\n";
constexpr std::size_t kChunkNameAt = 4, kContentAt = 8, kAroundContent = 12;
constexpr std::size_t kHeaderSize = 13, kDensitySize = 9;

cairo_surface_t* SurfaceOver(PixelImage& image) {
    return cairo_image_surface_create_for_data(reinterpret_cast<unsigned char*>(image.pixels.data()),
                                               CAIRO_FORMAT_ARGB32, image.width, image.height,
                                               image.width * 4);
}

// The chunk that tells dots per metre.
std::string DensityChunk(Density density) {
    std::string chunk;
    const auto put = [&](std::uint32_t value) {
        for (int shift = 24; shift >= 0; shift -= 8) chunk += static_cast<char>(value >> shift & 255);
    };
    put(kDensitySize);
    chunk += "pHYs";
    for (const double dots : {density.x, density.y})
        put(static_cast<std::uint32_t>(std::clamp(std::round(dots / kMetresPerInch), 1.0, 1e9)));
    chunk += '\1';  // the unit is the metre
    boost::crc_32_type checksum;
    checksum.process_bytes(chunk.data() + kChunkNameAt, chunk.size() - kChunkNameAt);
    put(checksum.checksum());
    return chunk;
}

}  // namespace

std::optional<ImageHead> ReadPngHead(std::string_view bytes) {
    if (!bytes.starts_with(kSignature)) return {};
    ImageHead head;
    for (std::size_t at = kSignature.size(); bytes.size() - at >= kAroundContent;) {
        const std::size_t length = BigWord(bytes, at);
        if (length > bytes.size() - at - kAroundContent) return {};
        const std::string_view name = bytes.substr(at + kChunkNameAt, 4);
        const std::size_t content = at + kContentAt;
        if (name == "IEND") return head;
        // The decoder makes room by the first chunk: a header further on must not tell another size.
        if (name == "IHDR" && length >= kHeaderSize && at == kSignature.size()) {
            head.width = SizeOf(BigWord(bytes, content));
            head.height = SizeOf(BigWord(bytes, content + 4));
        }
        if (name == "pHYs" && length == kDensitySize && bytes[content + 8] == 1) {
            const double x = BigWord(bytes, content), y = BigWord(bytes, content + 4);
            if (x > 0 && y > 0) head.density = {x * kMetresPerInch, y * kMetresPerInch};
        }
        at += length + kAroundContent;
    }
    return {};
}

PixelImage DecodePng(std::string_view bytes) {
    const auto read = [](void* from, unsigned char* data, unsigned length) {
        auto& rest = *static_cast<std::string_view*>(from);
        if (rest.size() < length) return CAIRO_STATUS_READ_ERROR;
        std::memcpy(data, rest.data(), length);
        rest.remove_prefix(length);
        return CAIRO_STATUS_SUCCESS;
    };
    cairo_surface_t* file = cairo_image_surface_create_from_png_stream(read, &bytes);
    PixelImage image;
    if (cairo_surface_status(file) == CAIRO_STATUS_SUCCESS) {
        // Whatever form the file's pixels have, painting turns it into ours.
        image.width = cairo_image_surface_get_width(file);
        image.height = cairo_image_surface_get_height(file);
        image.pixels.resize(static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.height));
        cairo_surface_t* surface = SurfaceOver(image);
        cairo_t* cairo = cairo_create(surface);
        cairo_set_source_surface(cairo, file, 0, 0);
        cairo_set_operator(cairo, CAIRO_OPERATOR_SOURCE);
        cairo_paint(cairo);
        cairo_destroy(cairo);
        cairo_surface_flush(surface);
        cairo_surface_destroy(surface);
    }
    cairo_surface_destroy(file);
    return image;
}

std::string EncodePng(const PixelImage& image, Density density) {
    std::string bytes;
    if (image.pixels.empty()) return bytes;
    PixelImage copy = image;
    cairo_surface_t* surface = SurfaceOver(copy);
    const auto append = [](void* to, const unsigned char* data, unsigned length) {
        static_cast<std::string*>(to)->append(reinterpret_cast<const char*>(data), length);
        return CAIRO_STATUS_SUCCESS;
    };
    if (cairo_surface_write_to_png_stream(surface, append, &bytes) != CAIRO_STATUS_SUCCESS) bytes.clear();
    cairo_surface_destroy(surface);
    const std::size_t behind_header = kSignature.size() + kAroundContent + kHeaderSize;
    if (bytes.size() > behind_header) bytes.insert(behind_header, DensityChunk(density));
    return bytes;
}
